#include "platform/ui/Layout.h"

namespace {

struct Span {
    int start;
    int length;
};

Span FollowAlongAxis(Span child, bool lockedAtStart, bool lockedAtEnd, int move, int growth) {
    child.start += move;
    if (lockedAtStart && lockedAtEnd) {
        child.length += growth;
    } else if (lockedAtEnd) {
        child.start += growth;
    }
    return child;
}

} // namespace

Rect FollowParent(const Rect& child, Locks locks, const FrameChange& parent) {
    const Span across = FollowAlongAxis({child.left, child.width}, (locks & LockLeft) != 0, (locks & LockRight) != 0,
                                        parent.dx, parent.dWidth);
    const Span down = FollowAlongAxis({child.top, child.height}, (locks & LockTop) != 0, (locks & LockBottom) != 0,
                                      parent.dy, parent.dHeight);
    return {across.start, down.start, across.length, down.length};
}

FrameChange ChangeBetween(const Rect& before, const Rect& after) {
    return {after.left - before.left, after.top - before.top, after.width - before.width, after.height - before.height};
}

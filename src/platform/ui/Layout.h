#pragma once

// Where a control stands and how it follows its parent. Pure arithmetic, no window.
//
// All places are in pixels from the top left corner of the window's content. A locked side keeps its distance from
// the same side of the parent; a control locked on two opposite sides stretches; one that is locked on neither keeps
// its distance from the parent's left or top edge.

struct Rect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    friend constexpr bool operator==(const Rect&, const Rect&) = default;
};

// What happened to a frame: how far its top left corner moved and how much wider and higher it became.
struct FrameChange {
    int dx = 0;
    int dy = 0;
    int dWidth = 0;
    int dHeight = 0;

    friend constexpr bool operator==(const FrameChange&, const FrameChange&) = default;
};

using Locks = unsigned;
constexpr Locks LockNone = 0;
constexpr Locks LockLeft = 1;
constexpr Locks LockTop = 2;
constexpr Locks LockRight = 4;
constexpr Locks LockBottom = 8;

// The child's place after its parent's frame changed. Sizes may become negative when the parent shrinks below what
// the locks leave; the true value is kept, so that growing again gives the old place back.
[[nodiscard]] Rect FollowParent(const Rect& child, Locks locks, const FrameChange& parent);

// What happened between two places of one frame.
[[nodiscard]] FrameChange ChangeBetween(const Rect& before, const Rect& after);

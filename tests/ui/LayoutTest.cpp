#include "platform/ui/Layout.h"

#include <gtest/gtest.h>

TEST(Layout, EachEdgeFollowsItsLock) {
    const Rect parent = {0, 0, 400, 300};
    const Rect smaller = {0, 0, 250, 200};
    const Rect child = {50, 40, 100, 80};
    const std::tuple<Locks, Rect, Rect> cases[] = {
        // locks, the child in the parent at 250 x 200, and in one that moved by 10, 20 and grew to 400 x 310
        {LockLeft | LockTop, {50, 40, 100, 80}, {60, 60, 100, 80}},
        {LockRight | LockTop, {-100, 40, 100, 80}, {60, 60, 100, 80}},
        {LockBottom, {50, -60, 100, 80}, {60, 70, 100, 80}},
        {LockLeft | LockTop | LockRight | LockBottom, {50, 40, -50, -20}, {60, 60, 100, 90}},
    };
    for (const auto& [locks, shrunk, moved] : cases) {
        EXPECT_EQ(FollowParent(child, locks, ChangeBetween(parent, smaller)), shrunk) << locks;
        EXPECT_EQ(FollowParent(shrunk, locks, ChangeBetween(smaller, parent)), child) << locks;
        EXPECT_EQ(FollowParent(child, locks, ChangeBetween(parent, {10, 20, 400, 310})), moved) << locks;
    }
}

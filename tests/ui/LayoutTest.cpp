#include "UiFixture.h"
#include "platform/ui/Shapes.h"

namespace {

// A panel at the bottom with a field in it that stretches with the panel.
class LockedWindow : public Window {
public:
    LockedWindow() : Window({"LockedWindow", "Locks", 400, 300, 200, 120, 900, 900, true}) {
        Panel.Place(*this, nullptr, {"Panel", "", {10, 200, 380, 90}, LockLeft | LockRight | LockBottom});
        Inner.Place(*this, &Panel, {"Inner", "", {20, 210, 300, 20}, LockLeft | LockTop | LockRight});
    }

    Rectangle Panel, Inner;
};

// Where the control's widget stands on the window's content.
QRect ShownPlaceOf(const Window& window, const Control& control) {
    const auto* widget = window.Widget()->findChild<QWidget*>(control.Name());
    return {widget->mapTo(window.Widget(), QPoint(0, 0)), widget->size()};
}

} // namespace

TEST(Layout, EachEdgeFollowsItsLock) {
    const Rect parent = {0, 0, 400, 300};
    const Rect smaller = {0, 0, 250, 200};
    const Rect child = {50, 40, 100, 80};
    struct Case {
        Locks locks;
        Rect shrunk; // the parent at 250 x 200
        Rect moved;  // the parent at 10, 20 and 400 x 310
    };
    const Case cases[] = {
        {LockLeft | LockTop, {50, 40, 100, 80}, {60, 60, 100, 80}},
        {LockRight | LockTop, {-100, 40, 100, 80}, {60, 60, 100, 80}},
        {LockBottom, {50, -60, 100, 80}, {60, 70, 100, 80}},
        {LockLeft | LockTop | LockRight | LockBottom, {50, 40, -50, -20}, {60, 60, 100, 90}},
    };
    for (const Case& row : cases) {
        const Rect shrunk = FollowParent(child, row.locks, ChangeBetween(parent, smaller));
        EXPECT_EQ(shrunk, row.shrunk) << row.locks;
        EXPECT_EQ(FollowParent(shrunk, row.locks, ChangeBetween(smaller, parent)), child) << row.locks;
        EXPECT_EQ(FollowParent(child, row.locks, ChangeBetween(parent, {10, 20, 400, 310})), row.moved) << row.locks;
    }
}

using LayoutTest = UiTest;

TEST_F(LayoutTest, ControlsFollowTheWindowThroughTheirParentsAndItsBounds) {
    auto& locked = Window::Implicit<LockedWindow>();
    ShowActive(locked);
    const auto expectAt = [&locked](int width, int height, const QRect& panel, const QRect& inner) {
        locked.SetWidth(width);
        locked.SetHeight(height);
        EXPECT_EQ(ShownPlaceOf(locked, locked.Panel), panel) << width;
        EXPECT_EQ(ShownPlaceOf(locked, locked.Inner), inner) << width;
    };
    expectAt(500, 340, {10, 240, 480, 90}, {20, 250, 400, 20});
    expectAt(10, 10, {10, 20, 180, 90}, {20, 30, 100, 20}); // the window stays at 200 x 120
}

#pragma once

#include "platform/ui/Layout.h"

#include <QString>

#include <initializer_list>
#include <memory>

class QWidget;
class Window;

// How one row of a window's layout table places a control.
struct ControlPlace {
    const char* name = "";        // the control's name, which tests and assistive tools find it by
    const char* description = ""; // what a screen reader calls it; empty for decoration, and where a caption says it
    Rect rect;                    // in the window's own coordinates, also for a control inside another
    Locks locks = LockNone;
};

// What every control has: a place in its window, visibility, an enabled state and the keyboard focus.
//
// A control is a member of its window and is placed once, in the window's constructor. It follows its parent, which
// is another control or the window itself; see Layout.h. Left, Top, Width and Height are in the window's coordinates.
class Control {
public:
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    // Puts the control into the window, inside the parent control if there is one. Controls placed later lie above.
    void Place(Window& window, Control* parent, const ControlPlace& place);

    [[nodiscard]] QString Name() const;

    [[nodiscard]] int Left() const;
    [[nodiscard]] int Top() const;
    [[nodiscard]] int Width() const;
    [[nodiscard]] int Height() const;
    void SetLeft(int left);
    void SetTop(int top);
    void SetWidth(int width);
    void SetHeight(int height);

    // The control's own setting: true also while a parent hides it.
    [[nodiscard]] bool Visible() const;
    void SetVisible(bool visible);
    [[nodiscard]] bool Enabled() const;
    void SetEnabled(bool enabled);

    // Gives the control the keyboard focus. Nothing happens on a control that takes none.
    void SetFocus();

    // For the layer itself: the parent's frame changed.
    void FollowFrame(const FrameChange& parent);

protected:
    // Takes ownership of the widget that shows the control.
    explicit Control(QWidget* widget);

    [[nodiscard]] QWidget* Widget() const;

    // Gives the control the words that a screen reader calls it by, and its parts as far as they need their own.
    virtual void Describe(const QString& words);

    // The widget that carries a control placed inside this one. It covers this one, so that both have the same
    // coordinates.
    [[nodiscard]] virtual QWidget* Ground() const { return Widget(); }

private:
    friend class Window;
    friend void SetTabOrder(std::initializer_list<Control*> controls);
    struct State;

    void MoveTo(const Rect& rect);
    void ShowAt(const Rect& rect);

    std::unique_ptr<State> state_;
};

// One row of a window's layout table. Rows stand in creation order: later controls lie above, and the tab key goes in
// that order unless SetTabOrder gives another.
struct PlacedControl {
    Control& control;
    Control* parent = nullptr;
    ControlPlace place;
};

void PlaceAll(Window& window, std::initializer_list<PlacedControl> rows);

// Lets the tab key go through these controls of one window in this order, where that differs from the order of their
// creation. The controls left out come before or behind them as they were created.
void SetTabOrder(std::initializer_list<Control*> controls);

#pragma once

#include "platform/ui/Control.h"

#include <functional>

// A button that starts a command. It is reached by the tab key and pressed by the space bar.
class PushButton : public Control {
public:
    PushButton();

    std::function<void()> Action;

    void SetCaption(const QString& caption);
    void SetTextSize(int pixels);
    // The button that Return presses in its window, and that is drawn so. At most one of a window's buttons is it.
    void SetDefault(bool isDefault);
};

// One choice of several: to set one takes the value from the others that stand on the same page or window. The tab key
// reaches the group, the arrow keys choose in it.
class RadioButton : public Control {
public:
    RadioButton();

    void SetCaption(const QString& caption);
    [[nodiscard]] bool Value() const;
    void SetValue(bool value);
};

// A small button for the mouse that leaves the keyboard focus, and so an edit in a list, where it is. Its caption is a
// sign rather than a word, so a tool tip shows its description.
class BevelButton : public Control {
public:
    BevelButton();

    std::function<void()> Action;

    void SetCaption(const QString& caption);

private:
    void Describe(const QString& words) override;
};

// A box that is ticked or not.
class CheckBox : public Control {
public:
    CheckBox();

    // Raised for every change of the value, also when the logic makes it.
    std::function<void()> Action;

    void SetCaption(const QString& caption);
    void SetTextSize(int pixels);
    [[nodiscard]] bool Value() const;
    void SetValue(bool value);
};

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

#pragma once

#include "platform/ui/Control.h"

// A bar that shows how far a task has come.
class ProgressBar : public Control {
public:
    ProgressBar();

    void SetMaximum(int maximum);
    // From 0 to the maximum. The bar is drawn at once, although the task lets no other event through: the events that
    // put a window on the screen are served, keys and clicks wait.
    void SetValue(int value);
};

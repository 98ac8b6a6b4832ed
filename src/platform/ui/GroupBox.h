#pragma once

#include "platform/ui/Control.h"

// A framed area without a caption that other controls lie in. Hiding it hides them.
class GroupBox : public Control {
public:
    GroupBox();
};

#pragma once

#include "platform/ui/MenuBar.h"

// The menu bar of the application and all of its windows.
class MenuBar1 : public MenuBar {
public:
    MenuBar1();
};

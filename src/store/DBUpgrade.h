#pragma once

#include "platform/ui/ProgressBar.h"
#include "platform/ui/StaticText.h"
#include "platform/ui/Window.h"

// Shows how far the move to a new library has come.
class DBUpgrade : public Window {
public:
    DBUpgrade();

    static DBUpgrade& Instance() { return Implicit<DBUpgrade>(); }

    StaticText StaticText1;
    ProgressBar Progress;
};

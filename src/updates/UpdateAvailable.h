#pragma once

#include "platform/ui/Buttons.h"
#include "platform/ui/Canvas.h"
#include "platform/ui/StaticText.h"
#include "platform/ui/Window.h"

// The notice that a newer version can be had.
class UpdateAvailable : public Window {
public:
    UpdateAvailable();

    static UpdateAvailable& Instance() { return Implicit<UpdateAvailable>(); }

    Canvas Canvas1;
    PushButton GetUpdate;
    PushButton Close;
    StaticText StaticText1;

private:
    void GetUpdate_Action();
    void Close_Action();
};

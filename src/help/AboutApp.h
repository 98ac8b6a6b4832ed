#pragma once

#include "platform/ui/StaticText.h"
#include "platform/ui/Window.h"

// The product's picture and its version.
class AboutApp : public Window {
public:
    AboutApp();

    static AboutApp& Instance() { return Implicit<AboutApp>(); }

    StaticText Version;
    StaticText StaticText2;

private:
    void Event_Open();
};

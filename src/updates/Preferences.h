#pragma once

#include "platform/ui/Buttons.h"
#include "platform/ui/StaticText.h"
#include "platform/ui/TabPanel.h"
#include "platform/ui/Window.h"

// Two of the user's options. What stands in the window when it closes is the new setting, in memory at once and in the
// file when the main window closes.
class Preferences : public Window {
public:
    Preferences();

    static Preferences& Instance() { return Implicit<Preferences>(); }

    TabPanel TabPanel1;
    CheckBox CheckForAppUpdates;
    RadioButton ShareDrinks_Yes;
    RadioButton ShareDrinks_No;
    StaticText StaticText1;
    StaticText StaticText2;

private:
    void PlaceControls();
    void DressControls();

    void Event_Open();
    void Event_Close();
};

#pragma once

#include "platform/ui/Buttons.h"
#include "platform/ui/Listbox.h"
#include "platform/ui/StaticText.h"
#include "platform/ui/Window.h"

// The window in which the user ticks what is at home, in a list of all ingredients: the generic ones, and below each
// its specific kinds. It keeps nothing but the rows of the list, which App fills and saves.
class Ingredients : public Window {
public:
    Ingredients();

    // Creates the window at the first call, and after each close.
    static Ingredients& Instance() { return Implicit<Ingredients>(); }

    PushButton Save;
    PushButton Cancel;
    StaticText StaticText1;
    Listbox IngredientList;

private:
    void Save_Action();
    void Cancel_Action();
    bool IngredientList_CellBackgroundPaint(Graphics& g, int row, int column);
};

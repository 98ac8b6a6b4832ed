#pragma once

#include "platform/ui/Buttons.h"
#include "platform/ui/ComboBox.h"
#include "platform/ui/EditField.h"
#include "platform/ui/Listbox.h"
#include "platform/ui/StaticText.h"
#include "platform/ui/Window.h"

#include <QString>
#include <QStringList>

// The window in which the user writes a recipe. It floats above the main window and does not block it; what stands in
// it when it closes without a save is gone.
class NewRecipe : public Window {
public:
    NewRecipe();

    // Creates the window at the first call, and again after it was closed.
    static NewRecipe& Instance() { return Implicit<NewRecipe>(); }

    // The names that the grid completes, in the order of their priority, behind an empty one.
    QStringList UofMs;
    QStringList IngredientNames;

    StaticText StaticText1;
    StaticText StaticText2;
    StaticText StaticText3;
    StaticText StaticText4;
    EditField DrinkName{EditField::Lines::One};
    EditField Instructions{EditField::Lines::Many};
    ComboBox DrinkType;
    PushButton AddRecipe;
    PushButton Cancel;
    ComboBox Glass;
    Listbox Recipe;
    BevelButton AddIngredient;
    BevelButton RemoveIngredient;

private:
    void PlaceControls();
    void DressControls();
    void BindEvents();

    [[nodiscard]] bool GridIsPrepared() const;

    void AddRecipe_Action();
    void Cancel_Action();
    void Recipe_GotFocus();
    bool Recipe_KeyDown(const QString& key);
    bool Recipe_CellKeyDown(int row, int column, const QString& key);
    void AddIngredient_Action();
    void RemoveIngredient_Action();
};

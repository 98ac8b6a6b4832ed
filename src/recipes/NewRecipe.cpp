#include "recipes/NewRecipe.h"

#include "platform/base/Text.h"
#include "platform/ui/Keyboard.h"
#include "recipes/RecipeGrid.h"
#include "shell/App.h"

#include <algorithm>

namespace {

const WindowProperties properties = {
    .name = "NewRecipe",
    .title = QStringLiteral("New Drink Recipe"),
    .width = 507,
    .height = 346,
    .kind = WindowKind::Floating,
    .minimizeable = false,
};

} // namespace

NewRecipe::NewRecipe() : Window(properties) {
    PlaceControls();
    DressControls();
    BindEvents();
    SetTabOrder({&Recipe, &Cancel, &AddRecipe});
    SetMenuBar(App::Instance().ApplicationMenuBar());
}

void NewRecipe::BindEvents() {
    AddRecipe.Action = [this] { AddRecipe_Action(); };
    Cancel.Action = [this] { Cancel_Action(); };
    AddIngredient.Action = [this] { AddIngredient_Action(); };
    RemoveIngredient.Action = [this] { RemoveIngredient_Action(); };
    Recipe.GotFocus = [this] { Recipe_GotFocus(); };
    Recipe.KeyDown = [this](const QString& key) { return Recipe_KeyDown(key); };
    Recipe.CellKeyDown = [this](int row, int column, const QString& key) {
        return Recipe_CellKeyDown(row, column, key);
    };
}

void NewRecipe::AddRecipe_Action() {
    App::Instance().SaveNewDrinkRecipe();
}

// Nothing is asked: there are no drafts.
void NewRecipe::Cancel_Action() {
    Close();
}

// Without a library that could be opened the grid has no columns to write in.
bool NewRecipe::GridIsPrepared() const {
    return Recipe.ColumnCount() > recipegrid::NameColumn;
}

// Coming to the empty grid starts the first row.
void NewRecipe::Recipe_GotFocus() {
    if (Recipe.ListCount() == 0 && GridIsPrepared()) {
        Recipe.AddRow(QString());
        Recipe.SetCell(0, 0, QStringLiteral("1"));
        Recipe.EditCell(0, recipegrid::NameColumn);
    }
}

void NewRecipe::AddIngredient_Action() {
    if (!GridIsPrepared()) {
        return;
    }
    Recipe.AddRow(QString());
    Recipe.SetCell(Recipe.ListCount() - 1, 0, CStr(Recipe.ListCount()));
    Recipe.EditCell(Recipe.ListCount() - 1, recipegrid::NameColumn);
}

// The rows below keep their numbers: what is stored counts the rows' places.
void NewRecipe::RemoveIngredient_Action() {
    if (Recipe.ListIndex() > -1) {
        Recipe.RemoveRow(Recipe.ListIndex());
    }
}

// The two small buttons take no focus, so their captions are keys of the grid while no cell is edited. After a row is
// removed the next one is selected, so that the keys go on.
bool NewRecipe::Recipe_KeyDown(const QString& key) {
    const int code = Asc(key);
    if (key == QLatin1String("+")) {
        AddIngredient_Action();
        return true;
    }
    const int row = Recipe.ListIndex();
    if (row > -1 && (key == QLatin1String("-") || code == Keyboard::Delete || code == Keyboard::Backspace)) {
        RemoveIngredient_Action();
        Recipe.SetListIndex(std::min(row, Recipe.ListCount() - 1));
        return true;
    }
    return false;
}

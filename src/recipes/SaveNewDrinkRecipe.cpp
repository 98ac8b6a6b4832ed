#include "platform/base/Text.h"
#include "platform/ui/MsgBox.h"
#include "recipes/NewRecipe.h"
#include "recipes/RecipeGrid.h"
#include "recipes/RecipeRecords.h"
#include "shell/App.h"
#include "shell/MainWindow.h"
#include "store/Succeeded.h"

#include <QStringList>

namespace {

bool Refuse(const QString& reason) {
    MsgBox(reason);
    return false;
}

// Gives the records of drinks with this name, closed: none, when the result is true.
bool CheckDrink(REALSQLDatabase& db, const NewRecipe& window, const QString& name, RecordSet& sameName) {
    if (name.isEmpty()) {
        return Refuse(QStringLiteral("You must enter in a drink name."));
    }
    if (window.Glass.ListIndex() < 0 || window.DrinkType.ListIndex() < 0) {
        return Refuse(QStringLiteral("You must select both a glass type and a drink type."));
    }
    sameName = db.SQLSelect(QStringLiteral("SELECT * FROM Drinks WHERE DrinkName = '") + name + QStringLiteral("'"));
    if (!Succeeded(db, QStringLiteral("An error occurred checking for duplicate drink:  "))) {
        return false;
    }
    if (!sameName.Eof()) {
        return Refuse(QStringLiteral("A drink with this name already exists in the database."));
    }
    sameName.Close();
    return true;
}

bool ReadIngredientNames(const Listbox& grid, QStringList& names) {
    if (grid.ListCount() == 0 || Trim(grid.Cell(0, recipegrid::NameColumn)).isEmpty()) {
        return Refuse(QStringLiteral("You must enter in at least one ingredient."));
    }
    for (int row = 0; row < grid.ListCount(); ++row) {
        names.append(Trim(grid.Cell(row, recipegrid::NameColumn)));
        if (names.last().isEmpty()) {
            return Refuse(QStringLiteral("You must enter an ingredient name for each recipe row."));
        }
    }
    return true;
}

// A filter may hide the new drink; then nothing is selected.
void SelectDrink(App& app, Listbox& list, int DrinkID) {
    for (int row = 0; row < list.ListCount(); ++row) {
        if (list.CellTag(row, 0) == DrinkID) {
            list.SetListIndex(row);
            list.SetScrollPosition(row);
            app.ShowDrinkInfo(DrinkID);
            return;
        }
    }
}

} // namespace

// A failure leaves the window open with all that was typed.
void App::SaveNewDrinkRecipe() {
    REALSQLDatabase db;
    if (!GetDatabase(db)) {
        return;
    }
    NewRecipe& window = NewRecipe::Instance();
    const QString name = Trim(window.DrinkName.Text());
    RecordSet sameName;
    QStringList ingredients;
    if (!CheckDrink(db, window, name, sameName) || !ReadIngredientNames(window.Recipe, ingredients) ||
        !InsertDrink(db, window, name, ingredients)) {
        return;
    }
    const int DrinkID = db.LastRowID();
    for (int row = 0; row < window.Recipe.ListCount(); ++row) {
        if (!InsertRecipeRow(db, window.Recipe, row, DrinkID, sameName)) {
            return;
        }
    }
    window.Close();
    if (FillDrinkListsList() && FillDrinkList()) {
        SelectDrink(*this, MainWindow::Instance().DrinkList, DrinkID);
    }
}

#include "platform/base/Text.h"
#include "platform/ui/Keyboard.h"
#include "recipes/NameCompletion.h"
#include "recipes/NewRecipe.h"
#include "recipes/RecipeGrid.h"

// The keyboard of the recipe grid: one ingredient after the other is typed without the mouse.

using namespace recipegrid;

namespace {

constexpr int firstPrintable = 32;
// The tilde and all characters behind it are the editor's.
constexpr int lastPrintable = 125;

// A new row has the number of the row before it, by decision: only the display shows it.
void GoForward(Listbox& grid, int row, int column) {
    if (column == NameColumn) {
        // The completed name counts, whatever the end of the edit does with the part behind the caret.
        const QString text = grid.ActiveCell()->Text();
        grid.EditCell(row, QuantityColumn);
        grid.SetCell(row, NameColumn, text);
    } else if (column < PreparationColumn) {
        grid.EditCell(row, column + 1);
    } else if (row < grid.ListCount() - 1) {
        grid.EditCell(row + 1, NameColumn);
    } else {
        grid.AddRow(QString());
        grid.SetCell(row + 1, 0, CStr(row + 1));
        grid.EditCell(row + 1, NameColumn);
    }
}

// The key is entered here and not by the editor. What an earlier completion left behind the caret goes, and the rest
// of the new one stands there unselected.
void Complete(EditField& cell, const QStringList& names, const QString& key) {
    const int caret = cell.SelStart();
    cell.SetText(CompletedName(names, Left(cell.Text(), caret) + key));
    cell.SetSelStart(caret + 1);
}

} // namespace

bool NewRecipe::Recipe_CellKeyDown(int row, int column, const QString& key) {
    const int code = Asc(key);
    EditField& cell = *Recipe.ActiveCell();
    if (code == Keyboard::Tab && Keyboard::AsyncShiftKey()) {
        if (column > 0) {
            Recipe.EditCell(row, column - 1);
        }
        return column > 0;
    }
    if (code == Keyboard::Tab) {
        GoForward(Recipe, row, column);
        return true;
    }
    if (code >= firstPrintable && code <= lastPrintable && (column == NameColumn || column == UnitColumn)) {
        Complete(cell, column == NameColumn ? IngredientNames : UofMs, key);
        return true;
    }
    // The arrows step through the ingredients in every column, also in that of the units.
    if (code == Keyboard::Down) {
        cell.SetText(NextName(IngredientNames, cell.Text()));
        return true;
    }
    if (code == Keyboard::Up) {
        cell.SetText(PreviousName(IngredientNames, cell.Text()));
        return true;
    }
    return false;
}

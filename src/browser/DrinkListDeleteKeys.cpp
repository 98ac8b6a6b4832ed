#include "platform/base/Text.h"
#include "platform/ui/Keyboard.h"
#include "shell/App.h"
#include "shell/Confirmed.h"
#include "shell/MainWindow.h"

namespace {

// The count of the drinklist follows at once; a drink that could not be removed is still counted.
void RemoveSelectedDrinksFrom(int drinkListID, const Listbox& drinks, Listbox& lists) {
    for (int row = 0; row < drinks.ListCount(); ++row) {
        if (drinks.Selected(row) && App::Instance().DeleteFromDrinkList(drinkListID, drinks.CellTag(row, 0))) {
            const int shown = lists.ListIndex();
            lists.SetCell(shown, 2, CStr(CLong(lists.Cell(shown, 2)) - 1));
        }
    }
}

// The refill puts the lists in order, and another copy of the program may have changed them, so the list may have moved
// or be gone. Then all drinks stay chosen, as after any refill.
void ChooseList(Listbox& lists, int drinkListID) {
    for (int row = 0; row < lists.ListCount(); ++row) {
        if (lists.CellTag(row, 0) == drinkListID) {
            lists.SetListIndex(row);
            return;
        }
    }
}

} // namespace

// Both delete keys are one command. From a user's drinklist it takes the selected drinks out; from the list of all
// drinks it deletes them.
bool MainWindow::DrinkList_KeyDown(const QString& key) {
    const int code = Asc(key);
    if (code != Keyboard::Backspace && code != Keyboard::Delete) {
        return false;
    }
    App& app = App::Instance();
    const int shownList = DrinkListsList.ListIndex();
    const int drinkListID = shownList < 0 ? 0 : DrinkListsList.CellTag(shownList, 0);
    if (drinkListID != 0) {
        if (!Confirmed(QStringLiteral("Are you sure you want to remove the selected drink(s) from this drinklist?"))) {
            return false;
        }
        RemoveSelectedDrinksFrom(drinkListID, DrinkList, DrinkListsList);
    } else {
        if (!Confirmed(QStringLiteral("Are you sure you want to delete the selected drink(s)?"))) {
            return false;
        }
        // Told to the user; the drinks before it are gone, and the lists have to show that.
        static_cast<void>(app.DeleteSelectedDrinks());
    }
    if (app.FillDrinkList() && app.FillDrinkListsList()) {
        ChooseList(DrinkListsList, drinkListID);
    }
    return false;
}

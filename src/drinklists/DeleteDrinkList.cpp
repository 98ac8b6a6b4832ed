#include "platform/base/Text.h"
#include "platform/ui/Keyboard.h"
#include "shell/App.h"
#include "shell/Confirmed.h"
#include "shell/MainWindow.h"
#include "store/Succeeded.h"

namespace {

// "All Drinks" and rows that were never saved have no id: there is nothing to delete.
void DeleteSelectedList(const QString& question) {
    Listbox& list = MainWindow::Instance().DrinkListsList;
    // An edit that ends while the question is open moves the selection, so the row is remembered here.
    const int row = list.ListIndex();
    const int DrinkListID = row < 0 ? 0 : list.CellTag(row, 0);
    if (DrinkListID == 0) {
        return;
    }
    if (!Confirmed(question) || !App::Instance().DeleteDrinkList(DrinkListID)) {
        return;
    }
    list.RemoveRow(row);
    list.SetListIndex(0);
}

} // namespace

bool App::DeleteDrinkList(int DrinkListID) {
    REALSQLDatabase db;
    if (!GetDatabase(db)) {
        return false;
    }
    // Members first: a failure between the two leaves an empty list, which the user can delete again.
    for (const char* table : {"DrinkListXRef", "DrinkLists"}) {
        db.SQLExecute(
            QStringLiteral("DELETE FROM %1 WHERE DrinkListID = %2").arg(QLatin1String(table), CStr(DrinkListID)));
        if (!Succeeded(db, QStringLiteral("An error occurred removing drinklist references: "))) {
            return false;
        }
    }
    return true;
}

// NOLINTNEXTLINE(bugprone-reserved-identifier): the names of the handlers, see App.h
bool App::_File_DeleteList_Action() {
    DeleteSelectedList(QStringLiteral("Are you sure you want to remove the selected Drinklist?"));
    return false;
}

bool MainWindow::DrinkListsList_KeyDown(const QString& key) {
    if (Asc(key) == Keyboard::Backspace || Asc(key) == Keyboard::Delete) {
        DeleteSelectedList(QStringLiteral("Are you sure you want to remove this Drinklist?"));
    }
    return false;
}

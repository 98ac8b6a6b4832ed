#include "platform/base/Text.h"
#include "platform/ui/EditField.h"
#include "shell/App.h"
#include "shell/MainWindow.h"

void MainWindow::DrinkListsList_Change() {
    if (App::Instance().AppLoaded) {
        // The fill has told the user of any failure.
        static_cast<void>(App::Instance().FillDrinkList());
    }
}

// A click below the last row must not take the selection away: one list is chosen at all times.
bool MainWindow::DrinkListsList_MouseDown(int x, int y) {
    return DrinkListsList.RowFromXY(x, y) == -1;
}

// The name "All Drinks" is fixed.
void MainWindow::DrinkListsList_DoubleClick() {
    const int row = DrinkListsList.ListIndex();
    if (row < 1) {
        return;
    }
    DrinkListsList.EditCell(row, 1);
    if (EditField* field = DrinkListsList.ActiveCell(); field != nullptr) {
        field->SetTextSize(11);
    }
}

// Every edit ends here, and what stands in the cell is saved: nothing cancels an edit. A name that is refused stays in
// the cell, and the user with it.
void MainWindow::DrinkListsList_CellLostFocus(int row) {
    App& app = App::Instance();
    if (!app.AppLoaded) {
        return;
    }
    int DrinkListID = DrinkListsList.CellTag(row, 0);
    if (!app.UpdateDrinkLists(Trim(DrinkListsList.Cell(row, 1)), DrinkListID)) {
        DrinkListsList.SetFocus();
        DrinkListsList.SetListIndex(row);
        DrinkListsList.EditCell(DrinkListsList.ListIndex(), 1);
        return;
    }
    const bool isSelectedAsNew = DrinkListsList.ListIndex() == row && DrinkListsList.CellTag(row, 0) == 0;
    // The tag comes first: the change of the selection fills the list of drinks by it.
    DrinkListsList.SetCellTag(row, 0, DrinkListID);
    DrinkListsList.SetListIndex(row);
    // A new row whose first name was refused is selected already, and all drinks are shown for it.
    if (isSelectedAsNew) {
        DrinkListsList_Change();
    }
}

// An edit tells of its own end, and the selection does not depend on the focus, so nothing is left to do.
void MainWindow::DrinkListsList_LostFocus() {}

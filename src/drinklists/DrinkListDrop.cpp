#include "platform/base/Text.h"
#include "platform/ui/MsgBox.h"
#include "shell/App.h"
#include "shell/MainWindow.h"

// A drag of drinks carries a text.
void MainWindow::DrinkListsList_Open() {
    DrinkListsList.AcceptTextDrop();
}

bool MainWindow::DrinkListsList_DragOver(int x, int y) {
    DrinkListDragRow = DrinkListsList.RowFromXY(x, y);
    return false;
}

// What was dragged is not read: the drinks that are selected now are added, whatever the text came from.
void MainWindow::DrinkListsList_DropObject() {
    const int row = DrinkListDragRow;
    if (row < 0) {
        return;
    }
    const int DrinkListID = DrinkListsList.CellTag(row, 0);
    int count = CLong(DrinkListsList.Cell(row, 2));
    if (DrinkListID == 0) {
        MsgBox(QStringLiteral("You cannot drag a drink recipe to the All Drinks list"), 64,
               QStringLiteral("Add to Drinklist"));
        return;
    }
    const int last = DrinkList.ListCount() - 1;
    for (int drink = 0; drink <= last; ++drink) {
        if (DrinkList.Selected(drink) && App::Instance().AddToDrinkList(DrinkListID, DrinkList.CellTag(drink, 0))) {
            ++count;
        }
    }
    DrinkListsList.SetCell(row, 2, CStr(count));
}

#include "browser/Rating.h"
#include "platform/base/Text.h"
#include "platform/ui/MsgBox.h"
#include "shell/App.h"
#include "shell/MainWindow.h"

void MainWindow::DrinkList_Change() {
    App& app = App::Instance();
    if (!app.AppLoaded) {
        return;
    }
    if (DrinkList.SelCount() != 1) {
        app.ClearDrinkInfo();
    } else {
        app.ShowDrinkInfo(DrinkList.CellTag(DrinkList.ListIndex(), 0));
    }
}

// The click comes before the list moves its selection, so the first click on a row only selects it, and nobody
// changes a rating by clicking through the list.
bool MainWindow::DrinkList_CellClick(int row, int column, int x, int /*y*/) {
    App& app = App::Instance();
    if (column != 0 || !app.Option_ViewRatings || row != DrinkList.ListIndex()) {
        return false;
    }
    const int rating = RatingAt(x);
    DrinkList.SetRowPicture(row, RatingPicture(rating));
    app.SetRating(DrinkList.CellTag(row, 0), rating);
    return false;
}

// Control with a digit stands for a click on the star of that number in the selected row: the digits alone look for a
// name that begins so.
bool MainWindow::DrinkList_CommandKeyDown(const QString& key) {
    const int rating = Asc(key) - '0';
    if (rating < 0 || rating > 5 || DrinkList.ListIndex() < 0) {
        return false;
    }
    DrinkList_CellClick(DrinkList.ListIndex(), 0, PlaceOfRating(rating), 0);
    return true;
}

// The text only makes the drag carry something: the list that it is dropped on reads the selection.
bool MainWindow::DrinkList_DragRow(DragItem& drag, int /*row*/) {
    drag.text = CStr(DrinkList.CellTag(DrinkList.ListIndex(), 0));
    return true;
}

void App::SetRating(int DrinkID, int Rating) {
    REALSQLDatabase db;
    if (!GetDatabase(db)) {
        return;
    }
    db.SQLExecute(QStringLiteral("UPDATE Drinks SET UserRating = ") + CStr(Rating) +
                  QStringLiteral(" WHERE DrinkID = ") + CStr(DrinkID));
    if (db.Error()) {
        MsgBox(QStringLiteral("An error occurred updating the drink rating: ") + db.ErrorMessage());
    }
    db.Close();
}

#include "platform/base/Text.h"
#include "platform/ui/Picture.h"
#include "shell/App.h"
#include "shell/MainWindow.h"
#include "store/Succeeded.h"

namespace {

bool ChangeStatus(App& app, const QString& statement) {
    REALSQLDatabase db;
    if (!app.GetDatabase(db)) {
        return false;
    }
    db.SQLExecute(statement);
    const bool changed = Succeeded(db, QStringLiteral("An error occurred changing the ingredient status: "));
    db.Close();
    return changed;
}

} // namespace

bool App::ChangeEmptyStatus(int IngredientID, bool Empty) {
    return ChangeStatus(*this, (Empty ? QStringLiteral("UPDATE Ingredients SET Empty = 1 WHERE IngredientID = ")
                                      : QStringLiteral("UPDATE Ingredients SET Empty = 0 WHERE IngredientID = ")) +
                                   CStr(IngredientID));
}

// What leaves the bar is not empty any more; what enters it keeps its mark.
bool App::ChangeInBarStatus(int IngredientID, bool InBar) {
    return ChangeStatus(*this,
                        (InBar ? QStringLiteral("UPDATE Ingredients SET InBar = 1 WHERE IngredientID = ")
                               : QStringLiteral("UPDATE Ingredients SET InBar = 0, Empty = 0 WHERE IngredientID = ")) +
                            CStr(IngredientID));
}

// A click anywhere on a row flips it. The drinks follow also when the change failed, because the file may have changed
// in another way since they were listed.
bool MainWindow::InBarList_CellClick(int row, int /*column*/, int /*x*/, int /*y*/) {
    App& app = App::Instance();
    const Picture* full = NamedPicture(QStringLiteral("BarFull"));
    const bool nowEmpty = InBarList.RowPicture(row) == full;
    if (app.ChangeEmptyStatus(InBarList.CellTag(row, 0), nowEmpty)) {
        InBarList.SetRowPicture(row, nowEmpty ? NamedPicture(QStringLiteral("BarEmpty")) : full);
    }
    if (MatchIngredients.Value()) {
        // It has told the user of any failure.
        static_cast<void>(app.FillDrinkList());
    }
    return false;
}

#include "bar/Ingredients.h"
#include "platform/base/Text.h"
#include "shell/App.h"
#include "store/Succeeded.h"

namespace {

// False: the user was told, in these words.
bool Execute(REALSQLDatabase& db, const QString& statement, const QString& words) {
    db.SQLExecute(statement);
    return Succeeded(db, words);
}

bool SaveRow(REALSQLDatabase& db, const Listbox& list, int row) {
    const QString id = CStr(list.CellTag(row, 0));
    if (list.CellCheck(row, 0) &&
        !Execute(db, QStringLiteral("UPDATE Ingredients SET InBar = 1 WHERE IngredientID = ") + id,
                 QStringLiteral("Could not update the In Bar status:  "))) {
        return false;
    }
    // The second column has no boxes that a user could tick, so that a save leaves no bottle marked empty.
    return !list.CellCheck(row, 1) ||
           Execute(db, QStringLiteral("UPDATE Ingredients SET Empty =1 WHERE IngredientID = ") + id,
                   QStringLiteral("Could not update the Empty status:  "));
}

// Every statement stands by itself: the first that fails leaves what the ones before it did.
bool SaveRows(REALSQLDatabase& db, const Listbox& list) {
    if (!Execute(db, QStringLiteral("UPDATE Ingredients SET InBar = 0, Empty = 0"),
                 QStringLiteral("Could not update the ingredient table:  "))) {
        return false;
    }
    for (int row = 0; row < list.ListCount(); ++row) {
        if (!SaveRow(db, list, row)) {
            return false;
        }
    }
    return true;
}

} // namespace

// The drinks follow whether or not the list is matched to the bar.
void App::SaveIngredientsWindow() {
    Ingredients& window = Ingredients::Instance();
    REALSQLDatabase db;
    if (!GetDatabase(db) || !SaveRows(db, window.IngredientList)) {
        return;
    }
    db.Close();
    window.Close();
    static_cast<void>(FillInBarList() && FillDrinkList());
}

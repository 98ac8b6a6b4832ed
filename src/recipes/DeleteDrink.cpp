#include "platform/base/Text.h"
#include "platform/ui/MsgBox.h"
#include "shell/App.h"
#include "shell/Confirmed.h"
#include "shell/MainWindow.h"
#include "store/Succeeded.h"

namespace {

// Runs one statement of a sequence in which each stands once it ran. False: the user was told.
bool Run(REALSQLDatabase& db, const QString& statement, const QString& failure) {
    db.SQLExecute(statement);
    return Succeeded(db, failure);
}

constexpr auto Unused = "An error occurred removing the ingredients no longer used: ";

// Whoever made the ingredient, and also when it is at home: what no recipe names any more goes.
bool RemoveUnusedIngredients(REALSQLDatabase& db, RecordSet& recipe) {
    const QString failure = QString::fromLatin1(Unused);
    for (; !recipe.Eof(); recipe.MoveNext()) {
        const QString ingredient = recipe.Field("IngredientID").StringValue();
        RecordSet users =
            db.SQLSelect(QStringLiteral("SELECT DrinkID FROM DrinkRecipes WHERE IngredientID = ") + ingredient);
        if (!Succeeded(db, failure)) {
            return false;
        }
        if (users.Eof() &&
            !Run(db, QStringLiteral("DELETE FROM Ingredients WHERE IngredientID = ") + ingredient, failure)) {
            return false;
        }
        users.Close();
    }
    recipe.Close();
    return true;
}

} // namespace

bool App::DeleteDrink(int DrinkID) {
    REALSQLDatabase db;
    if (!GetDatabase(db)) {
        return false;
    }
    const QString id = CStr(DrinkID);
    // Read first: the next statement removes what it reads. The drink goes also when this cannot be read; what is told
    // then is that its ingredients stay.
    RecordSet recipe = db.SQLSelect(QStringLiteral("SELECT IngredientID FROM DrinkRecipes WHERE DrinkID = ") + id);
    const QString unread = db.ErrorMessage();
    if (!Run(db, QStringLiteral("DELETE FROM DrinkRecipes WHERE DrinkID = ") + id,
             QStringLiteral("An error occurred removing drink recipe steps: ")) ||
        !Run(db, QStringLiteral("DELETE FROM Drinks WHERE DrinkID = ") + id,
             QStringLiteral("An error occurred removing the drink: ")) ||
        !Run(db, QStringLiteral("DELETE FROM DrinkListXRef WHERE DrinkID = ") + id,
             QStringLiteral("An error occurred removing the drink from drinklists: "))) {
        return false;
    }
    if (recipe.IsNil()) {
        MsgBox(QString::fromLatin1(Unused) + unread);
        return false;
    }
    return RemoveUnusedIngredients(db, recipe);
}

bool App::DeleteSelectedDrinks() {
    const Listbox& list = MainWindow::Instance().DrinkList;
    for (int row = 0; row < list.ListCount(); ++row) {
        if (list.Selected(row) && !DeleteDrink(list.CellTag(row, 0))) {
            return false;
        }
    }
    return true;
}

// Bound to the name of an item that the menu bar does not have; drinks are deleted with the keys of the list.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the names of the handlers, see App.h
bool App::_File_DeleteDrink_Action() {
    const bool several = MainWindow::Instance().DrinkList.SelCount() >= 2;
    const QString question = several ? QStringLiteral("Are you sure you want to remove multiple drinks?")
                                     : QStringLiteral("Are you sure you want to remove the selected drink?");
    if (Confirmed(question)) {
        // The drinks that were deleted before a failure are gone, and the list has to show that. Both have told the
        // user what went wrong.
        static_cast<void>(DeleteSelectedDrinks());
        static_cast<void>(FillDrinkList());
    }
    return false;
}

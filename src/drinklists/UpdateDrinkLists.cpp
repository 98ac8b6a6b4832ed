#include "platform/base/Text.h"
#include "platform/ui/MsgBox.h"
#include "shell/App.h"
#include "store/Succeeded.h"

namespace {

// The name has its apostrophes doubled. A list does not clash with itself.
QString NameTakenStatement(const QString& quotedName, int DrinkListID) {
    const QString byName =
        QStringLiteral("SELECT * FROM DrinkLists WHERE DrinkListName = '") + quotedName + QStringLiteral("'");
    return DrinkListID == 0 ? byName : byName + QStringLiteral(" AND DrinkListID <> ") + CStr(DrinkListID);
}

QString SaveStatement(const QString& quotedName, int DrinkListID) {
    if (DrinkListID == 0) {
        return QStringLiteral("INSERT INTO DrinkLists (DrinkListName) VALUES('") + quotedName + QStringLiteral("')");
    }
    return QStringLiteral("UPDATE DrinkLists SET DrinkListName = '") + quotedName +
           QStringLiteral("' WHERE DrinkListID = ") + CStr(DrinkListID);
}

void Refuse(const QString& why) {
    MsgBox(why, 48, QStringLiteral("Drinklist Name"));
}

bool NameSucceeded(const REALSQLDatabase& db) {
    return Succeeded(db, QStringLiteral("An error occurred attempting to save the new drinklist name: "));
}

} // namespace

bool App::UpdateDrinkLists(const QString& DrinkListName, int& DrinkListID) {
    REALSQLDatabase db;
    if (!GetDatabase(db)) {
        return false;
    }
    const QString name = ReplaceAll(DrinkListName, QStringLiteral("'"), QStringLiteral("''"));
    if (name.isEmpty()) {
        Refuse(QStringLiteral("You must give the DrinkList a name."));
        return false;
    }
    const RecordSet taken = db.SQLSelect(NameTakenStatement(name, DrinkListID));
    if (!NameSucceeded(db)) {
        return false;
    }
    if (!taken.Eof()) {
        Refuse(QStringLiteral("You already have a Drinklist with that name.  Please select a different name."));
        return false;
    }
    db.SQLExecute(SaveStatement(name, DrinkListID));
    if (!NameSucceeded(db)) {
        return false;
    }
    if (DrinkListID == 0) {
        DrinkListID = db.LastRowID();
    }
    return true;
}

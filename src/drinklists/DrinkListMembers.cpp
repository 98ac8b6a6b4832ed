#include "platform/base/Text.h"
#include "platform/ui/MsgBox.h"
#include "shell/App.h"
#include "store/Succeeded.h"

bool App::AddToDrinkList(int DrinkListID, int DrinkID) {
    REALSQLDatabase db;
    if (!GetDatabase(db)) {
        return false;
    }
    RecordSet members = db.SQLSelect(QStringLiteral("SELECT * FROM DrinkListXRef WHERE DrinkListID = ") +
                                     CStr(DrinkListID) + QStringLiteral(" AND DrinkID = ") + CStr(DrinkID));
    if (!Succeeded(db, QStringLiteral("An error occurred attempting to query drinklists: "))) {
        return false;
    }
    if (!members.Eof()) {
        members.Close();
        db.Close();
        MsgBox(QStringLiteral("You have previously added this drink to the selected drinklist"));
        return false;
    }
    db.SQLExecute(QStringLiteral("INSERT INTO DrinkListXRef (DrinkListID, DrinkID) VALUES (") + CStr(DrinkListID) +
                  QStringLiteral(", ") + CStr(DrinkID) + QStringLiteral(")"));
    return Succeeded(db, QStringLiteral("An error occurred inserting drink into drinklist: "));
}

bool App::DeleteFromDrinkList(int DrinkListID, int DrinkID) {
    REALSQLDatabase db;
    if (!GetDatabase(db)) {
        return false;
    }
    db.SQLExecute(QStringLiteral("DELETE FROM DrinkListXRef WHERE DrinkListID = ") + CStr(DrinkListID) +
                  QStringLiteral(" AND DrinkID = ") + CStr(DrinkID));
    return Succeeded(db, QStringLiteral("An error occurred removing a drink from a drinklist: "));
}

#include "platform/base/Exceptions.h"
#include "platform/base/Text.h"
#include "platform/ui/MsgBox.h"
#include "shell/App.h"
#include "store/DBUpgrade.h"
#include "store/DatabaseFiles.h"

// The move to the library that came with this version of the program. The old file becomes a backup and is kept for
// good; what is the user's own is carried over by name, because the ids of the two libraries have nothing in common.
// Every failure is told and ends the program, and leaves the files as they are.

namespace {

// Doubles the first apostrophe only, by decision: a name with two of them stops the upgrade with a message.
QString Quoted(const QString& name) {
    return QLatin1Char('\'') + Replace(name, QStringLiteral("'"), QStringLiteral("''")) + QLatin1Char('\'');
}

void StopOnError(const REALSQLDatabase& db, const char* words) {
    if (db.Error()) {
        MsgBox(QString::fromLatin1(words) + db.ErrorMessage());
        Quit(0);
    }
}

// The old file gets the name of the backup, and a copy of the seed takes its place. The result is the backup.
FolderItem ReplaceBySeed(const FolderItem& seed, const FolderItem& folder) {
    FolderItem file = folder.Child(DatabaseName());
    try {
        file.SetName(QStringLiteral("drinkdb_v1_backup.rsd"));
        seed.CopyFileTo(folder);
    } catch (const RuntimeException&) {
        MsgBox(QStringLiteral("An error occurred attempting to create a user specific database in the folder  '") +
                   folder.AbsolutePath() + QStringLiteral("'"),
               16, QStringLiteral("Setup Error"));
        Quit(0);
    }
    return file;
}

void ConnectTo(REALSQLDatabase& db, const FolderItem& file, const char* words) {
    db.SetDatabaseFile(file);
    db.SetEncryptionKey(DatabaseKey());
    db.SetDerivedKey(LibraryKey());
    if (!db.Connect()) {
        MsgBox(QString::fromLatin1(words) + db.ErrorMessage());
        Quit(0);
    }
}

void CarryRatings(REALSQLDatabase& from, REALSQLDatabase& to) {
    RecordSet rs =
        from.SQLSelect(QStringLiteral("SELECT DrinkName, UserRating FROM Drinks WHERE UserRating IS NOT NULL"));
    StopOnError(from, "An error occurred getting the drinks to update.  ");
    for (; !rs.Eof(); rs.MoveNext()) {
        to.SQLExecute(QStringLiteral("UPDATE Drinks SET UserRating = '") + rs.Field("UserRating").StringValue() +
                      QStringLiteral("' WHERE DrinkName = ") + Quoted(rs.Field("DrinkName").StringValue()));
        StopOnError(to, "An error occurred copying the user ratings.  ");
    }
    rs.Close();
}

void CarryBar(REALSQLDatabase& from, REALSQLDatabase& to) {
    RecordSet rs = from.SQLSelect(QStringLiteral("SELECT IngredientName, Empty FROM Ingredients WHERE InBar = 1"));
    StopOnError(from, "An error occurred getting the ingredients to update.  ");
    for (; !rs.Eof(); rs.MoveNext()) {
        to.SQLExecute(QStringLiteral("UPDATE Ingredients SET InBar = 1, Empty = ") +
                      CStr(rs.Field("Empty").IntegerValue()) + QStringLiteral(" WHERE IngredientName = ") +
                      Quoted(rs.Field("IngredientName").StringValue()));
        StopOnError(to, "An error occurred copying ingredient information.  ");
    }
    rs.Close();
}

int CarryDrinkList(REALSQLDatabase& to, const QString& name) {
    to.SQLExecute(QStringLiteral("INSERT INTO DrinkLists (DrinkListName) VALUES (") + Quoted(name) +
                  QStringLiteral(")"));
    StopOnError(to, "An error occurred copying the drinklists.  ");
    return to.LastRowID();
}

// A drink that the new library does not have drops out of the list.
void CarryMember(REALSQLDatabase& to, int listID, const QString& drinkName) {
    RecordSet drink = to.SQLSelect(QStringLiteral("SELECT DrinkID FROM Drinks WHERE DrinkName = ") + Quoted(drinkName));
    if (drink.Eof()) {
        return;
    }
    const int drinkID = drink.Field("DrinkID").IntegerValue();
    drink.Close();
    to.SQLExecute(QStringLiteral("INSERT INTO DrinkListXRef (DrinkListID, DrinkID) VALUES (") + CStr(listID) +
                  QStringLiteral(", ") + CStr(drinkID) + QStringLiteral(")"));
    StopOnError(to, "An error occurred copying the drinklist drinks.  ");
}

void CarryDrinkLists(REALSQLDatabase& from, REALSQLDatabase& to) {
    RecordSet rs = from.SQLSelect(
        QStringLiteral("SELECT D.DrinkName, L.DrinkListName, X.DrinkListXRefID FROM DrinkListXRef AS X INNER JOIN "
                       "DrinkLists AS L ON (X.DrinkListID = L.DrinkListID) INNER JOIN Drinks AS D ON (X.DrinkID = "
                       "D.DrinkID) ORDER BY L.DrinkListName"));
    StopOnError(from, "An error occurred getting the drinklists to update.  ");
    QString previous;
    int listID = 0;
    for (; !rs.Eof(); rs.MoveNext()) {
        const QString name = rs.Field("DrinkListName").StringValue();
        if (!SameText(name, previous)) {
            listID = CarryDrinkList(to, name);
        }
        CarryMember(to, listID, rs.Field("DrinkName").StringValue());
        previous = name;
    }
    rs.Close();
}

} // namespace

void App::UpgradeDBtoVersion2() {
    REALSQLDatabase oldDatabase;
    REALSQLDatabase newDatabase;
    auto& window = DBUpgrade::Instance();
    window.Show();
    window.Progress.SetValue(5);
    OnMac = OnMac && Right(Uppercase(ExecutableFile().AbsolutePath()), 3) != QLatin1String("EXE");

    const FolderItem folder = UserFolder(OnMac, DrinkAppName);
    const FolderItem backup = ReplaceBySeed(SeedDatabase(OnMac), folder);
    window.Progress.SetValue(10);
    ConnectTo(oldDatabase, backup, "Could not open the original database.  ");
    ConnectTo(newDatabase, folder.Child(DatabaseName()), "Could not open the version 2 database.  ");

    CarryRatings(oldDatabase, newDatabase);
    window.Progress.SetValue(30);
    CarryBar(oldDatabase, newDatabase);
    window.Progress.SetValue(60);
    CarryDrinkLists(oldDatabase, newDatabase);
    window.Progress.SetValue(100);
    window.Close();
    oldDatabase.Close();
    newDatabase.Close();
}

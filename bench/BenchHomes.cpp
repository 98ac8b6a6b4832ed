#include "BenchHomes.h"

#include "GrownLibrary.h"
#include "platform/database/Database.h"
#include "seed/SeedWriter.h"
#include "store/DatabaseFiles.h"

#include <cstdio>
#include <cstdlib>

namespace {

const QString appName = QStringLiteral("Tipplewise Pourbook");

QString& Folder() {
    static QString folder;
    return folder;
}

[[noreturn]] void Fail(const QString& problem) {
    std::fprintf(stderr, "Could not write the library: %s\n", qPrintable(problem));
    std::exit(EXIT_FAILURE);
}

// The file as its user would have left it: no first run, which would look for a new version; all columns on; a part of
// the drinks rated; every second ingredient at home.
void MakeUsed(const FolderItem& file) {
    REALSQLDatabase db;
    db.SetDatabaseFile(file);
    db.SetEncryptionKey(DatabaseKey());
    if (!db.Connect()) {
        Fail(db.ErrorMessage());
    }
    const QString statements[] = {
        QStringLiteral("UPDATE Setup SET AppLeft = 100, AppTop = 100, AppWidth = 1000, AppHeight = 800, "
                       "UserOptions = 'V01V02V03'"),
        QStringLiteral("UPDATE Drinks SET UserRating = DrinkID % 6 WHERE DrinkID % 4 = 0"),
        QStringLiteral("UPDATE Ingredients SET InBar = 1 WHERE IngredientID % 2 = 0"),
    };
    for (const QString& statement : statements) {
        db.SQLExecute(statement);
        if (db.Error()) {
            Fail(db.ErrorMessage());
        }
    }
}

} // namespace

void BenchHomes::SetFolder(const QString& folder) {
    Folder() = folder;
}

void BenchHomes::Use(int drinks) {
    qputenv("XDG_DATA_HOME", FolderItem(Folder()).Child(QString::number(drinks)).AbsolutePath().toUtf8());
    if (UserFolder(true, appName).Exists()) {
        return;
    }
    UserFolder(true, appName).CreateAsFolder();
    QString problem;
    if (!WriteSeed(GrownLibrary(drinks), File(), problem)) {
        Fail(problem);
    }
    MakeUsed(WorkingDatabase(true, appName));
}

QString BenchHomes::File() {
    return WorkingDatabase(true, appName).AbsolutePath();
}

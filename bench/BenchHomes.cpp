#include "BenchHomes.h"

#include "GeneratedLibrary.h"
#include "platform/database/Database.h"
#include "store/DatabaseFiles.h"

#include <cstdio>
#include <cstdlib>

namespace {

const QString appName = QStringLiteral("Tipplewise Pourbook");

QString& Folder() {
    static QString folder;
    return folder;
}

void Use(const char* name) {
    qputenv("XDG_DATA_HOME", FolderItem(Folder()).Child(QString::fromLatin1(name)).AbsolutePath().toUtf8());
}

// Not a first run, and no option but the ratings: a first run would look for a new version.
void WriteSetup() {
    REALSQLDatabase db;
    db.SetDatabaseFile(WorkingDatabase(true, appName));
    db.SetEncryptionKey(DatabaseKey());
    if (db.Connect()) {
        db.SQLExecute(QStringLiteral(
            "UPDATE Setup SET AppLeft = 100, AppTop = 100, AppWidth = 750, AppHeight = 600, UserOptions = 'V01'"));
    }
    if (db.Error()) {
        std::fprintf(stderr, "Could not prepare the shipped library: %s\n", qPrintable(db.ErrorMessage()));
        std::exit(EXIT_FAILURE);
    }
}

} // namespace

void BenchHomes::Make(const QString& folder) {
    Folder() = folder;
    UseShipped();
    UserFolder(true, appName).CreateAsFolder();
    SeedDatabase(true).CopyFileTo(UserFolder(true, appName));
    WriteSetup();
}

void BenchHomes::UseShipped() {
    Use("shipped");
}

void BenchHomes::UseGenerated() {
    Use("generated");
    if (!UserFolder(true, appName).Exists()) {
        UserFolder(true, appName).CreateAsFolder();
        GeneratedLibrary::Write(WorkingDatabase(true, appName));
    }
}

QString BenchHomes::File() {
    return WorkingDatabase(true, appName).AbsolutePath();
}

#include "seed/SeedWriter.h"

#include "platform/base/Exceptions.h"
#include "platform/database/Database.h"
#include "seed/SeedStatements.h"
#include "store/LibraryKey.h"

#include <QFile>

#include <filesystem>
#include <system_error>

namespace {

void Execute(REALSQLDatabase& database, const QString& statement) {
    database.SQLExecute(statement);
    if (database.Error()) {
        throw RuntimeException(database.ErrorMessage() + QStringLiteral(" in: ") + statement);
    }
}

void WriteDatabase(const Library& library, const QString& path) {
    REALSQLDatabase database;
    database.SetDatabaseFile(FolderItem(path));
    database.SetEncryptionKey(DatabaseKey());
    database.SetDerivedKey(LibraryKey());
    if (!database.CreateDatabaseFile()) {
        throw RuntimeException(database.ErrorMessage());
    }
    Execute(database, QStringLiteral("BEGIN"));
    for (const QString& statement : SchemaStatements() + RowStatements(library)) {
        Execute(database, statement);
    }
    Execute(database, QStringLiteral("COMMIT"));
    Execute(database, QStringLiteral("VACUUM"));
}

// The seed is read by every user of the machine, unlike the working copies that they make of it.
constexpr QFile::Permissions readableByAll = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther;

void MoveIntoPlace(const QString& from, const QString& to) {
    if (!QFile::setPermissions(from, readableByAll)) {
        throw RuntimeException(QStringLiteral("the rights of the file cannot be set"));
    }
    std::error_code failure;
    std::filesystem::rename(from.toStdString(), to.toStdString(), failure);
    if (failure) {
        throw RuntimeException(QString::fromStdString(failure.message()));
    }
}

} // namespace

bool WriteSeed(const Library& library, const QString& path, QString& problem) {
    const QString unfinished = path + QStringLiteral(".new");
    // One may be left from a build that was killed.
    QFile::remove(unfinished);
    try {
        WriteDatabase(library, unfinished);
        MoveIntoPlace(unfinished, path);
        return true;
    } catch (const RuntimeException& fault) {
        problem = fault.Message();
        QFile::remove(unfinished);
        return false;
    }
}

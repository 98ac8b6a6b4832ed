#pragma once

#include "platform/database/Database.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

// A connection to a fresh encrypted file with two drinks, in a folder of its own.
class DatabaseTest : public testing::Test {
protected:
    FolderItem File(const QString& name = "drinks.rsd") const { return FolderItem(folder_.path()).Child(name); }
    QString Path() const { return File().AbsolutePath(); }

    void SetUp() override {
        GivenLibrary();
        Open(database_);
    }

    void GivenLibrary() {
        database_.SetDatabaseFile(File());
        database_.SetEncryptionKey("MerryMead246");
        ASSERT_TRUE(database_.CreateDatabaseFile()) << database_.ErrorMessage().toStdString();
        Run(database_, "CREATE TABLE Drinks (DrinkID INTEGER PRIMARY KEY, DrinkName TEXT UNIQUE, UserRating INTEGER)");
        Run(database_, "INSERT INTO Drinks (DrinkName, UserRating) VALUES ('Crème Fizz', 3), ('Planter''s Punch', 3)");
    }

    void Open(REALSQLDatabase& database, const QString& key = "MerryMead246") const {
        database.SetDatabaseFile(File());
        database.SetEncryptionKey(key);
        ASSERT_TRUE(database.Connect()) << database.ErrorMessage().toStdString();
    }

    static void Run(REALSQLDatabase& database, const QString& statement) {
        database.SQLExecute(statement);
        ASSERT_FALSE(database.Error()) << statement.toStdString() << ": " << database.ErrorMessage().toStdString();
    }

    // The first value of the first row, or "(none)".
    static QString Value(REALSQLDatabase& database, const QString& expression) {
        const RecordSet records = database.SQLSelect(QStringLiteral("SELECT %1 AS Value").arg(expression));
        return records.IsNil() || records.Eof() ? QStringLiteral("(none)") : records.Field("Value").StringValue();
    }

    static QString DrinkCount(REALSQLDatabase& database) { return Value(database, "(SELECT COUNT(*) FROM Drinks)"); }

    static QByteArray Bytes(const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        return file.readAll();
    }

    // What the stock command-line shell prints.
    static QString Shell(const QString& path, const QByteArray& commands) {
        QProcess shell;
        shell.start("sqlcipher", {path});
        shell.write(commands);
        shell.closeWriteChannel();
        EXPECT_TRUE(shell.waitForFinished());
        return QString::fromUtf8(shell.readAllStandardOutput() + shell.readAllStandardError()).trimmed();
    }

    QTemporaryDir folder_;
    REALSQLDatabase database_;
};

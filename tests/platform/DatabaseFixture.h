#pragma once

#include "platform/database/Database.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

// A fresh encrypted file with two drinks and a bar in a folder of its own.
class DatabaseTest : public testing::Test {
protected:
    static QString Key() { return QStringLiteral("MerryMead246"); }
    FolderItem File() const { return FolderItem(folder_.path()).Child("drinks.rsd"); }
    QString Path() const { return File().AbsolutePath(); }

    void SetUp() override { GivenLibrary(); }

    void GivenLibrary() {
        REALSQLDatabase database;
        database.SetDatabaseFile(File());
        database.SetEncryptionKey(Key());
        ASSERT_TRUE(database.CreateDatabaseFile()) << database.ErrorMessage().toStdString();
        Run(database, "CREATE TABLE Drinks (DrinkID INTEGER PRIMARY KEY, DrinkName TEXT, UserRating INTEGER)");
        Run(database, "INSERT INTO Drinks (DrinkName, UserRating) VALUES ('Crème Fizz', 3)");
        Run(database, "INSERT INTO Drinks (DrinkName, UserRating) VALUES ('Planter''s Punch', NULL)");
        Run(database, "CREATE TABLE Ingredients (IngredientID INTEGER PRIMARY KEY, IngredientName TEXT UNIQUE)");
    }

    void Open(REALSQLDatabase& database) const {
        database.SetDatabaseFile(File());
        database.SetEncryptionKey(Key());
        ASSERT_TRUE(database.Connect()) << database.ErrorMessage().toStdString();
    }

    static void Run(REALSQLDatabase& database, const char* statement) {
        database.SQLExecute(statement);
        ASSERT_FALSE(database.Error()) << statement << ": " << database.ErrorMessage().toStdString();
    }

    // The first value of the first row, or "(none)".
    static QString Value(REALSQLDatabase& database, const char* expression) {
        const RecordSet records = database.SQLSelect(QStringLiteral("SELECT %1 AS Value").arg(expression));
        return records.IsNil() || records.Eof() ? QStringLiteral("(none)") : records.Field("Value").StringValue();
    }

    static QString DrinkCount(REALSQLDatabase& database) { return Value(database, "(SELECT COUNT(*) FROM Drinks)"); }

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
};

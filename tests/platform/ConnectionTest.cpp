#include "DatabaseFixture.h"
#include "FileSizeLimit.h"
#include "platform/base/Exceptions.h"

#include <QElapsedTimer>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace {

TEST_F(DatabaseTest, ConnectFailsWithTheEnginesWordsAndMakesNoFile) {
    const QByteArray whole = [this] {
        QFile file(Path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }();
    struct Case {
        const char* name;
        QByteArray contents;
        const char* key;
        const char* words;
    };
    const char* notADatabase = "file is encrypted or is not a database";
    const Case cases[] = {
        {"empty", "", "MerryMead246", notADatabase},
        {"empty plain", "", "", notADatabase},
        {"shorter than a salt", "abc", "MerryMead246", notADatabase},
        {"cut inside a page", whole.left(1500), "MerryMead246", "database disk image is malformed"},
        {"cut between pages", whole.left(2048), "MerryMead246", "database disk image is malformed"},
        {"no database", QByteArray(4096, 'x'), "MerryMead246", notADatabase},
        {"damaged first page", QByteArray(whole).replace(100, 4, "ruin"), "MerryMead246", notADatabase},
        {"other key", whole, "MerryMead247", notADatabase},
        {"no key", whole, "", notADatabase},
    };
    for (const Case& row : cases) {
        QFile file(Path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(row.contents);
        file.close();
        REALSQLDatabase database;
        database.SetDatabaseFile(File());
        database.SetEncryptionKey(row.key);
        EXPECT_FALSE(database.Connect()) << row.name;
        EXPECT_EQ(database.ErrorMessage(), QString(row.words)) << row.name;
        EXPECT_EQ(file.size(), row.contents.size()) << row.name;
        EXPECT_TRUE(database.SQLSelect("SELECT 1").IsNil()) << row.name;
    }
}

TEST_F(DatabaseTest, MissingFileIsNotMade) {
    REALSQLDatabase database;
    EXPECT_THROW(static_cast<void>(database.Connect()), NilObjectException);
    database.SetEncryptionKey(Key());
    for (const FolderItem& missing : {FolderItem(folder_.path()).Child("none.rsd"), File().Child("below")}) {
        database.SetDatabaseFile(missing);
        EXPECT_FALSE(database.Connect());
        EXPECT_TRUE(database.Error());
        EXPECT_EQ(database.ErrorMessage(), QString("unable to open database file"));
        EXPECT_FALSE(missing.Exists());
    }
    database.SetDatabaseFile(FolderItem(folder_.path()));
    EXPECT_FALSE(database.Connect());
    EXPECT_NE(database.ErrorMessage(), QString());
}

TEST_F(DatabaseTest, OneObjectConnectsAgainAlsoToReplacedFile) {
    REALSQLDatabase database;
    Open(database);
    database.Close();
    // A new file has a new salt, so the key derived for the old one must not be used for it.
    ASSERT_TRUE(QFile::remove(Path()));
    GivenLibrary();
    ASSERT_TRUE(database.Connect()) << database.ErrorMessage().toStdString();
    EXPECT_EQ(DrinkCount(database), QString("2"));
    ASSERT_TRUE(database.Connect());
    EXPECT_EQ(DrinkCount(database), QString("2"));
}

TEST_F(DatabaseTest, OverlappingConnectionsDoNotLockEachOther) {
    REALSQLDatabase first;
    REALSQLDatabase second;
    Open(first);
    Open(second);
    const RecordSet records = first.SQLSelect("SELECT * FROM Drinks ORDER BY DrinkID");
    Run(second, "DELETE FROM Drinks WHERE DrinkID = 1");
    Run(first, "UPDATE Drinks SET UserRating = 5");
    Run(second, "INSERT INTO Drinks (DrinkName) VALUES ('Sling')");
    EXPECT_EQ(records.RecordCount(), 2);
    EXPECT_EQ(records.Field("UserRating").IntegerValue(), 3);
    EXPECT_EQ(DrinkCount(first), QString("2"));
}

TEST_F(DatabaseTest, FileHeldByAnotherFailsAfterShortWait) {
    REALSQLDatabase holder;
    REALSQLDatabase writer;
    Open(holder);
    Open(writer);
    Run(holder, "BEGIN IMMEDIATE");
    QElapsedTimer watch;
    watch.start();
    writer.SQLExecute("DELETE FROM Drinks");
    EXPECT_TRUE(writer.Error());
    EXPECT_EQ(writer.ErrorMessage(), QString("database is locked"));
    EXPECT_GE(watch.elapsed(), 500);
    EXPECT_LT(watch.elapsed(), 5000);
    EXPECT_EQ(DrinkCount(writer), QString("2"));
    EXPECT_FALSE(writer.Error());
    holder.Close();
    Run(writer, "DELETE FROM Drinks");
}

TEST_F(DatabaseTest, FullDiskShowsAtTheStatement) {
    REALSQLDatabase database;
    Open(database);
    {
        const FileSizeLimit disk(rlim_t(QFile(Path()).size()));
        DatabaseRecord record;
        record.SetColumn("DrinkName", QString(20000, 'x'));
        database.InsertRecord("Drinks", record);
        database.Commit();
        EXPECT_TRUE(database.Error());
        EXPECT_NE(database.ErrorMessage(), QString());
    }
    EXPECT_EQ(DrinkCount(database), QString("2"));
    EXPECT_EQ(Value(database, "(SELECT COUNT(*) FROM Drinks WHERE DrinkName = 'Crème Fizz')"), QString("1"));
}

// Rates the first drink 1, 2, 3 and so on, each on a connection of its own, and tells of each one after `Close`.
[[noreturn]] void RateUntilKilled(const FolderItem& file, const QString& key, int report) {
    for (int rating = 1;; ++rating) {
        REALSQLDatabase database;
        database.SetDatabaseFile(file);
        database.SetEncryptionKey(key);
        if (!database.Connect()) {
            _exit(1);
        }
        database.SQLExecute(QStringLiteral("UPDATE Drinks SET UserRating = %1").arg(rating));
        database.Close();
        if (write(report, &rating, sizeof rating) != sizeof rating) {
            _exit(1);
        }
    }
}

TEST_F(DatabaseTest, KillLosesNothingThatWasClosed) {
    for (int round = 0; round < 5; ++round) {
        int report[2];
        ASSERT_EQ(pipe(report), 0);
        const pid_t child = fork();
        if (child == 0) {
            RateUntilKilled(File(), Key(), report[1]);
        }
        close(report[1]);
        int told = 0;
        while (told < 20 + round) {
            ASSERT_EQ(read(report[0], &told, sizeof told), ssize_t(sizeof told));
        }
        kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        while (read(report[0], &told, sizeof told) == ssize_t(sizeof told)) {
        }
        close(report[0]);

        REALSQLDatabase database;
        Open(database);
        EXPECT_GE(Value(database, "(SELECT MIN(UserRating) FROM Drinks)").toInt(), told);
        EXPECT_EQ(Value(database, "(SELECT MAX(UserRating) - MIN(UserRating) FROM Drinks)"), QString("0"));
    }
}

} // namespace

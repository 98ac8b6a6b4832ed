#include "DatabaseFixture.h"

#include <QElapsedTimer>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace {

TEST_F(DatabaseTest, ConnectFailsWithTheEnginesWordsAndChangesNoFile) {
    database_.Close();
    const QString plainPath = File("plain").AbsolutePath();
    Shell(plainPath, "CREATE TABLE T (A);");
    const QByteArray plain = Bytes(plainPath);
    const QByteArray whole = Bytes(Path());
    QFile file(Path());
    struct Case {
        const char* name;
        QByteArray contents;
        const char* key;
        const char* words;
    };
    const char* notADatabase = "file is encrypted or is not a database";
    const Case cases[] = {
        {"empty", "", "MerryMead246", notADatabase},
        {"empty without key", "", "", notADatabase},
        {"shorter than a salt", "abc", "MerryMead246", notADatabase},
        {"cut inside a page", whole.left(1500), "MerryMead246", "database disk image is malformed"},
        {"zeros", QByteArray(4096, '\0'), "MerryMead246", notADatabase},
        {"other key", whole, "MerryMead247", notADatabase},
        {"no key", whole, "", notADatabase},
        {"key for a plain file", plain, "MerryMead246", notADatabase},
        {"plain file", plain, "", ""},
    };
    for (const Case& row : cases) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(row.contents);
        file.close();
        database_.SetEncryptionKey(row.key);
        EXPECT_EQ(database_.Connect(), *row.words == '\0') << row.name;
        EXPECT_EQ(database_.ErrorMessage(), QString(row.words)) << row.name;
        EXPECT_EQ(file.size(), row.contents.size()) << row.name;
    }
    ASSERT_TRUE(file.remove());
    EXPECT_FALSE(database_.Connect());
    EXPECT_EQ(database_.ErrorMessage(), QString("unable to open database file"));
    EXPECT_FALSE(File().Exists());
}

TEST_F(DatabaseTest, OneObjectConnectsAgainToReplacedFile) {
    database_.Close();
    // A new file has a new salt, so the key derived for the old one must not be used for it.
    ASSERT_TRUE(QFile::remove(Path()));
    GivenLibrary();
    ASSERT_TRUE(database_.Connect()) << database_.ErrorMessage().toStdString();
    EXPECT_EQ(DrinkCount(database_), QString("2"));
}

// The foreign key shows which of the two a connect goes by.
TEST_F(DatabaseTest, DerivedKeyCountsForItsSaltAlone) {
    database_.SetDerivedKey({Bytes(Path()).left(16), QByteArray(32, 'k')});
    EXPECT_FALSE(database_.Connect());
    database_.SetDerivedKey({QByteArray(16, 's'), QByteArray(32, 'k')});
    EXPECT_TRUE(database_.Connect()) << database_.ErrorMessage().toStdString();
}

TEST_F(DatabaseTest, OverlappingConnectionsDoNotLockEachOther) {
    REALSQLDatabase second;
    Open(second);
    const RecordSet records = database_.SQLSelect("SELECT * FROM Drinks ORDER BY DrinkID");
    Run(second, "DELETE FROM Drinks WHERE DrinkID = 1");
    Run(database_, "UPDATE Drinks SET UserRating = 5");
    Run(second, "INSERT INTO Drinks (DrinkName) VALUES ('Sling')");
    EXPECT_EQ(records.Field("UserRating").IntegerValue(), 3);
    EXPECT_EQ(DrinkCount(database_), QString("2"));
}

TEST_F(DatabaseTest, FileHeldByAnotherFailsAfterShortWait) {
    REALSQLDatabase holder;
    Open(holder);
    Run(holder, "BEGIN IMMEDIATE");
    QElapsedTimer watch;
    watch.start();
    database_.SQLExecute("DELETE FROM Drinks");
    EXPECT_EQ(database_.ErrorMessage(), QString("database is locked"));
    EXPECT_GE(watch.elapsed(), 500);
    EXPECT_LT(watch.elapsed(), 5000);
}

TEST_F(DatabaseTest, KillLosesNothingThatWasClosed) {
    database_.Close();
    for (int round = 0; round < 5; ++round) {
        int report[2];
        ASSERT_EQ(pipe(report), 0);
        const pid_t child = fork();
        if (child == 0) {
            // Tells of each rating after `Close`.
            for (int rating = 1; !HasFailure(); ++rating) {
                Open(database_);
                Run(database_, QStringLiteral("UPDATE Drinks SET UserRating = %1").arg(rating));
                database_.Close();
                EXPECT_EQ(write(report[1], &rating, sizeof rating), ssize_t(sizeof rating));
            }
            _exit(1);
        }
        close(report[1]);
        int told = 0;
        while (told < 20 + round) {
            ASSERT_EQ(read(report[0], &told, sizeof told), ssize_t(sizeof told));
        }
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        close(report[0]);

        Open(database_);
        EXPECT_GE(Value(database_, "(SELECT MIN(UserRating) FROM Drinks)").toInt(), told);
        EXPECT_EQ(Value(database_, "(SELECT MAX(UserRating) - MIN(UserRating) FROM Drinks)"), QString("0"));
        database_.Close();
    }
}

} // namespace

#include "DatabaseFixture.h"

#include <QElapsedTimer>

namespace {

TEST_F(DatabaseTest, ConnectFailsWithTheEnginesWordsAndChangesNoFile) {
    database_.Close();
    const QString plainPath = File("plain").AbsolutePath();
    Shell(plainPath, "CREATE TABLE T (A);");
    const QByteArray plain = Bytes(plainPath);
    const QByteArray whole = Bytes(Path());
    QFile file(Path());
    const char* notADatabase = "file is encrypted or is not a database";
    const std::tuple<const char*, QByteArray, const char*, const char*> cases[] = {
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
    for (const auto& [name, contents, key, words] : cases) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(contents);
        file.close();
        database_.SetEncryptionKey(key);
        EXPECT_EQ(database_.Connect(), *words == '\0') << name;
        EXPECT_EQ(database_.ErrorMessage(), QString(words)) << name;
        EXPECT_EQ(file.size(), contents.size()) << name;
    }
    EXPECT_FALSE(database_.CreateDatabaseFile());
    EXPECT_EQ(database_.ErrorMessage(), QString("File exists"));
    ASSERT_TRUE(file.remove());
    EXPECT_FALSE(database_.Connect());
    EXPECT_EQ(database_.ErrorMessage(), QString("unable to open database file"));
    EXPECT_FALSE(File().Exists());
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

} // namespace

#include "DatabaseFixture.h"

#include <QElapsedTimer>

namespace {

TEST_F(DatabaseTest, AKeyIsForAnEncryptedFileAlone) {
    const FolderItem plain = File("plain");
    Shell(plain.AbsolutePath(), "CREATE TABLE T (A);");
    const std::tuple<FolderItem, const char*, bool> cases[] = {
        {File(), "", false}, {plain, "MerryMead246", false}, {plain, "", true}, {File("none"), "", false}};
    for (const auto& [file, key, opens] : cases) {
        database_.Close();
        database_.SetDatabaseFile(file);
        database_.SetEncryptionKey(key);
        EXPECT_EQ(database_.Connect(), opens) << key;
    }
    EXPECT_FALSE(File("none").Exists());
    database_.SetDatabaseFile(File());
    EXPECT_FALSE(database_.CreateDatabaseFile());
    EXPECT_EQ(database_.ErrorMessage(), QString("File exists"));
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

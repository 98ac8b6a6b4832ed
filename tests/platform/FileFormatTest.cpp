#include "DatabaseFixture.h"

#include <sys/stat.h>

namespace {

TEST_F(DatabaseTest, FilesAreSharedWithTheStockShell) {
    EXPECT_EQ(Shell(Path(), "PRAGMA key='MerryMead246'; SELECT DrinkName FROM Drinks WHERE DrinkID = 1;"),
              QString("Crème Fizz"));
    ASSERT_TRUE(QFile::remove(Path()));
    Shell(Path(), "PRAGMA key='it''s 1'; CREATE TABLE T (A); INSERT INTO T VALUES (7);");
    Open(database_, "it's 1");
    EXPECT_EQ(Value(database_, "(SELECT A FROM T)"), QString("7"));
}

TEST_F(DatabaseTest, NothingOnTheDiskIsReadableOrOpenToOthers) {
    Run(database_, "BEGIN");
    Run(database_, "UPDATE Drinks SET DrinkName = 'Zombie' WHERE DrinkID = 1");
    for (const QString& path : {Path() + "-journal", Path()}) {
        struct stat found {};
        ASSERT_EQ(stat(qPrintable(path), &found), 0) << path.toStdString();
        EXPECT_EQ(found.st_mode & 07777, 0600u) << path.toStdString();
        EXPECT_FALSE(Bytes(path).contains("Planter")) << path.toStdString();
    }
}

} // namespace

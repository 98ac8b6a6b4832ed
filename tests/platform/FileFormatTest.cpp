#include "DatabaseFixture.h"

#include <QDir>

#include <sys/stat.h>

namespace {

QByteArray Bytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

mode_t Mode(const QString& path) {
    struct stat found {};
    return stat(QFile::encodeName(path).constData(), &found) == 0 ? found.st_mode & 07777 : 0;
}

TEST_F(DatabaseTest, StockShellReadsAndWritesTheFileWithThePassphrase) {
    EXPECT_EQ(Shell(Path(), "PRAGMA key='MerryMead246'; SELECT DrinkName FROM Drinks WHERE DrinkID = 1;"),
              QString("Crème Fizz"));
    Shell(Path(), "PRAGMA key='MerryMead246'; INSERT INTO Drinks (DrinkName) VALUES ('Sling');");
    REALSQLDatabase database;
    Open(database);
    EXPECT_EQ(DrinkCount(database), QString("3"));
    EXPECT_TRUE(Shell(Path(), "PRAGMA key='other'; SELECT DrinkName FROM Drinks;").contains("not a database"));
}

TEST_F(DatabaseTest, FilesMadeByTheStockShellOpen) {
    const FolderItem other = FolderItem(folder_.path()).Child("shell.rsd");
    Shell(other.AbsolutePath(), "PRAGMA key='it''s 1'; CREATE TABLE T (A); INSERT INTO T VALUES (7);");
    REALSQLDatabase database;
    database.SetDatabaseFile(other);
    database.SetEncryptionKey("it's 1");
    ASSERT_TRUE(database.Connect()) << database.ErrorMessage().toStdString();
    EXPECT_EQ(Value(database, "(SELECT A FROM T)"), QString("7"));
}

TEST_F(DatabaseTest, NothingOnTheDiskIsReadableOrOpenToOthers) {
    const QString journal = Path() + "-journal";
    REALSQLDatabase database;
    Open(database);
    Run(database, "BEGIN");
    Run(database, "UPDATE Drinks SET DrinkName = 'Zombie' WHERE DrinkID = 1");
    ASSERT_TRUE(QFile::exists(journal));
    EXPECT_EQ(Mode(journal), 0600u);
    EXPECT_EQ(Mode(Path()), 0600u);
    for (const QString& path : {journal, Path()}) {
        EXPECT_FALSE(Bytes(path).contains("Planter")) << path.toStdString();
        EXPECT_FALSE(Bytes(path).contains("SQLite")) << path.toStdString();
    }
    database.Commit();
    database.Close();
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden), QStringList("drinks.rsd"));
}

TEST_F(DatabaseTest, EmptyKeyMeansPlainFile) {
    const FolderItem plain = FolderItem(folder_.path()).Child("plain.rsd");
    REALSQLDatabase database;
    database.SetDatabaseFile(plain);
    ASSERT_TRUE(database.CreateDatabaseFile());
    Run(database, "CREATE TABLE T (A)");
    database.Close();
    EXPECT_TRUE(Bytes(plain.AbsolutePath()).startsWith("SQLite format 3"));
    EXPECT_TRUE(database.Connect());
    database.SetEncryptionKey(Key());
    EXPECT_FALSE(database.Connect());
    EXPECT_EQ(database.ErrorMessage(), QString("file is encrypted or is not a database"));
}

TEST_F(DatabaseTest, CreateRefusesAnExistingFile) {
    REALSQLDatabase database;
    database.SetDatabaseFile(File());
    database.SetEncryptionKey(Key());
    EXPECT_FALSE(database.CreateDatabaseFile());
    EXPECT_EQ(database.ErrorMessage(), QString("File exists"));
    ASSERT_TRUE(database.Connect());
    EXPECT_EQ(DrinkCount(database), QString("2"));
}

} // namespace

#include "platform/files/FolderItem.h"

#include "platform/base/Exceptions.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

class FolderItemTest : public testing::Test {
protected:
    FolderItem Item(const QString& name) const { return FolderItem(folder_.path()).Child(name); }

    FolderItem GivenFile(const QString& name, const QByteArray& contents) const {
        QFile file(Item(name).AbsolutePath());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
        return Item(name);
    }

    static QByteArray Contents(const FolderItem& item) {
        QFile file(item.AbsolutePath());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }

    static QStringList Names(const FolderItem& folder) {
        return QDir(folder.AbsolutePath()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    static mode_t Mode(const FolderItem& item) {
        struct stat found {};
        EXPECT_EQ(stat(qPrintable(item.AbsolutePath()), &found), 0);
        return found.st_mode & 07777;
    }

    QTemporaryDir folder_;
};

TEST_F(FolderItemTest, FoldersAndCopiesBelongToTheUserAloneAndReplaceNothing) {
    const FolderItem folder = Item("a/b c/Größe");
    folder.CreateAsFolder();
    EXPECT_EQ(Mode(folder), 0700u);
    EXPECT_EQ(Mode(Item("a")), 0700u);

    const QByteArray contents = QByteArray("0123456789").repeated(20000) + "end";
    const FolderItem seed = GivenFile("drinkdb.rsd", contents);
    ASSERT_TRUE(QFile::setPermissions(seed.AbsolutePath(), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther));
    seed.CopyFileTo(folder);
    EXPECT_EQ(Contents(folder.Child("drinkdb.rsd")), contents);
    EXPECT_EQ(Mode(folder.Child("drinkdb.rsd")), 0600u);

    EXPECT_THROW(GivenFile("drinkdb.rsd", "newer").CopyFileTo(folder), IOException);
    EXPECT_EQ(Contents(folder.Child("drinkdb.rsd")), contents);
    EXPECT_EQ(Names(folder), QStringList("drinkdb.rsd"));
}

TEST_F(FolderItemTest, RenamingToTakenNameKeepsTheOlderFile) {
    for (const char* contents : {"first", "second", "third"}) {
        FolderItem item = GivenFile("drinkdb.rsd", contents);
        item.SetName("backup.rsd");
        item.SetName("backup.rsd");
        EXPECT_EQ(Contents(item), QByteArray(contents));
    }
    EXPECT_EQ(Contents(Item("backup (2).rsd")), QByteArray("first"));
    EXPECT_EQ(Contents(Item("backup (3).rsd")), QByteArray("second"));
    EXPECT_THROW(Item("missing").SetName("backup.rsd"), IOException);
    EXPECT_EQ(Names(Item("")), (QStringList{"backup (2).rsd", "backup (3).rsd", "backup.rsd"}));
}

} // namespace

#include "platform/files/FolderItem.h"

#include "FileSizeLimit.h"
#include "platform/base/Exceptions.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

class FolderItemTest : public testing::Test {
protected:
    FolderItem Folder() const { return FolderItem(folder_.path()); }

    FolderItem GivenFile(const FolderItem& item, const QByteArray& contents) const {
        QFile file(item.AbsolutePath());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(contents), contents.size());
        return item;
    }

    FolderItem GivenFolder(const QString& name) const {
        FolderItem item = Folder().Child(name);
        item.CreateAsFolder();
        return item;
    }

    static QByteArray Contents(const FolderItem& item) {
        QFile file(item.AbsolutePath());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }

    static QStringList Names(const FolderItem& folder) {
        const QDir::Filters everything = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
        return QDir(folder.AbsolutePath()).entryList(everything, QDir::Name);
    }

    static mode_t Mode(const FolderItem& item) {
        struct stat found {};
        EXPECT_EQ(stat(QFile::encodeName(item.AbsolutePath()).constData(), &found), 0);
        return found.st_mode & 07777;
    }

    template <class Deed>
    static QString FailureOf(Deed deed) {
        try {
            deed();
        } catch (const IOException& failure) {
            return failure.Message();
        }
        return {};
    }

private:
    QTemporaryDir folder_;
};

TEST_F(FolderItemTest, PathStepsEndInNil) {
    EXPECT_EQ(FolderItem("/usr/bin/../lib").Child("x").Parent().AbsolutePath(), QString("/usr/lib"));
    EXPECT_EQ(FolderItem("/").Child("usr").AbsolutePath(), QString("/usr"));
    const FolderItem nil = FolderItem("/usr").Parent().Parent();
    EXPECT_TRUE(nil.IsNil());
    EXPECT_THROW(nil.Child("x"), NilObjectException);
    EXPECT_THROW(static_cast<void>(nil.Parent()), NilObjectException);
    EXPECT_THROW(static_cast<void>(nil.Exists()), NilObjectException);
    EXPECT_THROW(Folder().CopyFileTo(nil), NilObjectException);
}

TEST_F(FolderItemTest, CreateAsFolderMakesParentsForTheUserAlone) {
    const mode_t before = umask(0);
    const FolderItem folder = Folder().Child("a").Child("b c").Child("Größe");
    folder.CreateAsFolder();
    folder.CreateAsFolder();
    umask(before);
    EXPECT_EQ(Mode(folder), 0700u);
    EXPECT_EQ(Mode(folder.Parent().Parent()), 0700u);

    const FolderItem file = GivenFile(Folder().Child("file"), "x");
    EXPECT_TRUE(FailureOf([&] { file.CreateAsFolder(); }).endsWith("File exists"));
    EXPECT_TRUE(FailureOf([&] { file.Child("below").CreateAsFolder(); }).endsWith("Not a directory"));
}

TEST_F(FolderItemTest, CopyOfReadOnlySeedBelongsToTheUserAlone) {
    const QByteArray contents = QByteArray("0123456789").repeated(20000) + "end";
    const FolderItem seed = GivenFile(Folder().Child("drinkdb.rsd"), contents);
    ASSERT_TRUE(QFile::setPermissions(seed.AbsolutePath(), QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
    const FolderItem target = GivenFolder("user");
    seed.CopyFileTo(target);
    EXPECT_EQ(Names(target), QStringList("drinkdb.rsd"));
    EXPECT_EQ(Contents(target.Child("drinkdb.rsd")), contents);
    EXPECT_EQ(Mode(target.Child("drinkdb.rsd")), 0600u);
}

TEST_F(FolderItemTest, FailedCopyLeavesTheFolderAsItWas) {
    const FolderItem seed = GivenFile(Folder().Child("drinkdb.rsd"), QByteArray(100000, 'x'));
    const FolderItem target = GivenFolder("user");
    const FolderItem full = GivenFolder("full");
    GivenFile(full.Child("drinkdb.rsd"), "older");
    GivenFolder("folder");

    EXPECT_TRUE(FailureOf([&] { seed.CopyFileTo(full); }).endsWith("File exists"));
    EXPECT_EQ(Contents(full.Child("drinkdb.rsd")), QByteArray("older"));
    EXPECT_EQ(Names(full), QStringList("drinkdb.rsd"));

    EXPECT_TRUE(FailureOf([&] { seed.CopyFileTo(seed); }).endsWith("Not a directory"));
    EXPECT_TRUE(FailureOf([&] { seed.CopyFileTo(Folder().Child("none")); }).endsWith("No such file or directory"));
    EXPECT_TRUE(FailureOf([&] { Folder().Child("none").CopyFileTo(target); }).endsWith("No such file or directory"));
    EXPECT_TRUE(FailureOf([&] { Folder().Child("folder").CopyFileTo(target); }).endsWith("Is a directory"));
    {
        const FileSizeLimit disk(50000);
        EXPECT_TRUE(FailureOf([&] { seed.CopyFileTo(target); }).endsWith("File too large"));
    }
    EXPECT_EQ(Names(target), QStringList());
}

TEST_F(FolderItemTest, RenamingToTakenNameKeepsTheOlderFile) {
    const auto renamed = [this](const QByteArray& contents) {
        FolderItem item = GivenFile(Folder().Child("drinkdb.rsd"), contents);
        item.SetName("backup.rsd");
        EXPECT_EQ(item.Name(), QString("backup.rsd"));
        EXPECT_EQ(Contents(item), contents);
    };
    renamed("first");
    renamed("second");
    renamed("third");
    EXPECT_EQ(Contents(Folder().Child("backup (2).rsd")), QByteArray("first"));
    EXPECT_EQ(Contents(Folder().Child("backup (3).rsd")), QByteArray("second"));

    FolderItem own = Folder().Child("backup.rsd");
    own.SetName("backup.rsd");
    EXPECT_EQ(Names(Folder()), (QStringList{"backup (2).rsd", "backup (3).rsd", "backup.rsd"}));
}

TEST_F(FolderItemTest, RefusedRenameChangesNothing) {
    GivenFile(Folder().Child("taken"), "taken");
    FolderItem missing = Folder().Child("missing");
    EXPECT_TRUE(FailureOf([&] { missing.SetName("taken"); }).endsWith("No such file or directory"));
    FolderItem taken = Folder().Child("taken");
    for (const QString& name : {QString(), QString("a/b"), QString(".."), QString(300, 'x')}) {
        EXPECT_NE(FailureOf([&] { taken.SetName(name); }), QString()) << name.toStdString();
    }
    EXPECT_EQ(taken.Name(), QString("taken"));
    EXPECT_EQ(Names(Folder()), QStringList("taken"));
}

TEST_F(FolderItemTest, StandardFoldersFollowTheDesktopRules) {
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", "/data/of user");
    EXPECT_EQ(PreferencesFolder().Parent().Child("Application Support").AbsolutePath(),
              QString("/data/of user/Application Support"));
    for (const char* unfit : {"", "relative/path"}) {
        qputenv("XDG_DATA_HOME", unfit);
        EXPECT_EQ(PreferencesFolder().AbsolutePath(), QDir::homePath() + "/.local/share/Preferences");
    }
    qputenv("XDG_DATA_HOME", before);

    EXPECT_EQ(GetFolderItem("drinkdb.rsd").AbsolutePath(), QDir::currentPath() + "/drinkdb.rsd");
    EXPECT_TRUE(ExecutableFile().Exists());
    EXPECT_EQ(ExecutableFile().Name(), QString("platform_store_test"));
}

} // namespace

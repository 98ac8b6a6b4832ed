// The builder as a program: what it leaves on the disk, and what it says.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class SeedBuild : public testing::Test {
protected:
    void GivenText(const QString& name, const QByteArray& text) {
        const QString path = Path("library/" + name);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    void GivenSmallLibrary() {
        GivenText("types.txt", "Sour\n");
        GivenText("glasses.txt", "Cocktail\n");
        GivenText("units.txt", "oz\n");
        GivenText("ingredients.txt", "Gin\n");
        GivenText("starter-bar.txt", "Gin\n");
        GivenText("recipes/sours.txt", "Gin Sour\n    Sour, Cocktail\n    2 oz Gin\n    > Shake.\n");
    }

    // Returns the exit status; what the program said is in `said`.
    int Build(const QString& output) {
        QProcess builder;
        builder.start(SEED_BUILDER, {Path("library"), output});
        if (!builder.waitForFinished()) {
            return -1;
        }
        said = QString::fromUtf8(builder.readAllStandardError());
        return builder.exitCode();
    }

    QString Path(const QString& name) const { return folder_.filePath(name); }

    QStringList FilesBesideLibrary() const { return QDir(folder_.path()).entryList(QDir::Files); }

    QString said;

private:
    QTemporaryDir folder_;
};

TEST_F(SeedBuild, WritesAFileThatEveryUserMayReadInPlaceOfTheOldOne) {
    GivenSmallLibrary();
    ASSERT_EQ(Build(Path("seed.rsd")), 0) << said.toStdString();
    const qint64 size = QFileInfo(Path("seed.rsd")).size();
    ASSERT_EQ(Build(Path("seed.rsd")), 0) << said.toStdString();
    EXPECT_EQ(QFileInfo(Path("seed.rsd")).size(), size);
    EXPECT_TRUE(QFile::permissions(Path("seed.rsd")).testFlag(QFile::ReadOther));
    EXPECT_EQ(FilesBesideLibrary(), QStringList("seed.rsd"));
}

TEST_F(SeedBuild, ErrorsAreListedAndTheOldSeedStays) {
    GivenSmallLibrary();
    ASSERT_EQ(Build(Path("seed.rsd")), 0) << said.toStdString();
    GivenText("recipes/bad.txt", "Fizz\n    Sour, Cokctail\n    1 oz Rum\n    > Shake.\n");
    GivenText("recipes/odd.txt", "Caf\xe9\n    Sour, Cocktail\n    1 oz Gin\n    > Shake.\n");
    EXPECT_EQ(Build(Path("seed.rsd")), 1);
    EXPECT_EQ(said.toStdString(), "recipes/odd.txt: the file is not UTF-8\n"
                                  "recipes/bad.txt:2: unknown glass 'Cokctail'\n"
                                  "recipes/bad.txt:3: unknown ingredient 'Rum'\n");
    EXPECT_EQ(FilesBesideLibrary(), QStringList("seed.rsd"));
}

TEST_F(SeedBuild, AnOutputThatCannotBeWrittenLeavesNothing) {
    GivenSmallLibrary();
    EXPECT_EQ(Build(Path("nowhere/seed.rsd")), 1);
    EXPECT_TRUE(said.startsWith(Path("nowhere/seed.rsd") + ": ")) << said.toStdString();
    ASSERT_TRUE(QDir().mkpath(Path("taken/seed.rsd")));
    EXPECT_EQ(Build(Path("taken/seed.rsd")), 1);
    EXPECT_EQ(QDir(Path("taken")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList("seed.rsd"));
}

} // namespace

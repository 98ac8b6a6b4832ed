// The seed that the build made, looked at from outside in the ordinary sqlcipher shell, and the program that makes it.
#include "browser/GlassPicture.h"
#include "browser/QuantityText.h"
#include "store/LibraryKey.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// What the shell prints: a row each line, with its columns joined by "|".
QStringList Rows(const QString& file, const char* statement) {
    QProcess shell;
    shell.start("sqlcipher", {file});
    shell.write(QByteArray("PRAGMA key='MerryMead246';\n") + statement + "\n;\n");
    shell.closeWriteChannel();
    EXPECT_TRUE(shell.waitForFinished());
    EXPECT_EQ(shell.readAllStandardError().toStdString(), "") << statement;
    return QString::fromUtf8(shell.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
}

double NumberShown(const QString& quantityText) {
    double number = 0;
    for (const QString& part : quantityText.split(u' ', Qt::SkipEmptyParts)) {
        const QStringList sides = part.split(u'/');
        number += sides.at(0).toDouble() / sides.value(1, "1").toDouble();
    }
    return number;
}

TEST(Seed, HasNineTablesAndADrinkWhereItsPartsBelong) {
    EXPECT_EQ(Rows(SEED_FILE, "SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name"),
              (QStringList{"DrinkListXRef", "DrinkLists", "DrinkRecipes", "DrinkTypes", "Drinks", "GlassTypes",
                           "Ingredients", "Setup", "UnitsOfMeasure"}));
    EXPECT_EQ(Rows(SEED_FILE, "SELECT T.DrinkTypeName, G.GlassTypeName, R.IngredientQuantity, U.UofM, "
                              "I.IngredientName, R.Required FROM DrinkRecipes AS R "
                              "JOIN Drinks AS D USING (DrinkID) JOIN DrinkTypes AS T USING (DrinkTypeID) "
                              "JOIN GlassTypes AS G USING (GlassTypeID) JOIN Ingredients AS I USING (IngredientID) "
                              "JOIN UnitsOfMeasure AS U USING (UofMID) WHERE D.DrinkName = 'Margarita' "
                              "ORDER BY R.RecipeStep"),
              (QStringList{"Sour|Margarita|1.66|oz|Tequila|1", "Sour|Margarita|0.66|oz|Triple Sec|1",
                           "Sour|Margarita|0.5|oz|Lime Juice|1", "Sour|Margarita|0|rim|Salt|0"}));
}

TEST(Seed, ThePanelShowsEachQuantityAsMeantAndEachGlassAsAPicture) {
    for (const QString& quantity :
         Rows(SEED_FILE, "SELECT DISTINCT IngredientQuantity FROM DrinkRecipes WHERE IngredientQuantity != '0'")) {
        const QString shown = QuantityText(quantity, {});
        EXPECT_FALSE(shown.contains(u'.')) << quantity.toStdString();
        // Two decimals stand for a third and for two thirds.
        EXPECT_NEAR(NumberShown(shown), quantity.toDouble(), 0.01);
    }
    for (const QString& glass : Rows(SEED_FILE, "SELECT GlassTypeName FROM GlassTypes")) {
        EXPECT_NE(GlassPicture(glass), nullptr) << glass.toStdString();
    }
}

TEST(Seed, AgreesWithItselfAndBelongsToNobodyYet) {
    // Each finds what is wrong.
    const char* const searches[] = {
        "SELECT 'too few drinks' WHERE (SELECT COUNT(*) FROM Drinks) < 640",
        "SELECT IngredientName FROM Ingredients WHERE IngredientParentID IS NOT NULL AND IngredientParentID NOT IN "
        "(SELECT IngredientID FROM Ingredients WHERE IngredientParentID IS NULL)",
        "SELECT GlassTypeName FROM GlassTypes WHERE GlassTypeID NOT IN (SELECT GlassTypeID FROM Drinks)",
        "SELECT DrinkName FROM Drinks AS D WHERE IngredientCount < 1 OR IngredientCount IS NOT (SELECT COUNT(*) FROM "
        "DrinkRecipes AS R WHERE R.DrinkID = D.DrinkID AND R.Required != 0)",
        "SELECT DrinkName FROM Drinks AS D WHERE IngredientList IS NOT (SELECT group_concat(IngredientName, ', ') FROM "
        "(SELECT IngredientName FROM DrinkRecipes AS R JOIN Ingredients USING (IngredientID) WHERE R.DrinkID = "
        "D.DrinkID ORDER BY R.RecipeStep))",
        // Names are compared in any case.
        "SELECT DrinkName FROM Drinks WHERE DrinkName != upper(DrinkName)",
        "SELECT IngredientName FROM Ingredients WHERE IngredientName != upper(IngredientName)",
        // The recipe panel reads the digits as they were written, so a column of numbers would not do.
        "SELECT IngredientQuantity FROM DrinkRecipes WHERE typeof(IngredientQuantity) != 'text'",
        "SELECT DrinkName FROM Drinks WHERE UserRating IS NOT NULL OR UserModified IS NOT NULL",
        "SELECT IngredientName FROM Ingredients WHERE InBar IS NOT 0 OR Empty IS NOT 0",
        "SELECT 'Setup' WHERE (SELECT COUNT(*) FROM Setup WHERE DBVersion = 2 AND AppWidth IS NULL) != 1",
    };
    for (const char* search : searches) {
        EXPECT_EQ(Rows(SEED_FILE, search), QStringList()) << search;
    }
}

// Returns what the builder says of its faults.
std::string Build(const QString& folder, const QString& output) {
    QProcess builder;
    builder.start(SEED_BUILDER, {folder, output});
    EXPECT_TRUE(builder.waitForFinished());
    const QByteArray said = builder.readAllStandardError();
    EXPECT_EQ(builder.exitCode(), said.isEmpty() ? 0 : 1);
    return said.toStdString();
}

QByteArray Bytes(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

TEST(SeedBuild, SameTextGivesSameBytesAndFaultyTextKeepsTheOldSeed) {
    const QTemporaryDir folder;
    const QString seed = folder.filePath("seed.rsd");
    EXPECT_EQ(Build(LIBRARY_FOLDER, seed), "");
    EXPECT_EQ(Build(LIBRARY_FOLDER, seed), "");
    EXPECT_TRUE(QFile::permissions(seed).testFlag(QFile::ReadOther));

    QFile faulty(folder.filePath("types.txt"));
    ASSERT_TRUE(faulty.open(QIODevice::WriteOnly));
    faulty.write("Caf\xe9\n");
    faulty.close();
    EXPECT_EQ(Build(folder.path(), seed).find("types.txt: the file is not UTF-8\n"), 0u);
    // Not compared by EXPECT_EQ: a difference would print the whole file.
    EXPECT_TRUE(Bytes(seed) == Bytes(SEED_FILE));
    // With another salt every start would derive the key.
    EXPECT_EQ(Bytes(SEED_FILE).left(16), LibraryKey().salt);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), (QStringList{"seed.rsd", "types.txt"}));
}

} // namespace

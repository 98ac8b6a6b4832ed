// The seed that the build made, looked at from outside in the ordinary sqlcipher shell, and the program that makes it.
#include "library/LibraryText.h"

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

TEST(Seed, HasNineTablesAndTheGlassesWithPictures) {
    EXPECT_EQ(Rows(SEED_FILE, "SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name"),
              (QStringList{"DrinkListXRef", "DrinkLists", "DrinkRecipes", "DrinkTypes", "Drinks", "GlassTypes",
                           "Ingredients", "Setup", "UnitsOfMeasure"}));
    EXPECT_EQ(Rows(SEED_FILE, "SELECT GlassTypeName FROM GlassTypes ORDER BY GlassTypeName"),
              (QStringList{"Beer Mug", "Beer Pilsner", "Brandy Snifter", "Champagne Flute", "Cocktail", "Coffee Mug",
                           "Collins", "Cordial", "HighBall", "Margarita", "Old-Fashioned", "Parfait", "Red Wine",
                           "Shot", "Whiskey Sour", "White Wine"}));
}

TEST(Seed, HoldsEveryRecipeOfTheText) {
    const Library library = ReadLibraryFolder(LIBRARY_FOLDER).library;
    QStringList expected;
    for (const Recipe& recipe : library.recipes) {
        for (const RecipeRow& row : recipe.rows) {
            const QStringList columns{recipe.name,
                                      recipe.instructions,
                                      library.types.at(recipe.type),
                                      library.glasses.at(recipe.glass),
                                      row.quantity,
                                      library.units.value(row.unit),
                                      library.ingredients.at(row.ingredient).name,
                                      row.required ? "1" : "0"};
            expected.append(columns.join(u'|'));
        }
    }
    EXPECT_GE(library.recipes.size(), 140);
    EXPECT_EQ(Rows(SEED_FILE, "SELECT D.DrinkName, D.DrinkInstruction, T.DrinkTypeName, G.GlassTypeName, "
                              "R.IngredientQuantity, U.UofM, I.IngredientName, R.Required FROM DrinkRecipes AS R "
                              "JOIN Drinks AS D USING (DrinkID) JOIN DrinkTypes AS T USING (DrinkTypeID) "
                              "JOIN GlassTypes AS G USING (GlassTypeID) JOIN Ingredients AS I USING (IngredientID) "
                              "LEFT JOIN UnitsOfMeasure AS U USING (UofMID) ORDER BY R.DrinkID, R.RecipeStep"),
              expected);
}

TEST(Seed, AgreesWithItselfAndBelongsToNobodyYet) {
    // Each finds what is wrong.
    const char* const searches[] = {
        "SELECT DrinkID FROM DrinkRecipes WHERE DrinkID NOT IN (SELECT DrinkID FROM Drinks)",
        "SELECT IngredientName FROM Ingredients WHERE IngredientParentID IS NOT NULL AND IngredientParentID NOT IN "
        "(SELECT IngredientID FROM Ingredients WHERE IngredientParentID IS NULL)",
        "SELECT DrinkName FROM Drinks GROUP BY DrinkName HAVING COUNT(*) > 1",
        "SELECT GlassTypeName FROM GlassTypes WHERE GlassTypeID NOT IN (SELECT GlassTypeID FROM Drinks)",
        "SELECT DrinkName FROM Drinks AS D WHERE IngredientCount < 1 OR IngredientCount != (SELECT COUNT(*) FROM "
        "DrinkRecipes AS R WHERE R.DrinkID = D.DrinkID AND R.Required != 0)",
        "SELECT DrinkName FROM Drinks AS D WHERE IngredientList != (SELECT group_concat(IngredientName, ', ') FROM "
        "(SELECT IngredientName FROM DrinkRecipes AS R JOIN Ingredients USING (IngredientID) WHERE R.DrinkID = "
        "D.DrinkID ORDER BY R.RecipeStep))",
        // Names are compared without regard to case.
        "SELECT DrinkName FROM Drinks WHERE DrinkName != upper(DrinkName)",
        "SELECT IngredientName FROM Ingredients WHERE IngredientName != upper(IngredientName)",
        // The recipe panel reads the digits behind the point as one of these fractions.
        "SELECT IngredientQuantity FROM DrinkRecipes WHERE typeof(IngredientQuantity) != 'text' OR "
        "(instr(IngredientQuantity, '.') > 0 AND substr(IngredientQuantity, instr(IngredientQuantity, '.') + 1) "
        "NOT IN ('25', '5', '75', '33', '66', '1', '2'))",
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

TEST(SeedBuild, SameTextGivesSameRowsAndFaultyTextKeepsTheOldSeed) {
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
    EXPECT_EQ(Rows(seed, ".dump"), Rows(SEED_FILE, ".dump"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), (QStringList{"seed.rsd", "types.txt"}));
}

} // namespace

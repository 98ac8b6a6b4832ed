// The seed that the build made, looked at from outside: as the program reads it, and in the ordinary sqlcipher shell.
#include "library/LibraryText.h"
#include "platform/base/Text.h"
#include "platform/database/Database.h"

#include <QHash>
#include <QProcess>

#include <gtest/gtest.h>

#include <cmath>

namespace {

class Seed : public testing::Test {
protected:
    void SetUp() override {
        database_.SetDatabaseFile(FolderItem(SEED_FILE));
        database_.SetEncryptionKey("MerryMead246");
        ASSERT_TRUE(database_.Connect()) << database_.ErrorMessage().toStdString();
    }

    // All rows, each with its columns joined by "|".
    QStringList Rows(const QString& statement, const QList<const char*>& columns) {
        RecordSet rows = database_.SQLSelect(statement);
        EXPECT_FALSE(rows.IsNil()) << database_.ErrorMessage().toStdString();
        QStringList texts;
        for (; !rows.IsNil() && !rows.Eof(); rows.MoveNext()) {
            QStringList fields;
            for (const char* column : columns) {
                const DatabaseField field = rows.Field(column);
                fields.append(field.IsNull() ? QString("NULL") : field.StringValue());
            }
            texts.append(fields.join(u'|'));
        }
        return texts;
    }

    // Names of what a check found wrong; empty is good.
    std::string Wrong(const QString& statement) {
        return Rows(statement, {"Name"}).join(QLatin1String(", ")).toStdString();
    }

private:
    REALSQLDatabase database_;
};

TEST_F(Seed, HoldsEveryRecipeOfTheText) {
    const LibraryReading text = ReadLibraryFolder(LIBRARY_FOLDER);
    QStringList expected;
    for (const Recipe& recipe : text.library.recipes) {
        QStringList row{recipe.name, recipe.instructions, text.library.types.at(recipe.type),
                        text.library.glasses.at(recipe.glass)};
        for (const RecipeRow& part : recipe.rows) {
            row << part.quantity << (part.unit < 0 ? QString("NULL") : text.library.units.at(part.unit))
                << text.library.ingredients.at(part.ingredient).name << QString::number(part.required ? 1 : 0);
        }
        expected.append(row.join(u'|'));
    }
    QHash<QString, QString> parts;
    const QStringList rows =
        Rows("SELECT R.DrinkID, R.IngredientQuantity, U.UofM, I.IngredientName, R.Required FROM DrinkRecipes AS R "
             "INNER JOIN Ingredients AS I ON I.IngredientID = R.IngredientID LEFT JOIN UnitsOfMeasure AS U ON U.UofMID "
             "= R.UofMID ORDER BY R.DrinkID, R.RecipeStep",
             {"DrinkID", "IngredientQuantity", "UofM", "IngredientName", "Required"});
    for (const QString& row : rows) {
        parts[row.section(u'|', 0, 0)] += u'|' + row.section(u'|', 1);
    }
    QStringList found;
    const QStringList drinks =
        Rows("SELECT D.*, T.DrinkTypeName, G.GlassTypeName FROM Drinks AS D INNER JOIN DrinkTypes AS T ON "
             "T.DrinkTypeID = D.DrinkTypeID INNER JOIN GlassTypes AS G ON G.GlassTypeID = D.GlassTypeID ORDER BY "
             "D.DrinkID",
             {"DrinkID", "DrinkName", "DrinkInstruction", "DrinkTypeName", "GlassTypeName"});
    for (const QString& drink : drinks) {
        found.append(drink.section(u'|', 1) + parts.value(drink.section(u'|', 0, 0)));
    }
    EXPECT_GE(found.size(), 140);
    EXPECT_EQ(found, expected);
}

TEST_F(Seed, RelationsAreWhole) {
    EXPECT_EQ(Wrong("SELECT DrinkID AS Name FROM DrinkRecipes WHERE DrinkID NOT IN (SELECT DrinkID FROM Drinks)"), "");
    EXPECT_EQ(Wrong("SELECT I.IngredientName AS Name FROM Ingredients AS I INNER JOIN Ingredients AS P ON "
                    "P.IngredientID = I.IngredientParentID WHERE P.IngredientParentID IS NOT NULL"),
              "");
    EXPECT_EQ(Wrong("SELECT IngredientName AS Name FROM Ingredients WHERE IngredientParentID IS NOT NULL AND "
                    "IngredientParentID NOT IN (SELECT IngredientID FROM Ingredients)"),
              "");
    EXPECT_EQ(Wrong("SELECT DrinkName AS Name FROM Drinks GROUP BY DrinkName HAVING COUNT(*) > 1"), "");
}

TEST_F(Seed, CountAndListOfEachDrinkFitItsRows) {
    EXPECT_EQ(Wrong("SELECT DrinkName AS Name FROM Drinks AS D WHERE IngredientCount < 1 OR IngredientCount != (SELECT "
                    "COUNT(*) FROM DrinkRecipes AS R WHERE R.DrinkID = D.DrinkID AND R.Required != 0)"),
              "");
    EXPECT_EQ(Wrong("SELECT DrinkName AS Name FROM Drinks AS D WHERE IngredientList != (SELECT "
                    "group_concat(IngredientName, ', ') FROM (SELECT I.IngredientName FROM DrinkRecipes AS R INNER "
                    "JOIN Ingredients AS I ON I.IngredientID = R.IngredientID WHERE R.DrinkID = D.DrinkID ORDER BY "
                    "R.RecipeStep))"),
              "");
}

// The recipe panel's rule: the digits behind the point, read as a whole number, stand for a fraction.
QString ShownQuantity(const QString& stored) {
    const int point = InStr(stored, ".");
    if (stored == "0" || point == 0) {
        return stored == "0" ? QString() : stored;
    }
    const QHash<int, QString> fractions{{25, "1/4"}, {5, "1/2"},  {75, "3/4"}, {33, "1/3"},
                                        {66, "2/3"}, {1, "1/10"}, {2, "1/5"}};
    const int whole = CLong(Left(stored, point));
    return (whole > 0 ? CStr(whole) + " " : QString()) + fractions.value(CLong(Mid(stored, point + 1)), "?");
}

double ValueOf(const QString& shown) {
    double value = 0;
    for (const QString& part : shown.split(u' ', Qt::SkipEmptyParts)) {
        const QStringList fraction = part.split(u'/');
        value += fraction.at(0).toDouble() / (fraction.size() > 1 ? fraction.at(1).toDouble() : 1);
    }
    return value;
}

TEST_F(Seed, QuantitiesAreShownAsTheyWereMeantAndFitTheirColumn) {
    // The left column of the recipe is 59 pixels wide, which is about this many characters of its small type.
    constexpr int widest = 11;
    for (const QString& row : Rows("SELECT DISTINCT IngredientQuantity, UofM, typeof(IngredientQuantity) AS Kind FROM "
                                   "DrinkRecipes AS R LEFT JOIN UnitsOfMeasure AS U ON U.UofMID = R.UofMID",
                                   {"IngredientQuantity", "UofM", "Kind"})) {
        const QStringList fields = row.split(u'|');
        const QString shown = ShownQuantity(fields.at(0));
        EXPECT_LT(std::abs(ValueOf(shown) - fields.at(0).toDouble()), 0.01) << row.toStdString();
        EXPECT_EQ(fields.at(2), "text") << row.toStdString();
        const QString unit = fields.at(1) == "NULL" ? QString() : fields.at(1);
        EXPECT_LE((shown + " " + unit + " -").trimmed().size(), widest) << row.toStdString();
    }
}

TEST_F(Seed, HasTheGlassesThatHavePicturesAndUsesThemAll) {
    const QStringList pictured{"Beer Mug", "Beer Pilsner", "Brandy Snifter", "Champagne Flute",
                               "Cocktail", "Coffee Mug",   "Collins",        "Cordial",
                               "HighBall", "Margarita",    "Old-Fashioned",  "Parfait",
                               "Red Wine", "Shot",         "Whiskey Sour",   "White Wine"};
    EXPECT_EQ(Rows("SELECT GlassTypeName FROM GlassTypes ORDER BY GlassTypeName", {"GlassTypeName"}), pictured);
    EXPECT_EQ(Wrong("SELECT GlassTypeName AS Name FROM GlassTypes WHERE GlassTypeID NOT IN (SELECT GlassTypeID FROM "
                    "Drinks)"),
              "");
}

TEST_F(Seed, BelongsToNobodyYet) {
    EXPECT_EQ(Rows("SELECT * FROM Setup", {"DBVersion", "AppWidth", "AppLeft", "UserOptions", "LastUpdateCheck"}),
              QStringList("2|NULL|NULL|NULL|NULL"));
    EXPECT_EQ(Wrong("SELECT DrinkName AS Name FROM Drinks WHERE UserRating IS NOT NULL OR UserModified IS NOT NULL"),
              "");
    EXPECT_EQ(Wrong("SELECT IngredientName AS Name FROM Ingredients WHERE InBar IS NOT 0 OR Empty IS NOT 0"), "");
    EXPECT_EQ(
        Rows("SELECT DrinkListName FROM DrinkLists UNION ALL SELECT DrinkID FROM DrinkListXRef", {"DrinkListName"}),
        QStringList());
}

TEST_F(Seed, NamesAreFoundAndOrderedWithoutRegardToCase) {
    EXPECT_EQ(Rows("SELECT DrinkName FROM Drinks WHERE DrinkName = 'nEGRONI'", {"DrinkName"}), QStringList("Negroni"));
    for (const char* name : {"Ingredients|IngredientName", "DrinkTypes|DrinkTypeName", "GlassTypes|GlassTypeName",
                             "UnitsOfMeasure|UofM"}) {
        const QString table = QString(name).section(u'|', 0, 0);
        const QString column = QString(name).section(u'|', 1);
        EXPECT_EQ(Rows("SELECT COUNT(*) AS N FROM " + table + " WHERE " + column + " = upper(" + column + ")", {"N"}),
                  Rows("SELECT COUNT(*) AS N FROM " + table, {"N"}))
            << name;
    }
}

TEST(SeedFile, OpensInTheOrdinaryShellWithItsNineTables) {
    QProcess shell;
    shell.start("sqlcipher", {SEED_FILE});
    ASSERT_TRUE(shell.waitForStarted());
    shell.write("PRAGMA key='MerryMead246';\nSELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name;\n");
    shell.closeWriteChannel();
    ASSERT_TRUE(shell.waitForFinished());
    EXPECT_EQ(shell.readAllStandardError().toStdString(), "");
    EXPECT_EQ(shell.readAllStandardOutput().toStdString(),
              "DrinkListXRef\nDrinkLists\nDrinkRecipes\nDrinkTypes\nDrinks\nGlassTypes\nIngredients\nSetup\n"
              "UnitsOfMeasure\n");
}

} // namespace

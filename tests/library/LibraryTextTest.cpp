#include "library/LibraryText.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

// A small library without errors. A case puts another text in the place of one file.
QList<LibraryFile> FilesWith(const QString& name, const QString& text) {
    QList<LibraryFile> files{
        {"types.txt", "Sour\nHighball\n"},
        {"glasses.txt", "# Cups\nCocktail\n"},
        {"units.txt", "oz\nleaf\n0 top\n"},
        {"ingredients.txt", "Gin\n    Old Tom Gin\nLemon Juice\nMint\nSoda Water\n"},
        {"starter-bar.txt", "Gin\n"},
        {"recipes/sours.txt", "Gin Sour\n    Sour, Cocktail\n    2 oz Gin\n    > Shake.\n"},
    };
    for (LibraryFile& file : files) {
        if (file.name == name) {
            file.text = text;
            return files;
        }
    }
    files.append({name, text});
    return files;
}

QStringList ErrorTexts(const QList<LibraryFile>& files) {
    QStringList texts;
    for (const LibraryError& error : ReadLibrary(files).errors) {
        texts.append(error.Text());
    }
    return texts;
}

struct Fault {
    const char* file;
    QString text;
    const char* error;
};

void ExpectFaults(const std::vector<Fault>& faults) {
    for (const Fault& fault : faults) {
        EXPECT_EQ(ErrorTexts(FilesWith(fault.file, fault.text)).join(u'\n').toStdString(), fault.error);
    }
}

Fault InFile(const char* file, const QString& text, const char* error) {
    return {file, text, error};
}

TEST(LibraryText, FaultsInTheListsAreToldWithFileAndLine) {
    ExpectFaults({
        InFile("types.txt", "Sour\nHighball\nsour\n", "types.txt:3: duplicate type 'sour'"),
        InFile("glasses.txt", "Cocktail\n\n  Shot\n", "glasses.txt:3: a glass name stands at the margin"),
        InFile("units.txt", "oz\nbar spoon\n", "units.txt:2: a unit is one word, not 'bar spoon'"),
        InFile("starter-bar.txt", "Gin\nRum\n", "starter-bar.txt:2: unknown ingredient 'Rum'"),
        InFile("ingredients.txt", "    Old Tom Gin\nGin\n",
               "ingredients.txt:1: 'Old Tom Gin' has no general ingredient above it"),
        InFile("ingredients.txt", "Gin\n    Dry Gin\n        London Gin\n",
               "ingredients.txt:3: 'London Gin' is indented too far: a kind cannot have kinds of its own"),
        InFile("ingredients.txt", "Gin\n  Dry Gin\n", "ingredients.txt:2: indent 'Dry Gin' by four blanks"),
        InFile("ingredients.txt", "Gin\nRum\n    GIN\n",
               "ingredients.txt:3: duplicate ingredient 'GIN', first in line 1"),
        InFile("ingredients.txt", "Gin\nGin, Dry\n",
               "ingredients.txt:2: an ingredient name cannot hold a comma: 'Gin, Dry'"),
        InFile("ingredients.txt", "Gin\n7 Up\n", "ingredients.txt:2: an ingredient name begins with a letter: '7 Up'"),
    });
}

Fault InRecipe(const QString& lines, const char* error) {
    return InFile("recipes/test.txt", lines, error);
}

Fault InRow(const QString& row, const char* error) {
    return InRecipe("Fizz\n    Highball, Cocktail\n    1 oz Gin\n    " + row + "\n    > Shake.\n", error);
}

TEST(LibraryText, FaultsInRecipesAreToldWithFileAndLine) {
    ExpectFaults({
        InRecipe("Fizz\n    Highball, Cokctail\n    1 oz Gin\n    > Shake.\n",
                 "recipes/test.txt:2: unknown glass 'Cokctail'"),
        InRecipe("Fizz\n    Fizzy, Cocktail\n    1 oz Gin\n    > Shake.\n", "recipes/test.txt:2: unknown type 'Fizzy'"),
        InRecipe("Fizz\n    1 oz Gin\n    > Shake.\n",
                 "recipes/test.txt:2: the line below the name has the type, a comma and the glass\n"
                 "recipes/test.txt:1: 'Fizz' has no required ingredient"),
        InRecipe("\n    1 oz Gin\n", "recipes/test.txt:2: a recipe begins with its name at the margin"),
        InRecipe("GIN SOUR\n    Sour, Cocktail\n    1 oz Gin\n    > Shake.\n",
                 "recipes/test.txt:1: duplicate recipe 'GIN SOUR'"),
        InRecipe("Fizz\n    Highball, Cocktail\n    ? 1 oz Gin\n    > Shake.\n",
                 "recipes/test.txt:1: 'Fizz' has no required ingredient"),
        InRecipe("# Note\nFizz\n    Highball, Cocktail\n    1 oz Gin\n",
                 "recipes/test.txt:2: 'Fizz' has no instructions"),
        InRecipe("Fizz\n    Highball, Cocktail\n    1 oz Gin\n    > " + QString(231, u'a') + "\n",
                 "recipes/test.txt:1: the instructions of 'Fizz' have 231 characters, 230 fit in"),
        InRow("> First.\n    1 oz Mint",
              "recipes/test.txt:5: an ingredient after the instructions; or is the '>' missing?"),
        InRow("2 oz gin", "recipes/test.txt:4: this ingredient is in the recipe already"),
        InRow("1 oz Rum", "recipes/test.txt:4: unknown ingredient 'Rum'"),
        InRow("1 cl Soda Water", "recipes/test.txt:4: unknown unit 'cl'"),
        InRow("1 oz", "recipes/test.txt:4: the ingredient is missing"),
        InRow("oz Mint", "recipes/test.txt:4: the number is missing before the unit"),
        InRow("2 top Mint", "recipes/test.txt:4: this unit stands without a number"),
        InRow("0.4 oz Mint",
              "recipes/test.txt:4: quantity '0.4' cannot be shown: use a whole number, or .25 .5 .75 .33 .66 .1 .2"),
    });
}

TEST(LibraryText, QuantityIsTakenOnlyWhenThePanelCanShowIt) {
    const auto isTaken = [](const char* quantity) {
        return ErrorTexts(FilesWith("recipes/test.txt", InRow(QString(quantity) + " oz Mint", "").text)).isEmpty();
    };
    for (const char* good : {"1", "12", "0.25", "0.5", "0.75", "0.33", "0.66", "0.1", "0.2", "1.5", "10.25"}) {
        EXPECT_TRUE(isTaken(good)) << good;
    }
    for (const char* bad : {"0", "0.0", "1.0", "0.50", "0.05", "0.125", "1.333", "01", "00.5", ".5", "1.", "1/2"}) {
        EXPECT_FALSE(isTaken(bad)) << bad;
    }
}

TEST(LibraryText, AllErrorsOfAllFilesAreListed) {
    QList<LibraryFile> files = FilesWith("recipes/test.txt", "One\n    Sour, Mug\n    1 oz Rum\n\nTwo\n    > Stir.\n");
    files.removeFirst();
    EXPECT_EQ(ErrorTexts(files).join(u'\n').toStdString(), "types.txt: the file is missing\n"
                                                           "recipes/sours.txt:2: unknown type 'Sour'\n"
                                                           "recipes/test.txt:2: unknown type 'Sour'\n"
                                                           "recipes/test.txt:2: unknown glass 'Mug'\n"
                                                           "recipes/test.txt:3: unknown ingredient 'Rum'\n"
                                                           "recipes/test.txt:1: 'One' has no instructions\n"
                                                           "recipes/test.txt:5: 'Two' has no required ingredient");
}

TEST(LibraryText, RowsKeepWhatTheTextSays) {
    const LibraryReading reading = ReadLibrary(
        FilesWith("recipes/test.txt",
                  QString::fromUtf8("Fizz d'Été #2\n\tHighball , cocktail\n\n  0.5 OZ old tom gin\n    # a remark\n"
                                    "    top Soda Water\n    ?2 Mint, bruised, not torn\n"
                                    "    > Pour.\n    >Stir  once.\n")));
    ASSERT_TRUE(reading.errors.isEmpty()) << qPrintable(reading.errors.first().Text());
    const Recipe& fizz = reading.library.recipes.at(1);
    EXPECT_EQ(fizz.name, QString::fromUtf8("Fizz d'Été #2"));
    EXPECT_EQ(fizz.instructions, QString("Pour. Stir once."));
    EXPECT_EQ(reading.library.types.at(fizz.type), QString("Highball"));
    ASSERT_EQ(fizz.rows.size(), 3);

    const RecipeRow& gin = fizz.rows.at(0);
    EXPECT_EQ(gin.quantity, QString("0.5"));
    EXPECT_EQ(gin.unit, 0);
    EXPECT_EQ(reading.library.ingredients.at(gin.ingredient).parent, 0);
    EXPECT_TRUE(gin.required);

    const RecipeRow& soda = fizz.rows.at(1);
    EXPECT_EQ(soda.quantity, QString("0"));
    EXPECT_EQ(reading.library.units.at(soda.unit), QString("top"));

    const RecipeRow& mint = fizz.rows.at(2);
    EXPECT_EQ(mint.unit, -1);
    EXPECT_FALSE(mint.required);
    EXPECT_EQ(mint.preparation, QString("bruised, not torn"));
}

} // namespace

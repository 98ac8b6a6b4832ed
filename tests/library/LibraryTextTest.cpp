#include "library/LibraryText.h"

#include <gtest/gtest.h>

namespace {

// A small library with another text in the place of one file.
LibraryReading ReadWith(const QString& name, const QString& text) {
    QList<LibraryFile> files{
        {"types.txt", "Sour\nHighball\n"},
        {"glasses.txt", "# Cups\nCocktail\n"},
        {"units.txt", "oz\nleaf\n0 top\n"},
        {"ingredients.txt", "Gin\n    Old Tom Gin\nLemon Juice\nMint\nSoda Water\n"},
        {"starter-bar.txt", "Gin\n"},
        {"recipes/a.txt", "Gin Sour\n    Sour, Cocktail\n    2 oz Gin\n    > Shake.\n"},
        {"recipes/b.txt", ""},
    };
    for (LibraryFile& file : files) {
        file.text = file.name == name ? text : file.text;
    }
    return ReadLibrary(files);
}

std::string ErrorsWith(const QString& name, const QString& text) {
    QStringList texts;
    for (const LibraryError& error : ReadWith(name, text).errors) {
        texts.append(error.Text());
    }
    return texts.join(u'\n').toStdString();
}

QString RecipeWith(const QString& row) {
    return "Fizz\n    Highball, Cocktail\n    1 oz Gin\n    " + row + "\n    > Shake.\n";
}

TEST(LibraryText, FaultsAreToldWithFileAndLine) {
    struct Case {
        const char* file;
        QString text;
        const char* error;
    };
    const char* recipes = "recipes/b.txt";
    const Case cases[] = {
        {"types.txt", "Sour\nHighball\nsour\n", "types.txt:3: duplicate type 'sour'"},
        {"glasses.txt", "Cocktail\n\n  Shot\n", "glasses.txt:3: a glass name stands at the margin"},
        {"units.txt", "oz\nbar spoon\n", "units.txt:2: a unit is one word, not 'bar spoon'"},
        {"starter-bar.txt", "Gin\nRum\n", "starter-bar.txt:2: unknown ingredient 'Rum'"},
        {"ingredients.txt", "    Dry Gin\nGin\n", "ingredients.txt:1: 'Dry Gin' has no general ingredient above it"},
        {"ingredients.txt", "Gin\n  Dry Gin\n", "ingredients.txt:2: indent 'Dry Gin' by four blanks"},
        {"ingredients.txt", "Gin\nRum\n    GIN\n", "ingredients.txt:3: duplicate ingredient 'GIN', first in line 1"},
        {recipes, "\n    1 oz Gin\n", "recipes/b.txt:2: a recipe begins with its name at the margin"},
        {recipes, "Fizz\n    Fizzy, Mug\n    1 oz Gin\n    > Shake.\n\nGIN SOUR\n    1 oz Rum\n",
         "recipes/b.txt:2: unknown type 'Fizzy'\n"
         "recipes/b.txt:2: unknown glass 'Mug'\n"
         "recipes/b.txt:6: duplicate recipe 'GIN SOUR'\n"
         "recipes/b.txt:7: the line below the name has the type, a comma and the glass\n"
         "recipes/b.txt:6: 'GIN SOUR' has no required ingredient\n"
         "recipes/b.txt:6: 'GIN SOUR' has no instructions"},
        {recipes, "Fizz\n    Sour, Cocktail\n    1 oz Gin\n    > " + QString(231, u'a') + "\n",
         "recipes/b.txt:1: the instructions of 'Fizz' have 231 characters, 230 fit in"},
        {recipes, RecipeWith("> First.\n    1 oz Mint"),
         "recipes/b.txt:5: an ingredient after the instructions; or is the '>' missing?"},
        {recipes, RecipeWith("2 oz gin"), "recipes/b.txt:4: this ingredient is in the recipe already"},
        {recipes, RecipeWith("1 oz Rum"), "recipes/b.txt:4: unknown ingredient 'Rum'"},
        {recipes, RecipeWith("1 cl Mint"), "recipes/b.txt:4: unknown unit 'cl'"},
        {recipes, RecipeWith("oz Mint"), "recipes/b.txt:4: the number is missing before the unit"},
        {recipes, RecipeWith("2 top Mint"), "recipes/b.txt:4: this unit stands without a number"},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(ErrorsWith(row.file, row.text), row.error);
    }
}

TEST(LibraryText, QuantityIsTakenOnlyWhenThePanelCanShowIt) {
    for (const char* good : {"1", "12", "0.25", "0.33", "0.1", "1.5", "10.25"}) {
        EXPECT_EQ(ErrorsWith("recipes/b.txt", RecipeWith(QString(good) + " oz Mint")), "") << good;
    }
    for (const char* bad : {"0", "1.0", "0.50", "0.05", "0.125", "01", ".5", "1.", "1/2"}) {
        EXPECT_NE(ErrorsWith("recipes/b.txt", RecipeWith(QString(bad) + " oz Mint")), "") << bad;
    }
}

TEST(LibraryText, RowsKeepWhatTheTextSays) {
    const Library library =
        ReadWith("recipes/b.txt", "Fizz\n\tHighball , cocktail\n\n  0.5 OZ old tom gin\n    # a remark\n"
                                  "    top Soda Water\n    ?2 Mint, bruised, not torn\n    > Pour.\n    >Stir  once.\n")
            .library;
    const Recipe fizz = library.recipes.value(1);
    EXPECT_EQ(fizz.instructions, QString("Pour. Stir once."));
    QStringList rows;
    for (const RecipeRow& row : fizz.rows) {
        rows += QStringList{row.quantity, library.units.value(row.unit), library.ingredients.value(row.ingredient).name,
                            row.required ? "required" : "optional", row.preparation}
                    .join(u'|');
    }
    EXPECT_EQ(rows, (QStringList{"0.5|oz|Old Tom Gin|required|", "0|top|Soda Water|required|",
                                 "2||Mint|optional|bruised, not torn"}));
}

} // namespace

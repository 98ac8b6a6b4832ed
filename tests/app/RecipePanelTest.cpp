#include "PourbookFixture.h"
#include "platform/ui/Picture.h"

#include <QTextBlock>
#include <QTextEdit>

class RecipePanelTest : public PourbookTest {
protected:
    // A drink with this many rows of gin, each of the quantity and unit.
    void GivenRecipe(int drink, int rows, const QString& quantity, const QString& unit) {
        for (int step = 1; step <= rows; ++step) {
            Execute(QStringLiteral(
                        "INSERT INTO DrinkRecipes (DrinkID, IngredientID, RecipeStep, IngredientQuantity, UofMID, "
                        "Required) VALUES (%1, 1, %2, %3, (SELECT UofMID FROM UnitsOfMeasure WHERE UofM = '%4'), 1)")
                        .arg(drink)
                        .arg(step)
                        .arg(quantity, unit));
        }
    }

    void GivenGin() {
        GivenEmptyLibrary();
        Execute(QStringLiteral("INSERT INTO Ingredients (IngredientID, IngredientName) VALUES (1, 'Gin')"));
    }

    [[nodiscard]] std::string Quantities() { return Window().DrinkQuantities.Text().toStdString(); }
    [[nodiscard]] std::string Ingredients() { return Window().DrinkIngredients.Text().toStdString(); }
    [[nodiscard]] std::string Glass() {
        const Picture* glass = Window().GlassImage.Backdrop();
        return glass == nullptr ? "none" : glass->Name().toStdString();
    }
};

TEST_F(RecipePanelTest, UpToSixRowsStandDoubleSpacedAndSevenSingle) {
    GivenGin();
    GivenDrink(1, QStringLiteral("Six"), QString());
    GivenDrink(2, QStringLiteral("Seven"), QString());
    GivenDrink(3, QStringLiteral("None"), QString(), QStringLiteral("DrinkInstruction = 'Drink water.'"));
    GivenRecipe(1, 6, QStringLiteral("'1.5'"), QStringLiteral("oz"));
    GivenRecipe(2, 7, QStringLiteral("NULL"), QStringLiteral("dash"));
    Start();
    Program().ShowDrinkInfo(1);
    std::string quantities;
    std::string ingredients;
    for (int row = 0; row < 6; ++row) {
        quantities += "1 1/2 oz -\n\n";
        ingredients += "Gin\n\n";
    }
    EXPECT_EQ(Quantities(), quantities);
    EXPECT_EQ(Ingredients(), ingredients);

    Program().ShowDrinkInfo(2);
    quantities.clear();
    for (int row = 0; row < 7; ++row) {
        quantities += " dash -\n";
    }
    EXPECT_EQ(Quantities(), quantities);

    Program().ShowDrinkInfo(3);
    EXPECT_EQ(Quantities(), "");
    EXPECT_EQ(Window().DrinkInstructions.Text().toStdString(), "Drink water.");
    EXPECT_TRUE(Window().DrinkRecipeBox.Visible());
}

TEST_F(RecipePanelTest, RowsComeInTheOrderOfTheirStepsAndWithoutLostIngredients) {
    GivenGin();
    GivenDrink(1, QStringLiteral("Odd"), QString());
    Execute(
        QStringLiteral("INSERT INTO Ingredients (IngredientID, IngredientName) VALUES (2, 'Farmer''s <b>Milk</b>')"));
    Execute(QStringLiteral("INSERT INTO DrinkRecipes (DrinkID, IngredientID, RecipeStep, IngredientQuantity, Required) "
                           "VALUES (1, 1, 2, '0', 1)"));
    Execute(QStringLiteral("INSERT INTO DrinkRecipes (DrinkID, IngredientID, RecipeStep, IngredientQuantity, Required) "
                           "VALUES (1, 2, 1, '0.50', 1)"));
    Execute(QStringLiteral("INSERT INTO DrinkRecipes (DrinkID, IngredientID, RecipeStep) VALUES (1, 77, 3)"));
    Start();
    Program().ShowDrinkInfo(1);
    EXPECT_EQ(Quantities(), ".50  -\n\n -\n\n");
    EXPECT_EQ(Ingredients(), "Farmer's <b>Milk</b>\n\nGin\n\n");
}

TEST_F(RecipePanelTest, TheTypeIsGreyBehindABoldLabel) {
    GivenGin();
    GivenDrink(1, QStringLiteral("Typed"), QString(),
               QStringLiteral("DrinkTypeID = (SELECT DrinkTypeID FROM DrinkTypes WHERE DrinkTypeName = 'Shot')"));
    GivenDrink(2, QStringLiteral("Untyped"), QString());
    Start();
    Program().ShowDrinkInfo(1);
    EXPECT_EQ(Window().DrinkType.Text().toStdString(), "Drink Type:  Shot");
    QTextCursor cursor(Find<QTextEdit>("DrinkType")->document());
    cursor.setPosition(11);
    EXPECT_TRUE(cursor.charFormat().font().bold());
    EXPECT_EQ(cursor.charFormat().intProperty(QTextFormat::FontPixelSize), 10);
    cursor.setPosition(14);
    EXPECT_FALSE(cursor.charFormat().font().bold());
    EXPECT_EQ(cursor.charFormat().foreground().color(), QColor(0x666666));
    Program().ShowDrinkInfo(2);
    EXPECT_EQ(Window().DrinkType.Text().toStdString(), "Drink Type:  ");
}

TEST_F(RecipePanelTest, AGlassWithoutPictureLeavesTheOneBefore) {
    GivenGin();
    GivenDrink(1, QStringLiteral("Collins"), QString(),
               QStringLiteral("GlassTypeID = (SELECT GlassTypeID FROM GlassTypes WHERE GlassTypeName = 'Collins')"));
    GivenDrink(2, QStringLiteral("None"), QString(), QStringLiteral("GlassTypeID = 0"));
    Start();
    Program().ShowDrinkInfo(2);
    EXPECT_EQ(Glass(), "none");
    Program().ShowDrinkInfo(1);
    EXPECT_EQ(Glass(), "Glass_Collins");
    Program().ShowDrinkInfo(2);
    EXPECT_EQ(Glass(), "Glass_Collins");
    Program().ClearDrinkInfo();
    EXPECT_EQ(Glass(), "none");
}

TEST_F(RecipePanelTest, AFailureLeavesThePanelAsItWas) {
    GivenGin();
    GivenDrink(1, QStringLiteral("First"), QString());
    GivenDrink(2, QStringLiteral("Second"), QString());
    Start();
    Program().ShowDrinkInfo(1);
    Execute(QStringLiteral("ALTER TABLE DrinkRecipes RENAME TO Elsewhere"));
    AnswerNextMessage();
    Program().ShowDrinkInfo(2);
    EXPECT_EQ(LastMessage().text.toStdString(), "Could not query the database:  no such table: DrinkRecipes");
    EXPECT_EQ(Window().DrinkName.Text().toStdString(), "First");
}

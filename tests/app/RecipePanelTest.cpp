#include "PourbookFixture.h"
#include "platform/ui/Picture.h"

#include <QTextBlock>
#include <QTextEdit>

class RecipePanelTest : public PourbookTest {
protected:
    // A drink with this many rows of gin, each of the quantity and unit.
    void GivenRecipe(int drink, int rows, const QString& quantity, const QString& unit) {
        for (int step = 1; step <= rows; ++step) {
            Execute(
                QString("INSERT INTO DrinkRecipes (DrinkID, IngredientID, RecipeStep, IngredientQuantity, UofMID, "
                        "Required) VALUES (%1, 1, %2, %3, (SELECT UofMID FROM UnitsOfMeasure WHERE UofM = '%4'), 1)")
                    .arg(drink)
                    .arg(step)
                    .arg(quantity, unit));
        }
    }

    void GivenGin() {
        GivenEmptyLibrary();
        Execute("INSERT INTO Ingredients (IngredientID, IngredientName) VALUES (1, 'Gin')");
    }

    [[nodiscard]] QString Quantities() { return Window().DrinkQuantities.Text(); }
    [[nodiscard]] QString Ingredients() { return Window().DrinkIngredients.Text(); }
    [[nodiscard]] QString Glass() {
        const Picture* glass = Window().GlassImage.Backdrop();
        return glass == nullptr ? "none" : glass->Name();
    }
};

TEST_F(RecipePanelTest, UpToSixRowsStandDoubleSpacedAndSevenSingle) {
    GivenGin();
    GivenDrink(1, "Six", QString());
    GivenDrink(2, "Seven", QString());
    GivenDrink(3, "None", QString(), "DrinkInstruction = 'Drink water.'");
    GivenRecipe(1, 6, "'1.5'", "oz");
    GivenRecipe(2, 7, "NULL", "dash");
    Start();
    Program().ShowDrinkInfo(1);
    QString quantities;
    QString ingredients;
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
    EXPECT_EQ(Window().DrinkInstructions.Text(), "Drink water.");
    EXPECT_TRUE(Window().DrinkRecipeBox.Visible());
}

TEST_F(RecipePanelTest, RowsComeInTheOrderOfTheirStepsAndWithoutLostIngredients) {
    GivenGin();
    GivenDrink(1, "Odd", QString());
    Execute("INSERT INTO Ingredients (IngredientID, IngredientName) VALUES (2, 'Farmer''s <b>Milk</b>')");
    Execute("INSERT INTO DrinkRecipes (DrinkID, IngredientID, RecipeStep, IngredientQuantity, Required) "
            "VALUES (1, 1, 2, '0', 1)");
    Execute("INSERT INTO DrinkRecipes (DrinkID, IngredientID, RecipeStep, IngredientQuantity, Required) "
            "VALUES (1, 2, 1, '0.50', 1)");
    Execute("INSERT INTO DrinkRecipes (DrinkID, IngredientID, RecipeStep) VALUES (1, 77, 3)");
    Start();
    Program().ShowDrinkInfo(1);
    EXPECT_EQ(Quantities(), ".50  -\n\n -\n\n");
    EXPECT_EQ(Ingredients(), "Farmer's <b>Milk</b>\n\nGin\n\n");
}

TEST_F(RecipePanelTest, TheTypeIsGreyBehindABoldLabel) {
    GivenGin();
    GivenDrink(1, "Typed", QString(),
               "DrinkTypeID = (SELECT DrinkTypeID FROM DrinkTypes WHERE DrinkTypeName = 'Shot')");
    GivenDrink(2, "Untyped", QString());
    Start();
    Program().ShowDrinkInfo(1);
    EXPECT_EQ(Window().DrinkType.Text(), "Drink Type:  Shot");
    QTextCursor cursor(Find<QTextEdit>("DrinkType")->document());
    cursor.setPosition(11);
    EXPECT_TRUE(cursor.charFormat().font().bold());
    EXPECT_EQ(cursor.charFormat().intProperty(QTextFormat::FontPixelSize), 10);
    cursor.setPosition(14);
    EXPECT_FALSE(cursor.charFormat().font().bold());
    EXPECT_EQ(cursor.charFormat().foreground().color(), QColor(0x666666));
    Program().ShowDrinkInfo(2);
    EXPECT_EQ(Window().DrinkType.Text(), "Drink Type:  ");
}

TEST_F(RecipePanelTest, AGlassWithoutPictureLeavesTheOneBefore) {
    GivenGin();
    GivenDrink(1, "Collins", QString(),
               "GlassTypeID = (SELECT GlassTypeID FROM GlassTypes WHERE GlassTypeName = 'HighBall')");
    GivenDrink(2, "None", QString(), "GlassTypeID = 0");
    Start();
    Program().ShowDrinkInfo(2);
    EXPECT_EQ(Glass(), "none");
    Program().ShowDrinkInfo(1);
    EXPECT_EQ(Glass(), "Glass_Highball");
    Program().ShowDrinkInfo(2);
    EXPECT_EQ(Glass(), "Glass_Highball");
    Program().ClearDrinkInfo();
    EXPECT_EQ(Glass(), "none");
}

TEST_F(RecipePanelTest, AFailureLeavesThePanelAsItWas) {
    GivenGin();
    GivenDrink(1, "First", QString());
    GivenDrink(2, "Second", QString());
    Start();
    Program().ShowDrinkInfo(1);
    Execute("ALTER TABLE DrinkRecipes RENAME TO Elsewhere");
    AnswerNextMessage();
    Program().ShowDrinkInfo(2);
    EXPECT_EQ(LastMessage().text, "Could not query the database:  no such table: DrinkRecipes");
    EXPECT_EQ(Window().DrinkName.Text(), "First");
}

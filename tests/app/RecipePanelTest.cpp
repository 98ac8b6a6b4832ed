#include "PourbookFixture.h"
#include "platform/ui/Picture.h"

#include <QTextEdit>

class RecipePanelTest : public PourbookTest {
protected:
    void SetUp() override {
        GivenEmptyLibrary();
        Execute("INSERT INTO Ingredients (IngredientID, IngredientName) VALUES (1, 'Gin'), (2, 'Farmer''s <b>Milk</b> "
                "from the cow behind the hill')");
    }

    void GivenRecipeRow(int drink, int step, const QString& ingredient, const QString& quantity, const QString& unit) {
        Execute(QString("INSERT INTO DrinkRecipes (DrinkID, RecipeStep, IngredientID, IngredientQuantity, UofMID) "
                        "VALUES (%1, %2, %3, %4, (SELECT UofMID FROM UnitsOfMeasure WHERE UofM = '%5'))")
                    .arg(drink)
                    .arg(step)
                    .arg(ingredient, quantity, unit));
    }

    // The two columns of the recipe that is shown, with a bar between them.
    [[nodiscard]] QString Recipe() { return Window().DrinkQuantities.Text() + "|" + Window().DrinkIngredients.Text(); }
    [[nodiscard]] QString Glass() {
        const Picture* glass = Window().GlassImage.Backdrop();
        return glass == nullptr ? "none" : glass->Name();
    }
};

TEST_F(RecipePanelTest, UpToSixRowsStandDoubleSpacedAndSevenSingle) {
    GivenDrink(1, "Short or long");
    for (int step = 1; step <= 6; ++step) {
        GivenRecipeRow(1, step, "1", "'1.5'", "oz");
    }
    Start();
    Program().ShowDrinkInfo(1);
    EXPECT_EQ(Recipe(), QString("1 1/2 oz -\n\n").repeated(6) + "|" + QString("Gin\n\n").repeated(6));
    GivenRecipeRow(1, 7, "1", "NULL", "dash");
    Program().ShowDrinkInfo(1);
    EXPECT_EQ(Recipe(), QString("1 1/2 oz -\n").repeated(6) + " dash -\n|" + QString("Gin\n").repeated(7));
}

TEST_F(RecipePanelTest, RowsComeInTheOrderOfTheirStepsAndWithoutLostIngredients) {
    GivenDrink(1, "Odd", {}, "DrinkInstruction = 'Drink water.'");
    GivenRecipeRow(1, 2, "1", "'0'", "");
    GivenRecipeRow(1, 1, "2", "'0.50'", "");
    GivenRecipeRow(1, 3, "77", "'1'", "oz");
    Start();
    Program().ShowDrinkInfo(1);
    EXPECT_EQ(Recipe(), ".50  -\n\n -\n\n|Farmer's <b>Milk</b> from the cow behind the hill\n\nGin\n\n");
    EXPECT_EQ(Window().DrinkInstructions.Text(), "Drink water.");
    // A quantity is of use only beside its ingredient, so a long name must not wrap.
    EXPECT_EQ(Find<QTextEdit>("DrinkQuantities")->document()->size().height(),
              Find<QTextEdit>("DrinkIngredients")->document()->size().height());
}

TEST_F(RecipePanelTest, TheTypeIsGreyBehindItsLabelAndAGlassWithoutPictureLeavesTheOneBefore) {
    GivenDrink(1, "Collins", {},
               "GlassTypeID = (SELECT GlassTypeID FROM GlassTypes WHERE GlassTypeName = 'HighBall'), "
               "DrinkTypeID = (SELECT DrinkTypeID FROM DrinkTypes WHERE DrinkTypeName = 'Shot')");
    GivenDrink(2, "None", {}, "GlassTypeID = 0");
    Start();
    Program().ShowDrinkInfo(2);
    EXPECT_EQ(Glass(), "none");
    Program().ShowDrinkInfo(1);
    EXPECT_EQ(Glass(), "Glass_Highball");
    EXPECT_EQ(Window().DrinkType.Text(), "Drink Type:  Shot");
    QTextCursor cursor(Find<QTextEdit>("DrinkType")->document());
    for (const int place : {11, 14}) {
        cursor.setPosition(place);
        EXPECT_EQ(cursor.charFormat().font().bold(), place == 11);
    }
    EXPECT_EQ(cursor.charFormat().foreground().color(), QColor(0x666666));
    Program().ShowDrinkInfo(2);
    EXPECT_EQ(Glass(), "Glass_Highball");
    Program().ClearDrinkInfo();
    EXPECT_EQ(Glass(), "none");
}

TEST_F(RecipePanelTest, AFailureLeavesThePanelAsItWas) {
    GivenDrink(1, "First");
    GivenDrink(2, "Second");
    Start();
    Program().ShowDrinkInfo(1);
    Execute("ALTER TABLE DrinkRecipes RENAME TO Elsewhere");
    AnswerNextMessage();
    Program().ShowDrinkInfo(2);
    EXPECT_EQ(LastMessage().text, "Could not query the database:  no such table: DrinkRecipes");
    EXPECT_EQ(Window().DrinkName.Text(), "First");
}

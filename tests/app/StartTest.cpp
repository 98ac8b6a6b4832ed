#include "PourbookFixture.h"

#include <QFile>

class StartTest : public PourbookTest {
protected:
    void ExpectQuitWith(const QString& message) {
        AnswerNextMessage();
        Start();
        EXPECT_TRUE(HasQuit());
        EXPECT_EQ(LastMessage().text, message);
    }
};

TEST_F(StartTest, ClosingStoresWindowAndOptionsAndTheNextStartRestoresThem) {
    Start();
    Choose("View_GlassColumn");
    Choose("View_DrinkTypeColumn");
    Window().SetLeft(-60);
    Window().SetTop(-40);
    Window().SetWidth(900);
    Window().SetHeight(700);
    CloseWindow();
    EXPECT_TRUE(HasQuit());
    EXPECT_EQ(Value("SELECT AppWidth || ' ' || AppHeight || ' ' || AppLeft || ' ' || AppTop || ' ' || "
                    "UserOptions || ' ' || DBVersion FROM Setup"),
              "900 700 -60 -40 V02V01V03V04V05 2");

    StartAgain();
    EXPECT_EQ(Window().Left(), -60);
    EXPECT_EQ(Window().Top(), -40);
    EXPECT_EQ(Window().Width(), 900);
    EXPECT_EQ(Window().Height(), 700);
    EXPECT_EQ(Headings().join(","), "Rating,Cocktail,Ingredients,Type,Glass");
    EXPECT_EQ(Caption("View_DrinkTypeColumn"), "Hide Drink Type Column");
    // The list of ingredients reaches down to the tools in a window of any height.
    EXPECT_EQ(Window().InBarList.Top() + Window().InBarList.Height(), Window().SideTools.Top() + 1);
}

TEST_F(StartTest, AllOptionsOffAreStoredAsTheEmptyText) {
    GivenUserFile();
    Execute("UPDATE Setup SET AppWidth = 760, AppHeight = NULL, UserOptions = 'V9v01xV02'");
    Start();
    EXPECT_TRUE(Program().Option_ViewRatings && Program().Option_ViewGlass);
    EXPECT_EQ(Window().Height(), 500) << "a height of NULL reads as 0 and is bounded by the window";
    Choose("View_RatingsColumn");
    Choose("View_GlassColumn");
    CloseWindow();
    EXPECT_EQ(Value("SELECT quote(UserOptions) FROM Setup"), "''");
    StartAgain();
    EXPECT_EQ(Headings().join(","), "Cocktail,Ingredients");
}

TEST_F(StartTest, AClosedWindowWithoutConnectionWritesNothingAndEnds) {
    Start();
    ASSERT_TRUE(QFile::remove(WorkingFile()));
    AnswerNextMessage();
    CloseWindow();
    EXPECT_TRUE(LastMessage().text.startsWith("Could not open database.  "));
    EXPECT_TRUE(HasQuit()) << "without a window there is nothing left to run for";
    EXPECT_FALSE(QFile::exists(WorkingFile()));
}

TEST_F(StartTest, WithoutASetupTableTheEnginesWordsAreShown) {
    GivenUserFile();
    Execute("DROP TABLE Setup");
    ExpectQuitWith("An error occurred getting the user's setup information: no such table: Setup");
}

TEST_F(StartTest, WithoutASetupRowTheFaultIsToldAndNothingIsLeftRunning) {
    GivenUserFile();
    Execute("DELETE FROM Setup");
    AnswerNextMessage();
    Start();
    EXPECT_TRUE(HasQuit());
}

TEST_F(StartTest, AFillThatFailsStopsTheLaterOnesAndLeavesTheWindowOpen) {
    GivenUserFile();
    Execute("UPDATE Ingredients SET InBar = 1 WHERE IngredientName = 'Gin'");
    Execute("DROP TABLE DrinkLists");
    AnswerNextMessage();
    Start();
    EXPECT_FALSE(HasQuit());
    EXPECT_EQ(LastMessage().text, "Could not query the database for drink lists:  no such table: DrinkLists");
    EXPECT_EQ(Window().InBarList.ListCount(), 1);
    EXPECT_EQ(Window().DrinkList.ListCount(), 0);
}

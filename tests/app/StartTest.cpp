#include "PourbookFixture.h"

#include <QFile>

class StartTest : public PourbookTest {};

TEST_F(StartTest, ClosingStoresWindowAndOptionsAndTheNextStartRestoresThem) {
    GivenUserFile();
    // Codes may be of any case and stand among others. A height of NULL reads as 0 and is bounded by the window.
    Execute("UPDATE Setup SET AppWidth = 760, AppHeight = NULL, UserOptions = 'V9v01xV02'");
    Start();
    EXPECT_EQ(Headings(), "Rating,Cocktail,Ingredients,Glass");
    EXPECT_EQ(Window().Height(), 500);
    Choose("View_RatingsColumn");
    Choose("View_GlassColumn");
    CloseWindow();
    EXPECT_TRUE(Runtime::HasQuit());
    EXPECT_EQ(Value("SELECT AppWidth || quote(UserOptions) FROM Setup"), "760''");
    Start();
    EXPECT_EQ(Headings(), "Cocktail,Ingredients");
    EXPECT_EQ(Program().ApplicationMenuBar().Item("View_DrinkTypeColumn").Text(), "Show Drink Type Column");
    EXPECT_EQ(Window().Width(), 760);
    // The list of ingredients reaches down to the tools in a window of any height.
    EXPECT_EQ(Window().InBarList.Top() + Window().InBarList.Height(), Window().SideTools.Top() + 1);
}

TEST_F(StartTest, AClosedWindowWithoutConnectionWritesNothingAndEnds) {
    Start();
    ASSERT_TRUE(QFile::remove(WorkingFile()));
    AnswerNextMessage();
    CloseWindow();
    EXPECT_TRUE(LastMessage().text.startsWith("Could not open database.  "));
    EXPECT_TRUE(Runtime::HasQuit()) << "without a window there is nothing left to run for";
    EXPECT_FALSE(QFile::exists(WorkingFile()));
}

TEST_F(StartTest, WithoutSetupTheFaultIsToldAndNothingIsLeftRunning) {
    GivenUserFile();
    for (const char* fault : {"DELETE FROM Setup", "DROP TABLE Setup"}) {
        Execute(fault);
        AnswerNextMessage();
        Start();
        EXPECT_TRUE(Runtime::HasQuit()) << fault;
    }
    EXPECT_EQ(LastMessage().text, "An error occurred getting the user's setup information: no such table: Setup");
}

TEST_F(StartTest, AFillThatFailsStopsTheLaterOnesAndLeavesTheWindowOpen) {
    GivenUserFile();
    Execute("UPDATE Ingredients SET InBar = 1 WHERE IngredientName = 'Gin'");
    Execute("DROP TABLE DrinkLists");
    AnswerNextMessage();
    Start();
    EXPECT_FALSE(Runtime::HasQuit());
    EXPECT_EQ(LastMessage().text, "Could not query the database for drink lists:  no such table: DrinkLists");
    EXPECT_EQ(Window().InBarList.ListCount(), 1);
    EXPECT_EQ(Window().DrinkList.ListCount(), 0);
    AnswerNextMessage();
    Choose("File_NewDrinklist");
    EXPECT_EQ(Window().DrinkListsList.ListCount(), 0) << "it tries to fill the list once more";
}

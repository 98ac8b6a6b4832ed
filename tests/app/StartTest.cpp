#include "PourbookFixture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

class StartTest : public PourbookTest {
protected:
    void ExpectQuitWith(const QString& message) {
        AnswerNextMessage();
        Start();
        EXPECT_TRUE(HasQuit());
        EXPECT_EQ(LastMessage().text.toStdString(), message.toStdString());
    }
};

TEST_F(StartTest, FirstRunMakesAPrivateCopyAndUsesTheDefaults) {
    Start();
    EXPECT_EQ(Window().Left(), 100);
    EXPECT_EQ(Window().Top(), 100);
    EXPECT_EQ(Window().Width(), 750);
    EXPECT_EQ(Window().Height(), 600);
    EXPECT_EQ(Window().Title(), Program().DrinkAppName);
    EXPECT_EQ(Program().UserOptions.toStdString(), "V01V05V04");
    EXPECT_TRUE(Program().Option_ViewRatings && Program().Option_CheckForAppUpdates && Program().Option_ShareRatings);
    EXPECT_FALSE(Program().Option_ViewGlass || Program().Option_ViewDrinkType);
    EXPECT_EQ(Caption("View_RatingsColumn").toStdString(), "Hide Ratings Column");
    EXPECT_EQ(Caption("View_GlassColumn").toStdString(), "Show Glass Column");
    EXPECT_GE(ListedDrinks().size(), 60);
    EXPECT_TRUE(PanelIsBlank());
    EXPECT_EQ(Window().DrinkListsList.ListIndex(), 0);

    const QFileInfo file(WorkingFile());
    EXPECT_EQ(file.permissions() & QFile::Permissions(0x0077), QFile::Permissions());
    EXPECT_EQ(QFileInfo(file.path()).permissions() & QFile::Permissions(0x0077), QFile::Permissions());
    EXPECT_EQ(QDir(file.path()).entryList(QDir::Files | QDir::Hidden), QStringList{QStringLiteral("drinkdb.rsd")});
}

TEST_F(StartTest, ARunThatWasNeverClosedIsAFirstRunAgain) {
    Start();
    Window().SetLeft(222);
    StartAgain();
    EXPECT_EQ(Window().Left(), 100);
}

TEST_F(StartTest, ClosingStoresWindowAndOptionsAndTheNextStartRestoresThem) {
    Start();
    Choose(QStringLiteral("View_GlassColumn"));
    Choose(QStringLiteral("View_DrinkTypeColumn"));
    Window().SetLeft(-60);
    Window().SetTop(-40);
    Window().SetWidth(900);
    Window().SetHeight(700);
    CloseWindow();
    EXPECT_TRUE(HasQuit());
    EXPECT_EQ(Value(QStringLiteral("SELECT AppWidth || ' ' || AppHeight || ' ' || AppLeft || ' ' || AppTop || ' ' || "
                                   "UserOptions || ' ' || DBVersion FROM Setup"))
                  .toStdString(),
              "900 700 -60 -40 V02V01V03V04V05 2");

    StartAgain();
    EXPECT_EQ(Window().Left(), -60);
    EXPECT_EQ(Window().Top(), -40);
    EXPECT_EQ(Window().Width(), 900);
    EXPECT_EQ(Window().Height(), 700);
    EXPECT_EQ(Headings().join(QLatin1Char(',')).toStdString(), "Rating,Cocktail,Ingredients,Type,Glass");
    EXPECT_EQ(Caption("View_DrinkTypeColumn").toStdString(), "Hide Drink Type Column");
    // The list of ingredients reaches down to the tools in a window of any height.
    EXPECT_EQ(Window().InBarList.Top() + Window().InBarList.Height(), Window().SideTools.Top() + 1);
}

TEST_F(StartTest, AllOptionsOffAreStoredAsTheEmptyText) {
    GivenUserFile();
    Execute(QStringLiteral("UPDATE Setup SET AppWidth = 760, AppHeight = NULL, UserOptions = 'V9v01xV02'"));
    Start();
    EXPECT_TRUE(Program().Option_ViewRatings && Program().Option_ViewGlass);
    EXPECT_EQ(Window().Height(), 500) << "a height of NULL reads as 0 and is bounded by the window";
    Choose(QStringLiteral("View_RatingsColumn"));
    Choose(QStringLiteral("View_GlassColumn"));
    CloseWindow();
    EXPECT_EQ(Value(QStringLiteral("SELECT quote(UserOptions) FROM Setup")).toStdString(), "''");
    StartAgain();
    EXPECT_EQ(Headings().join(QLatin1Char(',')).toStdString(), "Cocktail,Ingredients");
}

TEST_F(StartTest, AClosedWindowWithoutConnectionWritesNothingAndEnds) {
    Start();
    ASSERT_TRUE(QFile::remove(WorkingFile()));
    AnswerNextMessage();
    CloseWindow();
    EXPECT_TRUE(LastMessage().text.startsWith(QLatin1String("Could not open database.  ")));
    EXPECT_TRUE(HasQuit()) << "without a window there is nothing left to run for";
    EXPECT_FALSE(QFile::exists(WorkingFile()));
}

TEST_F(StartTest, AFolderThatLostItsFileIsNotFilledAgain) {
    GivenUserFile();
    ASSERT_TRUE(QFile::remove(WorkingFile()));
    ExpectQuitWith(QStringLiteral("Could not open database.  unable to open database file"));
    EXPECT_FALSE(QFile::exists(WorkingFile()));
}

TEST_F(StartTest, AFileOfAnotherVersionIsLeftAlone) {
    for (const char* version : {"1", "3", "NULL"}) {
        SCOPED_TRACE(version);
        QFile::remove(WorkingFile());
        QDir(QFileInfo(WorkingFile()).path()).removeRecursively();
        GivenUserFile();
        Execute(QStringLiteral("UPDATE Setup SET DBVersion = %1").arg(QString::fromLatin1(version)));
        AnswerNextMessage();
        StartAgain();
        EXPECT_TRUE(HasQuit());
        EXPECT_TRUE(LastMessage().text.contains(QLatin1String("another version")));
        EXPECT_EQ(Value(QStringLiteral("SELECT DBVersion FROM Setup")).toStdString(), version);
    }
}

TEST_F(StartTest, WithoutASetupTableTheEnginesWordsAreShown) {
    GivenUserFile();
    Execute(QStringLiteral("DROP TABLE Setup"));
    ExpectQuitWith(QStringLiteral("An error occurred getting the user's setup information: no such table: Setup"));
}

TEST_F(StartTest, AFillThatFailsStopsTheLaterOnesAndLeavesTheWindowOpen) {
    GivenUserFile();
    Execute(QStringLiteral("UPDATE Ingredients SET InBar = 1 WHERE IngredientName = 'Gin'"));
    Execute(QStringLiteral("DROP TABLE DrinkLists"));
    AnswerNextMessage();
    Start();
    EXPECT_FALSE(HasQuit());
    EXPECT_EQ(LastMessage().text.toStdString(),
              "Could not query the database for drink lists:  no such table: DrinkLists");
    EXPECT_EQ(Window().InBarList.ListCount(), 1);
    EXPECT_EQ(Window().DrinkList.ListCount(), 0);
}

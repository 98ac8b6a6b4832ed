#include "PourbookFixture.h"
#include "platform/ui/Picture.h"

#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <set>

class DrinkListInteractionTest : public PourbookTest {
protected:
    void GivenThreeDrinks() {
        GivenEmptyLibrary();
        GivenDrink(11, "Americano", QString());
        GivenDrink(12, "Bramble", QString());
        GivenDrink(13, "Clover Club", QString());
    }

    [[nodiscard]] QString StoredRating(int drink) {
        return Value(QString("SELECT UserRating FROM Drinks WHERE DrinkID = %1").arg(drink));
    }

    [[nodiscard]] QString ShownRating(int row) { return Window().DrinkList.RowPicture(row)->Name(); }

    [[nodiscard]] QString ShownDrink() { return Window().DrinkName.Text(); }
};

TEST_F(DrinkListInteractionTest, OneSelectedDrinkShowsAndSeveralOrNoneBlankThePanel) {
    GivenThreeDrinks();
    Start();
    ClickDrink(0, 1, 20);
    EXPECT_EQ(ShownDrink(), "Americano");
    EXPECT_FALSE(PanelIsBlank());
    ClickDrink(1, 1, 20, Qt::ControlModifier);
    EXPECT_TRUE(PanelIsBlank());
    EXPECT_EQ(Window().DrinkList.SelCount(), 2);
    ClickDrink(1, 1, 20, Qt::ControlModifier);
    EXPECT_EQ(ShownDrink(), "Americano");
    QTest::keyClick(Find<QTableView>("DrinkList"), Qt::Key_Down);
    EXPECT_FALSE(PanelIsBlank());
    ClickDrink(0, 1, 20, Qt::ShiftModifier);
    EXPECT_TRUE(PanelIsBlank());
}

TEST_F(DrinkListInteractionTest, RatingNeedsAClickOnTheSelectedRow) {
    GivenThreeDrinks();
    Start();
    ClickDrink(1, 0, 40);
    EXPECT_EQ(StoredRating(12), "NULL");
    EXPECT_EQ(ShownDrink(), "Bramble");
    const std::pair<int, const char*> clicks[] = {{40, "4"}, {3, "1"},  {11, "1"}, {12, "2"}, {23, "2"}, {24, "3"},
                                                  {35, "3"}, {36, "4"}, {47, "4"}, {48, "5"}, {64, "5"}, {2, "0"}};
    for (const auto& [x, rating] : clicks) {
        ClickDrink(1, 0, x);
        EXPECT_EQ(StoredRating(12), rating) << "at " << x;
        EXPECT_EQ(ShownRating(1), QString("Rating") + rating);
        EXPECT_EQ(Window().DrinkList.ListIndex(), 1);
    }
    ClickDrink(1, 1, 40);
    EXPECT_EQ(StoredRating(12), "0") << "the name is no rating cell";
    EXPECT_EQ(StoredRating(11), "NULL");
    EXPECT_EQ(StoredRating(13), "NULL");
}

TEST_F(DrinkListInteractionTest, OfSeveralSelectedRowsOnlyTheFirstIsRated) {
    GivenThreeDrinks();
    Start();
    ClickDrink(0, 1, 20);
    ClickDrink(2, 1, 20, Qt::ControlModifier);
    ClickDrink(2, 0, 40, Qt::ControlModifier);
    EXPECT_EQ(StoredRating(13), "NULL");
    ClickDrink(2, 1, 20, Qt::ControlModifier);
    ClickDrink(0, 0, 30);
    EXPECT_EQ(StoredRating(11), "3");
}

TEST_F(DrinkListInteractionTest, ARatingThatCannotBeStoredIsToldAndStaysOnTheScreen) {
    GivenThreeDrinks();
    Start();
    ClickDrink(0, 1, 20);
    REALSQLDatabase other;
    other.SetDatabaseFile(FolderItem(WorkingFile()));
    other.SetEncryptionKey("MerryMead246");
    ASSERT_TRUE(other.Connect());
    other.SQLExecute("BEGIN IMMEDIATE");
    AnswerNextMessage();
    ClickDrink(0, 0, 40);
    EXPECT_EQ(LastMessage().text, "An error occurred updating the drink rating: database is locked");
    EXPECT_EQ(ShownRating(0), "Rating4");
    other.Close();
    ASSERT_TRUE(Program().FillDrinkList());
    EXPECT_EQ(ShownRating(0), "Rating0");
}

TEST_F(DrinkListInteractionTest, DraggingCarriesTheIdOfTheFirstSelectedDrink) {
    GivenThreeDrinks();
    Start();
    Window().DrinkList.SetListIndex(1);
    DragItem drag;
    EXPECT_TRUE(Window().DrinkList.DragRow(drag, 2));
    EXPECT_EQ(drag.text, "12");
}

TEST_F(DrinkListInteractionTest, TheRandomButtonNeedsThreeDrinksAndCanPickEachOfThem) {
    GivenThreeDrinks();
    Start();
    auto* button = Find<QPushButton>("RandomDrink");
    Search("Am");
    Window().DrinkList.SetListIndex(0);
    AnswerNextMessage();
    button->click();
    EXPECT_EQ(LastMessage().text, "You must have more drinks in your list for this feature");
    EXPECT_EQ(LastMessage().title, "Random Drink");
    EXPECT_EQ(Window().DrinkList.ListIndex(), 0);

    Search(QString());
    QTest::keyClick(Find<QTableView>("DrinkList"), Qt::Key_A, Qt::ControlModifier);
    ASSERT_EQ(Window().DrinkList.SelCount(), 3);
    std::set<int> picked;
    for (int press = 0; press < 200 && picked.size() < 3; ++press) {
        button->click();
        ASSERT_EQ(Window().DrinkList.SelCount(), 1);
        picked.insert(Window().DrinkList.ListIndex());
        EXPECT_FALSE(PanelIsBlank());
    }
    EXPECT_EQ(picked, (std::set<int>{0, 1, 2}));
}

TEST_F(DrinkListInteractionTest, ComingBackToTheSearchSelectsItsText) {
    GivenThreeDrinks();
    Start();
    auto* box = Find<QLineEdit>("SearchBox");
    box->setFocus();
    QTest::keyClicks(box, "bra");
    Find<QTableView>("DrinkList")->setFocus();
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(3, 5));
    EXPECT_EQ(box->selectedText(), "bra");
    QTest::keyClicks(box, "c");
    EXPECT_EQ(box->text(), "c");
}

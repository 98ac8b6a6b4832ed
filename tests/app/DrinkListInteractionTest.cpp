#include "PourbookFixture.h"
#include "browser/Rating.h"
#include "platform/ui/Picture.h"

#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QTest>

#include <set>

class DrinkListInteractionTest : public PourbookTest {
protected:
    void SetUp() override {
        GivenEmptyLibrary();
        GivenDrink(11, "Americano");
        GivenDrink(12, "Bramble");
        GivenDrink(13, "Clover Club");
        Start();
    }

    [[nodiscard]] QString StoredRating(int drink) {
        return Value(QString("SELECT UserRating FROM Drinks WHERE DrinkID = %1").arg(drink));
    }

    [[nodiscard]] QString ShownRating(int row) { return Window().DrinkList.RowPicture(row)->Name(); }

    [[nodiscard]] QString ShownDrink() { return Window().DrinkName.Text(); }
};

TEST_F(DrinkListInteractionTest, OneSelectedDrinkShowsAndSeveralOrNoneBlankThePanel) {
    ClickDrink(0, 1, 20);
    EXPECT_EQ(ShownDrink(), "Americano");
    EXPECT_FALSE(PanelIsBlank());
    ClickDrink(1, 1, 20, Qt::ControlModifier);
    EXPECT_TRUE(PanelIsBlank());
    ClickDrink(1, 1, 20, Qt::ControlModifier);
    EXPECT_EQ(ShownDrink(), "Americano");
    ClickDrink(0, 1, 20, Qt::ControlModifier);
    EXPECT_TRUE(PanelIsBlank());
}

TEST_F(DrinkListInteractionTest, RatingNeedsAClickOnTheSelectedRow) {
    ClickDrink(1, 0, 40);
    EXPECT_EQ(StoredRating(12), "NULL");
    EXPECT_EQ(ShownDrink(), "Bramble");
    const std::pair<int, const char*> clicks[] = {{40, "4"}, {3, "1"},  {11, "1"}, {12, "2"}, {23, "2"}, {24, "3"},
                                                  {35, "3"}, {36, "4"}, {47, "4"}, {48, "5"}, {64, "5"}, {2, "0"}};
    for (const auto& [x, rating] : clicks) {
        ClickDrink(1, 0, x);
        EXPECT_EQ(StoredRating(12), rating) << "at " << x;
        EXPECT_EQ(ShownRating(1), QString("Rating") + rating);
    }
    for (const char key : {'3', '5', '6', '0'}) {
        QTest::keyClick(Find<QTableView>("DrinkList"), key, Qt::ControlModifier);
        EXPECT_EQ(StoredRating(12), key == '6' ? QString('5') : QString(key)) << "with the control key";
    }
    ClickDrink(1, 1, 40);
    EXPECT_EQ(StoredRating(12), "0") << "the name is no rating cell";
    ClickDrink(2, 1, 20, Qt::ControlModifier);
    ClickDrink(2, 0, 40, Qt::ControlModifier);
    EXPECT_EQ(StoredRating(13), "NULL") << "of several selected rows only the first is rated";
}

TEST_F(DrinkListInteractionTest, EachStarIsDrawnWhereAClickSetsIt) {
    const auto drawn = [](int rating) {
        QImage image(RatingPicture(rating)->Size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        RatingPicture(rating)->Draw(painter, image.rect());
        return image;
    };
    for (int rating = 1; rating <= 5; ++rating) {
        const QImage without = drawn(rating - 1);
        const QImage with = drawn(rating);
        ASSERT_NE(with, without);
        for (int pixel = 0; pixel < with.width() * with.height(); ++pixel) {
            const QPoint point(pixel % with.width(), pixel / with.width());
            ASSERT_TRUE(with.pixel(point) == without.pixel(point) || RatingAt(point.x()) == rating) << point.x();
        }
    }
}

TEST_F(DrinkListInteractionTest, ARatingThatCannotBeStoredIsToldAndStaysOnTheScreen) {
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

TEST_F(DrinkListInteractionTest, TheRandomButtonNeedsThreeDrinksAndCanPickEachOfThem) {
    auto* button = Find<QPushButton>("RandomDrink");
    Search("Am");
    AnswerNextMessage();
    button->click();
    EXPECT_EQ(LastMessage().text, "You must have more drinks in your list for this feature");
    EXPECT_EQ(LastMessage().title, "Random Drink");

    Search(QString());
    QTest::keyClick(Find<QTableView>("DrinkList"), Qt::Key_A, Qt::ControlModifier);
    ASSERT_EQ(Window().DrinkList.SelCount(), 3);
    std::set<int> picked;
    for (int press = 0; press < 200 && picked.size() < 3; ++press) {
        button->click();
        ASSERT_EQ(Window().DrinkList.SelCount(), 1);
        picked.insert(Window().DrinkList.ListIndex());
    }
    EXPECT_EQ(picked, (std::set<int>{0, 1, 2}));
}

TEST_F(DrinkListInteractionTest, ComingBackToTheSearchSelectsItsText) {
    auto* box = Find<QLineEdit>("SearchBox");
    QTest::keyClicks(box, "bra");
    Find<QTableView>("DrinkList")->setFocus();
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(3, 5));
    EXPECT_EQ(box->selectedText(), "bra");
}

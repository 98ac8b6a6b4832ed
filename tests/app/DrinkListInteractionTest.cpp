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

    // Of the three drinks, with a hyphen for one that was never rated.
    [[nodiscard]] QString StoredRatings() {
        return Value("SELECT GROUP_CONCAT(IFNULL(UserRating, '-'), '') FROM Drinks");
    }
    [[nodiscard]] QString ShownRating(int row) { return Window().DrinkList.RowPicture(row)->Name(); }
    [[nodiscard]] QString ShownDrink() { return PanelIsBlank() ? "blank" : Window().DrinkName.Text(); }
};

TEST_F(DrinkListInteractionTest, OneSelectedDrinkShowsAndSeveralOrNoneBlankThePanel) {
    for (const auto& [row, shown] : {std::pair(0, "Americano"), {1, "blank"}, {1, "Americano"}, {0, "blank"}}) {
        ClickDrink(row, 1, 20, Qt::ControlModifier);
        EXPECT_EQ(ShownDrink(), shown);
    }
}

TEST_F(DrinkListInteractionTest, RatingNeedsAClickOnTheSelectedRow) {
    ClickDrink(1, 0, 40);
    EXPECT_EQ(StoredRatings() + ShownDrink(), "---Bramble");
    const std::pair<int, const char*> clicks[] = {{40, "4"}, {3, "1"},  {11, "1"}, {12, "2"}, {23, "2"}, {24, "3"},
                                                  {35, "3"}, {36, "4"}, {47, "4"}, {48, "5"}, {64, "5"}, {2, "0"}};
    for (const auto& [x, rating] : clicks) {
        ClickDrink(1, 0, x);
        EXPECT_EQ(StoredRatings(), QString("-%1-").arg(rating)) << "at " << x;
        EXPECT_EQ(ShownRating(1), QString("Rating") + rating);
    }
    for (const QChar key : {'3', '5', '6', '0'}) {
        QTest::keyClick(Find<QTableView>("DrinkList"), key.toLatin1(), Qt::ControlModifier);
        EXPECT_EQ(StoredRatings(), QString("-%1-").arg(key == '6' ? '5' : key)) << "with the control key";
    }
    ClickDrink(1, 1, 40); // the name is no rating cell
    ClickDrink(2, 1, 20, Qt::ControlModifier);
    ClickDrink(2, 0, 40, Qt::ControlModifier); // of several selected rows only the first is rated
    EXPECT_EQ(StoredRatings(), "-0-");
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
    Search("am"); // two of them
    AnswerNextMessage();
    button->click();
    EXPECT_EQ(LastMessage().text, "You must have more drinks in your list for this feature");
    EXPECT_EQ(LastMessage().title, "Random Drink");
    Search(QString());
    std::set<int> picked;
    for (int press = 0; press < 200 && picked.size() < 3; ++press) {
        button->click();
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
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(3, 5));
    EXPECT_EQ(box->selectedText(), "") << "the next click places the caret as ever";
}

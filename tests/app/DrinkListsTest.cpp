#include "PourbookFixture.h"

#include <QLineEdit>
#include <QTest>

using DrinkListsTest = PourbookTest;

TEST_F(DrinkListsTest, OnlyASavedListFiltersAndTakesADrop) {
    GivenEmptyLibrary();
    GivenDrink(11, "Americano");
    Start();
    Listbox& lists = Window().DrinkListsList;
    const auto drop = [&](int row) {
        ClickDrink(0, 1, 20);
        lists.DragOver(60, row * 21 + 10, {}, 0);
        lists.DropObject({}, 0);
    };
    Choose("File_NewDrinklist");
    auto* field = Find<QTableView>("DrinkListsList")->findChild<QLineEdit*>();
    AnswerNextMessage();
    QTest::keyClicks(field, "  \r");
    EXPECT_EQ(LastMessage().text, "You must give the DrinkList a name.");
    EXPECT_EQ(ListedDrinks(), "Americano");
    ASSERT_TRUE(QTest::qWaitFor([field] { return field->hasFocus(); }));
    AnswerNextMessage();
    Choose("File_NewDrinklist");
    EXPECT_EQ(lists.ListCount(), 2) << "the name is asked for first";
    QTest::keyClicks(field, " Monday \r");
    EXPECT_EQ(ListedDrinks(), "") << "the row was selected before, but had no id";
    lists.SetListIndex(0);
    AnswerNextMessage();
    drop(0);
    EXPECT_EQ(LastMessage().text, "You cannot drag a drink recipe to the All Drinks list");
    drop(2);
    drop(1);
    EXPECT_EQ(lists.Cell(1, 2), "1");
    EXPECT_EQ(Value("SELECT DrinkListName || DrinkID FROM DrinkLists NATURAL JOIN DrinkListXRef"), "Monday11");

    QWidget* rows = Find<QTableView>("DrinkListsList")->viewport();
    QTest::mouseClick(rows, Qt::LeftButton, Qt::ControlModifier, QPoint(60, 100));
    EXPECT_EQ(lists.ListIndex(), 0) << "one is always chosen";
    QTest::mouseDClick(rows, Qt::LeftButton, {}, QPoint(60, 10));
    EXPECT_EQ(lists.ActiveCell(), nullptr) << "the first has a fixed name";
    int id = lists.CellTag(1, 0);
    EXPECT_TRUE(Program().UpdateDrinkLists("Monday", id)) << "a list does not clash with itself";
    EXPECT_TRUE(Program().DeleteDrinkList(id));
    EXPECT_EQ(Value("SELECT COUNT(*) FROM DrinkListXRef"), "0");
}

TEST_F(DrinkListsTest, AFailureIsToldInTheWordsOfTheDeed) {
    GivenEmptyLibrary();
    Execute("INSERT INTO DrinkLists VALUES (1, 'Friday')");
    for (const char* event : {"INSERT ON DrinkLists", "DELETE ON DrinkLists", "INSERT ON DrinkListXRef"}) {
        Execute(QString("CREATE TRIGGER [%1] BEFORE %1 BEGIN SELECT RAISE(FAIL, 'no room'); END").arg(event));
    }
    Start();
    int id = 0;
    const std::pair<const char*, std::function<bool()>> deeds[] = {
        {"inserting drink into drinklist", [this] { return Program().AddToDrinkList(1, 12); }},
        {"attempting to save the new drinklist name", [&] { return Program().UpdateDrinkLists("New", id) || id != 0; }},
        {"removing drinklist references", [this] { return Program().DeleteDrinkList(1); }},
    };
    for (const auto& [words, deed] : deeds) {
        AnswerNextMessage();
        EXPECT_FALSE(deed());
        EXPECT_EQ(LastMessage().text, QString("An error occurred %1: no room").arg(words));
    }
}

#include "PourbookFixture.h"
#include "platform/ui/Picture.h"

#include <QFile>
#include <QHeaderView>
#include <QLineEdit>
#include <QTest>

class FillDrinkListTest : public PourbookTest {
protected:
    void GivenFourDrinks() {
        GivenEmptyLibrary();
        GivenDrink(1, "Planter''s Punch", "Rum, Lime", "UserRating = 3");
        GivenDrink(2, "alexander", "Cognac, Crème de Cacao", "UserRating = 0");
        GivenDrink(3, "Zombie", "Rum", "UserRating = 9");
        GivenDrink(4, "100% Rum", "Rum, Farmer''s Milk");
    }

    void GivenList(int id, const std::vector<int>& drinks) {
        Execute(QString("INSERT INTO DrinkLists VALUES (%1, 'List %1')").arg(id));
        for (const int drink : drinks) {
            Execute(QString("INSERT INTO DrinkListXRef (DrinkListID, DrinkID) VALUES (%1, %2)").arg(id).arg(drink));
        }
    }

    [[nodiscard]] QString Listed() { return ListedDrinks().join("|"); }
};

TEST_F(FillDrinkListTest, SearchNarrowsByNameOrIngredientAtEveryKey) {
    GivenFourDrinks();
    Start();
    EXPECT_EQ(Listed(), "100% Rum|alexander|Planter's Punch|Zombie") << "sorted as a person would";
    const std::pair<const char*, const char*> cases[] = {
        {"P", "Planter's Punch"},
        {"l", "100% Rum|alexander|Planter's Punch"},
        {"lime", "Planter's Punch"},
        {"CREME", "alexander"},
        {"'", "100% Rum|Planter's Punch"},
        {"r's", "100% Rum|Planter's Punch"},
        {"%", "100% Rum|alexander|Planter's Punch|Zombie"},
        {"z_m", "Zombie"},
        {" ", "100% Rum|alexander|Planter's Punch"},
        {"nothing like it", ""},
        {"", "100% Rum|alexander|Planter's Punch|Zombie"},
    };
    for (const auto& [text, listed] : cases) {
        Search(QString::fromUtf8(text));
        EXPECT_EQ(Listed(), listed) << "for \"" << text << "\"";
        EXPECT_EQ(Headings().size(), 3);
    }
}

TEST_F(FillDrinkListTest, ADrinklistFiltersAloneAndTogetherWithTheSearch) {
    GivenFourDrinks();
    GivenList(5, {3, 1, 99});
    GivenList(6, {});
    Start();
    Listbox& lists = Window().DrinkListsList;
    EXPECT_EQ(lists.Cell(0, 2), "4");
    EXPECT_EQ(lists.Cell(1, 2), "3");

    lists.SetListIndex(1);
    EXPECT_EQ(Listed(), "Planter's Punch|Zombie");
    Search("100");
    EXPECT_EQ(Listed(), "") << "the search must not widen the list";
    Search("rum");
    EXPECT_EQ(Listed(), "Planter's Punch|Zombie");
    lists.SetListIndex(2);
    EXPECT_EQ(Listed(), "");
    Search(QString());
    lists.SetCellTag(0, 0, 5);
    lists.SetListIndex(0);
    EXPECT_EQ(ListedDrinks().size(), 4) << "row 0 is all drinks, whatever its tag";
    lists.SetCellTag(2, 0, 0);
    lists.SetListIndex(2);
    EXPECT_EQ(ListedDrinks().size(), 4) << "an unsaved list does not filter";
    TickMatch(true);
    lists.SetListIndex(1);
    EXPECT_EQ(Listed(), "") << "nothing is in the bar";
}

TEST_F(FillDrinkListTest, RowsCarryIdPictureAndTheChosenColumns) {
    GivenFourDrinks();
    Execute("UPDATE Drinks SET DrinkTypeID = (SELECT DrinkTypeID FROM DrinkTypes WHERE DrinkTypeName = "
            "'Shot'), GlassTypeID = (SELECT GlassTypeID FROM GlassTypes WHERE GlassTypeName = 'Collins') "
            "WHERE DrinkID = 3");
    Start();
    const Listbox& list = Window().DrinkList;
    const char* pictures[] = {"Rating0", "Rating0", "Rating3", "Rating0"};
    const int ids[] = {4, 2, 1, 3};
    for (int row = 0; row < 4; ++row) {
        EXPECT_EQ(list.RowPicture(row)->Name(), pictures[row]) << row;
        EXPECT_EQ(list.CellTag(row, 0), ids[row]);
        EXPECT_EQ(list.Cell(row, 0), "");
    }

    struct Toggle {
        const char* item;
        const char* headings;
        const char* zombie;
        std::vector<int> widths; // without the ingredients, which take the rest
    };
    const Toggle toggles[] = {
        {"View_GlassColumn", "Rating,Cocktail,Ingredients,Glass", ",Zombie,Rum,Collins", {65, 180, 90}},
        {"View_DrinkTypeColumn",
         "Rating,Cocktail,Ingredients,Type,Glass",
         ",Zombie,Rum,Shot,Collins",
         {65, 180, 90, 70}},
        {"View_GlassColumn", "Rating,Cocktail,Ingredients,Type", ",Zombie,Rum,Shot", {65, 180, 70}},
        {"View_RatingsColumn", "Cocktail,Ingredients,Type", "Zombie,Rum,Shot", {180, 70}},
        {"View_GlassColumn", "Cocktail,Ingredients,Type,Glass", "Zombie,Rum,Shot,Collins", {180, 90, 70}},
        {"View_DrinkTypeColumn", "Cocktail,Ingredients,Glass", "Zombie,Rum,Collins", {180, 90}},
        {"View_GlassColumn", "Cocktail,Ingredients", "Zombie,Rum", {180}},
    };
    for (const Toggle& toggle : toggles) {
        Window().DrinkList.SetListIndex(3);
        Choose(QString(toggle.item));
        EXPECT_EQ(Headings().join(","), toggle.headings);
        QStringList cells;
        std::vector<int> widths;
        const int ingredients = Program().Option_ViewRatings ? 2 : 1;
        for (int column = 0; column < list.ColumnCount(); ++column) {
            cells.append(list.Cell(3, column));
            if (column != ingredients) {
                widths.push_back(Find<QTableView>("DrinkList")->columnWidth(column));
            }
        }
        EXPECT_EQ(cells.join(","), toggle.zombie);
        EXPECT_EQ(widths, toggle.widths) << toggle.headings;
        EXPECT_EQ(list.CellTag(3, 0), 3);
        EXPECT_EQ(list.RowPicture(3) != nullptr, Program().Option_ViewRatings);
        EXPECT_EQ(list.ListIndex(), -1);
        EXPECT_TRUE(PanelIsBlank());
    }
}

TEST_F(FillDrinkListTest, AFailedSelectTellsAndKeepsTheRows) {
    GivenFourDrinks();
    Start();
    Execute("ALTER TABLE DrinkTypes RENAME TO Elsewhere");
    AnswerNextMessage();
    EXPECT_FALSE(Program().FillDrinkList());
    EXPECT_EQ(LastMessage().text, "Could not query the database:  no such table: DrinkTypes");
    EXPECT_EQ(ListedDrinks().size(), 4);
    EXPECT_TRUE(PanelIsBlank());
}

TEST_F(FillDrinkListTest, ADamagedFileUnderAFilterIsToldAndTheProgramRunsOn) {
    GivenFourDrinks();
    Execute("INSERT INTO Ingredients (IngredientID, IngredientName, InBar, Empty) VALUES (1, 'Gin', 1, 0)");
    Start();
    Execute("ALTER TABLE DrinkRecipes RENAME TO Elsewhere");
    AnswerNextMessage();
    TickMatch(true);
    EXPECT_FALSE(LastMessage().text.isEmpty());
    Execute("ALTER TABLE Elsewhere RENAME TO DrinkRecipes");
    TickMatch(false);
    EXPECT_EQ(ListedDrinks().size(), 4);
}

TEST_F(FillDrinkListTest, AHeadingSortsUntilTheNextRefill) {
    GivenFourDrinks();
    Start();
    auto* header = Find<QTableView>("DrinkList")->horizontalHeader();
    const auto clickHeading = [&](int column) {
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          QPoint(header->sectionViewportPosition(column) + 10, header->height() / 2));
    };
    Window().DrinkList.SetListIndex(2);
    clickHeading(0);
    EXPECT_EQ(Listed(), "Planter's Punch|100% Rum|alexander|Zombie") << "most stars first";
    EXPECT_EQ(Window().DrinkList.ListIndex(), 0) << "the selection stays with its drink";
    EXPECT_EQ(Window().DrinkList.CellTag(0, 0), 1);
    EXPECT_EQ(Window().DrinkName.Text(), "Planter's Punch");
    clickHeading(0);
    EXPECT_EQ(Listed(), "100% Rum|alexander|Zombie|Planter's Punch");
    clickHeading(1);
    clickHeading(1);
    EXPECT_EQ(Listed(), "Zombie|Planter's Punch|alexander|100% Rum");
    ASSERT_TRUE(Program().FillDrinkList());
    EXPECT_EQ(Listed(), "100% Rum|alexander|Planter's Punch|Zombie");
}

TEST_F(FillDrinkListTest, AFilterMayBeLargerThanAStatementCanName) {
    GivenEmptyLibrary();
    const QString numbers = "WITH RECURSIVE N(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM N WHERE n < %1) ";
    Execute(numbers.arg(5000) +
            "INSERT INTO Drinks (DrinkID, DrinkName, IngredientCount) SELECT n, 'D' || n, 1 FROM N");
    Execute(numbers.arg(1500) + "INSERT INTO Ingredients (IngredientID, InBar, Empty) SELECT n, 1, 0 FROM N");
    Execute("INSERT INTO DrinkRecipes (DrinkID, IngredientID, Required) SELECT DrinkID, DrinkID % 1500 + 1, 1 FROM "
            "Drinks WHERE DrinkID <= 4000");
    Execute("INSERT INTO DrinkLists VALUES (1, 'Long')");
    Execute("INSERT INTO DrinkListXRef (DrinkListID, DrinkID) SELECT 1, DrinkID FROM Drinks WHERE DrinkID > 2000");
    Start();
    TickMatch(true);
    EXPECT_EQ(ListedDrinks().size(), 4000);
    Window().DrinkListsList.SetListIndex(1);
    EXPECT_EQ(ListedDrinks().size(), 2000);
    TickMatch(false);
    EXPECT_EQ(ListedDrinks().size(), 3000);
}

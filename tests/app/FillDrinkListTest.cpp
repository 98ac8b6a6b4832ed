#include "PourbookFixture.h"
#include "platform/ui/Picture.h"

#include <QHeaderView>
#include <QTest>

class FillDrinkListTest : public PourbookTest {
protected:
    void SetUp() override {
        GivenEmptyLibrary();
        GivenDrink(1, "Planter''s Punch", "Rum, Lime", "UserRating = 3");
        GivenDrink(2, "alexander", "Cognac, Crème de Cacao", "UserRating = 0");
        GivenDrink(3, "Zombie", "Rum", "UserRating = 9");
        GivenDrink(4, "100% Rum", "Rum, Farmer''s Milk");
    }

    const QString all = "100% Rum|alexander|Planter's Punch|Zombie";
};

TEST_F(FillDrinkListTest, SearchNarrowsByNameOrIngredientAtEveryKey) {
    Start();
    EXPECT_EQ(ListedDrinks(), all) << "sorted as a person would";
    const std::pair<const char*, QString> cases[] = {
        {"P", "Planter's Punch"},
        {"l", "100% Rum|alexander|Planter's Punch"},
        {"lime", "Planter's Punch"},
        {"CREME", "alexander"},
        {"'", "100% Rum|Planter's Punch"},
        {"r's", "100% Rum|Planter's Punch"},
        {"%", all},
        {"z_m", "Zombie"},
        {" ", "100% Rum|alexander|Planter's Punch"},
        {"nothing like it", ""},
        {"", all},
    };
    for (const auto& [text, listed] : cases) {
        Search(QString::fromUtf8(text));
        EXPECT_EQ(ListedDrinks(), listed) << "for \"" << text << "\"";
    }
}

TEST_F(FillDrinkListTest, ADrinklistFiltersAloneAndTogetherWithTheSearch) {
    Execute("INSERT INTO DrinkLists VALUES (5, 'Some'), (6, 'Without drinks')");
    Execute("INSERT INTO DrinkListXRef (DrinkListID, DrinkID) VALUES (5, 3), (5, 1), (5, 99)");
    Start();
    Listbox& lists = Window().DrinkListsList;
    lists.SetListIndex(1);
    EXPECT_EQ(ListedDrinks(), "Planter's Punch|Zombie");
    Search("100");
    EXPECT_EQ(ListedDrinks(), "") << "the search must not widen the list";
    Search("rum");
    EXPECT_EQ(ListedDrinks(), "Planter's Punch|Zombie");
    lists.SetListIndex(2);
    EXPECT_EQ(ListedDrinks(), "");
    Search(QString());
    lists.SetListIndex(0);
    EXPECT_EQ(ListedDrinks(), all);
    lists.SetCellTag(2, 0, 0);
    lists.SetListIndex(2);
    EXPECT_EQ(ListedDrinks(), all) << "an unsaved list does not filter";
    TickMatch(true);
    lists.SetListIndex(1);
    EXPECT_EQ(ListedDrinks(), "") << "nothing is in the bar";
}

TEST_F(FillDrinkListTest, TheViewMenuChoosesTheColumns) {
    Execute("UPDATE Drinks SET DrinkTypeID = (SELECT DrinkTypeID FROM DrinkTypes WHERE DrinkTypeName = 'Shot'), "
            "GlassTypeID = (SELECT GlassTypeID FROM GlassTypes WHERE GlassTypeName = 'Collins') WHERE DrinkID = 3");
    Start();
    const std::tuple<const char*, const char*, const char*, std::vector<int>> toggles[] = {
        // column, headings, Zombie's row, and the widths without that of the ingredients, which take the rest
        {"Glass", "Rating,Cocktail,Ingredients,Glass", ",Zombie,Rum,Collins", {65, 180, 90}},
        {"DrinkType", "Rating,Cocktail,Ingredients,Type,Glass", ",Zombie,Rum,Shot,Collins", {65, 180, 90, 70}},
        {"Glass", "Rating,Cocktail,Ingredients,Type", ",Zombie,Rum,Shot", {65, 180, 70}},
        {"Ratings", "Cocktail,Ingredients,Type", "Zombie,Rum,Shot", {180, 70}},
        {"DrinkType", "Cocktail,Ingredients", "Zombie,Rum", {180}},
    };
    for (const auto& [toggled, headings, zombie, columnWidths] : toggles) {
        Window().DrinkList.SetListIndex(3);
        Choose(QString("View_%1Column").arg(toggled));
        EXPECT_EQ(Headings(), headings);
        QStringList cells;
        std::vector<int> widths;
        for (int column = 0; column < Window().DrinkList.ColumnCount(); ++column) {
            cells.append(Window().DrinkList.Cell(3, column));
            if (Window().DrinkList.Heading(column) != "Ingredients") {
                widths.push_back(Find<QTableView>("DrinkList")->columnWidth(column));
            }
        }
        EXPECT_EQ(cells.join(","), zombie);
        EXPECT_EQ(widths, columnWidths) << headings;
        EXPECT_EQ(Window().DrinkList.CellTag(3, 0), 3);
        EXPECT_TRUE(PanelIsBlank()) << "the selection went with the rows";
    }
}

TEST_F(FillDrinkListTest, ADamagedFileIsToldAndTheProgramRunsOn) {
    Execute("INSERT INTO Ingredients (IngredientID, IngredientName, InBar, Empty) VALUES (1, 'Gin', 1, 0)");
    Start();
    Execute("ALTER TABLE DrinkRecipes RENAME TO Elsewhere");
    AnswerNextMessage();
    TickMatch(true);
    Execute("ALTER TABLE Elsewhere RENAME TO DrinkRecipes");
    TickMatch(false);
    EXPECT_EQ(ListedDrinks(), all);

    Execute("ALTER TABLE DrinkTypes RENAME TO Elsewhere");
    AnswerNextMessage();
    EXPECT_FALSE(Program().FillDrinkList());
    EXPECT_EQ(LastMessage().text, "Could not query the database:  no such table: DrinkTypes");
    EXPECT_EQ(ListedDrinks(), all) << "the rows stay";
}

TEST_F(FillDrinkListTest, AHeadingSortsRowsWithAllThatIsTheirsUntilTheNextRefill) {
    GivenDrink(5, "Élixir", "Cognac", "UserRating = 5");
    Start();
    Listbox& list = Window().DrinkList;
    auto* header = Find<QTableView>("DrinkList")->horizontalHeader();
    const auto clickHeading = [&](int column) {
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          QPoint(header->sectionViewportPosition(column) + 10, header->height() / 2));
    };
    clickHeading(0);
    EXPECT_EQ(ListedDrinks(), "Élixir|Planter's Punch|100% Rum|alexander|Zombie") << "most stars first";
    ClickDrink(1, 1, 20);
    ClickDrink(4, 1, 20, Qt::ControlModifier);
    clickHeading(1);
    EXPECT_EQ(ListedDrinks(), "100% Rum|alexander|Élixir|Planter's Punch|Zombie");
    EXPECT_TRUE(list.SelCount() == 2 && list.Selected(3) && list.Selected(4)) << "the same drinks";
    clickHeading(1);
    const std::pair<int, const char*> rows[] = {
        {3, "Rating0"}, {1, "Rating3"}, {5, "Rating5"}, {2, "Rating0"}, {4, "Rating0"}};
    for (int row = 0; row < 5; ++row) {
        EXPECT_EQ(list.CellTag(row, 0), rows[row].first);
        EXPECT_EQ(list.RowPicture(row)->Name(), rows[row].second) << row;
    }
    ASSERT_TRUE(Program().FillDrinkList());
    EXPECT_EQ(ListedDrinks(), all + "|Élixir");
    clickHeading(1);
    EXPECT_EQ(ListedDrinks(), "100% Rum|alexander|Élixir|Planter's Punch|Zombie") << "a first click again";
}

TEST_F(FillDrinkListTest, AFilterMayBeLargerThanAStatementCanName) {
    const QString numbers = "WITH RECURSIVE N(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM N WHERE n < 5000) ";
    Execute("DELETE FROM Drinks");
    Execute(numbers + "INSERT INTO Drinks (DrinkID, DrinkName, IngredientCount) SELECT n, 'D' || n, 1 FROM N");
    Execute(numbers + "INSERT INTO Ingredients (IngredientID, InBar, Empty) SELECT n, n <= 4000, 0 FROM N");
    Execute(numbers + "INSERT INTO DrinkRecipes (DrinkID, IngredientID, Required) SELECT n, n, 1 FROM N");
    Execute("INSERT INTO DrinkLists VALUES (1, 'Long')");
    Execute(numbers + "INSERT INTO DrinkListXRef (DrinkListID, DrinkID) SELECT 1, n FROM N WHERE n > 2000");
    Start();
    TickMatch(true);
    EXPECT_EQ(Window().DrinkList.ListCount(), 4000);
    Window().DrinkListsList.SetListIndex(1);
    EXPECT_EQ(Window().DrinkList.ListCount(), 2000);
    TickMatch(false);
    EXPECT_EQ(Window().DrinkList.ListCount(), 3000);
}

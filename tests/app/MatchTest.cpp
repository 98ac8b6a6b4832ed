#include "PourbookFixture.h"

#include <string>

namespace {

// A small tree: Whiskey over Rye and Canadian, and Lime on its own.
struct Stock {
    const char* name;
    int id;
    const char* parent;
};

constexpr Stock tree[] = {
    {"Whiskey", 1, "NULL"}, {"Rye", 2, "1"}, {"Canadian", 3, "1"}, {"Lime", 4, "NULL"}, {"Gin", 5, "NULL"}};

struct RecipeRow {
    int ingredient;
    int required;
};

struct Case {
    const char* name;
    std::vector<int> inBar;
    std::vector<int> empty;
    std::vector<RecipeRow> recipe;
    int ingredientCount;
    bool makeable;
};

const Case cases[] = {
    {"nothing in the bar", {}, {}, {{4, 1}}, 1, false},
    {"all in the bar are empty", {4, 5}, {4, 5}, {{4, 1}}, 1, false},
    {"one ingredient without a parent", {4}, {}, {{4, 1}}, 1, true},
    {"a stocked child makes what asks for its parent", {2}, {}, {{1, 1}}, 1, true},
    {"a stocked parent does not make what asks for its child", {1}, {}, {{2, 1}}, 1, false},
    {"a brother does not stand in", {2}, {}, {{3, 1}}, 1, false},
    {"an empty parent comes in by its stocked child", {1, 2}, {1}, {{1, 1}}, 1, true},
    {"an empty child, its parent stocked: asks for the parent", {1, 2}, {2}, {{1, 1}}, 1, true},
    {"an empty child, its parent stocked: asks for the child", {1, 2}, {2}, {{2, 1}}, 1, false},
    {"both of two required", {4, 5}, {}, {{4, 1}, {5, 1}}, 2, true},
    {"one of two required", {4}, {}, {{4, 1}, {5, 1}}, 2, false},
    {"a count of two with three required rows in the bar", {2, 4, 5}, {}, {{1, 1}, {4, 1}, {5, 1}}, 2, true},
    {"an optional row does not count towards three", {2, 4, 5}, {}, {{1, 1}, {4, 1}, {5, 0}}, 3, false},
    {"an optional row that is missing does not matter", {4}, {}, {{4, 1}, {5, 0}}, 1, true},
    {"a count of 0 never matches", {4}, {}, {{4, 1}}, 0, false},
    {"only optional rows", {4}, {}, {{4, 0}}, 0, false},
};

} // namespace

class MatchTest : public PourbookTest {
protected:
    void GivenTree() {
        GivenEmptyLibrary();
        for (const Stock& stock : tree) {
            Execute(QString("INSERT INTO Ingredients (IngredientID, IngredientName, IngredientParentID, InBar, "
                            "Empty) VALUES (%1, '%2', %3, 0, 0)")
                        .arg(stock.id)
                        .arg(QString(stock.name), QString(stock.parent)));
        }
    }

    void GivenBar(const std::vector<int>& inBar, const std::vector<int>& empty) {
        Execute("UPDATE Ingredients SET InBar = 0, Empty = 0");
        for (const int id : inBar) {
            Execute(QString("UPDATE Ingredients SET InBar = 1 WHERE IngredientID = %1").arg(id));
        }
        for (const int id : empty) {
            Execute(QString("UPDATE Ingredients SET Empty = 1 WHERE IngredientID = %1").arg(id));
        }
    }

    void GivenRecipe(int drink, const std::vector<RecipeRow>& recipe, int ingredientCount) {
        Execute(QString("DELETE FROM DrinkRecipes WHERE DrinkID = %1").arg(drink));
        for (const RecipeRow& row : recipe) {
            Execute(QString("INSERT INTO DrinkRecipes (DrinkID, IngredientID, Required) VALUES (%1, %2, %3)")
                        .arg(drink)
                        .arg(row.ingredient)
                        .arg(row.required));
        }
        Execute(QString("UPDATE Drinks SET IngredientCount = %1 WHERE DrinkID = %2").arg(ingredientCount).arg(drink));
    }
};

TEST_F(MatchTest, ListsJustTheDrinksThatCanBeMade) {
    GivenTree();
    GivenDrink(7, "Subject", QString());
    // A neighbour on each side, which the counting must not run into.
    GivenDrink(6, "Before", QString());
    GivenDrink(8, "Later", QString());
    GivenRecipe(6, {{4, 1}, {3, 1}}, 2);
    GivenRecipe(8, {{4, 1}, {3, 1}}, 2);
    Start();
    TickMatch(true);
    for (const Case& row : cases) {
        SCOPED_TRACE(row.name);
        GivenBar(row.inBar, row.empty);
        GivenRecipe(7, row.recipe, row.ingredientCount);
        ASSERT_TRUE(Program().FillDrinkList());
        EXPECT_EQ(ListedDrinks(), row.makeable ? QStringList{"Subject"} : QStringList());
        EXPECT_EQ(Headings().size(), 3);
    }
}

TEST_F(MatchTest, ClimbsATreeOfAnyDepthAndEndsInACircle) {
    GivenTree();
    GivenDrink(7, "Subject", QString());
    GivenRecipe(7, {{1, 1}}, 1);
    Execute("UPDATE Ingredients SET IngredientParentID = 2 WHERE IngredientID = 3");
    Execute("UPDATE Ingredients SET IngredientParentID = 3 WHERE IngredientID = 1");
    GivenBar({3}, {});
    Start();
    TickMatch(true);
    EXPECT_EQ(ListedDrinks(), QStringList{"Subject"});
}

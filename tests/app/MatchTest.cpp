#include "PourbookFixture.h"

namespace {

// What is in the bar, what of it is empty, the required and the optional rows of the recipe, their count, and whether
// it can be made. Whiskey (1) stands over Rye (2) and Canadian (3), and on their own Lime (4) and Gin (5).
using Case = std::tuple<const char*, const char*, const char*, const char*, const char*, int, bool>;

const Case cases[] = {
    {"nothing in the bar", "", "", "4", "", 1, false},
    {"all in the bar are empty", "4, 5", "4, 5", "4", "", 1, false},
    {"one ingredient without a parent", "4", "", "4", "", 1, true},
    {"a stocked child makes what asks for its parent", "2", "", "1", "", 1, true},
    {"a stocked parent does not make what asks for its child", "1", "", "2", "", 1, false},
    {"a brother does not stand in", "2", "", "3", "", 1, false},
    {"an empty parent comes in by its stocked child", "1, 2", "1", "1", "", 1, true},
    {"an empty child, its parent stocked: asks for the parent", "1, 2", "2", "1", "", 1, true},
    {"an empty child, its parent stocked: asks for the child", "1, 2", "2", "2", "", 1, false},
    {"both of two required", "4, 5", "", "4, 5", "", 2, true},
    {"one of two required", "4", "", "4, 5", "", 2, false},
    {"a count of two with three required rows in the bar", "2, 4, 5", "", "1, 4, 5", "", 2, true},
    {"an optional row does not count towards three", "2, 4, 5", "", "1, 4", "5", 3, false},
    {"an optional row that is missing does not matter", "4", "", "4", "5", 1, true},
    {"a count of 0 never matches", "4", "", "4", "", 0, false},
    {"only optional rows", "4", "", "", "4", 0, false},
};

} // namespace

class MatchTest : public PourbookTest {
protected:
    void SetUp() override {
        GivenEmptyLibrary();
        Execute("INSERT INTO Ingredients (IngredientID, IngredientName, IngredientParentID) VALUES "
                "(1, 'Whiskey', NULL), (2, 'Rye', 1), (3, 'Canadian', 1), (4, 'Lime', NULL), (5, 'Gin', NULL)");
        GivenDrink(7, "Subject");
    }

    void GivenBar(const QString& inBar, const QString& empty) {
        Execute(QString("UPDATE Ingredients SET InBar = IngredientID IN (%1), Empty = IngredientID IN (%2)")
                    .arg(inBar, empty));
    }

    void GivenRecipe(int drink, const QString& required, const QString& optional, int ingredientCount) {
        Execute(QString("DELETE FROM DrinkRecipes WHERE DrinkID = %1").arg(drink));
        const QString insert = "INSERT INTO DrinkRecipes (DrinkID, IngredientID, Required) SELECT %1, IngredientID, %2 "
                               "FROM Ingredients WHERE IngredientID IN (%3)";
        Execute(insert.arg(drink).arg(1).arg(required));
        Execute(insert.arg(drink).arg(0).arg(optional));
        Execute(QString("UPDATE Drinks SET IngredientCount = %1 WHERE DrinkID = %2").arg(ingredientCount).arg(drink));
    }
};

TEST_F(MatchTest, ListsJustTheDrinksThatCanBeMade) {
    // A neighbour on each side, which the counting must not run into.
    GivenDrink(6, "Before");
    GivenDrink(8, "Later");
    GivenRecipe(6, "3, 4", "", 2);
    GivenRecipe(8, "3, 4", "", 2);
    Start();
    TickMatch(true);
    for (const auto& [name, inBar, empty, required, optional, ingredientCount, makeable] : cases) {
        GivenBar(inBar, empty);
        GivenRecipe(7, required, optional, ingredientCount);
        ASSERT_TRUE(Program().FillDrinkList());
        EXPECT_EQ(ListedDrinks(), makeable ? "Subject" : "") << name;
        EXPECT_EQ(Headings(), "Rating,Cocktail,Ingredients");
    }
}

TEST_F(MatchTest, ClimbsATreeOfAnyDepthAndEndsInACircle) {
    GivenRecipe(7, "1", "", 1);
    Execute("UPDATE Ingredients SET IngredientParentID = 2 WHERE IngredientID = 3");
    Execute("UPDATE Ingredients SET IngredientParentID = 3 WHERE IngredientID = 1");
    GivenBar("3", "");
    Start();
    TickMatch(true);
    EXPECT_EQ(ListedDrinks(), "Subject");
}

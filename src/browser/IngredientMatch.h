#pragma once

#include <unordered_map>
#include <unordered_set>
#include <vector>

// Which drinks can be made from what is at home. Pure: the rows come from the caller.

// An ingredient and the more general one that it is a kind of.
using ParentOfIngredient = std::unordered_map<int, int>;

// What the user has, widened: the stocked ingredients and all that they are kinds of, to any depth. The tree is only
// climbed: a stocked Rye is also a Whiskey, a stocked Whiskey is no Rye.
[[nodiscard]] std::unordered_set<int> BarIngredients(const std::vector<int>& stocked,
                                                     const ParentOfIngredient& parents);

// A required row of a drink's recipe, with the number of required rows that the drink says it has.
struct RequiredRow {
    int DrinkID;
    int IngredientCount;
    int IngredientID;
};

// Counts, drink by drink, the required rows whose ingredient is in the bar, and keeps the drinks that reach their
// IngredientCount. A drink that says 0 never does. The rows come in the order of DrinkID; so does the result, each
// drink once.
class IngredientMatch {
public:
    explicit IngredientMatch(std::unordered_set<int> barIngredients);

    void Add(const RequiredRow& row);

    [[nodiscard]] const std::vector<int>& MatchedDrinks() const { return matchedDrinks_; }

private:
    std::unordered_set<int> barIngredients_;
    std::vector<int> matchedDrinks_;
    int currentDrink_ = 0;
    int foundRows_ = 0;
};

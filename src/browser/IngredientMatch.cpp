#include "browser/IngredientMatch.h"

#include <utility>

std::unordered_set<int> BarIngredients(const std::vector<int>& stocked, const ParentOfIngredient& parents) {
    std::unordered_set<int> bar;
    for (const int ingredient : stocked) {
        int id = ingredient;
        // What is in the bar already has brought its parents with it; so a circle in the tree ends too.
        while (bar.insert(id).second) {
            const auto parent = parents.find(id);
            if (parent == parents.end()) {
                break;
            }
            id = parent->second;
        }
    }
    return bar;
}

IngredientMatch::IngredientMatch(std::unordered_set<int> barIngredients) : barIngredients_(std::move(barIngredients)) {}

void IngredientMatch::Add(const RequiredRow& row) {
    if (row.DrinkID != currentDrink_) {
        currentDrink_ = row.DrinkID;
        foundRows_ = 0;
    }
    if (!barIngredients_.contains(row.IngredientID)) {
        return;
    }
    // The count only rises, so a drink reaches its number once, however many rows follow.
    if (++foundRows_ == row.IngredientCount) {
        matchedDrinks_.push_back(row.DrinkID);
    }
}

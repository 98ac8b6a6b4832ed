#pragma once

#include <vector>

class REALSQLDatabase;

// Which drinks the match box and the selected drinklist leave. Ids are in no order, and may repeat.
struct DrinkFilter {
    bool UseMatch = false;
    bool UseList = false;
    std::vector<int> FilterDrinks;

    [[nodiscard]] bool UseFilter() const { return UseMatch || UseList; }
};

// The drinks that can be made from what is in the bar and not empty, ascending.
[[nodiscard]] std::vector<int> SelectMatchedDrinks(REALSQLDatabase& db);

// Reads the controls of the main window and the database. A select that fails is a fault of the file and surfaces as
// the use of a nil record set.
[[nodiscard]] DrinkFilter ReadDrinkFilter(REALSQLDatabase& db);

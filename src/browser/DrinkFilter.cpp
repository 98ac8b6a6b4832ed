#include "browser/DrinkFilter.h"

#include "platform/base/Text.h"
#include "platform/database/Database.h"
#include "shell/MainWindow.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>

namespace {

// Row 0 is the fixed entry for all drinks, and a row that was not saved yet has no id: neither restricts anything.
int SelectedDrinkList() {
    const Listbox& lists = MainWindow::Instance().DrinkListsList;
    const int row = lists.ListIndex();
    return row > 0 ? lists.CellTag(row, 0) : 0;
}

std::vector<int> SelectListDrinks(REALSQLDatabase& db, int drinkListID) {
    RecordSet rows =
        db.SQLSelect(QStringLiteral("SELECT * FROM DrinkListXRef WHERE DrinkListID = ") + CStr(drinkListID));
    std::vector<int> ListDrinks;
    for (; !rows.Eof(); rows.MoveNext()) {
        ListDrinks.push_back(rows.Field("DrinkID").IntegerValue());
    }
    return ListDrinks;
}

std::vector<int> InBoth(const std::vector<int>& MatchedDrinks, const std::vector<int>& ListDrinks) {
    const std::unordered_set<int> listed(ListDrinks.begin(), ListDrinks.end());
    std::vector<int> both;
    std::copy_if(MatchedDrinks.begin(), MatchedDrinks.end(), std::back_inserter(both),
                 [&](int id) { return listed.contains(id); });
    return both;
}

} // namespace

DrinkFilter ReadDrinkFilter(REALSQLDatabase& db) {
    DrinkFilter filter;
    std::vector<int> MatchedDrinks;
    std::vector<int> ListDrinks;
    if (MainWindow::Instance().MatchIngredients.Value()) {
        filter.UseMatch = true;
        MatchedDrinks = SelectMatchedDrinks(db);
    }
    if (const int drinkListID = SelectedDrinkList(); drinkListID != 0) {
        filter.UseList = true;
        ListDrinks = SelectListDrinks(db, drinkListID);
    }

    if (filter.UseMatch && filter.UseList) {
        filter.FilterDrinks = InBoth(MatchedDrinks, ListDrinks);
    } else {
        filter.FilterDrinks = filter.UseMatch ? MatchedDrinks : ListDrinks;
    }
    return filter;
}

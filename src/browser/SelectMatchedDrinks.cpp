#include "browser/DrinkFilter.h"
#include "browser/IngredientMatch.h"
#include "platform/database/Database.h"

namespace {

std::vector<int> SelectStocked(REALSQLDatabase& db) {
    RecordSet rows = db.SQLSelect(QStringLiteral("SELECT IngredientID FROM Ingredients WHERE InBar = 1 AND Empty = 0"));
    std::vector<int> stocked;
    for (; !rows.Eof(); rows.MoveNext()) {
        stocked.push_back(rows.Field("IngredientID").IntegerValue());
    }
    return stocked;
}

ParentOfIngredient SelectParents(REALSQLDatabase& db) {
    RecordSet rows = db.SQLSelect(QStringLiteral(
        "SELECT IngredientID, IngredientParentID FROM Ingredients WHERE IngredientParentID IS NOT NULL"));
    ParentOfIngredient parents;
    for (; !rows.Eof(); rows.MoveNext()) {
        parents[rows.Field("IngredientID").IntegerValue()] = rows.Field("IngredientParentID").IntegerValue();
    }
    return parents;
}

} // namespace

// The rows are compared with the bar here and not in a WHERE that names each ingredient: such a statement has a
// limit, and a bar has none.
std::vector<int> SelectMatchedDrinks(REALSQLDatabase& db) {
    const std::vector<int> stocked = SelectStocked(db);
    if (stocked.empty()) {
        return {};
    }
    IngredientMatch match(BarIngredients(stocked, SelectParents(db)));
    RecordSet rows = db.SQLSelect(QStringLiteral(
        "SELECT D.DrinkID, D.IngredientCount, R.IngredientID FROM Drinks AS D INNER JOIN DrinkRecipes AS R ON "
        "(D.DrinkID = R.DrinkID) WHERE R.Required != 0 ORDER BY D.DrinkID"));
    for (; !rows.Eof(); rows.MoveNext()) {
        match.Add({rows.Field("DrinkID").IntegerValue(), rows.Field("IngredientCount").IntegerValue(),
                   rows.Field("IngredientID").IntegerValue()});
    }
    return match.MatchedDrinks();
}

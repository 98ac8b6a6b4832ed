#include "BareDatabase.h"
#include "BenchHomes.h"
#include "Benchmarks.h"
#include "Comparison.h"
#include "browser/DrinkFilter.h"
#include "platform/database/Database.h"
#include "store/DatabaseFiles.h"

#include <memory>
#include <string>

namespace {

// All that the match does, as one who writes SQL by hand would put it.
const QString statement = QStringLiteral(
    "WITH RECURSIVE Bar(ID) AS (SELECT IngredientID FROM Ingredients WHERE InBar = 1 AND Empty = 0 UNION "
    "SELECT I.IngredientParentID FROM Bar INNER JOIN Ingredients AS I ON (I.IngredientID = Bar.ID) "
    "WHERE I.IngredientParentID IS NOT NULL) "
    "SELECT D.DrinkID FROM Drinks AS D INNER JOIN DrinkRecipes AS R ON (R.DrinkID = D.DrinkID) "
    "WHERE R.Required != 0 AND R.IngredientID IN (SELECT ID FROM Bar) "
    "GROUP BY D.DrinkID HAVING COUNT(*) >= D.IngredientCount AND D.IngredientCount > 0 ORDER BY D.DrinkID");

// Both begin with an open connection that has decrypted nothing yet.
void Match(benchmark::State& state, int drinks, double target) {
    BenchHomes::Use(drinks);
    std::unique_ptr<REALSQLDatabase> db;
    std::unique_ptr<BareDatabase> bare;
    std::vector<int> matched;
    const auto connect = [&] {
        db = std::make_unique<REALSQLDatabase>();
        db->SetDatabaseFile(FolderItem(BenchHomes::File()));
        db->SetEncryptionKey(DatabaseKey());
        if (!db->Connect()) {
            state.SkipWithError(qPrintable(db->ErrorMessage()));
        }
    };
    const auto open = [&] { bare = std::make_unique<BareDatabase>(BenchHomes::File()); };
    Compare(state, {[&] { matched = SelectMatchedDrinks(*db); }, connect}, {[&] { bare->Walk(statement); }, open},
            {"the match with every second ingredient in the bar, against one recursive statement", target});
    if (matched.empty() || matched != bare->Numbers(statement)) {
        state.SkipWithError("the two do not find the same drinks");
    }
}

} // namespace

void RegisterMatch(const BenchPlan& plan) {
    for (const int drinks : plan.Sizes()) {
        benchmark::RegisterBenchmark(("match/" + std::to_string(drinks)).c_str(), Match, drinks,
                                     drinks == plan.MiddleSize() ? 1.5 : 0)
            ->UseManualTime()
            ->Iterations(plan.TurnsFor(drinks));
    }
}

#include "BareDatabase.h"
#include "BenchHomes.h"
#include "Benchmarks.h"
#include "Comparison.h"
#include "GeneratedLibrary.h"
#include "shell/App.h"
#include "shell/MainWindow.h"

#include <memory>

namespace {

constexpr int drink = GeneratedLibrary::drinks / 2;

void WalkRecipe(const BareDatabase& bare) {
    bare.Walk(QStringLiteral(
                  "SELECT D.DrinkName, D.DrinkInstruction, D.IngredientCount, D.UserRating, T.DrinkTypeName, "
                  "G.GlassTypeName FROM Drinks AS D LEFT JOIN DrinkTypes AS T ON (D.DrinkTypeID = T.DrinkTypeID) LEFT "
                  "JOIN GlassTypes AS G ON (D.GlassTypeID = G.GlassTypeID) WHERE D.DrinkID = %1")
                  .arg(drink));
    bare.Walk(
        QStringLiteral("SELECT R.IngredientQuantity, R.RecipeStep, R.Preparation, I.IngredientName, U.UofM FROM "
                       "DrinkRecipes AS R INNER JOIN Ingredients AS I ON (R.IngredientID = I.IngredientID) LEFT JOIN "
                       "UnitsOfMeasure AS U ON (R.UofMID = U.UofMID) WHERE R.DrinkID = %1 ORDER BY R.RecipeStep")
            .arg(drink));
}

void ShowRecipe(benchmark::State& state) {
    App::Instance().ShowDrinkInfo(drink);
    if (MainWindow::Instance().DrinkName.Text().isEmpty()) {
        state.SkipWithError("no recipe shows");
    }
}

void AgainstSelects(benchmark::State& state) {
    BenchHomes::UseGenerated();
    std::unique_ptr<BareDatabase> bare;
    Compare(state, {[&] { ShowRecipe(state); }, {}},
            {[&] { WalkRecipe(*bare); }, [&] { bare = std::make_unique<BareDatabase>(BenchHomes::File()); }},
            "a recipe shown, its connect included, against its two bare selects (large library)");
}

void AgainstConnectAndSelects(benchmark::State& state) {
    BenchHomes::UseGenerated();
    Compare(state, {[&] { ShowRecipe(state); }, {}}, {[&] { WalkRecipe(BareDatabase(BenchHomes::File())); }, {}},
            "the same, against a bare connect and the two selects");
}

} // namespace

void RegisterRecipe() {
    benchmark::RegisterBenchmark("recipe/selects", AgainstSelects)->UseManualTime()->Iterations(200);
    benchmark::RegisterBenchmark("recipe/connect", AgainstConnectAndSelects)->UseManualTime()->Iterations(200);
}

#include "BareDatabase.h"
#include "BenchHomes.h"
#include "Benchmarks.h"
#include "Comparison.h"
#include "shell/App.h"
#include "shell/MainWindow.h"

#include <memory>
#include <string>

namespace {

const QString statement = QStringLiteral(
    "SELECT D.DrinkID, D.DrinkName, D.IngredientList, D.UserRating, T.DrinkTypeName, G.GlassTypeName FROM Drinks AS D "
    "LEFT JOIN DrinkTypes AS T ON (D.DrinkTypeID = T.DrinkTypeID) LEFT JOIN GlassTypes AS G ON (D.GlassTypeID = "
    "G.GlassTypeID) ORDER BY D.DrinkName");

void Fill(benchmark::State& state) {
    if (!App::Instance().FillDrinkList()) {
        state.SkipWithError("the fill failed");
    }
}

// A new connection has decrypted nothing yet, as that of the program. A kept one has all that it can keep: it tells how
// much of a fill is decryption, which no change of the program's own work can save.
void FillAgainstStatement(benchmark::State& state, int drinks, bool keepConnection, double target) {
    BenchHomes::Use(drinks);
    std::unique_ptr<BareDatabase> bare;
    int found = 0;
    const auto open = [&] {
        if (!bare || !keepConnection) {
            bare = std::make_unique<BareDatabase>(BenchHomes::File());
        }
    };
    Compare(state, {[&] { Fill(state); }}, {[&] { found = bare->Walk(statement); }, open},
            {keepConnection ? "a fill of all columns, against its statement on a connection with all pages decrypted"
                            : "a fill of all columns, against its statement on an open connection",
             target});
    if (MainWindow::Instance().DrinkList.ListCount() != found || found != drinks) {
        state.SkipWithError("the fill did not list what the statement finds");
    }
}

void Growth(benchmark::State& state, int fewDrinks, int manyDrinks) {
    constexpr int fills = 25;
    const auto fillFew = [&] {
        for (int count = 0; count < fills; ++count) {
            Fill(state);
        }
    };
    Compare(state, {[&] { Fill(state); }, [=] { BenchHomes::Use(manyDrinks); }, static_cast<double>(manyDrinks)},
            {fillFew, [=] { BenchHomes::Use(fewDrinks); }, static_cast<double>(fills) * fewDrinks},
            {"a fill's cost per drink in the largest library, against that in one of 1,000", 1.2});
}

} // namespace

void RegisterFill(const BenchPlan& plan) {
    for (const int drinks : plan.Sizes()) {
        const int turns = plan.TurnsFor(drinks);
        const double target = drinks == plan.MiddleSize() ? 1.5 : 0;
        benchmark::RegisterBenchmark(("fill/" + std::to_string(drinks)).c_str(), FillAgainstStatement, drinks, false,
                                     target)
            ->UseManualTime()
            ->Iterations(turns);
        benchmark::RegisterBenchmark(("fill/kept/" + std::to_string(drinks)).c_str(), FillAgainstStatement, drinks,
                                     true, 0.0)
            ->UseManualTime()
            ->Iterations(turns);
    }
    benchmark::RegisterBenchmark("fill/growth", Growth, 1'000, plan.LargestSize())
        ->UseManualTime()
        ->Iterations(plan.Turns(11));
}

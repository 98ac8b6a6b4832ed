#include "BenchHomes.h"
#include "Benchmarks.h"
#include "Comparison.h"
#include "platform/database/Database.h"
#include "store/DatabaseFiles.h"

namespace {

void LaterConnect(benchmark::State& state, int drinks) {
    BenchHomes::Use(drinks);
    const FolderItem file(BenchHomes::File());
    const auto connect = [&] {
        REALSQLDatabase db;
        db.SetDatabaseFile(file);
        db.SetEncryptionKey(DatabaseKey());
        if (!db.Connect()) {
            state.SkipWithError(qPrintable(db.ErrorMessage()));
        }
    };
    CompareWithSeconds(state, {connect}, 0.001, {"a connect after the first, in milliseconds", 1});
}

} // namespace

void RegisterConnect(const BenchPlan& plan) {
    benchmark::RegisterBenchmark("connect", LaterConnect, plan.LargestSize())
        ->UseManualTime()
        ->Iterations(plan.Turns(301));
}

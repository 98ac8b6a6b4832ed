#include "BareDatabase.h"
#include "BenchHomes.h"
#include "Benchmarks.h"
#include "Comparison.h"
#include "platform/database/Database.h"
#include "store/DatabaseFiles.h"

#include <QStringList>

namespace {

constexpr int ticks = 400;

// What a save of the ingredients window executes.
QStringList SaveStatements() {
    QStringList statements = {QStringLiteral("UPDATE Ingredients SET InBar = 0, Empty = 0")};
    for (int id = 1; id <= ticks; ++id) {
        statements.append(QStringLiteral("UPDATE Ingredients SET InBar = 1 WHERE IngredientID = %1").arg(2 * id));
    }
    return statements;
}

void Save(benchmark::State& state, const QStringList& statements) {
    REALSQLDatabase db;
    db.SetDatabaseFile(FolderItem(BenchHomes::File()));
    db.SetEncryptionKey(DatabaseKey());
    bool failed = !db.Connect();
    for (const QString& statement : statements) {
        db.SQLExecute(statement);
        failed = failed || db.Error();
    }
    db.Close();
    if (failed) {
        state.SkipWithError("the save failed");
    }
}

void SaveInOneTransaction(const QStringList& statements) {
    const BareDatabase bare(BenchHomes::File());
    bare.Walk(QStringLiteral("BEGIN"));
    for (const QString& statement : statements) {
        bare.Walk(statement);
    }
    bare.Walk(QStringLiteral("COMMIT"));
}

void SaveTicks(benchmark::State& state, int drinks) {
    BenchHomes::Use(drinks);
    const QStringList statements = SaveStatements();
    Compare(state, {[&] { Save(state, statements); }}, {[&] { SaveInOneTransaction(statements); }},
            {"a save of 400 ticked ingredients, each statement final by itself, against one bare transaction", 4});
}

} // namespace

void RegisterSave(const BenchPlan& plan) {
    benchmark::RegisterBenchmark("save", SaveTicks, plan.MiddleSize())->UseManualTime()->Iterations(plan.Turns(51));
}

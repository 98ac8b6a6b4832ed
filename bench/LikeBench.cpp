#include "BareDatabase.h"
#include "BenchHomes.h"
#include "Benchmarks.h"
#include "Comparison.h"
#include "platform/database/Database.h"
#include "store/DatabaseFiles.h"

namespace {

struct LikeCase {
    const char* name;
    const char* sentence;
    const char* pattern;
};

constexpr LikeCase cases[] = {
    {"like/found", "our LIKE against the engine's own, a word that is often found", "%gin%"},
    {"like/missing", "the same, a word that is never found", "%xyzzy%"},
    {"like/wildcards", "the same, with wildcards inside", "%r_m%f%z%"},
};

// With all pages in memory, so that reading the file does not hide the work of the LIKE.
const QString roomForAll = QStringLiteral("PRAGMA cache_size = -400000");

void Like(benchmark::State& state, const LikeCase& like, int drinks) {
    BenchHomes::Use(drinks);
    const QString statement =
        QStringLiteral("SELECT COUNT(*) FROM Drinks WHERE DrinkName LIKE '%1' OR IngredientList LIKE '%1'")
            .arg(QString::fromLatin1(like.pattern));
    const BareDatabase bare(BenchHomes::File());
    bare.Walk(roomForAll);

    REALSQLDatabase db;
    db.SetDatabaseFile(FolderItem(BenchHomes::File()));
    db.SetEncryptionKey(DatabaseKey());
    if (!db.Connect()) {
        state.SkipWithError(qPrintable(db.ErrorMessage()));
        return;
    }
    db.SQLExecute(roomForAll);
    const auto ours = [&] {
        if (db.SQLSelect(statement).IsNil()) {
            state.SkipWithError(qPrintable(db.ErrorMessage()));
        }
    };
    Compare(state, {ours}, {[&] { bare.Walk(statement); }}, {like.sentence, 1.5});
}

} // namespace

void RegisterLike(const BenchPlan& plan) {
    for (const LikeCase& like : cases) {
        benchmark::RegisterBenchmark(like.name, Like, like, plan.LargestSize())
            ->UseManualTime()
            ->Iterations(plan.Turns(15));
    }
}

#include "BenchHomes.h"
#include "Benchmarks.h"
#include "Comparison.h"
#include "platform/database/Database.h"
#include "store/DatabaseFiles.h"

#include <QTemporaryDir>

#include <memory>

namespace {

constexpr double promise = 0.001;

void Connect(benchmark::State& state, const FolderItem& file) {
    REALSQLDatabase db;
    db.SetDatabaseFile(file);
    db.SetEncryptionKey(DatabaseKey());
    if (!db.Connect()) {
        state.SkipWithError(qPrintable(db.ErrorMessage()));
    }
}

// The key is derived once for each file in a process, so every turn gets a file of its own.
void FirstConnect(benchmark::State& state) {
    const QTemporaryDir folder;
    FolderItem file;
    int number = 0;
    const auto newFile = [&] {
        file = FolderItem(folder.path()).Child(QString::number(++number));
        REALSQLDatabase db;
        db.SetDatabaseFile(file);
        db.SetEncryptionKey(DatabaseKey());
        if (!db.CreateDatabaseFile()) {
            state.SkipWithError(qPrintable(db.ErrorMessage()));
        }
    };
    Compare(state, {[&] { Connect(state, file); }, newFile}, {[&] { Connect(state, file); }, {}},
            "the first connect to a file in a process, against a later one");
}

void LaterConnect(benchmark::State& state) {
    BenchHomes::UseGenerated();
    const FolderItem file(BenchHomes::File());
    Connect(state, file);
    CompareWithSeconds(state, {[&] { Connect(state, file); }, {}}, promise,
                       "a later connect, against the millisecond that it may take (large library)");
}

} // namespace

void RegisterConnect() {
    benchmark::RegisterBenchmark("connect/first", FirstConnect)->UseManualTime()->Iterations(15);
    benchmark::RegisterBenchmark("connect/later", LaterConnect)->UseManualTime()->Iterations(300);
}

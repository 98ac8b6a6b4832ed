#include "BareDatabase.h"

#include "platform/database/RawKey.h"
#include "store/DatabaseFiles.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>

void BareDatabase::Closer::operator()(sqlite3* engine) const {
    sqlite3_close(engine);
}

BareDatabase::BareDatabase(const QString& path) {
    sqlite3* engine = nullptr;
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
    const int code = sqlite3_open_v2(path.toUtf8().constData(), &engine, flags, nullptr);
    engine_.reset(engine);
    if (code != SQLITE_OK) {
        Fail();
    }
    Walk(QStringLiteral("PRAGMA key = \"%1\"").arg(QString::fromLatin1(RawKey(engine, DatabaseKey()))));
    Walk(QStringLiteral("PRAGMA cipher_compatibility = 3"));
    // The program's connections have room for as much.
    Walk(QStringLiteral("PRAGMA cache_size = -65536"));
    Walk(QStringLiteral("SELECT COUNT(*) FROM sqlite_master"));
}

int BareDatabase::Walk(const QString& statement) const {
    int count = 0;
    ForEachRow(statement, [&count](sqlite3_stmt* row) {
        for (int column = 0; column < sqlite3_column_count(row); ++column) {
            benchmark::DoNotOptimize(sqlite3_column_text(row, column));
        }
        ++count;
    });
    return count;
}

std::vector<int> BareDatabase::Numbers(const QString& statement) const {
    std::vector<int> numbers;
    ForEachRow(statement, [&numbers](sqlite3_stmt* row) { numbers.push_back(sqlite3_column_int(row, 0)); });
    return numbers;
}

void BareDatabase::ForEachRow(const QString& statement, const std::function<void(sqlite3_stmt*)>& deed) const {
    sqlite3_stmt* prepared = nullptr;
    if (sqlite3_prepare_v2(engine_.get(), statement.toUtf8().constData(), -1, &prepared, nullptr) != SQLITE_OK) {
        Fail();
    }
    int code = SQLITE_DONE;
    while ((code = sqlite3_step(prepared)) == SQLITE_ROW) {
        deed(prepared);
    }
    if (code != SQLITE_DONE) {
        Fail();
    }
    sqlite3_finalize(prepared);
}

void BareDatabase::Fail() const {
    std::fprintf(stderr, "The engine failed: %s\n", sqlite3_errmsg(engine_.get()));
    std::exit(EXIT_FAILURE);
}

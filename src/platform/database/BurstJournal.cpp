#include "platform/database/BurstJournal.h"

#include <sqlite3.h>
#include <sys/statvfs.h>

#include <cstring>

namespace {

// The way to the log and back costs as much as four statements in the rollback journal, so a lone statement stays
// there. Sooner than at the second a burst cannot be known.
constexpr int statementsBeforeLog = 1;

// The log, which is brought into the file when it has come to 1,000 pages, and its index.
constexpr unsigned long roomForLog = 2UL * 1024 * 1024;

// A file that was switched and has no room for the index cannot even be read.
bool HasRoomForLog(sqlite3* engine) {
    struct statvfs disk {};
    return statvfs(sqlite3_db_filename(engine, "main"), &disk) == 0 && disk.f_bavail * disk.f_frsize >= roomForLog;
}

// What cannot be done now is done at the end of a later connection.
void Try(sqlite3* engine, const char* statement) {
    static_cast<void>(sqlite3_exec(engine, statement, nullptr, nullptr, nullptr));
}

bool UsesLog(sqlite3* engine) {
    bool log = false;
    const auto read = [](void* answer, int /*columns*/, char** values, char** /*names*/) {
        *static_cast<bool*>(answer) = values[0] != nullptr && std::strcmp(values[0], "wal") == 0;
        return 0;
    };
    static_cast<void>(sqlite3_exec(engine, "PRAGMA journal_mode", read, &log, nullptr));
    return log;
}

} // namespace

BurstJournal::BurstJournal(sqlite3* engine, int busyMilliseconds)
    : engine_(engine), busyMilliseconds_(busyMilliseconds) {}

BurstJournal::~BurstJournal() {
    End();
}

void BurstJournal::BeforeWriting() {
    const bool inTransaction = sqlite3_get_autocommit(engine_) == 0;
    if (!inTransaction && statements_++ == statementsBeforeLog && HasRoomForLog(engine_)) {
        Begin();
    }
}

// A switch that cannot be made at once is not worth waiting for. With the log, NORMAL leaves the waiting for the disk
// to the checkpoints; a kill of the process loses nothing by it, because the system has the data by then.
void BurstJournal::Begin() {
    sqlite3_busy_timeout(engine_, 0);
    Try(engine_, "PRAGMA journal_mode = WAL");
    if (UsesLog(engine_)) {
        Try(engine_, "PRAGMA synchronous = NORMAL");
    }
    sqlite3_busy_timeout(engine_, busyMilliseconds_);
}

// Not only for a burst of this connection: one that was killed, or could not end because this connection was open too,
// left its log behind.
void BurstJournal::End() {
    sqlite3_busy_timeout(engine_, 0);
    if (!UsesLog(engine_)) {
        return;
    }
    if (sqlite3_get_autocommit(engine_) == 0) {
        // The engine would do so as it closes, but needs the log until then.
        Try(engine_, "ROLLBACK");
    }
    Try(engine_, "PRAGMA journal_mode = DELETE");
    if (UsesLog(engine_)) {
        // Another connection is open, and the last one to end will switch. This brings the statements onto the disk.
        Try(engine_, "PRAGMA wal_checkpoint");
    }
}

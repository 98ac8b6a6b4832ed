#pragma once

struct sqlite3;

// The journal of one connection. It starts as the engine's default, the rollback journal, in which every statement that
// writes waits for the disk several times. A connection that writes often gets the write-ahead log instead, until it
// ends; then the log is written into the database file, and that is again an ordinary file with no other beside it.
//
// Either way a statement is final when it returns, except that a loss of power can take back the last statements of a
// burst that was not ended yet, whole and latest first. Where another program or connection keeps the file from being
// switched, it stays with the journal that it has. None of this ever fails for the caller, and none of it changes what
// the engine tells of the caller's own statements before the next one runs.
class BurstJournal {
public:
    // The engine must live longer. The milliseconds are how long its statements wait for a file that is held elsewhere.
    BurstJournal(sqlite3* engine, int busyMilliseconds);
    ~BurstJournal();
    BurstJournal(const BurstJournal&) = delete;
    BurstJournal& operator=(const BurstJournal&) = delete;

    // To be called before each statement that writes.
    void BeforeWriting();

private:
    void Begin();
    void End();

    sqlite3* engine_;
    int busyMilliseconds_;
    int statements_ = 0;
};

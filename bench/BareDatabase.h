#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

// The engine itself on an encrypted file, as the measure for what the program adds to it. Every failure ends the
// process with the engine's words.
class BareDatabase {
public:
    // Opens as the program does from its second connection on, with the raw key and for one thread. The page cache is
    // empty then, and as large as the program's, so that a comparison tells what the program's own work costs.
    explicit BareDatabase(const QString& path);

    // Runs one statement, reads every cell of every row, and drops it. The result is the number of rows.
    int Walk(const QString& statement) const;

    // The first column of every row.
    std::vector<int> Numbers(const QString& statement) const;

private:
    struct Closer {
        void operator()(sqlite3* engine) const;
    };

    void ForEachRow(const QString& statement, const std::function<void(sqlite3_stmt* row)>& deed) const;
    [[noreturn]] void Fail() const;

    std::unique_ptr<sqlite3, Closer> engine_;
};

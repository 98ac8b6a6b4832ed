#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

struct RecordRows;
struct sqlite3;
struct sqlite3_stmt;

// One prepared statement. Every failure is an EngineFailure.
class Statement {
public:
    // Fails, and nothing has run, when the text holds no statement or more than one.
    Statement(sqlite3* engine, const QByteArray& text);

    // Gives the parameter with this number, from 1 on, a text. The text must live as long as the statement.
    void Bind(int parameter, const QByteArray& text);

    // Whether running it may change the file.
    [[nodiscard]] bool Writes() const;

    // Runs the statement to its end and drops its rows, if any.
    void Run();

    // Runs the statement to its end and reads all rows. All locks that the statement took are free again when the
    // statement goes.
    std::shared_ptr<const RecordRows> ReadAll();

private:
    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const;
    };

    [[nodiscard]] bool Step();
    void ReadRow(RecordRows& rows) const;

    sqlite3* engine_;
    std::unique_ptr<sqlite3_stmt, Finalizer> statement_;
};

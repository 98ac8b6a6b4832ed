#pragma once

#include <QString>

#include <exception>

struct sqlite3;

// A failure of the database engine, with its words. It never leaves this folder: the database object turns it into
// `Error` and `ErrorMessage`.
class EngineFailure : public std::exception {
public:
    explicit EngineFailure(QString words);

    // The engine's words for the last failure of `engine`.
    explicit EngineFailure(sqlite3* engine);

    // The engine's words for one of its result codes.
    explicit EngineFailure(int code);

    QString Words() const;

private:
    QString words_;
};

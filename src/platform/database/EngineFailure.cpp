#include "platform/database/EngineFailure.h"

#include <sqlite3.h>

#include <utility>

EngineFailure::EngineFailure(QString words) : words_(std::move(words)) {}

EngineFailure::EngineFailure(sqlite3* engine) : words_(QString::fromUtf8(sqlite3_errmsg(engine))) {}

EngineFailure::EngineFailure(int code) : words_(QString::fromUtf8(sqlite3_errstr(code))) {}

QString EngineFailure::Words() const {
    return words_;
}

#include "platform/database/Statement.h"

#include "platform/database/EngineFailure.h"
#include "platform/database/RecordRows.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstring>
#include <string_view>

namespace {

std::string_view WithoutFront(std::string_view text, std::size_t count) {
    return text.substr(std::min(count, text.size()));
}

// What is left of a text without the white space and comments at its front.
std::string_view SkipBlanksAndComments(std::string_view text) {
    for (;;) {
        if (text.starts_with("--")) {
            text = WithoutFront(text, text.find('\n'));
        } else if (text.starts_with("/*")) {
            const std::size_t end = text.find("*/", 2);
            text = end == std::string_view::npos ? std::string_view() : text.substr(end + 2);
        } else if (!text.empty() && std::strchr(" \t\n\f\r", text.front()) != nullptr) {
            text.remove_prefix(1);
        } else {
            return text;
        }
    }
}

} // namespace

void Statement::Finalizer::operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
}

Statement::Statement(sqlite3* engine, const QByteArray& text) : engine_(engine) {
    // The engine stops reading at a zero byte and would take the text before it for the whole statement.
    if (text.contains('\0')) {
        throw EngineFailure(QStringLiteral("unrecognized token: zero byte"));
    }
    sqlite3_stmt* prepared = nullptr;
    const char* tail = nullptr;
    const int code = sqlite3_prepare_v2(engine, text.constData(), int(text.size()), &prepared, &tail);
    statement_.reset(prepared);
    if (code != SQLITE_OK) {
        throw EngineFailure(engine);
    }
    if (!statement_) {
        throw EngineFailure(QStringLiteral("there is no statement"));
    }
    const std::string_view rest(tail, std::size_t(text.constData() + text.size() - tail));
    if (!SkipBlanksAndComments(rest).empty()) {
        throw EngineFailure(QStringLiteral("you can only execute one statement at a time"));
    }
}

void Statement::Bind(int parameter, const QByteArray& text) {
    const int code = sqlite3_bind_text(statement_.get(), parameter, text.constData(), int(text.size()), SQLITE_STATIC);
    if (code != SQLITE_OK) {
        throw EngineFailure(engine_);
    }
}

bool Statement::Writes() const {
    return sqlite3_stmt_readonly(statement_.get()) == 0;
}

void Statement::Run() {
    while (Step()) {
    }
}

std::shared_ptr<const RecordRows> Statement::ReadAll() {
    auto rows = std::make_shared<RecordRows>();
    const int width = sqlite3_column_count(statement_.get());
    for (int column = 0; column < width; ++column) {
        rows->names.emplace_back(sqlite3_column_name(statement_.get(), column));
    }
    rows->IndexNames();
    while (Step()) {
        ReadRow(*rows);
    }
    return rows;
}

bool Statement::Step() {
    const int code = sqlite3_step(statement_.get());
    if (code != SQLITE_ROW && code != SQLITE_DONE) {
        throw EngineFailure(engine_);
    }
    return code == SQLITE_ROW;
}

// The values are asked directly: the functions for a column look each of them up, and take a lock, at every call. That
// is allowed where no other thread uses the connection.
void Statement::ReadRow(RecordRows& rows) const {
    const int width = sqlite3_data_count(statement_.get());
    for (int column = 0; column < width; ++column) {
        sqlite3_value* value = sqlite3_column_value(statement_.get(), column);
        switch (sqlite3_value_type(value)) {
            case SQLITE_NULL:
                rows.AddNull();
                break;
            case SQLITE_INTEGER:
                rows.AddNumber(sqlite3_value_int64(value));
                break;
            default:
                // The text is asked for before its length, because the engine may convert it only then.
                const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
                rows.AddText({text != nullptr ? text : "", std::size_t(sqlite3_value_bytes(value))});
        }
    }
    ++rows.count;
}

#include "platform/database/LikeFunction.h"

#include "platform/database/EngineFailure.h"
#include "platform/database/FoldedText.h"
#include "platform/database/LikePattern.h"

#include <sqlite3.h>

#include <memory>
#include <new>
#include <optional>

namespace {

std::string_view TextOf(sqlite3_value* value) {
    // The text is asked for before its length, because the engine may convert it only then.
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return {text != nullptr ? text : "", std::size_t(sqlite3_value_bytes(value))};
}

// Nothing when the text is not exactly one character.
std::optional<char32_t> EscapeOf(sqlite3_value* value) {
    std::string_view text = TextOf(value);
    if (text.empty()) {
        return std::nullopt;
    }
    const char32_t escape = TakeCharacter(text);
    return text.empty() ? std::optional(escape) : std::nullopt;
}

void DeletePattern(void* pattern) {
    delete static_cast<LikePattern*>(pattern);
}

// Keeps the pattern with the statement, so that it is read once and not once a row.
bool Matches(sqlite3_context* context, sqlite3_value* pattern, char32_t escape, std::string_view text) {
    auto* kept = static_cast<LikePattern*>(sqlite3_get_auxdata(context, 0));
    if (kept != nullptr && kept->Escape() == escape) {
        return kept->Matches(text);
    }
    auto fresh = std::make_unique<LikePattern>(TextOf(pattern), escape);
    const bool matches = fresh->Matches(text);
    sqlite3_set_auxdata(context, 0, fresh.release(), DeletePattern);
    return matches;
}

// The engine calls like(pattern, text[, escape]).
void Like(sqlite3_context* context, int count, sqlite3_value** values) {
    for (int place = 0; place < count; ++place) {
        if (sqlite3_value_type(values[place]) == SQLITE_NULL) {
            return;
        }
    }
    const std::optional<char32_t> escape = count < 3 ? LikePattern::NoEscape : EscapeOf(values[2]);
    if (!escape) {
        sqlite3_result_error(context, "ESCAPE expression must be a single character", -1);
        return;
    }
    // No C++ exception may cross the frames of the engine.
    try {
        sqlite3_result_int(context, Matches(context, values[0], *escape, TextOf(values[1])) ? 1 : 0);
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(context);
    }
}

} // namespace

void InstallLike(sqlite3* engine) {
    for (const int count : {2, 3}) {
        if (sqlite3_create_function_v2(engine, "like", count, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, Like,
                                       nullptr, nullptr, nullptr) != SQLITE_OK) {
            throw EngineFailure(engine);
        }
    }
}

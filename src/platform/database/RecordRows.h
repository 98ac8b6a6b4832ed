#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The rows of a select, kept small: 16 bytes a value, and all texts in one block as UTF-8. A text becomes a QString
// only when it is asked for.
struct RecordRows {
    static constexpr std::size_t NoColumn = static_cast<std::size_t>(-1);

    struct Cell {
        enum class Kind : std::uint32_t { Null, Number, Text };

        Kind kind;
        std::uint32_t length; // of a text, in bytes
        std::int64_t value;   // the number, or where the text begins in `texts`
    };

    std::vector<QByteArray> names; // of the columns, as the engine gives them
    std::vector<Cell> cells;       // row after row
    std::string texts;
    std::size_t count = 0; // of rows; a statement without columns has none

    void AddNull();
    void AddNumber(std::int64_t number);
    void AddText(std::string_view text);

    std::string_view Text(const Cell& cell) const;

    // The first column of that name, ignoring case and an alias in front of either name; NoColumn when there is none.
    // The search begins at `hint`: a loop over rows asks for the same names in the same order.
    std::size_t FindColumn(std::string_view name, std::size_t hint) const;

    // Prepares `FindColumn` once `names` is complete.
    void IndexNames();

private:
    std::vector<std::string_view> bareNames_; // empty for a name that an earlier column has already
};

#pragma once

#include <QLatin1String>
#include <QString>

#include <cstddef>
#include <memory>
#include <string>

struct RecordRows;

// One value of one row. It stays readable after its record set moves on, is closed or is gone.
class DatabaseField {
public:
    DatabaseField(std::shared_ptr<const RecordRows> rows, std::size_t cell);

    bool IsNull() const;

    // The value as text; a NULL is the empty text. A number reads as the engine writes it.
    QString StringValue() const;

    // Appends the same text in UTF-8.
    void AppendUtf8(std::string& text) const;

    // The value as an integer by the rules of `CLong`; a NULL is 0. A number beyond 32 bits gives the nearest.
    int IntegerValue() const;

    // True when the value as an integer is not 0; a NULL is false.
    bool BooleanValue() const;

private:
    std::shared_ptr<const RecordRows> rows_;
    std::size_t cell_;
};

// The result of a select, with a place in it. It is a snapshot: all rows were read before the select returned, no lock
// is held for it, and later writes do not show. It outlives its connection.
//
// Copies are handles on one and the same result and share its place. A default-constructed one is nil, as a failed
// select returns it; any use of a nil record set but `IsNil`, copying and assigning throws NilObjectException.
class RecordSet {
public:
    RecordSet() = default;
    explicit RecordSet(std::shared_ptr<const RecordRows> rows);

    bool IsNil() const;

    // True when there is no current row: behind the last one, or no row at all. It starts on the first row. (The name
    // is not in capitals because the C library keeps EOF as a macro.) A closed record set answers as it did when it
    // was closed.
    bool Eof() const;

    // Goes to the next row. At the end it stays there. On a closed record set: RuntimeException.
    void MoveNext();

    // The number of rows of the result, wherever the place is; known after `Close` too.
    int RecordCount() const;

    // The value of the current row under this column name. Case does not matter, and neither does an alias in front
    // of the name: "DrinkName" and "D.DrinkName" find the same column. Of columns with one name the first
    // counts. An unknown name throws KeyNotFoundException; no current row, or a closed set, RuntimeException.
    DatabaseField Field(const char* name) const;
    DatabaseField Field(QLatin1String name) const;

    // Lets go of the rows. Closing twice does nothing.
    void Close();

private:
    struct State;
    State& Checked() const;

    std::shared_ptr<State> state_;
};

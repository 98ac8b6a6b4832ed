#include "platform/database/RecordSet.h"

#include "platform/base/Exceptions.h"
#include "platform/base/Text.h"
#include "platform/database/RecordRows.h"

#include <algorithm>
#include <limits>
#include <string_view>
#include <utility>

struct RecordSet::State {
    std::shared_ptr<const RecordRows> rows; // null when closed
    std::size_t count = 0;
    std::size_t row = 0;
    std::size_t likelyColumn = 0;

    void CheckOpen() const {
        if (!rows) {
            throw RuntimeException(QStringLiteral("The record set is closed"));
        }
    }

    DatabaseField Field(std::string_view name) {
        CheckOpen();
        if (row >= count) {
            throw RuntimeException(QStringLiteral("The record set has no current record"));
        }
        const std::size_t column = rows->FindColumn(name, likelyColumn);
        if (column == RecordRows::NoColumn) {
            throw KeyNotFoundException(QStringLiteral("The record set has no field \"%1\"")
                                           .arg(QString::fromUtf8(name.data(), qsizetype(name.size()))));
        }
        likelyColumn = column + 1;
        return {rows, row * rows->names.size() + column};
    }
};

DatabaseField::DatabaseField(std::shared_ptr<const RecordRows> rows, std::size_t cell)
    : rows_(std::move(rows)), cell_(cell) {}

bool DatabaseField::IsNull() const {
    return rows_->cells[cell_].kind == RecordRows::Cell::Kind::Null;
}

QString DatabaseField::StringValue() const {
    const RecordRows::Cell& cell = rows_->cells[cell_];
    switch (cell.kind) {
        case RecordRows::Cell::Kind::Null:
            return {};
        case RecordRows::Cell::Kind::Number:
            return QString::number(qlonglong(cell.value));
        case RecordRows::Cell::Kind::Text:
            break;
    }
    const std::string_view text = rows_->Text(cell);
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

void DatabaseField::AppendUtf8(std::string& text) const {
    const RecordRows::Cell& cell = rows_->cells[cell_];
    if (cell.kind == RecordRows::Cell::Kind::Text) {
        text.append(rows_->Text(cell));
    } else if (cell.kind == RecordRows::Cell::Kind::Number) {
        text.append(std::to_string(cell.value));
    }
}

int DatabaseField::IntegerValue() const {
    const RecordRows::Cell& cell = rows_->cells[cell_];
    if (cell.kind == RecordRows::Cell::Kind::Number) {
        return int(
            std::clamp<std::int64_t>(cell.value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
    }
    return CLong(StringValue());
}

bool DatabaseField::BooleanValue() const {
    return IntegerValue() != 0;
}

RecordSet::RecordSet(std::shared_ptr<const RecordRows> rows) : state_(std::make_shared<State>()) {
    state_->count = rows->count;
    state_->rows = std::move(rows);
}

bool RecordSet::IsNil() const {
    return !state_;
}

bool RecordSet::Eof() const {
    return Checked().row >= Checked().count;
}

void RecordSet::MoveNext() {
    State& state = Checked();
    state.CheckOpen();
    state.row = std::min(state.row + 1, state.count);
}

int RecordSet::RecordCount() const {
    return int(Checked().count);
}

DatabaseField RecordSet::Field(const char* name) const {
    return Checked().Field(name);
}

DatabaseField RecordSet::Field(QLatin1String name) const {
    return Checked().Field({name.data(), std::size_t(name.size())});
}

void RecordSet::Close() {
    Checked().rows.reset();
}

RecordSet::State& RecordSet::Checked() const {
    if (!state_) {
        throw NilObjectException(QStringLiteral("There is no record set"));
    }
    return *state_;
}

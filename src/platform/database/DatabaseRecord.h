#pragma once

#include <QString>

#include <utility>
#include <vector>

// The columns of a row to be inserted, each given as text; the declared type of the column decides what is stored. A
// column that is never set stays NULL (or gets the table's default).
class DatabaseRecord {
public:
    // A second value for a column replaces the first.
    void SetColumn(const QString& name, const QString& value);

    // Names and values in the order in which they were set.
    const std::vector<std::pair<QString, QString>>& Columns() const;

private:
    std::vector<std::pair<QString, QString>> columns_;
};

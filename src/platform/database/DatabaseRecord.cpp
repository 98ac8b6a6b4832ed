#include "platform/database/DatabaseRecord.h"

#include <algorithm>

void DatabaseRecord::SetColumn(const QString& name, const QString& value) {
    const auto known = std::find_if(columns_.begin(), columns_.end(), [&name](const auto& column) {
        return column.first.compare(name, Qt::CaseInsensitive) == 0;
    });
    if (known == columns_.end()) {
        columns_.emplace_back(name, value);
    } else {
        known->second = value;
    }
}

const std::vector<std::pair<QString, QString>>& DatabaseRecord::Columns() const {
    return columns_;
}

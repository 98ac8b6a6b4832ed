#include "platform/ui/ColumnWidths.h"

#include <QStringList>

#include <algorithm>
#include <numeric>

namespace {

constexpr int takesRest = -1;

int FixedWidth(const QString& part, int totalWidth) {
    if (part == QLatin1String("*")) {
        return takesRest;
    }
    if (part.endsWith(QLatin1Char('%'))) {
        return totalWidth * part.chopped(1).toInt() / 100;
    }
    return std::max(0, part.toInt());
}

} // namespace

std::vector<int> ColumnWidths(const QString& text, int columnCount, int totalWidth) {
    const QStringList parts = text.isEmpty() ? QStringList() : text.split(QLatin1Char(','));
    const int unnamed = text.contains(QLatin1Char('*')) ? 0 : takesRest;
    std::vector<int> widths;
    widths.reserve(static_cast<std::size_t>(columnCount));
    for (int column = 0; column < columnCount; ++column) {
        widths.push_back(column < parts.size() ? FixedWidth(parts[column].trimmed(), totalWidth) : unnamed);
    }

    int open = static_cast<int>(std::count(widths.begin(), widths.end(), takesRest));
    int rest = totalWidth - std::accumulate(widths.begin(), widths.end(), open);
    for (int& width : widths) {
        if (width == takesRest) {
            width = std::max(0, rest / open);
            rest -= width;
            --open;
        }
    }
    return widths;
}

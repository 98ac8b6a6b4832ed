#include "platform/ui/ListSorting.h"

#include "platform/ui/Events.h"
#include "platform/ui/ListModel.h"

#include <QCollator>
#include <QLocale>

#include <memory>
#include <vector>

namespace {

// A machine without a language setting would sort by code, capitals first.
QLocale SortingLocale() {
    const QLocale locale = QLocale::system();
    return locale.language() == QLocale::C ? QLocale(QLocale::English) : locale;
}

// Making a key for each row once is far cheaper than collating at each comparison.
std::shared_ptr<const std::vector<QCollatorSortKey>> SortKeys(const ListModel& model, int column) {
    QCollator collator(SortingLocale());
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    auto keys = std::make_shared<std::vector<QCollatorSortKey>>();
    keys->reserve(static_cast<std::size_t>(model.RowCount()));
    for (int row = 0; row < model.RowCount(); ++row) {
        keys->push_back(collator.sortKey(model.Text(row, column)));
    }
    return keys;
}

} // namespace

std::function<bool(int row1, int row2)> RowOrder(const Listbox& list, const ListModel& model, int column,
                                                 Qt::SortOrder order) {
    int result = 0;
    const bool own = list.CompareRows && model.RowCount() > 0 && events::Raise(list.CompareRows, 0, 0, column, result);
    if (own) {
        return [&list, column, order](int row1, int row2) {
            int compared = 0;
            events::Raise(list.CompareRows, row1, row2, column, compared);
            return order == Qt::AscendingOrder ? compared < 0 : compared > 0;
        };
    }
    return [keys = SortKeys(model, column), order](int row1, int row2) {
        const QCollatorSortKey& key1 = (*keys)[static_cast<std::size_t>(row1)];
        const QCollatorSortKey& key2 = (*keys)[static_cast<std::size_t>(row2)];
        return order == Qt::AscendingOrder ? key1 < key2 : key2 < key1;
    };
}

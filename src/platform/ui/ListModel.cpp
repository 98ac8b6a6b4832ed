#include "platform/ui/ListModel.h"

#include "platform/ui/Picture.h"

#include <algorithm>
#include <numeric>

ListModel::ListModel() = default;

void ListModel::Append(const QString& text) {
    rows_.push_back(MakeRow(text));
}

// Among rows that the view does not know yet there is nothing to tell, so that a list that is filled in any order costs
// one notification too.
void ListModel::Insert(int row, const QString& text) {
    const bool known = row < announced_;
    if (known) {
        beginInsertRows({}, row, row);
        ++announced_;
    }
    rows_.insert(rows_.begin() + row, MakeRow(text));
    if (known) {
        endInsertRows();
    }
}

void ListModel::Remove(int row) {
    beginRemoveRows({}, row, row);
    rows_.erase(rows_.begin() + row);
    --announced_;
    endRemoveRows();
}

void ListModel::Clear() {
    if (rows_.empty()) {
        return;
    }
    beginResetModel();
    rows_.clear();
    announced_ = 0;
    endResetModel();
}

void ListModel::Announce() {
    if (HasUnannounced()) {
        beginInsertRows({}, announced_, RowCount() - 1);
        announced_ = RowCount();
        endInsertRows();
    }
}

QString ListModel::Text(int row, int column) const {
    const std::vector<QString>& cells = rows_[static_cast<std::size_t>(row)].cells;
    const auto place = static_cast<std::size_t>(column);
    return place < cells.size() ? cells[place] : QString();
}

void ListModel::SetText(int row, int column, const QString& text) {
    std::vector<QString>& cells = rows_[static_cast<std::size_t>(row)].cells;
    const auto place = static_cast<std::size_t>(column);
    if (place >= cells.size()) {
        cells.resize(place + 1);
    }
    if (cells[place] != text) {
        cells[place] = text;
        CellChanged(row, column);
    }
}

bool ListModel::Check(int row, int column) const {
    const std::vector<bool>& checks = rows_[static_cast<std::size_t>(row)].checks;
    const auto place = static_cast<std::size_t>(column);
    return place < checks.size() && checks[place];
}

void ListModel::SetCheck(int row, int column, bool checked) {
    if (checked == Check(row, column)) {
        return;
    }
    std::vector<bool>& checks = rows_[static_cast<std::size_t>(row)].checks;
    const auto place = static_cast<std::size_t>(column);
    checks.resize(std::max(checks.size(), place + 1));
    checks[place] = checked;
    CellChanged(row, column);
}

// Paint events may make the other cells of the row follow the picture. They are told one by one, because a view paints
// all its rows again for more than one.
void ListModel::SetRowPicture(int row, const Picture* picture) {
    Row& changed = rows_[static_cast<std::size_t>(row)];
    if (changed.picture != picture) {
        changed.picture = picture;
        for (int column = 0; column < columnCount_; ++column) {
            CellChanged(row, column);
        }
    }
}

void ListModel::SetColumnCount(int count) {
    if (count == columnCount_) {
        return;
    }
    if (count > columnCount_) {
        beginInsertColumns({}, columnCount_, count - 1);
        columnCount_ = count;
        endInsertColumns();
    } else {
        beginRemoveColumns({}, count, columnCount_ - 1);
        columnCount_ = count;
        endRemoveColumns();
    }
}

QString ListModel::Heading(int column) const {
    const auto place = static_cast<std::size_t>(column);
    return place < columns_.size() ? columns_[place].heading : QString();
}

void ListModel::SetHeading(int column, const QString& text) {
    Column& changed = ColumnAt(column);
    if (changed.heading != text) {
        changed.heading = text;
        Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
    }
}

ColumnType ListModel::Type(int column) const {
    const auto place = static_cast<std::size_t>(column);
    return place < columns_.size() ? columns_[place].type : ColumnType::Default;
}

void ListModel::SetType(int column, ColumnType type) {
    ColumnAt(column).type = type;
}

TextAlignment ListModel::Alignment(int column) const {
    const auto place = static_cast<std::size_t>(column);
    return place < columns_.size() ? columns_[place].alignment : TextAlignment::Left;
}

void ListModel::SetAlignment(int column, TextAlignment alignment) {
    ColumnAt(column).alignment = alignment;
}

QString ListModel::MaxWidthExpression(int column) const {
    const auto place = static_cast<std::size_t>(column);
    return place < columns_.size() ? columns_[place].maxWidthExpression : QString();
}

void ListModel::Sort(const std::function<bool(int row1, int row2)>& isBefore) {
    std::vector<int> order(rows_.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), isBefore);

    Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    std::vector<Row> sorted;
    sorted.reserve(rows_.size());
    std::vector<int> newPlace(rows_.size());
    for (const int row : order) {
        newPlace[static_cast<std::size_t>(row)] = static_cast<int>(sorted.size());
        sorted.push_back(std::move(rows_[static_cast<std::size_t>(row)]));
    }
    rows_ = std::move(sorted);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    for (const QModelIndex& old : before) {
        after.append(index(newPlace[static_cast<std::size_t>(old.row())], old.column()));
    }
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

int ListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : announced_;
}

int ListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columnCount_;
}

// The picture of a row has words for a screen reader; on the screen it is drawn by ListPainter.
QVariant ListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= RowCount()) {
        return {};
    }
    if (role == Qt::CheckStateRole) {
        return Type(index.column()) == ColumnType::CheckBox
                   ? QVariant(Check(index.row(), index.column()) ? Qt::Checked : Qt::Unchecked)
                   : QVariant();
    }
    const QString text = Text(index.row(), index.column());
    if (role == Qt::AccessibleTextRole && text.isEmpty() && Type(index.column()) == ColumnType::CheckBox) {
        return BoxName(index.row());
    }
    if (role == Qt::AccessibleTextRole && index.column() == 0) {
        const Picture* picture = RowPicture(index.row());
        const QString words = picture == nullptr ? QString() : picture->Description();
        return text.isEmpty() || words.isEmpty() ? words + text : words + QStringLiteral(", ") + text;
    }
    if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole) {
        return text;
    }
    return {};
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return Heading(section);
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    }
    return {};
}

// Blanks are how a list indents its rows.
QModelIndexList ListModel::match(const QModelIndex& start, int /*role*/, const QVariant& value, int /*hits*/,
                                 Qt::MatchFlags /*flags*/) const {
    const QString sought = value.toString();
    for (int step = 0; step < announced_; ++step) {
        const int row = (start.row() + step) % announced_;
        if (Text(row, start.column()).trimmed().startsWith(sought, Qt::CaseInsensitive)) {
            return {index(row, start.column())};
        }
    }
    return {};
}

Qt::ItemFlags ListModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    const Qt::ItemFlags all =
        Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
    return Type(index.column()) == ColumnType::CheckBox ? all | Qt::ItemIsUserCheckable : all;
}

QString ListModel::BoxName(int row) const {
    for (const QString& text : rows_[static_cast<std::size_t>(row)].cells) {
        if (!text.isEmpty()) {
            return text.trimmed();
        }
    }
    return {};
}

ListModel::Row ListModel::MakeRow(const QString& text) const {
    Row row;
    row.cells.resize(static_cast<std::size_t>(columnCount_));
    row.cells[0] = text;
    return row;
}

void ListModel::CellChanged(int row, int column) {
    if (row < announced_ && column < columnCount_) {
        const QModelIndex changed = index(row, column);
        Q_EMIT dataChanged(changed, changed);
    }
}

ListModel::Column& ListModel::ColumnAt(int column) {
    const auto place = static_cast<std::size_t>(column);
    if (place >= columns_.size()) {
        columns_.resize(place + 1);
    }
    return columns_[place];
}

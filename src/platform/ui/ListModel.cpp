#include "platform/ui/ListModel.h"

#include "platform/database/RecordSet.h"
#include "platform/ui/Picture.h"

#include <QByteArray>

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
    const bool hadRows = !rows_.empty();
    if (hadRows) {
        beginResetModel();
    }
    // The blocks keep their memory: a list that is cleared is filled again.
    rows_.clear();
    cells_.clear();
    texts_.clear();
    announced_ = 0;
    if (hadRows) {
        endResetModel();
    }
}

void ListModel::Announce() {
    if (HasUnannounced()) {
        beginInsertRows({}, announced_, RowCount() - 1);
        announced_ = RowCount();
        endInsertRows();
    }
}

QString ListModel::Text(int row, int column) const {
    const Cell* cell = FindCell(row, column);
    if (cell == nullptr) {
        return {};
    }
    const std::string_view text = TextOf(*cell);
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

void ListModel::SetText(int row, int column, const QString& text) {
    const std::size_t begin = texts_.size();
    const QByteArray bytes = text.toUtf8();
    texts_.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    TakeAppended(row, column, begin);
}

void ListModel::SetText(int row, int column, const DatabaseField& field) {
    const std::size_t begin = texts_.size();
    field.AppendUtf8(texts_);
    TakeAppended(row, column, begin);
}

// A text that fits where the old one stands goes there, so that cells that change often take no more memory.
void ListModel::TakeAppended(int row, int column, std::size_t begin) {
    Cell& cell = MakeCell(row, column);
    const std::size_t length = texts_.size() - begin;
    const std::string_view text = std::string_view(texts_).substr(begin);
    if (text == TextOf(cell)) {
        texts_.resize(begin);
        return;
    }
    if (length <= cell.length) {
        texts_.replace(cell.begin, length, texts_, begin, length);
        texts_.resize(begin);
    } else {
        cell.begin = begin;
    }
    cell.length = static_cast<unsigned>(length);
    CellChanged(row, column);
}

bool ListModel::Check(int row, int column) const {
    const Cell* cell = FindCell(row, column);
    return cell != nullptr && cell->checked;
}

void ListModel::SetCheck(int row, int column, bool checked) {
    if (checked != Check(row, column)) {
        MakeCell(row, column).checked = checked;
        CellChanged(row, column);
    }
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
        sorted.push_back(rows_[static_cast<std::size_t>(row)]);
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
    for (int column = 0; column < columnCount_; ++column) {
        if (QString text = Text(row, column).trimmed(); !text.isEmpty()) {
            return text;
        }
    }
    return {};
}

ListModel::Row ListModel::MakeRow(const QString& text) {
    Row row;
    row.firstCell = cells_.size();
    row.cellCount = columnCount_;
    cells_.resize(cells_.size() + static_cast<std::size_t>(columnCount_));
    if (!text.isEmpty()) {
        const QByteArray bytes = text.toUtf8();
        cells_[row.firstCell].begin = texts_.size();
        cells_[row.firstCell].length = static_cast<unsigned>(bytes.size());
        texts_.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    }
    return row;
}

const ListModel::Cell* ListModel::FindCell(int row, int column) const {
    const Row& found = rows_[static_cast<std::size_t>(row)];
    return column < found.cellCount ? &cells_[found.firstCell + static_cast<std::size_t>(column)] : nullptr;
}

ListModel::Cell& ListModel::MakeCell(int row, int column) {
    Row& grown = rows_[static_cast<std::size_t>(row)];
    if (column >= grown.cellCount) {
        // The cells of a row stand side by side, so they move to where there is room for more.
        const std::size_t moved = cells_.size();
        cells_.resize(moved + static_cast<std::size_t>(column) + 1);
        for (int place = 0; place < grown.cellCount; ++place) {
            cells_[moved + static_cast<std::size_t>(place)] = cells_[grown.firstCell + static_cast<std::size_t>(place)];
        }
        grown.firstCell = moved;
        grown.cellCount = column + 1;
    }
    return cells_[grown.firstCell + static_cast<std::size_t>(column)];
}

std::string_view ListModel::TextOf(const Cell& cell) const {
    return std::string_view(texts_).substr(cell.begin, cell.length);
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

#include "platform/ui/ListView.h"

#include "platform/ui/ColumnWidths.h"
#include "platform/ui/Events.h"
#include "platform/ui/ListModel.h"
#include "platform/ui/ListPainter.h"
#include "platform/ui/ListSorting.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int headingHeight = 22;

void PrepareHeaders(QHeaderView& rows, QHeaderView& columns) {
    rows.hide();
    rows.setSectionResizeMode(QHeaderView::Fixed);
    rows.setMinimumSectionSize(1);
    columns.setSectionResizeMode(QHeaderView::Fixed);
    columns.setMinimumSectionSize(0);
    columns.setFixedHeight(headingHeight);
    columns.setHighlightSections(false);
    columns.setSectionsClickable(false);
    columns.hide();
}

} // namespace

ListView::ListView(Listbox& list, ListModel& model)
    : list_(list), model_(model), painter_(new ListPainter(list, model, this)), editor_(list, model, *this) {
    setModel(&model);
    setItemDelegate(painter_);
    PrepareHeaders(*verticalHeader(), *horizontalHeader());
    setFrameShape(QFrame::NoFrame);
    setShowGrid(false);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setDropIndicatorShown(false);
    SetRowHeight(0);
    // Qt's own item drops are not used, and the move cursor would promise what does not happen.
    setDefaultDropAction(Qt::CopyAction);
    // Without a row in either set, Qt tells only that selected rows will get other numbers.
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this](const QItemSelection& selected, const QItemSelection& deselected) {
                if (!selected.isEmpty() || !deselected.isEmpty()) {
                    events::Raise(list_.Change);
                }
            });
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int column) { SortBy(column); });
}

void ListView::SetColumnWidths(const QString& widths) {
    columnWidths_ = widths;
    FitColumns();
}

void ListView::FitColumns() {
    const std::vector<int> widths = ColumnWidths(columnWidths_, model_.ColumnCount(), viewport()->width());
    for (std::size_t column = 0; column < widths.size(); ++column) {
        setColumnWidth(static_cast<int>(column), widths[column]);
    }
    editor_.FollowCell();
}

void ListView::SetRowHeight(int height) {
    const int rowHeight = height > 0 ? height : fontMetrics().height() + 4;
    if (verticalHeader()->defaultSectionSize() != rowHeight) {
        verticalHeader()->setDefaultSectionSize(rowHeight);
        // The wheel and the arrows of the scroll bar move by whole rows.
        verticalScrollBar()->setSingleStep(rowHeight);
    }
}

int ListView::RowHeight() const {
    return verticalHeader()->defaultSectionSize();
}

int ListView::FirstSelectedRow() const {
    int first = -1;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        first = first < 0 ? range.top() : std::min(first, range.top());
    }
    return first;
}

int ListView::SelectedCount() const {
    int count = 0;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        count += range.height();
    }
    return count;
}

bool ListView::IsRowSelected(int row) const {
    const QItemSelection& selection = selectionModel()->selection();
    return std::any_of(selection.begin(), selection.end(),
                       [row](const QItemSelectionRange& range) { return range.top() <= row && row <= range.bottom(); });
}

// The list stays where it is scrolled to: only the user's own keys bring the current row into view.
void ListView::SelectOnly(int row) {
    const bool scrolls = hasAutoScroll();
    setAutoScroll(false);
    selectionModel()->setCurrentIndex(model_.index(row, std::max(0, currentIndex().column())),
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    setAutoScroll(scrolls);
}

void ListView::SelectNone() {
    selectionModel()->clearSelection();
    selectionModel()->clearCurrentIndex();
}

// Qt would select a neighbour of the row that goes.
void ListView::LetGoOf(int row) {
    if (currentIndex().row() == row) {
        selectionModel()->clearCurrentIndex();
    }
    if (IsRowSelected(row)) {
        selectionModel()->select(model_.index(row, 0), QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
    }
}

void ListView::SetHeadingsSort(bool sort) {
    horizontalHeader()->setSectionsClickable(sort);
}

void ListView::ForgetSorting() {
    sortedColumn_ = -1;
    horizontalHeader()->setSortIndicatorShown(false);
}

void ListView::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    PaintEmptyRows();
    if (MarksCurrentRow()) {
        PaintRowMark();
    }
    PaintGridLines();
    if (focusRing_ && hasFocus()) {
        PaintFocusRing();
    }
}

void ListView::PaintEmptyRows() {
    const int bottom = viewport()->height();
    const int height = RowHeight();
    int row = model_.rowCount();
    int top = row == 0 ? 0 : rowViewportPosition(row - 1) + height;
    if (top >= bottom) {
        return;
    }
    QPainter painter(viewport());
    for (; top < bottom; top += height, ++row) {
        for (int column = 0; column < model_.ColumnCount(); ++column) {
            painter_->PaintEmpty(painter, QRect(columnViewportPosition(column), top, columnWidth(column), height), row,
                                 column);
        }
    }
}

void ListView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    FitColumns();
}

void ListView::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    if (focusRing_ && hasFocus()) {
        // Qt moves what is painted, and the ring with it.
        viewport()->update();
    }
    editor_.FollowCell();
}

bool ListView::TakePress(QMouseEvent* event) {
    const QPoint place = event->position().toPoint();
    const QPoint inList = InList(place);
    if (event->button() != Qt::LeftButton) {
        return false;
    }
    pressedCheck_ = QModelIndex();
    SetKeyboardUsed(false);
    if (events::Raise(list_.MouseDown, inList.x(), inList.y())) {
        return true;
    }
    const QModelIndex cell = indexAt(place);
    if (!cell.isValid()) {
        return false;
    }
    const QRect rect = visualRect(cell);
    if (events::Raise(list_.CellClick, cell.row(), cell.column(), place.x() - rect.left(), place.y() - rect.top())) {
        return true;
    }
    pressedCheck_ = CheckCellAt(place);
    return false;
}

void ListView::mousePressEvent(QMouseEvent* event) {
    NoteEditableCell(event);
    if (pressTaken_ || !TakePress(event)) {
        QTableView::mousePressEvent(event);
    }
}

// The second press of a double click is a click on the cell like the first. Where it did not meet the same cell, Qt
// makes a plain press of it, which must not be told once more.
void ListView::mouseDoubleClickEvent(QMouseEvent* event) {
    NoteEditableCell(event);
    if (TakePress(event)) {
        return;
    }
    {
        const QScopedValueRollback taken(pressTaken_, true);
        QTableView::mouseDoubleClickEvent(event);
    }
    if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid()) {
        events::Raise(list_.DoubleClick);
    }
}

void ListView::SortBy(int column) {
    editor_.End();
    if (editor_.IsEditing()) {
        return;
    }
    model_.Announce();
    const bool again = column == sortedColumn_ && sortOrder_ == Qt::AscendingOrder;
    sortOrder_ = again ? Qt::DescendingOrder : Qt::AscendingOrder;
    sortedColumn_ = column;
    model_.Sort(RowOrder(list_, model_, column, sortOrder_));
    horizontalHeader()->setSortIndicator(column, sortOrder_);
    horizontalHeader()->setSortIndicatorShown(true);
    viewport()->update();
}

QPoint ListView::InList(const QPoint& inViewport) const {
    return viewport()->mapTo(this, inViewport);
}

#include "platform/ui/Events.h"
#include "platform/ui/ListModel.h"
#include "platform/ui/ListView.h"

#include <QMouseEvent>

// A box is ticked on the release, as any check box is, so that a press that was a mistake can be drawn away from it.
void ListView::mouseReleaseEvent(QMouseEvent* event) {
    QTableView::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const QModelIndex cell = CheckCellAt(event->position().toPoint());
    if (cell.isValid() && cell == pressedCheck_) {
        ToggleCheck(cell.row(), cell.column());
    }
    pressedCheck_ = QModelIndex();
    EditClickedCell(event);
}

void ListView::PressRow(int row) {
    const QRect cell = visualRect(model_.index(row, 0));
    if (!events::Raise(list_.CellClick, row, 0, cell.width() / 2, cell.height() / 2) && row < model_.rowCount()) {
        SelectOnly(row);
        scrollTo(currentIndex());
    }
}

void ListView::ToggleCheck(int row, int column) {
    model_.SetCheck(row, column, !model_.Check(row, column));
}

QModelIndex ListView::CheckCellAt(const QPoint& place) const {
    const QModelIndex cell = indexAt(place);
    return cell.isValid() && model_.Type(cell.column()) == ColumnType::CheckBox ? cell : QModelIndex();
}

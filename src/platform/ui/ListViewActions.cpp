#include "platform/ui/Events.h"
#include "platform/ui/ListModel.h"
#include "platform/ui/ListView.h"

#include <QKeyEvent>
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

// A key that is held down acts once.
bool ListView::TakeActionKey(const QKeyEvent& event) {
    const bool space = event.key() == Qt::Key_Space;
    const bool pressesRow = rowsArePressed_ && (space || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter);
    const int row = currentIndex().row();
    // A return key that is held down to end an edit must not begin the next one.
    const bool opens = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter || event.key() == Qt::Key_F2;
    if (opens && !event.isAutoRepeat() && list_.DoubleClick && SelectedCount() > 0) {
        events::Raise(list_.DoubleClick);
        return true;
    }
    if (row < 0 || (!space && !pressesRow)) {
        return false;
    }
    if (pressesRow) {
        if (!event.isAutoRepeat()) {
            PressRow(row);
        }
        return true;
    }
    for (int column = 0; column < model_.ColumnCount(); ++column) {
        if (model_.Type(column) == ColumnType::CheckBox) {
            if (!event.isAutoRepeat()) {
                ToggleCheck(row, column);
                SelectOnly(row);
                scrollTo(currentIndex());
            }
            return true;
        }
    }
    return false;
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

bool ListView::RaiseCommandKey(const QKeyEvent& event) {
    const bool isCommand = (event.modifiers() & ~Qt::KeypadModifier) == Qt::ControlModifier && event.key() <= Qt::Key_Z;
    return isCommand && !event.isAutoRepeat() &&
           events::Raise(list_.CommandKeyDown, QString(QChar(event.key())).toLower());
}

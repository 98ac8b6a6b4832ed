#include "platform/ui/ListModel.h"
#include "platform/ui/ListView.h"

#include <QMouseEvent>

#include <utility>

// Where the user starts the edit of a cell. The edit itself is the CellEditor's.

void ListView::OpenCell(int row, int column) {
    const ColumnType type = model_.Type(column);
    if (type != ColumnType::Default) {
        selectionModel()->setCurrentIndex(model_.index(row, column), QItemSelectionModel::NoUpdate);
    }
    if (type == ColumnType::Default || type == ColumnType::Editable) {
        editor_.Begin(row, column);
    } else {
        setFocus(Qt::OtherFocusReason);
    }
}

// The first click on a row only selects it; the press of this one has not moved the selection yet.
void ListView::NoteEditableCell(const QMouseEvent* event) {
    const QModelIndex cell = indexAt(event->position().toPoint());
    const bool edits = cell.isValid() && event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier &&
                       IsRowSelected(cell.row()) && model_.Type(cell.column()) == ColumnType::Editable;
    editedByClick_ = edits ? cell : QModelIndex();
}

// With the release, not the press: the user may have meant to drag.
void ListView::EditClickedCell(const QMouseEvent* event) {
    const QPersistentModelIndex cell = std::exchange(editedByClick_, {});
    if (cell.isValid() && indexAt(event->position().toPoint()) == cell) {
        EditByUser(cell.row(), cell.column());
    }
}

bool ListView::EditAtKeyboard() {
    const int row = currentIndex().row();
    if (row < 0) {
        return false;
    }
    int column = currentIndex().column();
    for (int next = 0; model_.Type(column) != ColumnType::Editable; ++next) {
        if (next == model_.ColumnCount()) {
            return false;
        }
        column = next;
    }
    EditByUser(row, column);
    return true;
}

void ListView::EditByUser(int row, int column) {
    editor_.End();
    if (!editor_.IsEditing() && row < model_.RowCount()) {
        OpenCell(row, column);
    }
}

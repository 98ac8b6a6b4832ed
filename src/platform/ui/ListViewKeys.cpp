#include "platform/ui/Events.h"
#include "platform/ui/Keys.h"
#include "platform/ui/ListModel.h"
#include "platform/ui/ListView.h"

#include <QKeyEvent>

#include <algorithm>

namespace {

bool IsReturn(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

// They stand for a double click. A return key that is held down to end an edit must not begin the next one.
bool IsOpeningKey(const QKeyEvent& event) {
    return (IsReturn(event) || event.key() == Qt::Key_F2) && !event.isAutoRepeat();
}

} // namespace

void ListView::keyPressEvent(QKeyEvent* event) {
    if (carriedFrom_ != nullptr) {
        TakeCarryingKey(*event);
        return;
    }
    const QString key = KeyText(*event);
    if (!key.isEmpty() && events::Raise(list_.KeyDown, key)) {
        return;
    }
    NoteKeyboardUse(*event);
    if (RaiseCommandKey(*event) || (PicksUp(*event) && PickUp()) || TakeActionKey(*event)) {
        return;
    }
    // Qt would copy the text of the current cell, which is no command of a list here.
    if (event->matches(QKeySequence::Copy)) {
        event->ignore();
        return;
    }
    if (SelectedCount() == 0 && !PressesCurrentRow() && model_.rowCount() > 0 &&
        (event->key() == Qt::Key_Down || event->key() == Qt::Key_Up ||
         (event->key() == Qt::Key_Home && currentIndex().row() <= 0))) {
        // Coming by the keyboard, Qt stands on the first row without selecting it, and would go on to the second.
        SelectOnly(std::max(0, currentIndex().row()));
        scrollTo(currentIndex());
        return;
    }
    if (IsOpeningKey(*event) && EditAtKeyboard()) {
        return;
    }
    QTableView::keyPressEvent(event);
}

// Typing looks in the first column that has texts: column 0 may hold nothing but pictures.
void ListView::keyboardSearch(const QString& search) {
    const QModelIndex current = currentIndex();
    if (current.isValid() && current.data().toString().isEmpty()) {
        for (int column = 0; column < model_.ColumnCount(); ++column) {
            if (!model_.Text(current.row(), column).isEmpty()) {
                selectionModel()->setCurrentIndex(model_.index(current.row(), column), QItemSelectionModel::NoUpdate);
                break;
            }
        }
    }
    QTableView::keyboardSearch(search);
}

// In a table Home and End go along the row; in a list they go to its ends.
QModelIndex ListView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    const int last = model_.rowCount() - 1;
    const int column = std::max(0, currentIndex().column());
    if (last >= 0 && action == MoveHome) {
        return model_.index(0, column);
    }
    if (last >= 0 && action == MoveEnd) {
        return model_.index(last, column);
    }
    return QTableView::moveCursor(action, modifiers);
}

// A key that is held down acts once.
bool ListView::TakeActionKey(const QKeyEvent& event) {
    const bool space = event.key() == Qt::Key_Space;
    const bool pressesRow = rowsArePressed_ && (space || IsReturn(event));
    const int row = currentIndex().row();
    if (IsOpeningKey(event) && list_.DoubleClick && SelectedCount() > 0) {
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

bool ListView::RaiseCommandKey(const QKeyEvent& event) {
    const bool isCommand = (event.modifiers() & ~Qt::KeypadModifier) == Qt::ControlModifier && event.key() <= Qt::Key_Z;
    return isCommand && !event.isAutoRepeat() &&
           events::Raise(list_.CommandKeyDown, QString(QChar(event.key())).toLower());
}

#include "platform/ui/Events.h"
#include "platform/ui/ListModel.h"
#include "platform/ui/ListView.h"

#include <QAccessible>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>

// Where the keyboard is in a list: how the user sees it, and how assistive tools are told of it.

void ListView::NoteKeyboardUse(const QKeyEvent& event) {
    if (event.key() < Qt::Key_Shift || event.key() > Qt::Key_ScrollLock) {
        SetKeyboardUsed(true);
    }
}

// A key that brought the keyboard here from elsewhere was pressed there, and only its release comes to the list.
void ListView::keyReleaseEvent(QKeyEvent* event) {
    NoteKeyboardUse(*event);
    QTableView::keyReleaseEvent(event);
}

void ListView::SetKeyboardUsed(bool used) {
    if (keyboardUsed_ != used) {
        keyboardUsed_ = used;
        viewport()->update();
    }
}

void ListView::focusInEvent(QFocusEvent* event) {
    // The keyboard stands on the first row, also where a window that is just being filled comes to the front.
    model_.Announce();
    QTableView::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) {
        SetKeyboardUsed(true);
    }
    viewport()->update();
    events::Raise(list_.GotFocus);
}

void ListView::focusOutEvent(QFocusEvent* event) {
    QTableView::focusOutEvent(event);
    StopCarrying();
    viewport()->update();
    events::Raise(list_.LostFocus);
}

void ListView::PaintFocusRing() {
    QPainter painter(viewport());
    painter.setPen(QPen(palette().color(QPalette::Highlight).darker(170), 2));
    // A list may reach under its neighbours or over the edge of its window.
    painter.drawRect(viewport()->visibleRegion().boundingRect().adjusted(1, 1, -1, -1));
}

bool ListView::PressesCurrentRow() const {
    return rowsArePressed_ && keyboardUsed_ && hasFocus() && currentIndex().isValid();
}

// A frame around the list shows the same, unless the row itself counts.
bool ListView::MarksCurrentRow() const {
    return carriedFrom_ != nullptr || (!focusRing_ && frameShape() == QFrame::NoFrame && keyboardUsed_ && hasFocus());
}

// Before there is a current row the keys begin at the first one, also where the list is empty.
void ListView::PaintRowMark() {
    const int top = currentIndex().isValid() ? rowViewportPosition(currentIndex().row()) : 0;
    const QRect row(0, top, viewport()->width(), RowHeight());
    // Well within the row, because a list may reach under its neighbours by a pixel or two.
    const QRectF mark = QRectF(row).adjusted(4.5, 1.5, -3.5, -0.5);
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Highlight).darker(170));
    painter.drawRoundedRect(mark, 3, 3);
    // The logic may paint the selected row nearly as dark as the mark.
    if (carriedFrom_ != nullptr) {
        painter.setPen(palette().color(QPalette::Base));
        painter.drawRoundedRect(mark.adjusted(1, 1, -1, -1), 2, 2);
    }
}

// The mark goes over all columns of a row, and Qt paints only the two cells again.
void ListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (MarksCurrentRow()) {
        viewport()->update();
    }
}

// Qt tells assistive tools that the cells changed, but not what the user who works with the keys waits for: what the
// cells of that row are called now, and whether a box is ticked.
void ListView::dataChanged(const QModelIndex& first, const QModelIndex& last, const QList<int>& roles) {
    QTableView::dataChanged(first, last, roles);
    if (!QAccessible::isActive() || first != last || first.row() != currentIndex().row()) {
        return;
    }
    // Of a table's children the headers come first, in each row and before the rows.
    const int child = (first.row() + 1) * (model_.ColumnCount() + 1) + first.column() + 1;
    QAccessibleEvent renamed(this, QAccessible::NameChanged);
    renamed.setChild(child);
    QAccessible::updateAccessibility(&renamed);
    if (model_.Type(first.column()) == ColumnType::CheckBox) {
        QAccessible::State changes;
        changes.checked = true;
        QAccessibleStateChangeEvent ticked(this, changes);
        ticked.setChild(child);
        QAccessible::updateAccessibility(&ticked);
    }
}

#include "platform/ui/Events.h"
#include "platform/ui/ListView.h"

#include <QAbstractItemModel>
#include <QKeyEvent>

// The keyboard's way to drag rows of one list to another: a key picks them up, and until they are dropped the keys of
// the other list only choose the row to drop them on. Its selection stays, because the logic reads what was picked up
// where it was, and a change of the selection may show other rows there.

bool ListView::PicksUp(const QKeyEvent& event) const {
    return event.key() == Qt::Key_D && event.modifiers() == Qt::ControlModifier && dragEnabled() && SelectedCount() > 0;
}

bool ListView::PickUp() {
    ListView* target = nullptr;
    for (QTableView* list : window()->findChildren<QTableView*>()) {
        if (list != this && list->acceptDrops() && list->model()->rowCount() > 0) {
            target = dynamic_cast<ListView*>(list);
            break;
        }
    }
    DragItem item;
    if (target == nullptr || !list_.DragRow || !events::Raise(list_.DragRow, item, FirstSelectedRow())) {
        return false;
    }
    target->carriedFrom_ = this;
    target->carried_ = item;
    target->setFocus(Qt::OtherFocusReason);
    target->viewport()->update();
    return true;
}

// Any other key waits until the rows are dropped.
void ListView::TakeCarryingKey(const QKeyEvent& event) {
    const int last = model()->rowCount() - 1;
    const int row = currentIndex().row();
    switch (event.key()) {
        case Qt::Key_Up:
            MarkForDrop(row - 1);
            break;
        case Qt::Key_Down:
            MarkForDrop(row + 1);
            break;
        case Qt::Key_Home:
            MarkForDrop(0);
            break;
        case Qt::Key_End:
            MarkForDrop(last);
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            Drop();
            break;
        case Qt::Key_Escape:
            carriedFrom_->setFocus(Qt::OtherFocusReason);
            break;
        default:
            break;
    }
}

void ListView::MarkForDrop(int row) {
    const QModelIndex place = model()->index(qBound(0, row, model()->rowCount() - 1), qMax(0, currentIndex().column()));
    selectionModel()->setCurrentIndex(place, QItemSelectionModel::NoUpdate);
    scrollTo(place);
    viewport()->update();
}

void ListView::Drop() {
    const QPointer<ListView> from(carriedFrom_.data());
    const DragItem item = carried_;
    const QPoint place = InList(visualRect(currentIndex()).center());
    StopCarrying();
    if (!events::Raise(list_.DragOver, place.x(), place.y(), item, 0)) {
        events::Raise(list_.DropObject, item, 0);
    }
    if (from != nullptr && hasFocus()) {
        from->setFocus(Qt::OtherFocusReason);
    }
}

void ListView::StopCarrying() {
    if (carriedFrom_ != nullptr) {
        carriedFrom_.clear();
        MarkForDrop(FirstSelectedRow());
    }
}

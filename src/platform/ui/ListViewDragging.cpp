#include "platform/ui/Events.h"
#include "platform/ui/ListModel.h"
#include "platform/ui/ListView.h"

#include <QDrag>
#include <QDropEvent>
#include <QMimeData>

namespace {

constexpr int dragWidth = 220;
constexpr QPoint dragOffset(16, 12);

DragItem DragOf(const QMimeData& data) {
    return DragItem{data.text()};
}

} // namespace

void ListView::startDrag(Qt::DropActions /*actions*/) {
    const int row = currentIndex().row();
    DragItem item;
    if (row < 0 || !list_.DragRow || !events::Raise(list_.DragRow, item, row)) {
        return;
    }
    auto* carried = new QMimeData;
    carried->setText(item.text);
    auto* drag = new QDrag(this);
    drag->setMimeData(carried);
    // The row itself follows the pointer, beside it: the place to drop it on must stay in view.
    const QRect cells =
        visualRect(model_.index(row, 0)).united(visualRect(model_.index(row, model_.ColumnCount() - 1)));
    drag->setPixmap(viewport()->grab(QRect(cells.topLeft(), QSize(qMin(cells.width(), dragWidth), cells.height()))));
    drag->setHotSpot(-dragOffset);
    drag->exec(Qt::CopyAction);
}

void ListView::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasText()) {
        event->acceptProposedAction();
    }
}

void ListView::dragMoveEvent(QDragMoveEvent* event) {
    const QPoint place = InList(event->position().toPoint());
    const bool refused = !event->mimeData()->hasText() ||
                         events::Raise(list_.DragOver, place.x(), place.y(), DragOf(*event->mimeData()), 0);
    if (refused) {
        event->ignore();
    } else {
        event->acceptProposedAction();
    }
}

void ListView::dropEvent(QDropEvent* event) {
    if (event->mimeData()->hasText()) {
        event->acceptProposedAction();
        events::Raise(list_.DropObject, DragOf(*event->mimeData()), 0);
    }
}

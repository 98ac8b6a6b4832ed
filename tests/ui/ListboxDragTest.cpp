#include "UiFixture.h"

#include <QDragEnterEvent>
#include <QMimeData>

using ListboxDragTest = UiTest;

TEST_F(ListboxDragTest, TextIsDroppedWhereTheHandlerAllowsIt) {
    window->List.AcceptTextDrop();
    window->List.DragOver = [this](int x, int y, const DragItem& drag, int) {
        log << QString("over %1,%2 %3").arg(x).arg(y).arg(drag.text);
        return y < 20;
    };
    window->List.DropObject = [this](const DragItem& drag, int) { log << "drop " + drag.text; };

    QMimeData text;
    text.setText("12");
    QWidget* viewport = Find<QTableView>(window->List)->viewport();
    for (const QPoint& place : {QPoint(30, 5), QPoint(30, 45)}) {
        QDragEnterEvent enter(place, Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &enter);
        QDragMoveEvent move(place, Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &move);
        EXPECT_EQ(move.isAccepted(), place.y() == 45);
    }
    QDropEvent drop(QPoint(30, 45), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(viewport, &drop);
    EXPECT_EQ(log, QStringList({"over 30,5 12", "over 30,45 12", "drop 12"}));
}

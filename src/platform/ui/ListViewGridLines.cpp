#include "platform/ui/ListView.h"

#include <QPainter>
#include <QScrollBar>

void ListView::SetGridLines(GridLines horizontal, GridLines vertical) {
    horizontalLines_ = horizontal == GridLines::ThinDotted;
    verticalLines_ = vertical == GridLines::ThinDotted;
}

void ListView::PaintGridLines() {
    QPainter painter(viewport());
    painter.setPen(QPen(QColor(0xBBBBBB), 1, Qt::DotLine));
    const int width = viewport()->width();
    const int height = viewport()->height();
    if (horizontalLines_) {
        const int hidden = verticalScrollBar()->value() % RowHeight();
        for (int y = RowHeight() - hidden - 1; y < height; y += RowHeight()) {
            painter.drawLine(0, y, width, y);
        }
    }
    // None at the right edge, where a last column too narrow to show anything would double it.
    constexpr int edge = 6;
    for (int column = 0; verticalLines_ && column < model()->columnCount(); ++column) {
        const int x = columnViewportPosition(column) + columnWidth(column) - 1;
        if (x >= width - edge) {
            break;
        }
        painter.drawLine(x, 0, x, height);
    }
}

#include "platform/ui/GroupBox.h"

#include <QPainter>
#include <QWidget>

namespace {

class Surface : public QWidget {
protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    }
};

} // namespace

GroupBox::GroupBox() : Control(new Surface) {}

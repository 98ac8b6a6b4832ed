#include "platform/ui/GroupBox.h"

#include "platform/ui/Spoken.h"

#include <QPainter>
#include <QWidget>

namespace {

class Surface : public QWidget, public Spoken {
public:
    [[nodiscard]] QAccessible::Role Role() const override {
        return accessibleName().isEmpty() ? QAccessible::NoRole : QAccessible::Grouping;
    }

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

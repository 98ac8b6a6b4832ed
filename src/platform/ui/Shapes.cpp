#include "platform/ui/Shapes.h"

#include <QPainter>
#include <QWidget>

class Shape::Surface : public QWidget {
public:
    explicit Surface(Outline outline) : outline_(outline) { setFocusPolicy(Qt::NoFocus); }

    void SetLook(const ShapeLook& look) {
        look_ = look;
        update();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setBrush(QColor(QRgb(look_.fill.rgb)));
        if (look_.borderWidth > 0) {
            painter.setPen(QPen(QColor(QRgb(look_.border.rgb)), look_.borderWidth));
        } else {
            painter.setPen(Qt::NoPen);
        }
        if (outline_ == Outline::Box && look_.arc == 0) {
            painter.drawRect(rect());
            return;
        }
        painter.setRenderHint(QPainter::Antialiasing);
        const double inset = look_.borderWidth / 2.0;
        const QRectF inner = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
        if (outline_ == Outline::Ellipse) {
            painter.drawEllipse(inner);
        } else {
            painter.drawRoundedRect(inner, look_.arc / 2.0, look_.arc / 2.0);
        }
    }

private:
    Outline outline_;
    ShapeLook look_;
};

Shape::Shape(Outline outline) : Control(new Surface(outline)), surface_(static_cast<Surface*>(Widget())) {}

void Shape::SetLook(const ShapeLook& look) {
    surface_->SetLook(look);
}

Separator::Separator() {
    SetLook({Color{0xA0A6B2}, Color{}, 0, 0});
}

#include "platform/ui/Canvas.h"

#include "platform/ui/Events.h"
#include "platform/ui/Picture.h"
#include "platform/ui/Spoken.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QWidget>

class Canvas::Surface : public QWidget, public Spoken {
public:
    explicit Surface(Canvas& owner) : owner_(owner) { setFocusPolicy(Qt::NoFocus); }

    [[nodiscard]] const Picture* Backdrop() const { return backdrop_; }

    void SetBackdrop(const Picture* picture) {
        if (backdrop_ != picture) {
            backdrop_ = picture;
            update();
        }
    }

    [[nodiscard]] QAccessible::Role Role() const override {
        if (accessibleName().isEmpty()) {
            return QAccessible::NoRole;
        }
        return IsPressable() ? QAccessible::PushButton : QAccessible::Graphic;
    }

    [[nodiscard]] QString Shown() const override { return backdrop_ == nullptr ? QString() : backdrop_->Description(); }

    [[nodiscard]] bool IsPressable() const override { return bool(owner_.MouseDown); }

    void PressByTool() override {
        const QPoint middle = rect().center();
        if (events::Raise(owner_.MouseDown, middle.x(), middle.y())) {
            events::Raise(owner_.MouseUp, middle.x(), middle.y());
        }
    }

protected:
    bool event(QEvent* event) override {
        if (event->type() == QEvent::ToolTip && (IsPressable() || !Shown().isEmpty())) {
            const QAccessibleInterface* words = QAccessible::queryAccessibleInterface(this);
            QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), words->text(QAccessible::Name), this);
            return true;
        }
        return QWidget::event(event);
    }

    void paintEvent(QPaintEvent* /*event*/) override {
        if (backdrop_ != nullptr) {
            QPainter painter(this);
            backdrop_->Draw(painter, rect());
        }
    }

    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton) {
            pressed_ =
                events::Raise(owner_.MouseDown, event->position().toPoint().x(), event->position().toPoint().y());
        }
    }

    // The second click of a double click is a press like any other.
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }

    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton && pressed_) {
            pressed_ = false;
            events::Raise(owner_.MouseUp, event->position().toPoint().x(), event->position().toPoint().y());
        }
    }

    void leaveEvent(QEvent* /*event*/) override { events::Raise(owner_.MouseExit); }

private:
    Canvas& owner_;
    const Picture* backdrop_ = nullptr;
    bool pressed_ = false;
};

Canvas::Canvas() : Control(new Surface(*this)), surface_(static_cast<Surface*>(Widget())) {}

const Picture* Canvas::Backdrop() const {
    return surface_->Backdrop();
}

void Canvas::SetBackdrop(const Picture* picture) {
    surface_->SetBackdrop(picture);
}

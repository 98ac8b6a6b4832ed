#include "platform/ui/StaticText.h"

#include "platform/ui/Events.h"
#include "platform/ui/Fonts.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

class StaticText::Label : public QLabel {
public:
    explicit Label(StaticText& owner) : owner_(owner) { setTextFormat(Qt::PlainText); }

protected:
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton) {
            Press(event->position().toPoint());
        }
    }

    void keyPressEvent(QKeyEvent* event) override {
        switch (event->key()) {
            case Qt::Key_Return:
            case Qt::Key_Enter:
            case Qt::Key_Space:
                Press(rect().center());
                break;
            default:
                QLabel::keyPressEvent(event);
        }
    }

    void paintEvent(QPaintEvent* event) override {
        QLabel::paintEvent(event);
        if (hasFocus()) {
            QPainter painter(this);
            QStyleOptionFocusRect option;
            option.initFrom(this);
            option.backgroundColor = palette().color(QPalette::Window);
            style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
        }
    }

private:
    void Press(const QPoint& place) { events::Raise(owner_.MouseDown, place.x(), place.y()); }

    StaticText& owner_;
};

StaticText::StaticText() : Control(new Label(*this)), label_(static_cast<Label*>(Widget())) {}

void StaticText::SetLook(const StaticTextLook& look) {
    QFont font = fonts::WithSize(fonts::WithFamily(label_->font(), QString::fromLatin1(look.textFont)), look.textSize);
    font.setBold(look.bold);
    font.setUnderline(look.underline);
    label_->setFont(font);
    QPalette palette = label_->palette();
    palette.setColor(QPalette::WindowText, QColor(QRgb(look.textColor.rgb)));
    label_->setPalette(palette);
    label_->setWordWrap(look.multiLine);
    label_->setAlignment(QtAlignment(look.alignment) | (look.multiLine ? Qt::AlignTop : Qt::AlignVCenter));
}

QString StaticText::Text() const {
    return label_->text();
}

void StaticText::SetText(const QString& text) {
    label_->setText(text);
}

void StaticText::SetMouseCursor(MouseCursor cursor) {
    const bool isLink = cursor == MouseCursor::FingerPointer;
    label_->setCursor(isLink ? Qt::PointingHandCursor : Qt::ArrowCursor);
    label_->setFocusPolicy(isLink ? Qt::TabFocus : Qt::NoFocus);
}

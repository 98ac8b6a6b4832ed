#include "platform/ui/StaticText.h"

#include "platform/base/Text.h"
#include "platform/ui/Events.h"
#include "platform/ui/Fonts.h"
#include "platform/ui/Spoken.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

class StaticText::Label : public QLabel, public Spoken {
public:
    explicit Label(StaticText& owner) : owner_(owner) { setTextFormat(Qt::PlainText); }

    // Letters move closer together where that makes the whole text fit, because a place may have been measured for
    // another font. Of a text that is too long all the same, the lines that fit are shown whole.
    void FitPlace() {
        for (int stretch = QFont::Unstretched; stretch >= narrowest; stretch -= 3) {
            if (SetStretch(stretch); Fits()) {
                break;
            }
        }
        if (wordWrap() && !Fits()) {
            SetStretch(QFont::Unstretched);
        }
        setContentsMargins(0, 0, 0, wordWrap() && !Fits() ? height() % LineHeight() : 0);
    }

    [[nodiscard]] QAccessible::Role Role() const override {
        return IsPressable() ? QAccessible::Link : QAccessible::StaticText;
    }
    [[nodiscard]] QString Shown() const override { return text(); }
    [[nodiscard]] bool IsPressable() const override { return focusPolicy() != Qt::NoFocus; }
    void PressByTool() override { Press(rect().center()); }

protected:
    void resizeEvent(QResizeEvent* event) override {
        QLabel::resizeEvent(event);
        FitPlace();
    }

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
    static constexpr int narrowest = 76; // percent

    void SetStretch(int percent) {
        QFont stretched = font();
        stretched.setStretch(percent);
        setFont(stretched);
    }

    [[nodiscard]] bool Fits() const {
        return wordWrap() ? WrappedHeight(text()) <= height() : fontMetrics().horizontalAdvance(text()) <= width();
    }

    [[nodiscard]] int WrappedHeight(const QString& words) const {
        return fontMetrics().boundingRect(0, 0, width(), 0, Qt::TextWordWrap, words).height();
    }

    // From one line to the next. Each begins at a whole pixel, which the metrics' own line spacing leaves out.
    [[nodiscard]] int LineHeight() const {
        return WrappedHeight(QStringLiteral("|\n|")) - WrappedHeight(QStringLiteral("|"));
    }

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
    label_->FitPlace();
}

QString StaticText::Text() const {
    return label_->text();
}

void StaticText::SetText(const QString& text) {
    label_->setText(WithLineFeeds(text));
    label_->FitPlace();
}

void StaticText::SetMouseCursor(MouseCursor cursor) {
    const bool isLink = cursor == MouseCursor::FingerPointer;
    label_->setCursor(isLink ? Qt::PointingHandCursor : Qt::ArrowCursor);
    label_->setFocusPolicy(isLink ? Qt::TabFocus : Qt::NoFocus);
}

#include "platform/ui/Style.h"

#include "platform/ui/Picture.h"

#include <QPainter>
#include <QPixmap>
#include <QStyleOption>

namespace {

constexpr QRgb defaultButtonColor = 0x9FB4DA;
constexpr int arrowSize = 16;

struct MessageIcon {
    QStyle::StandardPixmap icon = QStyle::SP_MessageBoxInformation;
    const char* picture = "";
};

constexpr MessageIcon messageIcons[] = {
    {QStyle::SP_MessageBoxCritical, "Message_Stop"},
    {QStyle::SP_MessageBoxWarning, "Message_Caution"},
    {QStyle::SP_MessageBoxQuestion, "Message_Question"},
    {QStyle::SP_MessageBoxInformation, "Message_Note"},
};

QIcon ArrowIcon(const QStyle& style) {
    QPixmap pixmap(arrowSize, arrowSize);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    QStyleOption option;
    option.rect = pixmap.rect();
    style.drawPrimitive(QStyle::PE_IndicatorArrowRight, &option, &painter);
    painter.end();
    return {pixmap};
}

const Picture& DrawingFor(int size, const std::vector<const Picture*>& drawings) {
    const Picture* nearest = drawings.front();
    for (const Picture* drawing : drawings) {
        if (drawing->Size().width() <= size) {
            nearest = drawing;
        }
    }
    return *nearest;
}

QColor FocusColor(const QStyleOption& option) {
    return option.palette.color(QPalette::Highlight).darker(170);
}

void DrawFocus(QPainter& painter, const QStyleOption& option, const QRect& rect) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(FocusColor(option));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    painter.restore();
}

} // namespace

Style::Style() : QProxyStyle(QStringLiteral("Fusion")) {}

QIcon Style::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const {
    for (const MessageIcon& row : messageIcons) {
        if (row.icon != icon) {
            continue;
        }
        if (const Picture* picture = NamedPicture(QString::fromLatin1(row.picture)); picture != nullptr) {
            return IconOf({picture});
        }
    }
    // Each menu bar asks for it, to have it where the titles find no room. The style's own is a file, for which Qt
    // would load all its readers of image files.
    if (icon == SP_ToolBarHorizontalExtensionButton) {
        return ArrowIcon(*this);
    }
    return QProxyStyle::standardIcon(icon, option, widget);
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
    if (element == PE_FrameFocusRect) {
        if ((option->state & State_KeyboardFocusChange) != 0) {
            DrawFocus(*painter, *option, option->rect);
        }
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_Frame) {
        const bool focused = option->state.testFlag(State_HasFocus);
        DrawFrame(*painter, option->rect,
                  focused ? FocusColor(*option) : option->palette.color(QPalette::Window).darker(130));
    }
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* returnData) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) {
        return 0;
    }
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element == CE_PushButtonBevel && button != nullptr &&
        button->features.testFlag(QStyleOptionButton::DefaultButton)) {
        QStyleOptionButton tinted = *button;
        tinted.palette.setColor(QPalette::Button, QColor(defaultButtonColor));
        QProxyStyle::drawControl(element, &tinted, painter, widget);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
    constexpr State focusByKeys = State_HasFocus | State_KeyboardFocusChange;
    if (element == CE_PushButtonBevel && (option->state & focusByKeys) == focusByKeys) {
        DrawFocus(*painter, *option, option->rect.adjusted(2, 2, -2, -2));
    }
    if (element == CE_TabBarTabLabel && (option->state & State_HasFocus) != 0) {
        DrawFocus(*painter, *option, option->rect.adjusted(5, 5, -5, -3));
    }
}

QRect Style::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
    if (element == SE_TabWidgetTabContents) {
        return option->rect;
    }
    return QProxyStyle::subElementRect(element, option, widget);
}

void DrawFrame(QPainter& painter, const QRect& rect, const QColor& color) {
    painter.fillRect(QRect(rect.left(), rect.top(), rect.width(), 1), color);
    painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), color);
    painter.fillRect(QRect(rect.left(), rect.top(), 1, rect.height()), color);
    painter.fillRect(QRect(rect.right(), rect.top(), 1, rect.height()), color);
}

QIcon IconOf(const std::vector<const Picture*>& drawings) {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        DrawingFor(size, drawings).Draw(painter, pixmap.rect());
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

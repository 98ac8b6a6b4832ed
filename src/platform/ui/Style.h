#pragma once

#include <QIcon>
#include <QProxyStyle>

#include <vector>

class Picture;

// For the layer itself: the look of standard controls. Qt's Fusion style, with message icons that are crisp at any
// screen scale and in the hand of the program's other pictures, with buttons that carry no icons, with a default button
// that is told from the others at a glance, with a darker frame around what has the keyboard focus, and with pages
// behind tabs that cover the whole panel, so that a control on a page has its place in the panel's coordinates.
class Style : public QProxyStyle {
public:
    Style();

    [[nodiscard]] QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* returnData) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    [[nodiscard]] QRect subElementRect(SubElement element, const QStyleOption* option,
                                       const QWidget* widget) const override;
};

// A frame of one logical pixel inside the rectangle. A line drawn there would lie half outside the widget at a scale of
// one and a half.
void DrawFrame(QPainter& painter, const QRect& rect, const QColor& color);

// An icon in the sizes that desktops ask for. The drawings, at least one and the smallest first, show the same thing
// with more and more detail: a size takes the last one that is not larger than it, or else the first.
[[nodiscard]] QIcon IconOf(const std::vector<const Picture*>& drawings);

#pragma once

#include <QIcon>
#include <QProxyStyle>

class Picture;

// For the layer itself: the look of standard controls. Qt's Fusion style, with message icons that are crisp at any
// screen scale and in the hand of the program's other pictures, and with buttons that carry no icons.
class Style : public QProxyStyle {
public:
    Style();

    [[nodiscard]] QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                                     const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* returnData) const override;
};

// The picture as an icon, in the sizes that desktops ask for.
[[nodiscard]] QIcon IconOf(const Picture& picture);

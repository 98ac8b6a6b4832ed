#include "platform/ui/Fonts.h"

#include <QApplication>

namespace fonts {

QFont WithFamily(const QFont& font, const QString& family) {
    QFont result = font;
    if (family == QLatin1String("System")) {
        result.setFamilies(QApplication::font().families());
    } else {
        result.setFamilies({family});
    }
    return result;
}

QFont WithSize(const QFont& font, int pixels) {
    QFont result = font;
    result.setPixelSize(pixels > 0 ? pixels : QApplication::font().pixelSize());
    return result;
}

} // namespace fonts

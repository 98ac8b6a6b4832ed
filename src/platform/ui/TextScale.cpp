#include "platform/ui/TextScale.h"

#include <QApplication>
#include <QFont>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace {

// 11 points, the largest size that a desktop has without the user's doing.
constexpr double usualText = 44.0 / 3;
constexpr QSize smallestScreen(800, 650);
constexpr double stepsToOne = 4;
constexpr double pointsInAnInch = 72;

// Asking Qt for the size that a font has in the end would load a font in which nothing is written.
double PixelSize(const QFont& font, const QScreen& screen) {
    return font.pixelSize() > 0 ? font.pixelSize() : font.pointSizeF() * screen.logicalDotsPerInchY() / pointsInAnInch;
}

} // namespace

double TextScale(double textPixels, const QSize& room) {
    const double wanted = std::round(textPixels / usualText * stepsToOne);
    const double fitting = std::floor(stepsToOne * std::min(double(room.width()) / smallestScreen.width(),
                                                            double(room.height()) / smallestScreen.height()));
    return std::max(std::min(wanted, fitting) / stepsToOne, 1.0);
}

double DesktopTextScale() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr || qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) {
        return 1;
    }
    return TextScale(PixelSize(QApplication::font(), *screen), screen->availableSize());
}

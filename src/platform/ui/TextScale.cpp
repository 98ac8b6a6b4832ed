#include "platform/ui/TextScale.h"

#include <QApplication>
#include <QFontInfo>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace {

// 11 points, the largest size that a desktop has without the user's doing.
constexpr double usualText = 44.0 / 3;
constexpr QSize smallestScreen(800, 650);
constexpr double stepsToOne = 4;

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
    return TextScale(QFontInfo(QApplication::font()).pixelSize(), screen->availableSize());
}

#pragma once

#include <QtCore/qnamespace.h>

// How a text stands in its field or column.
enum class TextAlignment { Left = 1, Centre = 2, Right = 3 };

// For the layer itself: the same in Qt's words.
[[nodiscard]] constexpr Qt::Alignment QtAlignment(TextAlignment alignment) {
    switch (alignment) {
        case TextAlignment::Centre:
            return Qt::AlignHCenter;
        case TextAlignment::Right:
            return Qt::AlignRight;
        case TextAlignment::Left:
            break;
    }
    return Qt::AlignLeft;
}

#include "platform/ui/LineWidths.h"

#include <QFontMetricsF>

namespace {

constexpr qreal open = 0.1;
constexpr std::size_t firstPrintable = u' ';

} // namespace

LineWidths::LineWidths(const QFont& font) : font_(font) {
    widths_.fill(-1);
}

bool LineWidths::Fits(const QString& text, qreal width) const {
    bool plain = true;
    return CountWithin(text, width * (1 - open), plain) == text.size() && plain;
}

QString LineWidths::Cut(const QString& text, qreal width) const {
    bool plain = true;
    const qsizetype count = CountWithin(text, width * (1 + open), plain);
    // The letter that crosses the width stays, and one more: a single letter Qt never shortens.
    return plain ? text.left(count + 2) : text;
}

qsizetype LineWidths::CountWithin(const QString& text, qreal width, bool& plain) const {
    qreal sum = 0;
    for (qsizetype place = 0; place < text.size(); ++place) {
        const std::size_t letter = text[place].unicode();
        if (letter < firstPrintable || letter >= widths_.size()) {
            plain = false;
            return text.size();
        }
        sum += WidthOf(letter);
        if (sum > width) {
            return place;
        }
    }
    return text.size();
}

qreal LineWidths::WidthOf(std::size_t letter) const {
    if (widths_[letter] < 0) {
        widths_[letter] = QFontMetricsF(font_).horizontalAdvance(QChar(static_cast<char16_t>(letter)));
    }
    return widths_[letter];
}

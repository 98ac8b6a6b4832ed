#pragma once

#include <QFont>
#include <QString>

#include <array>

// For the layer itself: how wide plain Latin text comes out in a font, from a table of its letters. That costs a
// hundredth of what Qt takes to set the text, and is good enough to tell what surely fits and what surely does not. The
// font moves pairs of letters a little, so a tenth of the width is left open.
class LineWidths {
public:
    explicit LineWidths(const QFont& font);

    [[nodiscard]] const QFont& Font() const { return font_; }

    // Whether the text surely is no wider than this, in logical pixels.
    [[nodiscard]] bool Fits(const QString& text, qreal width) const;
    // The text without the end that surely lies beyond this width; enough is left to be wider than it.
    [[nodiscard]] QString Cut(const QString& text, qreal width) const;

private:
    // How many characters at the front come to no more than this width; all when the text has other than plain letters.
    [[nodiscard]] qsizetype CountWithin(const QString& text, qreal width, bool& plain) const;

    [[nodiscard]] qreal WidthOf(std::size_t letter) const;

    QFont font_;
    // Measured when a letter is first met; below zero until then.
    mutable std::array<qreal, 128> widths_{};
};

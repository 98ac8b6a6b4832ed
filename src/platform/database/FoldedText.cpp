#include "platform/database/FoldedText.h"

#include <QChar>
#include <QString>

#include <algorithm>
#include <array>

namespace {

// All letters with accents of the three scripts lie below this.
constexpr char32_t TableEnd = 0x2000;

using Table = std::array<char16_t, TableEnd>;

bool IsCombiningAccent(char32_t character) {
    return (character >= 0x0300 && character <= 0x036F) || (character >= 0x1DC0 && character <= 0x1DFF);
}

// Unicode has no decomposition for letters with a stroke, but who types without accents leaves out the stroke as well.
char32_t WithoutStroke(char32_t character) {
    switch (character) {
        case U'ø':
            return U'o';
        case U'ł':
            return U'l';
        case U'đ':
            return U'd';
        case U'ħ':
            return U'h';
        case U'ŧ':
            return U't';
        case U'ı':
            return U'i';
        default:
            return character;
    }
}

char32_t WithoutAccents(char32_t character) {
    for (;;) {
        const QString parts = QChar::decomposition(character);
        const bool isAccented =
            QChar::decompositionTag(character) == QChar::Canonical && parts.length() > 1 &&
            std::all_of(parts.begin() + 1, parts.end(), [](QChar part) { return IsCombiningAccent(part.unicode()); });
        if (!isAccented) {
            return character;
        }
        character = parts[0].unicode();
    }
}

Table MakeTable() {
    Table table{};
    for (char32_t character = 0; character < TableEnd; ++character) {
        // Case goes first and last: some capitals have no accentless form of their own.
        const char32_t folded = WithoutStroke(QChar::toCaseFolded(WithoutAccents(QChar::toCaseFolded(character))));
        table[character] = IsCombiningAccent(character) ? u'\0' : char16_t(folded);
    }
    return table;
}

} // namespace

char32_t FoldedCharacter(char32_t character) {
    static const Table table = MakeTable();
    return character < TableEnd ? table[character] : QChar::toCaseFolded(character);
}

char32_t TakeCharacter(std::string_view& text) {
    const auto first = static_cast<unsigned char>(text.front());
    text.remove_prefix(1);
    if (first < 0x80) {
        return first;
    }
    const int more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : first >= 0xC0 ? 1 : 0;
    if (more == 0) {
        return U'\uFFFD';
    }
    char32_t character = first & (0x3Fu >> more);
    for (int count = 0; count < more; ++count) {
        if (text.empty() || (static_cast<unsigned char>(text.front()) & 0xC0u) != 0x80u) {
            return U'\uFFFD';
        }
        character = (character << 6) | (static_cast<unsigned char>(text.front()) & 0x3Fu);
        text.remove_prefix(1);
    }
    return character;
}

#pragma once

#include <string_view>

// What is left of a character when case and accents do not count: "e" for "É". Covers the accents of the Latin, Greek
// and Cyrillic scripts; letters with a stroke ("ø", "ł") fold to the letter without. A combining accent folds to 0,
// which stands for nothing.
char32_t FoldedCharacter(char32_t character);

// Reads one character of UTF-8 text and removes it from the front of `text`, which must not be empty. A byte that is
// not part of valid UTF-8 reads as U+FFFD.
char32_t TakeCharacter(std::string_view& text);

// The same, and folded.
inline char32_t TakeFolded(std::string_view& text) {
    const auto first = static_cast<unsigned char>(text.front());
    if (first >= 0x80) {
        return FoldedCharacter(TakeCharacter(text));
    }
    text.remove_prefix(1);
    return first >= 'A' && first <= 'Z' ? first + ('a' - 'A') : first;
}

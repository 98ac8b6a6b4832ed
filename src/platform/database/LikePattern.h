#pragma once

#include <string>
#include <string_view>

// The right side of a LIKE, read once and matched against many texts in UTF-8. Case and accents do not count. "%"
// matches any text, the empty one too, and "_" one character; a combining accent is no character of its own.
class LikePattern {
public:
    static constexpr char32_t NoEscape = 0;

    // The character behind `escape` in the pattern stands for itself.
    LikePattern(std::string_view pattern, char32_t escape);

    char32_t Escape() const { return escape_; }

    [[nodiscard]] bool Matches(std::string_view text) const;

private:
    [[nodiscard]] bool MatchesTokens(std::string_view text) const;
    [[nodiscard]] bool ContainsPart(std::string_view text) const;

    char32_t escape_;
    std::u32string tokens_; // folded characters, and codes for the wildcards
    std::u32string part_;   // of a pattern "%part%" without other wildcards, else empty
};

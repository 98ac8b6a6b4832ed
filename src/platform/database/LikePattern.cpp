#include "platform/database/LikePattern.h"

#include "platform/database/FoldedText.h"

#include <algorithm>

namespace {

// Codes behind the last Unicode character.
constexpr char32_t AnyText = 0x110000;
constexpr char32_t AnyCharacter = 0x110001;
constexpr char32_t NoCharacter = 0x110002;

char32_t TakeToken(std::string_view& pattern, char32_t escape) {
    const char32_t character = TakeCharacter(pattern);
    if (escape != LikePattern::NoEscape && character == escape) {
        // The engine's own LIKE matches nothing when the escape stands last.
        return pattern.empty() ? NoCharacter : TakeFolded(pattern);
    }
    switch (character) {
        case U'%':
            return AnyText;
        case U'_':
            return AnyCharacter;
        default:
            return FoldedCharacter(character);
    }
}

std::u32string ReadTokens(std::string_view pattern, char32_t escape) {
    std::u32string tokens;
    while (!pattern.empty()) {
        const char32_t token = TakeToken(pattern, escape);
        if (token != 0 && !(token == AnyText && tokens.ends_with(AnyText))) {
            tokens.push_back(token);
        }
    }
    return tokens;
}

// The part of "%part%", or nothing.
std::u32string PartBetween(const std::u32string& tokens) {
    if (tokens.size() < 3 || tokens.front() != AnyText || tokens.back() != AnyText) {
        return {};
    }
    std::u32string part = tokens.substr(1, tokens.size() - 2);
    const bool isPlain = std::all_of(part.begin(), part.end(), [](char32_t token) { return token < AnyText; });
    return isPlain ? part : std::u32string();
}

// Drops what cannot begin a character that `token` matches. This skip is where a search spends its time.
void SkipTo(std::string_view& text, char32_t token) {
    if (token >= AnyText) {
        return;
    }
    const auto small = static_cast<char>(token < 0x80 ? token : 0);
    const auto capital = static_cast<char>(small >= 'a' && small <= 'z' ? small - ('a' - 'A') : small);
    const auto found = std::find_if(text.begin(), text.end(), [small, capital](char byte) {
        return byte == small || byte == capital || static_cast<unsigned char>(byte) >= 0x80;
    });
    text.remove_prefix(std::size_t(found - text.begin()));
}

bool BeginsWith(std::string_view text, std::u32string_view part) {
    while (!part.empty()) {
        if (text.empty()) {
            return false;
        }
        const char32_t character = TakeFolded(text);
        if (character != 0 && character != part.front()) {
            return false;
        }
        part.remove_prefix(character != 0 ? 1 : 0);
    }
    return true;
}

} // namespace

LikePattern::LikePattern(std::string_view pattern, char32_t escape)
    : escape_(escape), tokens_(ReadTokens(pattern, escape)), part_(PartBetween(tokens_)) {}

bool LikePattern::Matches(std::string_view text) const {
    return part_.empty() ? MatchesTokens(text) : ContainsPart(text);
}

bool LikePattern::ContainsPart(std::string_view text) const {
    const std::u32string_view rest = std::u32string_view(part_).substr(1);
    for (;;) {
        SkipTo(text, part_.front());
        if (text.empty()) {
            return false;
        }
        if (TakeFolded(text) == part_.front() && BeginsWith(text, rest)) {
            return true;
        }
    }
}

// Goes back only to the last "%": what was matched before that one never has to change.
bool LikePattern::MatchesTokens(std::string_view text) const {
    std::size_t token = 0;
    std::size_t tokenAfterAny = 0;
    std::string_view textAtAny;
    while (!text.empty()) {
        const char32_t expected = token < tokens_.size() ? tokens_[token] : U'\0';
        if (expected == AnyText) {
            tokenAfterAny = ++token;
            if (token == tokens_.size()) {
                return true;
            }
            SkipTo(text, tokens_[token]);
            textAtAny = text;
            continue;
        }
        const char32_t character = TakeFolded(text);
        if (character == 0) {
            continue;
        }
        if (expected == AnyCharacter || expected == character) {
            ++token;
        } else if (tokenAfterAny > 0) {
            TakeCharacter(textAtAny);
            SkipTo(textAtAny, tokens_[tokenAfterAny]);
            text = textAtAny;
            token = tokenAfterAny;
        } else {
            return false;
        }
    }
    return token == tokens_.size() || (token + 1 == tokens_.size() && tokens_[token] == AnyText);
}

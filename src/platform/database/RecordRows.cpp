#include "platform/database/RecordRows.h"

#include <algorithm>

namespace {

bool IsIdentifier(std::string_view text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char character) {
        return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
               (character >= '0' && character <= '9') || character == '_';
    });
}

// "DrinkName" for "D.DrinkName"; an expression such as "COUNT(D.DrinkID)" stays whole.
std::string_view BareName(std::string_view name) {
    const std::size_t point = name.find('.');
    if (point == std::string_view::npos || !IsIdentifier(name.substr(0, point))) {
        return name;
    }
    const std::string_view rest = name.substr(point + 1);
    return IsIdentifier(rest) ? rest : name;
}

bool SameName(std::string_view a, std::string_view b) {
    return a.size() == b.size() && qstrnicmp(a.data(), b.data(), a.size()) == 0;
}

} // namespace

void RecordRows::AddNull() {
    cells.push_back({Cell::Kind::Null, 0, 0});
}

void RecordRows::AddNumber(std::int64_t number) {
    cells.push_back({Cell::Kind::Number, 0, number});
}

void RecordRows::AddText(std::string_view text) {
    const auto place = static_cast<std::int64_t>(texts.size());
    cells.push_back({Cell::Kind::Text, static_cast<std::uint32_t>(text.size()), place});
    texts.append(text);
}

std::string_view RecordRows::Text(const Cell& cell) const {
    return std::string_view(texts).substr(static_cast<std::size_t>(cell.value), cell.length);
}

void RecordRows::IndexNames() {
    bareNames_.clear();
    for (const QByteArray& name : names) {
        const std::string_view bare = BareName({name.constData(), static_cast<std::size_t>(name.size())});
        const bool known = std::any_of(bareNames_.begin(), bareNames_.end(),
                                       [bare](std::string_view earlier) { return SameName(earlier, bare); });
        bareNames_.push_back(known ? std::string_view() : bare);
    }
}

std::size_t RecordRows::FindColumn(std::string_view name, std::size_t hint) const {
    // Nearly always it is the next one, and nearly always the name is written as the statement has it.
    if (hint < bareNames_.size() && bareNames_[hint] == name && !name.empty()) {
        return hint;
    }
    const std::string_view bare = BareName(name);
    const auto same = [bare](std::string_view known) { return known == bare; };
    auto found = bare.empty() ? bareNames_.end() : std::find_if(bareNames_.begin(), bareNames_.end(), same);
    if (found == bareNames_.end() && !bare.empty()) {
        found = std::find_if(bareNames_.begin(), bareNames_.end(),
                             [bare](std::string_view known) { return SameName(known, bare); });
    }
    return found == bareNames_.end() ? NoColumn : static_cast<std::size_t>(found - bareNames_.begin());
}

#include "platform/base/Text.h"

#include <QRegularExpression>

#include <algorithm>
#include <cstdint>
#include <limits>

namespace {

bool IsDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

} // namespace

int InStr(const QString& text, const QString& search) {
    return InStr(1, text, search);
}

int InStr(int start, const QString& text, const QString& search) {
    if (search.isEmpty()) {
        return 0;
    }
    // Made from the clamped start, because `indexOf` counts a negative place from the end of the text.
    return int(text.indexOf(search, std::max(start, 1) - 1, Qt::CaseInsensitive)) + 1;
}

QString Left(const QString& text, int length) {
    return text.left(std::max(length, 0));
}

QString Right(const QString& text, int length) {
    return text.right(std::max(length, 0));
}

QString Mid(const QString& text, int start) {
    return text.mid(std::max(start, 1) - 1);
}

QString Mid(const QString& text, int start, int length) {
    return text.mid(std::max(start, 1) - 1, std::max(length, 0));
}

int Len(const QString& text) {
    return int(text.length());
}

QString Trim(const QString& text) {
    return text.trimmed();
}

QString Uppercase(const QString& text) {
    return text.toUpper();
}

QString Replace(const QString& text, const QString& search, const QString& replacement) {
    const int place = InStr(text, search);
    return place == 0 ? text : Left(text, place - 1) + replacement + Mid(text, place + Len(search));
}

QString ReplaceAll(const QString& text, const QString& search, const QString& replacement) {
    // `QString::replace` would find an empty search between any two characters.
    return search.isEmpty() ? text : QString(text).replace(search, replacement, Qt::CaseInsensitive);
}

QString CStr(int number) {
    return QString::number(number);
}

int CLong(const QString& text) {
    auto place = std::find_if_not(text.begin(), text.end(), [](QChar character) { return character.isSpace(); });
    const bool negative = place != text.end() && *place == u'-';
    if (place != text.end() && (*place == u'-' || *place == u'+')) {
        ++place;
    }
    constexpr std::int64_t beyond = std::int64_t(std::numeric_limits<int>::max()) + 1;
    std::int64_t value = 0;
    for (; place != text.end() && IsDigit(*place); ++place) {
        value = std::min(value * 10 + (place->unicode() - u'0'), beyond);
    }
    return int(negative ? -value : std::min(value, beyond - 1));
}

bool IsNumeric(const QString& text) {
    static const QRegularExpression form(
        QStringLiteral("^\\s*[+-]?([0-9]+(\\.[0-9]*)?|\\.[0-9]+)([eE][+-]?[0-9]+)?\\s*$"));
    return form.match(text).hasMatch();
}

int Asc(const QString& text) {
    if (text.isEmpty()) {
        return 0;
    }
    if (text.length() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate()) {
        return int(QChar::surrogateToUcs4(text[0], text[1]));
    }
    return text[0].unicode();
}

bool SameText(const QString& a, const QString& b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

QString EndOfLine::Macintosh() {
    return QStringLiteral("\r");
}

QString EndOfLine::Windows() {
    return QStringLiteral("\r\n");
}

QString EndOfLine::Unix() {
    return QStringLiteral("\n");
}

QString WithLineFeeds(const QString& text) {
    return ReplaceAll(ReplaceAll(text, EndOfLine::Windows(), EndOfLine::Unix()), EndOfLine::Macintosh(),
                      EndOfLine::Unix());
}

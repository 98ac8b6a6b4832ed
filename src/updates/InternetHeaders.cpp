#include "updates/InternetHeaders.h"

#include "platform/base/Text.h"

#include <QStringList>

namespace {

bool ContinuesTheLineBefore(const QString& line) {
    return line.startsWith(QLatin1Char(' ')) || line.startsWith(QLatin1Char('\t'));
}

QStringList JoinedLines(const QString& source) {
    QStringList lines;
    for (const QString& line : WithLineFeeds(source).split(EndOfLine::Unix())) {
        if (ContinuesTheLineBefore(line) && !lines.isEmpty()) {
            lines.back() += QLatin1Char(' ') + Trim(line);
        } else {
            lines.append(line);
        }
    }
    return lines;
}

} // namespace

InternetHeaders::InternetHeaders(const QString& source) : source_(source) {
    for (const QString& line : JoinedLines(source)) {
        if (const int colon = InStr(line, QStringLiteral(":")); colon > 0) {
            SetValue(Left(line, colon - 1), Trim(Mid(line, colon + 1)));
        }
    }
}

QString InternetHeaders::Value(const QString& name) const {
    const auto found = values_.find(name);
    return found == values_.end() ? QString() : found->second;
}

void InternetHeaders::SetValue(const QString& name, const QString& value) {
    values_[name] = value;
}

void InternetHeaders::Remove(const QString& name) {
    values_.erase(name);
}

QString InternetHeaders::RequestText() const {
    QStringList lines;
    for (const auto& [name, value] : values_) {
        lines.append(name + QStringLiteral(": ") + value);
    }
    return lines.join(EndOfLine::Windows());
}

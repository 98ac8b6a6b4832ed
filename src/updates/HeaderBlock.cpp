#include "updates/HeaderBlock.h"

#include "platform/base/Text.h"

#include <QRegularExpression>

namespace {

QByteArray LineEndInUse(const QByteArray& response) {
    for (const char* lineEnd : {"\r\n", "\n", "\r"}) {
        if (response.contains(lineEnd)) {
            return lineEnd;
        }
    }
    return "\r\n";
}

} // namespace

// A server may end the lines in one way and the block in another.
std::optional<HeaderEnd> FindHeaderEnd(const QByteArray& response) {
    for (const QByteArray& lineEnd : {LineEndInUse(response), QByteArray("\n"), QByteArray("\r\n"), QByteArray("\r")}) {
        const QByteArray twice = lineEnd + lineEnd;
        if (const qsizetype place = response.indexOf(twice); place >= 0) {
            return HeaderEnd{static_cast<int>(place), static_cast<int>(twice.size())};
        }
    }
    return std::nullopt;
}

int StatusCode(const QString& headerText) {
    static const QRegularExpression lineEnd(QStringLiteral("[\r\n]"));
    return CLong(headerText.section(lineEnd, 0, 0).section(QLatin1Char(' '), 1, 1));
}

// A response of a server, or what has come of it so far.
#include "Fuzz.h"
#include "updates/HeaderBlock.h"
#include "updates/InternetHeaders.h"

#include <QStringList>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray response(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const std::optional<HeaderEnd> end = FindHeaderEnd(response);
    if (!end) {
        return 0;
    }
    Expect(end->length >= 0 && end->closing >= 2 && end->length + end->closing <= response.size(), "the end is inside");
    Expect(response.mid(end->length, end->closing).trimmed().isEmpty(), "line ends close the block");
    Expect(FindHeaderEnd(response + "more\r\n").has_value(), "an end that was there stays there");

    const QString text = QString::fromLatin1(response.left(end->length));
    static_cast<void>(StatusCode(text));
    InternetHeaders headers(text);
    headers.SetValue("Host", "a");
    for (const QString& line : headers.RequestText().split("\r\n")) {
        Expect(line.contains(':') && !line.contains('\r') && !line.contains('\n'), "each header is one line");
    }
    return 0;
}

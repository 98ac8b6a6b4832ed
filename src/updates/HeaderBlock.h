#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// Where the header block of a response ends, in bytes.
struct HeaderEnd {
    int length = 0;  // of the header text
    int closing = 0; // of the two line ends behind it
};

// Looks for the end of the header block in what has come of a response so far; nothing when it has not come yet.
// Line ends are CR LF, LF or CR: the first of these that occurs at all is looked for twice in a row, then the others.
[[nodiscard]] std::optional<HeaderEnd> FindHeaderEnd(const QByteArray& response);

// The number in the second blank-separated field of the block's first line: 404 for "HTTP/1.0 404 Not Found". 0 when
// there is none.
[[nodiscard]] int StatusCode(const QString& headerText);

#include "updates/URL.h"

#include "platform/base/Text.h"

URLParts ParseURL(const QString& url, int defaultPort) {
    const QString separator = QStringLiteral("://");
    const int scheme = InStr(url, separator);
    const QString rest = scheme == 0 ? url : Mid(url, scheme + Len(separator));

    URLParts parts;
    const int slash = InStr(rest, QStringLiteral("/"));
    parts.server = slash == 0 ? rest : Left(rest, slash - 1);
    parts.path = slash == 0 ? QStringLiteral("/") : Mid(rest, slash);

    const int colon = InStr(parts.server, QStringLiteral(":"));
    parts.address = colon == 0 ? parts.server : Left(parts.server, colon - 1);
    parts.port = colon == 0 ? 0 : CLong(Mid(parts.server, colon + 1));
    if (parts.port == 0) {
        parts.port = defaultPort;
    }
    return parts;
}

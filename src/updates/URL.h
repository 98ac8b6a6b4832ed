#pragma once

#include <QString>

// The parts of a URL that a client needs to ask for the page.
struct URLParts {
    QString server;  // the host, with its colon and port if the URL has them: the request's header Host
    QString path;    // from the first "/" behind the host on; "/" if there is none
    QString address; // the host alone
    int port = 0;    // the number behind the host's colon, or the default one if there is no such number or it is 0
};

// Reads "http://host:port/path". The scheme may be missing, and is not looked at. No text makes it fail.
[[nodiscard]] URLParts ParseURL(const QString& url, int defaultPort);

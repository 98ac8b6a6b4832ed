#pragma once

#include "platform/network/TCPSocket.h"
#include "updates/InternetHeaders.h"

#include <QString>

#include <optional>

// A client of HTTP/1.0 that fetches one small page and waits for it. An object is made for one fetch.
//
// The page ends with the connection, whatever length the server gave for it. A redirection is not followed, and the
// page that comes with a status like 404 is a page like any other.
class HTTPSocket {
public:
    HTTPSocket();

    // What is taken of a server that sends on and on: a page up to this size, in bytes, and headers up to what a
    // socket keeps unread (TCPSocket::MaximumUnread). With more than that the fetch ends.
    static constexpr int MaximumPage = 1024 * 1024;

    // What ErrorCode says besides 0 and the codes of SocketFailure.
    static constexpr int TimedOut = -1;
    static constexpr int TooLong = -2;

    // Whether the application's events, the user's input among them, are served while Get waits. The caller must not
    // take anything for unchanged then, and a call of Quit unwinds through Get.
    bool yield = false;
    int defaultPort = 80;
    InternetHeaders requestHeaders;

    // Fetches the page and returns its text, or as much of it as came before a failure. Nothing is thrown or shown for
    // a failed fetch. The time-out, in seconds, is an idle time: it begins again when the connection is made or ends
    // and when more of the page comes. 0 or less means none.
    QString Get(const QString& url, int timeout);

    // The status of the response, 0 when none came.
    [[nodiscard]] int HTTPStatusCode() const { return _httpStatusCode; }
    // 0 after a fetch that came to its end.
    [[nodiscard]] int ErrorCode() const { return mErrorCode; }
    // Null until the headers have come whole.
    [[nodiscard]] const InternetHeaders* PageHeaders() const { return _pageHeaders ? &*_pageHeaders : nullptr; }

private:
    void InitializeRequestHeaders();
    void Connect(const QString& url);
    void WaitForPage();

    void Socket_Connected();
    void Socket_DataAvailable();
    void Socket_Error();

    void SendRequest();
    void ReceiveHeaders();
    void ReceiveBody(const QByteArray& bytes);
    void Abandon(int errorCode);

    TCPSocket socket_;

    // NOLINTBEGIN(readability-identifier-naming): the names that these fields are known by
    QString _server;
    QString _path;
    std::optional<InternetHeaders> _pageHeaders;
    QByteArray _pageBuffer;
    bool _pageComplete = false;
    bool _connectionValid = false;
    int _httpStatusCode = 0;
    int timeoutSeconds = 0;
    int mErrorCode = 0;
    // NOLINTEND(readability-identifier-naming)
};

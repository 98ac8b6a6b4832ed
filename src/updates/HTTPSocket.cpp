#include "updates/HTTPSocket.h"

#include "platform/base/Text.h"
#include "platform/ui/Application.h"
#include "updates/HeaderBlock.h"
#include "updates/URL.h"

#include <chrono>

HTTPSocket::HTTPSocket() {
    InitializeRequestHeaders();
    socket_.Connected = [this] { Socket_Connected(); };
    socket_.DataAvailable = [this] { Socket_DataAvailable(); };
    socket_.Error = [this] { Socket_Error(); };
}

void HTTPSocket::InitializeRequestHeaders() {
    requestHeaders.SetValue(QStringLiteral("Accept"), QStringLiteral("*/*"));
    requestHeaders.SetValue(QStringLiteral("Accept-Language"), QStringLiteral("en"));
}

QString HTTPSocket::Get(const QString& url, int timeout) {
    timeoutSeconds = timeout;
    Connect(url);
    WaitForPage();
    return QString::fromUtf8(_pageBuffer);
}

void HTTPSocket::Connect(const QString& url) {
    const URLParts parts = ParseURL(url, defaultPort);
    _server = parts.server;
    _path = parts.path;
    socket_.SetAddress(parts.address);
    socket_.SetPort(parts.port);
    socket_.Close();
    socket_.Purge();
    socket_.Connect();
}

void HTTPSocket::WaitForPage() {
    using Clock = std::chrono::steady_clock;

    _pageComplete = false;
    mErrorCode = 0;
    bool wasValid = _connectionValid;
    qsizetype length = _pageBuffer.size();
    Clock::time_point signOfLife = Clock::now();
    while (!_pageComplete && mErrorCode == 0) {
        socket_.Poll();
        if (yield) {
            Application::Current().DoEvents();
        }
        if (_connectionValid != wasValid || _pageBuffer.size() != length) {
            wasValid = _connectionValid;
            length = _pageBuffer.size();
            signOfLife = Clock::now();
        }
        if (timeoutSeconds > 0 && Clock::now() - signOfLife > std::chrono::seconds(timeoutSeconds)) {
            Abandon(TimedOut);
        }
    }
}

void HTTPSocket::Socket_Connected() {
    _connectionValid = true;
    _pageBuffer.clear();
    _pageHeaders.reset();
    _httpStatusCode = 0;
    _pageComplete = false;
    SendRequest();
}

void HTTPSocket::SendRequest() {
    requestHeaders.SetValue(QStringLiteral("Host"), _server);
    requestHeaders.Remove(QStringLiteral("Content-type"));
    requestHeaders.Remove(QStringLiteral("Content-length"));
    const QString lineEnd = EndOfLine::Windows();
    const QString request = QStringLiteral("GET ") + _path + QStringLiteral(" HTTP/1.0") + lineEnd +
                            requestHeaders.RequestText() + lineEnd + lineEnd;
    socket_.Write(request.toUtf8());
}

void HTTPSocket::Socket_DataAvailable() {
    if (!_pageHeaders) {
        ReceiveHeaders();
    }
    if (_pageHeaders) {
        ReceiveBody(socket_.ReadAll());
    }
}

// Headers that are not whole stay with the socket.
void HTTPSocket::ReceiveHeaders() {
    const QByteArray waiting = socket_.Lookahead();
    const std::optional<HeaderEnd> end = FindHeaderEnd(waiting);
    if (end) {
        const QString headerText = QString::fromLatin1(socket_.Read(end->length));
        static_cast<void>(socket_.Read(end->closing));
        _httpStatusCode = StatusCode(headerText);
        _pageHeaders.emplace(headerText);
    } else if (waiting.size() >= TCPSocket::MaximumUnread) {
        Abandon(TooLong);
    }
}

void HTTPSocket::ReceiveBody(const QByteArray& bytes) {
    constexpr int unauthorized = 401;

    _pageBuffer += bytes;
    if (_pageBuffer.size() > MaximumPage) {
        _pageBuffer.truncate(MaximumPage);
        Abandon(TooLong);
    }
    if (_httpStatusCode == unauthorized && !socket_.IsConnected()) {
        _pageComplete = true;
    }
}

// A connection that ends before all was read does not end the page: what is left may be half a header, which only the
// time-out can give up.
void HTTPSocket::Socket_Error() {
    if (!_connectionValid) {
        mErrorCode = socket_.LastErrorCode();
        return;
    }
    _connectionValid = false;
    if (socket_.Lookahead().isEmpty()) {
        _pageComplete = true;
    } else {
        Socket_DataAvailable();
    }
}

void HTTPSocket::Abandon(int errorCode) {
    socket_.Close();
    mErrorCode = errorCode;
}

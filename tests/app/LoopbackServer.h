#pragma once

#include <QByteArrayList>
#include <QTcpServer>

// A real HTTP server on a free port of this machine, in the turns of the test's own event loop. It answers each request
// with the pieces one by one, each after the pause, and then does this.
class LoopbackServer {
public:
    enum class Then { Close, HoldOpen, RepeatLastPiece };

    // The pause, in milliseconds, is long enough for two pieces to arrive apart.
    explicit LoopbackServer(const QByteArrayList& pieces, Then then = Then::Close, int pause = 20);

    // "127.0.0.1:43211"
    [[nodiscard]] QString Site() const { return QString("127.0.0.1:%1").arg(server_.serverPort()); }
    [[nodiscard]] const QByteArrayList& Requests() const { return requests_; }

private:
    void Continue(QTcpSocket& client, qsizetype piece);

    QByteArrayList pieces_;
    Then then_;
    int pause_;
    QByteArrayList requests_;
    QTcpServer server_;
};

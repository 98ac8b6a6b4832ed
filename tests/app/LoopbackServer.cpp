#include "LoopbackServer.h"

#include <QTcpSocket>
#include <QTimer>

LoopbackServer::LoopbackServer(const QByteArrayList& pieces, Then then, int pause)
    : pieces_(pieces), then_(then), pause_(pause) {
    server_.listen(QHostAddress::LocalHost);
    QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] {
        QTcpSocket* client = server_.nextPendingConnection();
        // A request is small and comes whole.
        QObject::connect(client, &QTcpSocket::readyRead, client, [this, client] {
            requests_.append(client->readAll());
            Continue(*client, 0);
        });
    });
}

void LoopbackServer::Continue(QTcpSocket& client, qsizetype piece) {
    if (piece < pieces_.size()) {
        QTimer::singleShot(pause_, &client, [this, &client, piece] {
            const bool again = then_ == Then::RepeatLastPiece && piece + 1 == pieces_.size();
            if (client.write(pieces_[piece]) >= 0) {
                Continue(client, again ? piece : piece + 1);
            }
        });
    } else if (then_ == Then::Close) {
        client.disconnectFromHost();
    }
}

#include "platform/network/TCPSocket.h"

#include "platform/network/HostLookup.h"
#include "platform/ui/Events.h"

#include <QCoreApplication>
#include <QTcpSocket>
#include <QTimer>

#include <limits>

namespace {

constexpr int longestWait = 20;

SocketFailure FailureOf(QAbstractSocket::SocketError error) {
    switch (error) {
        case QAbstractSocket::ConnectionRefusedError:
            return SocketFailure::ConnectionRefused;
        case QAbstractSocket::RemoteHostClosedError:
            return SocketFailure::ConnectionEnded;
        case QAbstractSocket::HostNotFoundError:
            return SocketFailure::HostNotFound;
        default:
            return SocketFailure::Other;
    }
}

} // namespace

struct TCPSocket::State {
    QString address;
    int port = 0;
    int lastErrorCode = 0;
    bool connected = false;
    HostLookup lookup;
    QList<QHostAddress> addresses; // that are left to try
    QTcpSocket socket;
    // Ends when the new connection is to begin. The library can fail inside its own call, before the caller of Connect
    // is ready for an event.
    QTimer beginning;
};

TCPSocket::TCPSocket() : state_(std::make_unique<State>()) {
    QTcpSocket& socket = state_->socket;
    socket.setReadBufferSize(MaximumUnread);
    state_->beginning.setSingleShot(true);
    QObject::connect(&state_->beginning, &QTimer::timeout, &socket, [this] { Begin(); });
    QObject::connect(&socket, &QTcpSocket::connected, &socket, [this] {
        state_->connected = true;
        state_->addresses.clear();
        events::Raise(Connected);
    });
    QObject::connect(&socket, &QTcpSocket::readyRead, &socket, [this] { events::Raise(DataAvailable); });
    QObject::connect(&socket, &QTcpSocket::errorOccurred, &socket, [this](QAbstractSocket::SocketError error) {
        if (state_->addresses.isEmpty()) {
            Fail(FailureOf(error));
        } else {
            TryNextAddress();
        }
    });
    state_->lookup.Done = [this](const QList<QHostAddress>& addresses) {
        state_->addresses = addresses;
        if (addresses.isEmpty()) {
            Fail(SocketFailure::HostNotFound);
        } else {
            TryNextAddress();
        }
    };
}

// The end of the connection says nothing to an object that is half gone.
TCPSocket::~TCPSocket() {
    state_->socket.disconnect();
}

void TCPSocket::SetAddress(const QString& address) {
    state_->address = address;
}

void TCPSocket::SetPort(int port) {
    state_->port = port;
}

void TCPSocket::Connect() {
    Close();
    state_->lastErrorCode = 0;
    state_->beginning.start();
}

void TCPSocket::Close() {
    state_->beginning.stop();
    state_->lookup.Cancel();
    state_->addresses.clear();
    state_->connected = false;
    state_->socket.abort();
}

void TCPSocket::Purge() {
    if (state_->socket.isOpen()) {
        state_->socket.skip(state_->socket.bytesAvailable());
    }
}

void TCPSocket::Poll() {
    QTimer wake;
    wake.setSingleShot(true);
    wake.start(longestWait);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
    events::UnwindIfQuitting();
}

void TCPSocket::Write(const QByteArray& bytes) {
    state_->socket.write(bytes);
}

QByteArray TCPSocket::Read(int bytes) {
    return state_->socket.read(bytes);
}

QByteArray TCPSocket::ReadAll() {
    return state_->socket.readAll();
}

QByteArray TCPSocket::Lookahead() const {
    return state_->socket.peek(state_->socket.bytesAvailable());
}

bool TCPSocket::IsConnected() const {
    return state_->connected;
}

int TCPSocket::LastErrorCode() const {
    return state_->lastErrorCode;
}

void TCPSocket::Begin() {
    constexpr int largestPort = std::numeric_limits<quint16>::max();
    if (state_->address.isEmpty()) {
        Fail(SocketFailure::HostNotFound);
    } else if (state_->port < 1 || state_->port > largestPort) {
        Fail(SocketFailure::Other);
    } else {
        state_->lookup.Begin(state_->address);
    }
}

void TCPSocket::TryNextAddress() {
    if (!state_->addresses.isEmpty()) {
        state_->socket.abort();
        state_->socket.connectToHost(state_->addresses.takeFirst(), static_cast<quint16>(state_->port));
    }
}

void TCPSocket::Fail(SocketFailure failure) {
    state_->connected = false;
    state_->lastErrorCode = static_cast<int>(failure);
    events::Raise(Error);
}

#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>

// Why a connection failed or ended. The numbers say no more than which is which; none is 0 or below.
enum class SocketFailure : int {
    ConnectionRefused = 1,
    ConnectionEnded = 2, // by the other side
    HostNotFound = 3,    // also for an empty address
    Other = 4,
};

// One connection over TCP. Nothing here waits: Connect and Write return at once, and what comes of them is told by the
// events, which are raised by Poll or by an event loop, never from inside another call of the socket.
class TCPSocket {
public:
    TCPSocket();
    // Closes the connection.
    ~TCPSocket();
    TCPSocket(const TCPSocket&) = delete;
    TCPSocket& operator=(const TCPSocket&) = delete;

    // What the socket keeps of data that was not read, in bytes. With so much waiting it takes no more, and the other
    // side has to wait until some is read.
    static constexpr int MaximumUnread = 64 * 1024;

    // The connection was made.
    std::function<void()> Connected;
    // There is more to read than before.
    std::function<void()> DataAvailable;
    // The connection could not be made, broke, or was ended by the other side; LastErrorCode says which. What came
    // before the end can still be read.
    std::function<void()> Error;

    // The host, as a name or a number, and the port, 1 to 65535, that Connect goes to.
    void SetAddress(const QString& address);
    void SetPort(int port);

    // Ends a connection that there is, and begins a new one with the next turn of an event loop.
    void Connect();
    // Ends the connection without an event. What was not read is lost.
    void Close();
    // Forgets what was received and not read.
    void Purge();

    // Serves the network and the timers of the program, and leaves the user's input waiting. When there is nothing to
    // serve it waits for a moment, at most some 20 milliseconds, so that a loop around it does not spin.
    void Poll();

    // Sends this without waiting for it to leave. Without a connection it is lost.
    void Write(const QByteArray& bytes);

    // What was received and not read: the first so many bytes, or fewer if there are not so many; all; all, without
    // taking it away.
    [[nodiscard]] QByteArray Read(int bytes);
    [[nodiscard]] QByteArray ReadAll();
    [[nodiscard]] QByteArray Lookahead() const;

    [[nodiscard]] bool IsConnected() const;

    // The SocketFailure of the last Error event; 0 before there was one and after Connect.
    [[nodiscard]] int LastErrorCode() const;

private:
    struct State;

    void Begin();
    void TryNextAddress();
    void Fail(SocketFailure failure);

    std::unique_ptr<State> state_;
};

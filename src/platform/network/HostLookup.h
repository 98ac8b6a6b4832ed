#pragma once

#include <QHostAddress>
#include <QList>
#include <QString>
#include <QTimer>

#include <functional>
#include <memory>

// Asks for the addresses of a host, one name at a time, without waiting. A name server that does not answer keeps the
// system busy for many seconds. Nothing waits for a lookup that was given up, not even the end of the process.
class HostLookup {
public:
    HostLookup();
    // Gives up, without an event.
    ~HostLookup();
    HostLookup(const HostLookup&) = delete;
    HostLookup& operator=(const HostLookup&) = delete;

    // The addresses in the order in which they are to be tried; none when the host is not known. Comes from an event
    // loop.
    std::function<void(const QList<QHostAddress>& addresses)> Done;

    // Gives up an earlier lookup. A host that is an address already is looked up like any other.
    void Begin(const QString& host);
    void Cancel();

private:
    struct Request;

    void LookForAnswer();

    std::unique_ptr<Request> request_;
    QTimer look_;
};

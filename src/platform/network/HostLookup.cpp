#include "platform/network/HostLookup.h"

#include <QUrl>

#include <netdb.h>

namespace {

constexpr int millisecondsBetweenLooks = 10;

} // namespace

// The system writes into it until the lookup has ended.
struct HostLookup::Request {
    QByteArray host;
    addrinfo wanted{};
    gaicb control{};
};

HostLookup::HostLookup() {
    look_.callOnTimeout([this] { LookForAnswer(); });
}

HostLookup::~HostLookup() {
    Cancel();
}

void HostLookup::Begin(const QString& host) {
    Cancel();
    request_ = std::make_unique<Request>();
    request_->host = QUrl::toAce(host);
    request_->wanted.ai_family = AF_UNSPEC;
    request_->wanted.ai_socktype = SOCK_STREAM;
    request_->wanted.ai_flags = AI_ADDRCONFIG;
    request_->control.ar_name = request_->host.constData();
    request_->control.ar_request = &request_->wanted;
    gaicb* list[] = {&request_->control};
    // A lookup that cannot even begin is seen as one that failed.
    static_cast<void>(getaddrinfo_a(GAI_NOWAIT, list, 1, nullptr));
    look_.start(millisecondsBetweenLooks);
}

void HostLookup::Cancel() {
    look_.stop();
    if (!request_) {
        return;
    }
    if (gai_cancel(&request_->control) == EAI_NOTCANCELED) {
        // One small request stays behind for each lookup that hangs, because the system still writes into it.
        static_cast<void>(request_.release());
    } else {
        freeaddrinfo(request_->control.ar_result);
        request_.reset();
    }
}

void HostLookup::LookForAnswer() {
    if (gai_error(&request_->control) == EAI_INPROGRESS) {
        return;
    }
    QList<QHostAddress> addresses;
    for (const addrinfo* found = request_->control.ar_result; found != nullptr; found = found->ai_next) {
        addresses.append(QHostAddress(found->ai_addr));
    }
    Cancel();
    Done(addresses);
}

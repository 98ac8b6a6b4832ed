#include "platform/ui/Events.h"

#include "platform/ui/MsgBox.h"

#include <QCoreApplication>
#include <QThread>

namespace {

bool quitting = false;

} // namespace

namespace events {

bool QuitPending() {
    return quitting;
}

// Leaves every event loop that runs. The handlers that wait in an inner one unwind when they come back to it. With no
// loop running there is none to leave, and Qt would take the call for the next one.
void BeginQuit(int exitStatus) {
    quitting = true;
    if (QThread::currentThread()->loopLevel() > 0) {
        QCoreApplication::exit(exitStatus);
    }
}

void Reset() {
    quitting = false;
}

void Silence() {
    quitting = true;
}

void UnwindIfQuitting() {
    if (quitting) {
        throw QuitRequest{0};
    }
}

void TellUncaught(const QString& cause) {
    try {
        MsgBox(QStringLiteral("Something went wrong, and the last command was not finished.  %1").arg(cause), 16,
               QString());
    } catch (const QuitRequest& request) {
        BeginQuit(request.exitStatus);
    }
}

} // namespace events

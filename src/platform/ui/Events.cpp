#include "platform/ui/Events.h"

#include "platform/ui/MsgBox.h"

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

#include <utility>
#include <vector>

namespace {

bool quitting = false;
int runningHandlers = 0;
std::vector<std::function<void()>> waitingActions;

// Called by a timer, which a handler's own message box may serve.
void DoWaitingActions() {
    if (runningHandlers == 0) {
        for (const auto& action : std::exchange(waitingActions, {})) {
            action();
        }
    }
}

} // namespace

namespace events {

bool QuitPending() {
    return quitting;
}

// Leaves every event loop that runs. The handlers that wait in an inner one unwind when they come back to it. With no
// loop running there is none to leave, and Qt would take the call for the next one.
void BeginQuit(int exitStatus) {
    // The exit status is that of the first call: the handlers that unwind come here again.
    if (std::exchange(quitting, true)) {
        return;
    }
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

void WhenIdle(std::function<void()> action) {
    waitingActions.push_back(std::move(action));
    QTimer::singleShot(0, qApp, DoWaitingActions);
}

Running::Running() {
    ++runningHandlers;
}

Running::~Running() {
    if (--runningHandlers == 0 && !waitingActions.empty()) {
        QTimer::singleShot(0, qApp, DoWaitingActions);
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

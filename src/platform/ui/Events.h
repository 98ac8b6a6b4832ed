#pragma once

#include "platform/base/Exceptions.h"

#include <exception>
#include <functional>
#include <utility>

// For the layer itself: the one way from the window system into a handler.
//
// No exception leaves Raise, because the frames of the window system's library above it cannot carry one. A fault in
// the handler is told to the user and the operation is abandoned; the program runs on. A call of Quit ends the run.

// What Quit throws to unwind the handlers. It is no std::exception, so that no guarded step takes it for a failure.
struct QuitRequest {
    int exitStatus;
};

namespace events {

[[nodiscard]] bool QuitPending();
void BeginQuit(int exitStatus);
void Reset();
// From here on no handler runs: the windows are being taken down.
void Silence();
void TellUncaught(const QString& cause);

// To stand at the end of every function that the logic calls and that may have run a handler: if that handler called
// Quit, the caller must not go on.
void UnwindIfQuitting();

// Does this with a turn of the event loop in which no handler runs, which is later than any message box that a running
// handler shows.
void WhenIdle(std::function<void()> action);

// Stands in Raise for the time of a handler.
class Running {
public:
    Running();
    ~Running();
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
};

template <class Result, class... Arguments, class... Given>
Result Raise(const std::function<Result(Arguments...)>& event, Given&&... arguments) {
    if (!QuitPending() && event) {
        const Running running;
        try {
            return event(std::forward<Given>(arguments)...);
        } catch (const QuitRequest& request) {
            BeginQuit(request.exitStatus);
        } catch (const RuntimeException& fault) {
            TellUncaught(fault.Message());
        } catch (const std::exception& fault) {
            TellUncaught(QString::fromUtf8(fault.what()));
        }
    }
    return Result();
}

} // namespace events

#include "platform/ui/OpenWindows.h"

#include "platform/ui/Events.h"
#include "platform/ui/Window.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <map>
#include <vector>

namespace {

std::map<std::type_index, std::unique_ptr<Window>>& Open() {
    static std::map<std::type_index, std::unique_ptr<Window>> windows;
    return windows;
}

std::vector<std::unique_ptr<Window>>& Closed() {
    static std::vector<std::unique_ptr<Window>> windows;
    return windows;
}

QPointer<QWidget>& Coming() {
    static QPointer<QWidget> window;
    return window;
}

Window* OfKind(WindowKind kind) {
    const auto found =
        std::find_if(Open().begin(), Open().end(), [kind](const auto& entry) { return entry.second->Kind() == kind; });
    return found == Open().end() ? nullptr : found->second.get();
}

} // namespace

namespace OpenWindows {

Window* Find(std::type_index type) {
    const auto found = Open().find(type);
    return found == Open().end() ? nullptr : found->second.get();
}

Window& Add(std::type_index type, std::unique_ptr<Window> window) {
    return *(Open()[type] = std::move(window));
}

void ShowSoon(Window& window) {
    QTimer::singleShot(0, window.Widget(), [&window] {
        if (!events::QuitPending()) {
            window.Widget()->show();
        }
    });
}

void Release(Window& window) {
    const auto found =
        std::find_if(Open().begin(), Open().end(), [&](const auto& entry) { return entry.second.get() == &window; });
    if (found != Open().end()) {
        Closed().push_back(std::move(found->second));
        Open().erase(found);
        events::WhenIdle([] { Closed().clear(); });
    }
    if (window.Kind() == WindowKind::Document && Document() == nullptr && !events::QuitPending()) {
        events::BeginQuit(0);
    }
}

Window* Frontmost() {
    const QWidget* active = QApplication::activeWindow();
    for (const auto& [type, window] : Open()) {
        if (window->Widget() == active) {
            return window.get();
        }
    }
    // Without a window manager no window is ever active; one that is alone is in front all the same.
    return active == nullptr && Open().size() == 1 ? Any() : nullptr;
}

void ComesToFront(Window& window) {
    Coming() = window.Widget();
    QObject::connect(
        qApp, &QGuiApplication::focusWindowChanged, window.Widget(), [] { Coming().clear(); },
        Qt::SingleShotConnection);
}

// The focus goes back to this window when the message has been read. An open menu can be the active window; it goes
// with the next turn of the event loop, and would take a message that belongs to it along.
QWidget* MessageParent() {
    QWidget* coming = Coming();
    if (coming != nullptr && coming->isVisible()) {
        return coming;
    }
    QWidget* active = QApplication::activeWindow();
    while (active != nullptr && active->windowType() == Qt::Popup) {
        active = active->parentWidget() != nullptr ? active->parentWidget()->window() : nullptr;
    }
    return active;
}

Window* Any() {
    return Open().empty() ? nullptr : Open().begin()->second.get();
}

Window* Document() {
    return OfKind(WindowKind::Document);
}

Window* Floating() {
    return OfKind(WindowKind::Floating);
}

void DestroyAll() {
    for (const auto& entry : Open()) {
        entry.second->Widget()->hide();
    }
    Closed().clear();
    Open().clear();
}

} // namespace OpenWindows

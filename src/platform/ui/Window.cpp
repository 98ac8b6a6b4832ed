#include "platform/ui/Window.h"

#include "platform/ui/Control.h"
#include "platform/ui/Events.h"
#include "platform/ui/MenuBar.h"
#include "platform/ui/OpenWindows.h"
#include "platform/ui/WindowFrame.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QMenuBar>
#include <QThread>
#include <QWindow>

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace {

// A window system that never answers, or keeps the window out of sight, must not keep the task waiting.
constexpr int longestWaitForScreen = 300; // milliseconds

void WaitUntilOnScreen(const QWidget& frame) {
    const QDeadlineTimer limit(longestWaitForScreen);
    while (!frame.windowHandle()->isExposed() && !limit.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        QThread::msleep(1);
    }
}

// On Wayland the desktop alone places windows, and tells nobody where.
bool WindowsKnowTheirPlace() {
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

} // namespace

struct Window::State {
    WindowProperties properties;
    std::unique_ptr<WindowFrame> frame;
    std::vector<Control*> controls;
    bool closed = false;
    // Where the window was last put.
    QPoint place;

    // On a fine screen a frame may be half a pixel wide. What reads back is then off by one, and a window that is put
    // where it was would creep away with each session.
    [[nodiscard]] QPoint Position() const {
        const QPoint off = frame->pos() - place;
        const bool rounded = frame->devicePixelRatioF() != 1 && std::max(std::abs(off.x()), std::abs(off.y())) <= 1;
        return rounded || !WindowsKnowTheirPlace() ? place : frame->pos();
    }
    void MoveTo(const QPoint& position) {
        place = position;
        frame->move(position);
    }
};

Window::Window(const WindowProperties& properties) : state_(std::make_unique<State>()) {
    state_->properties = properties;
    state_->frame = std::make_unique<WindowFrame>(properties);
    WindowFrame& frame = *state_->frame;
    frame.Resized = [this](const FrameChange& change) { ContentResized(change); };
    frame.Closed = [this] { OnClosed(); };
}

Window::~Window() = default;

Window& Window::Implicit(std::type_index type, const std::function<std::unique_ptr<Window>()>& create) {
    if (Window* open = OpenWindows::Find(type); open != nullptr) {
        return *open;
    }
    Window& window = OpenWindows::Add(type, create());
    events::Raise(window.OpenEvent);
    OpenWindows::ShowSoon(window);
    events::UnwindIfQuitting();
    return window;
}

int Window::Top() const {
    return state_->Position().y();
}

int Window::Left() const {
    return state_->Position().x();
}

int Window::Width() const {
    return state_->frame->Content()->width();
}

int Window::Height() const {
    return state_->frame->Content()->height();
}

void Window::SetTop(int top) {
    state_->MoveTo({Left(), top});
}

void Window::SetLeft(int left) {
    state_->MoveTo({left, Top()});
}

void Window::SetWidth(int width) {
    state_->frame->resize(width, state_->frame->height());
    state_->frame->LayOut();
}

void Window::SetHeight(int height) {
    state_->frame->resize(state_->frame->width(), height + state_->frame->MenuHeight());
    state_->frame->LayOut();
}

void Window::SetTitle(const QString& title) {
    state_->frame->setWindowTitle(title);
}

void Window::SetMenuBar(MenuBar& menuBar) {
    WindowFrame& frame = *state_->frame;
    if (Kind() != WindowKind::Document) {
        menuBar.AddShortcutsTo(frame);
        return;
    }
    const QSize content = frame.Content()->size();
    frame.AddMenuBar(menuBar.MakeWidget());
    frame.ApplyLimits();
    frame.resize(content.width(), content.height() + frame.MenuHeight());
    frame.LayOut();
}

void Window::Show() {
    state_->frame->show();
    state_->frame->raise();
    state_->frame->activateWindow();
    OpenWindows::ComesToFront(*this);
    // The task that a dialog stands for may let no event through for long.
    if (Kind() == WindowKind::Dialog) {
        WaitUntilOnScreen(*state_->frame);
    }
    events::UnwindIfQuitting();
}

void Window::Minimize() {
    state_->frame->showMinimized();
}

void Window::Maximize() {
    state_->frame->showMaximized();
}

void Window::Close() {
    state_->frame->close();
    events::UnwindIfQuitting();
}

QWidget* Window::Widget() const {
    return state_->frame.get();
}

WindowKind Window::Kind() const {
    return state_->properties.kind;
}

QWidget* Window::Content() const {
    return state_->frame->Content();
}

void Window::Adopt(Control& control) {
    state_->controls.push_back(&control);
}

void Window::ContentResized(const FrameChange& change) {
    for (Control* control : state_->controls) {
        control->FollowFrame(change);
    }
}

void Window::OnClosed() {
    if (state_->closed) {
        return;
    }
    state_->closed = true;
    // What stands in a floating window counts before the document window writes it down.
    while (Window* floating = Kind() == WindowKind::Document ? OpenWindows::Floating() : nullptr) {
        floating->state_->frame->close();
    }
    events::Raise(CloseEvent);
    OpenWindows::Release(*this);
}

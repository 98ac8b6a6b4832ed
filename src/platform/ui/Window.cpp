#include "platform/ui/Window.h"

#include "platform/ui/Control.h"
#include "platform/ui/Events.h"
#include "platform/ui/MenuBar.h"
#include "platform/ui/OpenWindows.h"

#include <QCloseEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QResizeEvent>
#include <QWidget>

#include <algorithm>
#include <vector>

// The top level widget: the menu bar, and below it the content that carries the controls. It places both itself; it is
// a QMainWindow because assistive tools know that as a window.
class Window::Frame : public QMainWindow {
public:
    explicit Frame(Window& owner) : owner_(owner), content_(new QWidget(this)) {}

    void AddMenuBar(QMenuBar* menuBar) {
        menuBar_ = menuBar;
        menuBar_->setParent(this);
        menuBar_->setNativeMenuBar(false);
        menuBar_->show();
    }

    void ApplyLimits(const WindowProperties& limits) {
        const int above = MenuHeight();
        if (limits.resizeable) {
            setMinimumSize(limits.minWidth, limits.minHeight + above);
            setMaximumSize(limits.maxWidth, limits.maxHeight + above);
        } else {
            setFixedSize(limits.width, limits.height + above);
        }
    }

    [[nodiscard]] int MenuHeight() const { return menuBar_ == nullptr ? 0 : menuBar_->sizeHint().height(); }
    [[nodiscard]] QWidget* Content() const { return content_; }

    // The window system reports a size only once the window is on the screen; the logic reads places before that.
    void LayOut() {
        const int menuHeight = MenuHeight();
        if (menuBar_ != nullptr) {
            menuBar_->setGeometry(0, 0, width(), menuHeight);
        }
        const QSize before = content_->size();
        content_->setGeometry(0, menuHeight, width(), std::max(0, height() - menuHeight));
        const QSize after = content_->size();
        if (laidOut_ && before != after) {
            owner_.ContentResized({0, 0, after.width() - before.width(), after.height() - before.height()});
        }
        laidOut_ = true;
    }

protected:
    void resizeEvent(QResizeEvent* event) override {
        QMainWindow::resizeEvent(event);
        LayOut();
    }

    void closeEvent(QCloseEvent* event) override {
        // An edit in a cell ends before the window does, so that its text reaches the handler.
        if (QWidget* focused = focusWidget(); focused != nullptr) {
            focused->clearFocus();
        }
        owner_.OnClosed();
        event->accept();
    }

private:
    Window& owner_;
    QWidget* content_;
    QMenuBar* menuBar_ = nullptr;
    bool laidOut_ = false;
};

struct Window::State {
    WindowProperties properties;
    std::unique_ptr<Frame> frame;
    std::vector<Control*> controls;
    bool closed = false;
};

Window::Window(const WindowProperties& properties) : state_(std::make_unique<State>()) {
    state_->properties = properties;
    state_->frame = std::make_unique<Frame>(*this);
    Frame& frame = *state_->frame;
    frame.setObjectName(QString::fromLatin1(properties.name));
    frame.setWindowTitle(properties.title);
    frame.setAttribute(Qt::WA_DeleteOnClose, false);
    frame.ApplyLimits(properties);
    frame.resize(properties.width, properties.height);
    frame.LayOut();
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
    return state_->frame->pos().y();
}

int Window::Left() const {
    return state_->frame->pos().x();
}

int Window::Width() const {
    return state_->frame->Content()->width();
}

int Window::Height() const {
    return state_->frame->Content()->height();
}

void Window::SetTop(int top) {
    state_->frame->move(Left(), top);
}

void Window::SetLeft(int left) {
    state_->frame->move(left, Top());
}

void Window::SetWidth(int width) {
    state_->frame->resize(width, state_->frame->height());
    state_->frame->LayOut();
}

void Window::SetHeight(int height) {
    state_->frame->resize(state_->frame->width(), height + state_->frame->MenuHeight());
    state_->frame->LayOut();
}

QString Window::Title() const {
    return state_->frame->windowTitle();
}

void Window::SetTitle(const QString& title) {
    state_->frame->setWindowTitle(title);
}

void Window::SetMenuBar(MenuBar& menuBar) {
    Frame& frame = *state_->frame;
    const QSize content = frame.Content()->size();
    frame.AddMenuBar(menuBar.MakeWidget());
    frame.ApplyLimits(state_->properties);
    frame.resize(content.width(), content.height() + frame.MenuHeight());
    frame.LayOut();
}

void Window::Show() {
    state_->frame->show();
    state_->frame->raise();
    state_->frame->activateWindow();
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
    events::Raise(CloseEvent);
    OpenWindows::Release(*this);
}

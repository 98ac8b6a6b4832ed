#include "platform/ui/Application.h"

#include "platform/base/FreedMemory.h"
#include "platform/ui/Events.h"
#include "platform/ui/MenuBar.h"
#include "platform/ui/OpenWindows.h"
#include "platform/ui/Spoken.h"
#include "platform/ui/Style.h"
#include "platform/ui/TextScale.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QTimer>

#include <algorithm>
#include <vector>

namespace {

Application* current = nullptr;

struct PaletteColor {
    QPalette::ColorGroup group = QPalette::All;
    QPalette::ColorRole role = QPalette::NoRole;
    QRgb rgb = 0;
};

// The pictures and the colours that the logic sets are made for light windows, so the palette does not follow a dark
// desktop.
constexpr PaletteColor lightColors[] = {
    {QPalette::All, QPalette::Window, 0xEFEFEF},
    {QPalette::All, QPalette::WindowText, 0x101010},
    {QPalette::All, QPalette::Base, 0xFFFFFF},
    {QPalette::All, QPalette::AlternateBase, 0xF1F5FA},
    {QPalette::All, QPalette::Text, 0x101010},
    {QPalette::All, QPalette::Button, 0xEFEFEF},
    {QPalette::All, QPalette::ButtonText, 0x101010},
    {QPalette::All, QPalette::ToolTipBase, 0xFFFFFF},
    {QPalette::All, QPalette::ToolTipText, 0x101010},
    {QPalette::All, QPalette::PlaceholderText, 0x8A8A8A},
    {QPalette::All, QPalette::Highlight, 0xC3D2EC},
    {QPalette::All, QPalette::HighlightedText, 0x101010},
    {QPalette::Disabled, QPalette::Text, 0x9A9A9A},
    {QPalette::Disabled, QPalette::WindowText, 0x9A9A9A},
    {QPalette::Disabled, QPalette::ButtonText, 0x9A9A9A},
};

QPalette LightPalette() {
    // Qt works out the shades of edges and shadows from the button's colour.
    QPalette palette(QColor(0xEFEFEF));
    for (const PaletteColor& color : lightColors) {
        palette.setColor(color.group, color.role, QColor(color.rgb));
    }
    return palette;
}

} // namespace

Application::Application(const QString& name, const ApplicationVersion& version) : version_(version) {
    current = this;
    QApplication::setApplicationName(name);
    events::Reset();
}

Application::~Application() {
    events::Silence();
    OpenWindows::DestroyAll();
    current = nullptr;
}

Application& Application::Current() {
    if (current == nullptr) {
        throw NilObjectException();
    }
    return *current;
}

void Application::SetMenuBar(MenuBar& menuBar) {
    menuBar_ = &menuBar;
}

MenuBar& Application::ApplicationMenuBar() const {
    if (menuBar_ == nullptr) {
        throw NilObjectException();
    }
    return *menuBar_;
}

void Application::AddMenuHandler(const QString& itemName, std::function<bool()> handler) {
    menuHandlers_[itemName] = std::move(handler);
}

const std::function<bool()>* Application::MenuHandler(const QString& itemName) const {
    const auto found = menuHandlers_.find(itemName);
    return found == menuHandlers_.end() ? nullptr : &found->second;
}

// Input that a loop without input has put aside does not wake the next loop by itself: a key would wait for the mouse.
void Application::DoEvents() {
    QAbstractEventDispatcher::instance()->wakeUp();
    QCoreApplication::processEvents();
    events::UnwindIfQuitting();
}

void Quit(int exitStatus) {
    throw QuitRequest{exitStatus};
}

struct Runtime::State {
    State(int& argc, char** argv) : application(argc, argv) {}
    QApplication application;
};

Runtime::Runtime(int& argc, char** argv) {
    KeepFreedMemory();
    Connect(argc, argv);
    Spoken::Install();
    QApplication::setStyle(new Style);
    QApplication::setPalette(LightPalette());
    QFont font = QApplication::font();
    font.setPixelSize(13);
    QApplication::setFont(font);
    // The layer itself decides when the run ends: a message box may be the only window for a while.
    QApplication::setQuitOnLastWindowClosed(false);
}

Runtime::~Runtime() = default;

void Runtime::SetDesktopEntry(const QString& name) {
    QApplication::setDesktopFileName(name);
}

// Only a connection tells the size of the desktop's text, and none changes its scale.
void Runtime::Connect(int& argc, char** argv) {
    const std::vector<char*> arguments(argv, argv + argc);
    state_ = std::make_unique<State>(argc, argv);
    const double scale = DesktopTextScale();
    if (scale <= 1) {
        return;
    }
    state_.reset();
    // Qt has taken its own arguments out.
    argc = int(arguments.size());
    std::copy(arguments.begin(), arguments.end(), argv);
    qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
    state_ = std::make_unique<State>(argc, argv);
    // Other programs that this one starts scale as they do.
    qunsetenv("QT_SCALE_FACTOR");
}

void Runtime::SetIcon(const std::vector<const Picture*>& drawings) {
    QApplication::setWindowIcon(IconOf(drawings));
}

int Runtime::Run(Application& application) {
    Start(application);
    return QApplication::exec();
}

// Activate is posted before Open runs, so that it also comes when Open waits in a loop of its own. It does not wait
// for the window system to call a window active: without a window manager that never happens.
void Runtime::Start(Application& application) {
    QTimer::singleShot(0, qApp, [&application] {
        QTimer::singleShot(0, qApp, [&application] { events::Raise(application.Activate); });
        events::Raise(application.Open);
        // A fault in Open that left no document window leaves nothing that the user could end.
        if (OpenWindows::Document() == nullptr && !events::QuitPending()) {
            events::BeginQuit(0);
        }
    });
}

bool Runtime::HasQuit() {
    return events::QuitPending();
}

#pragma once

#include <QString>

#include <functional>
#include <map>
#include <memory>
#include <vector>

class MenuBar;
class MenuItem;
class Picture;

// The version that the build gave the program.
struct ApplicationVersion {
    int major = 0;
    int minor = 0;
    int bug = 0;
    int stage = 3;      // 0 in development, 1 alpha, 2 beta, 3 final release
    int nonRelease = 0; // which alpha or beta it is
};

// The one application object. A program derives its own from it; the object must outlive Runtime::Run.
class Application {
public:
    // The name stands in the title of message boxes that are given none.
    explicit Application(const QString& name = {}, const ApplicationVersion& version = {});
    virtual ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    // The object made last. There must be one.
    [[nodiscard]] static Application& Current();

    // Raised once, from the event loop's first turn.
    std::function<void()> Open;
    // Raised once, with the first turn of any event loop after Open began, also when that is the loop of a message
    // box that Open itself shows.
    std::function<void()> Activate;

    [[nodiscard]] int MajorVersion() const { return version_.major; }
    [[nodiscard]] int MinorVersion() const { return version_.minor; }
    [[nodiscard]] int BugVersion() const { return version_.bug; }
    [[nodiscard]] int StageCode() const { return version_.stage; }
    [[nodiscard]] int NonReleaseVersion() const { return version_.nonRelease; }

    void SetMenuBar(MenuBar& menuBar);
    [[nodiscard]] MenuBar& ApplicationMenuBar() const;

    // Binds a menu item, by its name, to what it does. A name that no item has is bound and never reached. The
    // handler's result says whether it wants the command to end there; nothing else listens for commands.
    void AddMenuHandler(const QString& itemName, std::function<bool()> handler);
    [[nodiscard]] const std::function<bool()>* MenuHandler(const QString& itemName) const;

    // Serves the events that are waiting and returns.
    void DoEvents();

private:
    ApplicationVersion version_;
    MenuBar* menuBar_ = nullptr;
    std::map<QString, std::function<bool()>> menuHandlers_;
};

// Ends the run with the given exit status. Nothing after it in the handler, or in the methods that called it, takes
// effect, also when the call comes from inside a message box's event loop: the handlers unwind and no further event
// is raised.
[[noreturn]] void Quit(int exitStatus);

// The process's connection to the window system. Made first in main and destroyed last. Windows are as large as the
// desktop's text size asks for: all measures of this layer are scaled with it.
class Runtime {
public:
    Runtime(int& argc, char** argv);
    ~Runtime();
    Runtime(const Runtime&) = delete;
    Runtime& operator=(const Runtime&) = delete;

    // The name of the program's desktop entry, without ".desktop". A Wayland desktop knows by it which entry and icon
    // belong to a window. To be set before the first window is made.
    void SetDesktopEntry(const QString& name);

    // The icon that the desktop shows for the program's windows: at least one drawing, the smallest first. Small sizes
    // need less detail, so each size takes the last drawing that is not larger than it.
    void SetIcon(const std::vector<const Picture*>& drawings);

    // Raises Open and Activate and serves events until Quit is called or the last window is closed. The result is the
    // exit status.
    int Run(Application& application);

    // Makes Open and Activate come with the next turns of an event loop that somebody else runs.
    static void Start(Application& application);

    // True once Quit was called by the handlers of the current application object.
    [[nodiscard]] static bool HasQuit();

private:
    void Connect(int& argc, char** argv);

    struct State;
    std::unique_ptr<State> state_;
};

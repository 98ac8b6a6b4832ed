#pragma once

#include "platform/ui/Color.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <typeindex>

class Control;
class MenuBar;
class QWidget;
struct FrameChange;

// What a window is to the others. The run ends when the last document window is closed. A floating window stays above
// the document window and does not block it; it has the menu bar's shortcuts but does not show the bar. A dialog has
// neither a menu bar nor a close box and stands in the middle of the screen.
enum class WindowKind { Document, Floating, Dialog };

// The fixed properties of a window, as its layout gives them. Sizes are of the content, without the frame and the
// menu bar; the limits count only where the window is resizeable.
struct WindowProperties {
    const char* name = "";
    QString title = QString();
    int width = 0;
    int height = 0;
    int minWidth = 0;
    int minHeight = 0;
    int maxWidth = 0;
    int maxHeight = 0;
    bool resizeable = false;
    WindowKind kind = WindowKind::Document;
    bool minimizeable = true;
    std::optional<Color> backColor = std::nullopt; // without one, the platform's own
    const char* backdrop = "";                     // the name of the picture that fills the content, or empty
};

// A window of the program: a content area with controls, a menu bar above it if it has one, and a frame.
//
// Each class of windows has one implicit instance. The first reference to it creates the window, raises its OpenEvent
// and shows it with the next turn of the event loop; closing ends it, and the next reference makes a new one.
class Window {
public:
    explicit Window(const WindowProperties& properties);
    virtual ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    // Raised once when the instance was created.
    std::function<void()> OpenEvent;
    // Raised once when the window is closed by the user or by Close, after an edit in a cell has ended. A document
    // window closes the floating windows first.
    std::function<void()> CloseEvent;
    // Raised before a menu shows or a shortcut is taken while this window is in front.
    std::function<void()> EnableMenuItems;

    // Position of the frame on the screen and size of the content, in logical pixels. The values go to the window
    // system as they are, bounded only by the minimum and maximum size, and are read back as it left them. Where it
    // lets no program place a window, the position reads back as it was set.
    [[nodiscard]] int Top() const;
    [[nodiscard]] int Left() const;
    [[nodiscard]] int Width() const;
    [[nodiscard]] int Height() const;
    void SetTop(int top);
    void SetLeft(int left);
    void SetWidth(int width);
    void SetHeight(int height);

    void SetTitle(const QString& title);
    // A document window shows the menu bar; a floating one has its shortcuts.
    void SetMenuBar(MenuBar& menuBar);

    // Shows the window or brings it to the front. A dialog is drawn when this returns.
    void Show();
    void Minimize();
    void Maximize();
    // Raises CloseEvent and ends the instance. The object itself lives until the running handlers have returned.
    void Close();

    // The implicit instance of W.
    template <class W>
    static W& Implicit() {
        return static_cast<W&>(Implicit(typeid(W), [] { return std::unique_ptr<Window>(new W); }));
    }

    // For the layer itself.
    [[nodiscard]] QWidget* Widget() const;
    [[nodiscard]] WindowKind Kind() const;

private:
    friend class Control;
    struct State;

    static Window& Implicit(std::type_index type, const std::function<std::unique_ptr<Window>()>& create);
    [[nodiscard]] QWidget* Content() const;
    void Adopt(Control& control);
    void ContentResized(const FrameChange& change);
    void OnClosed();

    std::unique_ptr<State> state_;
};

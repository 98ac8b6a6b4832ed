#pragma once

#include "platform/ui/Layout.h"
#include "platform/ui/Window.h"

#include <QMainWindow>

#include <functional>

class QMenuBar;

// For the layer itself: the top level widget of a window. It holds the menu bar, and below it the content that carries
// the controls, and places both itself; it is a QMainWindow because assistive tools know that as a window.
class WindowFrame : public QMainWindow {
public:
    explicit WindowFrame(const WindowProperties& properties);

    // The content has another size now.
    std::function<void(const FrameChange& change)> Resized;
    // The window is about to close, and an edit in a cell has ended.
    std::function<void()> Closed;

    // Takes ownership of the widget.
    void AddMenuBar(QMenuBar* menuBar);
    [[nodiscard]] int MenuHeight() const;
    [[nodiscard]] QWidget* Content() const { return content_; }

    void ApplyLimits();
    // The window system reports a size only once the window is on the screen; the logic reads places before that.
    void LayOut();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    WindowProperties properties_;
    QWidget* content_;
    QMenuBar* menuBar_ = nullptr;
    bool laidOut_ = false;
};

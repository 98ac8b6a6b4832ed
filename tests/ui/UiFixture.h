#pragma once

#include "MessageWatcher.h"
#include "PrintText.h"
#include "platform/ui/Application.h"
#include "platform/ui/Buttons.h"
#include "platform/ui/EditField.h"
#include "platform/ui/Listbox.h"
#include "platform/ui/MenuBar.h"
#include "platform/ui/StaticText.h"
#include "platform/ui/Window.h"

#include <QStringList>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

// A window of 400 x 300 with one control of each kind. The list has 2 columns of 100 pixels and rows of 20, of which 6
// are in view.
class TestWindow : public Window {
public:
    TestWindow();

    Listbox List;
    EditField Line{EditField::Lines::One};
    EditField Many{EditField::Lines::Many};
    PushButton Button;
};

// A second window, without a menu bar.
class OtherWindow : public Window {
public:
    explicit OtherWindow(WindowKind kind = WindowKind::Document);

    EditField Field{EditField::Lines::One};
    StaticText Link;
};

// A fresh application with one open and active window for each case.
class UiTest : public testing::Test {
protected:
    UiTest();
    ~UiTest() override;

    // Given
    void GivenRows(const QStringList& texts);
    // A file menu and an edit menu with a copy command on the key that the text fields use as well.
    void GivenMenuBar();
    static void ShowActive(Window& shown);

    // When. All input enters at the window, as the window system's does, so that focus, shortcuts and modal boxes are
    // real. Points are in the control's own coordinates.
    void Click(const Control& control, const QPoint& place);
    void ClickCell(int row, int column, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    // Opens the menu with a click and closes it.
    void VisitFileMenu();
    static void LeaveMenu();
    static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    static void Type(const char* text);

    // Then
    [[nodiscard]] QStringList TakeLog() { return std::exchange(log, {}); }

    [[nodiscard]] QWindow* Handle() const { return window->Widget()->windowHandle(); }
    [[nodiscard]] QPoint InWindow(const Control& control, const QPoint& place) const;
    template <class Widget>
    [[nodiscard]] Widget* Find(const Control& control) const {
        return window->Widget()->findChild<Widget*>(control.Name());
    }

    MessageWatcher messages;
    std::unique_ptr<Application> application;
    std::unique_ptr<MenuBar> menuBar;
    TestWindow* window = nullptr;
    QStringList log;
};

#include "UiFixture.h"

#include <QApplication>
#include <QMenuBar>

TestWindow::TestWindow() : Window({"TestWindow", "Test", 400, 300, 300, 200, 900, 900, true}) {
    List.Place(*this, nullptr, {"List", "Rows", {10, 10, 200, 120}});
    Line.Place(*this, nullptr, {"Line", "One line", {220, 10, 160, 24}});
    Many.Place(*this, nullptr, {"Many", "Many lines", {220, 40, 160, 80}});
    Button.Place(*this, nullptr, {"Button", "Button", {10, 180, 80, 24}});
    List.SetLook({.selection = RowSelection::Multiple, .autoHideScrollbars = true});
    List.SetColumnCount(2);
    List.SetColumnWidths("100,100");
    List.SetDefaultRowHeight(20);
}

OtherWindow::OtherWindow(WindowKind kind) : Window({.name = "OtherWindow", .width = 200, .height = 100, .kind = kind}) {
    Field.Place(*this, nullptr, {"Field", "Field", {10, 10, 100, 24}});
    Link.Place(*this, nullptr, {"Link", "", {10, 40, 100, 20}});
    Link.SetMouseCursor(MouseCursor::FingerPointer);
}

UiTest::UiTest() : application(std::make_unique<Application>()), window(&Window::Implicit<TestWindow>()) {
    ShowActive(*window);
}

// The windows go with the application, before the menus that they show.
UiTest::~UiTest() {
    application.reset();
}

void UiTest::ShowActive(Window& shown) {
    shown.Show();
    // Qt takes a floating window for active as soon as the one below it is.
    EXPECT_TRUE(QTest::qWaitFor([&shown] { return QGuiApplication::focusWindow() == shown.Widget()->windowHandle(); }));
}

void UiTest::GivenRows(const QStringList& texts) {
    for (const QString& text : texts) {
        window->List.AddRow(text);
    }
    QCoreApplication::processEvents();
}

void UiTest::GivenMenuBar() {
    const std::vector<MenuTitle> menus = {{"FileMenu", "&File"}, {"EditMenu", "&Edit"}};
    const std::vector<MenuRow> rows = {
        {"FileMenu", "File_New", MenuItemKind::Command, "&New", "Cmd+N"},
        {"FileMenu", "File_Print", MenuItemKind::Command, "&Print", "Cmd+P"},
        {"EditMenu", "EditCopy", MenuItemKind::EditCopy, "&Copy", "Cmd+C"},
        {"EditMenu", "Edit_CopyRecipe", MenuItemKind::Command, "Copy &Recipe", "Cmd+C"},
        {"EditMenu", "Edit_Later", MenuItemKind::Command, "Copy &Later", "Cmd+C"},
    };
    menuBar = std::make_unique<MenuBar>(menus, rows);
    window->SetMenuBar(*menuBar);
}

void UiTest::Click(const Control& control, const QPoint& place) {
    QTest::mouseClick(Handle(), Qt::LeftButton, Qt::NoModifier, InWindow(control, place));
}

void UiTest::ClickCell(int row, int column, Qt::KeyboardModifiers modifiers) {
    const auto* view = Find<QTableView>(window->List);
    const QPoint middle = view->visualRect(view->model()->index(row, column)).center();
    QTest::mouseClick(Handle(), Qt::LeftButton, modifiers, view->viewport()->mapTo(window->Widget(), middle));
}

void UiTest::VisitFileMenu() {
    const auto* bar = window->Widget()->findChild<QMenuBar*>();
    const QPoint title = bar->mapTo(window->Widget(), bar->actionGeometry(bar->actions().first()).center());
    QTest::mouseClick(Handle(), Qt::LeftButton, Qt::NoModifier, title);
    LeaveMenu();
}

void UiTest::LeaveMenu() {
    QCoreApplication::processEvents();
    if (QWidget* menu = QApplication::activePopupWidget(); menu != nullptr) {
        menu->close();
    }
}

void UiTest::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(QGuiApplication::focusWindow(), key, modifiers);
}

void UiTest::Type(const char* text) {
    for (const char* letter = text; *letter != 0; ++letter) {
        QTest::keyClick(QGuiApplication::focusWindow(), *letter);
    }
}

QPoint UiTest::InWindow(const Control& control, const QPoint& place) const {
    return Find<QWidget>(control)->mapTo(window->Widget(), place);
}

#include "UiFixture.h"

#include <QApplication>

namespace {

class FloatingWindow : public OtherWindow {
public:
    FloatingWindow() : OtherWindow(WindowKind::Floating) {}
};

using FloatingWindowTest = UiTest;

} // namespace

TEST_F(FloatingWindowTest, StaysAboveTheDocumentTakesItsShortcutsAndGoesBeforeIt) {
    GivenMenuBar();
    application->AddMenuHandler("File_Print", [this] {
        log << "print";
        return false;
    });
    auto& floating = Window::Implicit<FloatingWindow>();
    floating.SetMenuBar(*menuBar);
    floating.CloseEvent = [this] { log << "floating closed"; };
    window->CloseEvent = [this] { log << "document closed"; };
    floating.Link.MouseDown = [this](int /*x*/, int /*y*/) {
        log << "link";
        return false;
    };
    ShowActive(floating);

    EXPECT_EQ(floating.Widget()->windowHandle()->transientParent(), Handle());
    EXPECT_EQ(floating.Height(), 100); // no menu bar above the content
    Press(Qt::Key_P, Qt::ControlModifier);
    Press(Qt::Key_Tab);
    Press(Qt::Key_Return);
    EXPECT_EQ(TakeLog(), QStringList({"print", "link"}));

    Press(Qt::Key_F10);
    EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; })) << "the document's menu";
    LeaveMenu();

    floating.Close();
    EXPECT_FALSE(Runtime::HasQuit());
    Window::Implicit<FloatingWindow>().CloseEvent = [this] { log << "second closed"; };
    window->Widget()->close();
    EXPECT_EQ(TakeLog(), QStringList({"floating closed", "second closed", "document closed"}));
    EXPECT_TRUE(Runtime::HasQuit());
}

#include "UiFixture.h"

#include <QApplication>
#include <QClipboard>

namespace {

class MenuBarTest : public UiTest {
protected:
    MenuBarTest() {
        GivenMenuBar();
        for (const char* item : {"File_New", "Edit_CopyRecipe", "Edit_Later"}) {
            application->AddMenuHandler(item, [this, item] {
                log << item;
                return false;
            });
        }
        QApplication::clipboard()->setText("before");
    }
};

} // namespace

TEST_F(MenuBarTest, ItemsThatAreEnabledRunByTheirKeys) {
    GivenRows({"Ale"});
    ClickCell(0, 0);
    const auto pressEach = [] {
        for (const Qt::Key key : {Qt::Key_N, Qt::Key_P, Qt::Key_C}) {
            Press(key, Qt::ControlModifier);
        }
    };
    pressEach(); // print has no handler, and of the copy commands the first has the key
    EXPECT_EQ(TakeLog(), QStringList({"File_New", "Edit_CopyRecipe"}));
    window->EnableMenuItems = [this] { menuBar->Item("Edit_CopyRecipe").SetEnabled(false); };
    pressEach();
    EXPECT_EQ(TakeLog(), QStringList({"File_New"}));
    EXPECT_EQ(QApplication::clipboard()->text(), "before");

    menuBar->Item("Edit_CopyRecipe").SetEnabled(true);
    Press(Qt::Key_F10);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    QApplication::activePopupWidget()->close();
    EXPECT_FALSE(menuBar->Item("Edit_CopyRecipe").Enabled());
}

TEST_F(MenuBarTest, TextFieldWithTheFocusTakesTheCopyKey) {
    window->Many.SetLook({.readOnly = true});
    for (EditField* field : {&window->Line, &window->Many}) {
        field->SetText("gin fizz");
        field->SetFocus();
        field->SetSelStart(4);
        field->SetSelLength(4);
        QApplication::clipboard()->setText("before");
        Press(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QApplication::clipboard()->text(), "fizz") << field->Name();
        EXPECT_TRUE(menuBar->Item("EditCopy").Enabled());
    }
    EXPECT_EQ(log, QStringList());
}

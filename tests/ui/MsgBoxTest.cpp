#include "platform/ui/MsgBox.h"

#include "UiFixture.h"

using MsgBoxTest = UiTest;

class Floating : public Window {
public:
    Floating() : Window({.name = "Floating", .width = 200, .height = 100, .kind = WindowKind::Floating}) {}
};

TEST_F(MsgBoxTest, CodeGivesIconButtonsDefaultAndAnswers) {
    struct Case {
        int code;
        QMessageBox::Icon icon;
        QMessageBox::StandardButtons buttons;
        int byReturn, byEscape;
    };
    const Case cases[] = {
        {0, QMessageBox::NoIcon, QMessageBox::Ok, 1, 1},
        {16, QMessageBox::Critical, QMessageBox::Ok, 1, 1},
        {36, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No, 6, 7},
        {48, QMessageBox::Warning, QMessageBox::Ok, 1, 1},
        {64, QMessageBox::Information, QMessageBox::Ok, 1, 1},
    };
    for (const Case& row : cases) {
        for (const auto& [key, answer] : {std::pair(Qt::Key_Return, row.byReturn), {Qt::Key_Escape, row.byEscape}}) {
            messages.DuringNextMessage([key = key](QMessageBox& box) {
                EXPECT_EQ(box.textFormat(), Qt::PlainText);
                QTest::keyClick(&box, key);
            });
            EXPECT_EQ(MsgBox("<b>Gin</b>", row.code, "Title"), answer) << row.code;
        }
        const ShownMessage shown = messages.LastMessage();
        EXPECT_EQ(shown.icon, row.icon) << row.code;
        EXPECT_EQ(shown.buttons, row.buttons) << row.code;
    }
}

TEST_F(MsgBoxTest, WithoutATitleItIsNamedForTheProgram) {
    QApplication::setApplicationName("Pourbook");
    messages.AnswerNextMessage();
    MsgBox("Text");
    EXPECT_EQ(messages.LastMessage().title, "Pourbook");
}

// The window system makes a window that was just shown the active one only later.
TEST_F(MsgBoxTest, StandsOverTheWindowThatIsComingToTheFront) {
    auto& floating = Window::Implicit<Floating>();
    floating.Show();
    messages.DuringNextMessage([&](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), floating.Widget());
        box.accept();
    });
    MsgBox("Text");
}

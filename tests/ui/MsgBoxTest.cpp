#include "platform/ui/MsgBox.h"

#include "UiFixture.h"

using MsgBoxTest = UiTest;

TEST_F(MsgBoxTest, CodeGivesIconButtonsDefaultAndAnswers) {
    const std::tuple<int, QMessageBox::Icon, QMessageBox::StandardButtons, int, int> cases[] = {
        // code, icon, buttons, and the answers by return and by escape
        {0, QMessageBox::NoIcon, QMessageBox::Ok, 1, 1},
        {16, QMessageBox::Critical, QMessageBox::Ok, 1, 1},
        {36, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No, 6, 7},
        {48, QMessageBox::Warning, QMessageBox::Ok, 1, 1},
        {64, QMessageBox::Information, QMessageBox::Ok, 1, 1},
    };
    QApplication::setApplicationName("Pourbook");
    for (const auto& [code, icon, buttons, byReturn, byEscape] : cases) {
        for (const auto& [key, answer] : {std::pair(Qt::Key_Return, byReturn), {Qt::Key_Escape, byEscape}}) {
            messages.DuringNextMessage([key = key](QMessageBox& box) {
                EXPECT_EQ(box.textFormat(), Qt::PlainText);
                QTest::keyClick(&box, key);
            });
            EXPECT_EQ(MsgBox("<b>Gin</b>", code, QString()), answer) << code;
        }
        EXPECT_EQ(messages.LastMessage().icon, icon) << code;
        EXPECT_EQ(messages.LastMessage().buttons, buttons) << code;
        EXPECT_EQ(messages.LastMessage().title, "Pourbook");
    }
}

// The window system makes a window that was just shown the active one only later.
TEST_F(MsgBoxTest, StandsOverTheWindowThatIsComingToTheFront) {
    auto& other = Window::Implicit<OtherWindow>();
    other.Show();
    messages.DuringNextMessage([&](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), other.Widget());
        box.accept();
    });
    MsgBox("Text");
}

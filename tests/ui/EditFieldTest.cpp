#include "UiFixture.h"

using EditFieldTest = UiTest;

TEST_F(EditFieldTest, TextChangeComesOnceForAChangeOfTheText) {
    for (EditField* field : {&window->Line, &window->Many}) {
        field->TextChange = [this, field] { log << field->Text(); };
        field->SetText("one");
        field->SetText("one");
        field->SetText("");
        EXPECT_EQ(TakeLog(), QStringList({"one", ""}));
        field->SetFocus();
        Type("ab");
        Press(Qt::Key_Backspace);
        EXPECT_EQ(TakeLog(), QStringList({"a", "ab", "a"}));
    }
    window->Many.StyledText().SetBold(0, 1, true);
    window->Many.SetTextSize(18);
    window->Many.SetLook({});
    EXPECT_EQ(log, QStringList());
}

TEST_F(EditFieldTest, LineEndsOfEachPlatformReadBackAsOne) {
    for (EditField* field : {&window->Line, &window->Many}) {
        for (const char* text : {"a\nb\n\nc", "a\rb\r\rc", "a\r\nb\r\n\r\nc", "a\r\nb\n\rc"}) {
            field->SetText("");
            field->SetText(text);
            EXPECT_EQ(field->Text(), "a\nb\n\nc") << text;
            field->TextChange = [this] { log << "change"; };
            field->SetText(text);
            field->TextChange = nullptr;
        }
    }
    EXPECT_EQ(log, QStringList());
}

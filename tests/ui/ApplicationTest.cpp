#include "UiFixture.h"
#include "platform/base/Exceptions.h"
#include "platform/ui/Events.h"
#include "platform/ui/MsgBox.h"

#include <QPointer>
#include <QScopeGuard>

namespace {

class ApplicationTest : public UiTest {
protected:
    // A handler that does this and tells how it ended.
    std::function<void()> Handler(const std::function<void()>& steps) {
        return [this, steps] {
            const auto unwound = qScopeGuard([this] { log << "unwound"; });
            steps();
            log << "went on";
        };
    }

    void RunInButton(const std::function<void()>& steps) {
        window->Button.Action = Handler(steps);
        Click(window->Button, QPoint(9, 9));
    }
};

} // namespace

TEST_F(ApplicationTest, UncaughtFaultIsToldAndTheProgramRunsOn) {
    const std::pair<const char*, std::function<void()>> faults[] = {
        {"The record set is nil", [] { throw NilObjectException("The record set is nil"); }},
        {"plain fault", [] { throw std::runtime_error("plain fault"); }},
    };
    for (const auto& [words, fault] : faults) {
        messages.AnswerNextMessage();
        RunInButton(fault);
        EXPECT_TRUE(messages.LastMessage().text.contains(words)) << messages.LastMessage().text;
    }
    RunInButton([] {});
    EXPECT_EQ(log, QStringList({"unwound", "unwound", "went on", "unwound"}));
}

TEST_F(ApplicationTest, QuitStopsTheHandlersThatCalledItAndEveryLaterEvent) {
    const std::pair<const char*, std::function<void()>> settersThatRaise[] = {
        {"row", [this] { window->List.SetListIndex(1); }},       {"rows", [this] { window->List.DeleteAllRows(); }},
        {"text", [this] { window->Line.SetText("x"); }},         {"focus", [this] { window->Many.SetFocus(); }},
        {"disable", [this] { window->Line.SetEnabled(false); }},
    };
    GivenRows({"Ale", "Bock"});
    window->List.Change = window->Line.TextChange = window->Line.LostFocus = [] { Quit(0); };
    for (const auto& [name, setter] : settersThatRaise) {
        events::Reset();
        window->Line.SetFocus();
        events::Raise(Handler(setter));
        EXPECT_EQ(TakeLog(), QStringList({"unwound"})) << name;
    }
    window->CloseEvent = [this] { log << "close"; };
    RunInButton([] {});
    window->Widget()->close();
    EXPECT_EQ(log, QStringList());
}

TEST_F(ApplicationTest, QuitUnderAMessageBoxOfOpenEndsTheRunWithItsStatus) {
    application->Open = Handler([] { MsgBox("Waits"); });
    application->Activate = [this] { log << "activate"; };
    messages.DuringNextMessage([](QMessageBox&) { events::Raise(std::function<void()>([] { Quit(3); })); });
    Runtime::Start(*application);
    EXPECT_EQ(QCoreApplication::exec(), 3);
    EXPECT_EQ(log, QStringList({"activate", "unwound"}));
}

// A handler that closes its own window and then shows a message still stands in that window.
TEST_F(ApplicationTest, ClosedWindowLivesUntilItsHandlersReturned) {
    auto& other = Window::Implicit<OtherWindow>();
    ShowActive(other);
    const QPointer<QWidget> widget = other.Widget();
    other.Field.TextChange = [&] {
        other.Close();
        MsgBox("Saved");
        log << other.Field.Text();
    };
    messages.DuringNextMessage([&widget](QMessageBox& box) {
        QCoreApplication::processEvents();
        EXPECT_FALSE(widget.isNull());
        box.accept();
    });
    Type("x");
    EXPECT_EQ(log, QStringList({"x"}));
    EXPECT_TRUE(QTest::qWaitFor([&widget] { return widget.isNull(); }));
}

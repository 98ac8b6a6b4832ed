#include "UiFixture.h"
#include "platform/ui/MsgBox.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPushButton>

namespace {

// The handler holds the user in a cell until it has a text: it tells why, and starts the edit again.
class ListboxEditingTest : public UiTest {
protected:
    ListboxEditingTest() {
        GivenMenuBar();
        GivenRows({"Ale", "Bock", "Cava"});
        window->List.CellLostFocus = [this](int row, int column) {
            log << QString("lost %1,%2 %3").arg(row).arg(column).arg(window->List.Cell(row, column));
            if (window->List.Cell(row, column).isEmpty()) {
                MsgBox("A name, please.");
                window->List.SetFocus();
                window->List.SetListIndex(row);
                window->List.EditCell(window->List.ListIndex(), column);
            }
        };
    }

    void EmptyTheCell() {
        window->List.EditCell(1, 0);
        Press(Qt::Key_Backspace);
        messages.AnswerNextMessage();
    }

    [[nodiscard]] QLineEdit* Editor() const { return window->Widget()->findChild<QLineEdit*>("CellEditor"); }
};

} // namespace

TEST_F(ListboxEditingTest, EachEndOfAnEditIsToldOnceAndARefusalHoldsTheUser) {
    const std::pair<const char*, std::function<void()>> ends[] = {
        {"return", [] { Press(Qt::Key_Return); }},
        {"escape", [] { Press(Qt::Key_Escape); }},
        {"tab", [] { Press(Qt::Key_Tab); }},
        {"back tab", [] { Press(Qt::Key_Tab, Qt::ShiftModifier); }},
        {"other field", [this] { Click(window->Line, QPoint(9, 9)); }},
        {"own row", [this] { ClickCell(1, 1); }},
        {"empty area", [this] { Click(window->List, QPoint(50, 100)); }},
        {"focus moved", [this] { window->Many.SetFocus(); }},
        {"other window", [] { ShowActive(Window::Implicit<OtherWindow>()); }},
        {"menu", [this] { VisitFileMenu(); }},
        {"menu by its letter",
         [] {
             Press(Qt::Key_F, Qt::AltModifier);
             LeaveMenu();
         }},
        {"another edit", [this] { window->List.EditCell(2, 0); }},
    };
    for (const auto& [name, end] : ends) {
        EmptyTheCell();
        end();
        ShowActive(*window);
        EXPECT_EQ(TakeLog(), QStringList({"lost 1,0 "})) << name;
        ASSERT_TRUE(window->List.ActiveCell() != nullptr && Editor()->isVisible()) << name;
        EXPECT_EQ(Editor()->geometry(), QRect(0, 20, 100, 20)) << name;
        Type("Hefe");
        end();
        ShowActive(*window);
        EXPECT_EQ(TakeLog(), QStringList({"lost 1,0 Hefe"})) << name;
        EXPECT_EQ(window->List.ActiveCell() != nullptr, name == QString("another edit"));
    }
    window->List.RemoveRow(2);
    EXPECT_EQ(TakeLog(), QStringList({"lost 2,0 Cava"}));
    EmptyTheCell();
    window->CloseEvent = [this] { log << "close"; };
    window->Widget()->close();
    EXPECT_EQ(log, QStringList({"lost 1,0 ", "close"}));
}

// The message gets the release of such a press.
TEST_F(ListboxEditingTest, APressWhileTheUserIsHeldLeavesNoButtonDown) {
    EmptyTheCell();
    Click(window->Button, QPoint(9, 9));
    EXPECT_FALSE(Find<QPushButton>(window->Button)->isDown());
}

TEST_F(ListboxEditingTest, ComposedTextIsOfferedKeyByKey) {
    const QString letter = QString::fromUtf8("ê");
    window->List.CellKeyDown = [&](int, int, const QString& key) {
        log << key;
        return key == "z";
    };
    window->List.EditCell(0, 0);
    QInputMethodEvent before("^", {});
    QCoreApplication::sendEvent(Editor(), &before);
    QInputMethodEvent composed;
    composed.setCommitString(letter + "z");
    QCoreApplication::sendEvent(Editor(), &composed);
    EXPECT_EQ(Editor()->displayText(), letter) << "what was being composed is gone too";
    EXPECT_EQ(log, QStringList({letter, "z"}));
}

TEST_F(ListboxEditingTest, UserEditsTheSelectedRowInAnEditableColumn) {
    window->List.SetColumnType(0, ColumnType::Plain);
    window->List.SetColumnType(1, ColumnType::Editable);
    window->List.CellLostFocus = nullptr;
    const QRect none;
    const QRect cell(100, 20, 100, 20);
    const std::tuple<const char*, std::function<void()>, QRect> steps[] = {
        {"click on another row", [this] { ClickCell(1, 1); }, none},
        {"click on the selected row", [this] { ClickCell(1, 1); }, cell},
        {"return", [] { Press(Qt::Key_Return); }, none},
        {"F2", [] { Press(Qt::Key_F2); }, cell},
        {"edit of a plain cell", [this] { window->List.EditCell(2, 0); }, none},
        {"return again", [] { Press(Qt::Key_Return); }, cell.translated(0, 20)},
        {"click on a plain cell", [this] { ClickCell(2, 0); }, none},
        {"and again", [this] { ClickCell(2, 0); }, none},
    };
    for (const auto& [name, step, expected] : steps) {
        step();
        EXPECT_EQ(window->List.ActiveCell() == nullptr ? QRect() : Editor()->geometry(), expected) << name;
    }
}

TEST_F(ListboxEditingTest, LineBreaksThatArePastedBecomeBlanks) {
    window->List.EditCell(0, 0);
    QApplication::clipboard()->setText("Gin\nDry\r\nOld" + QString(QChar(0x2028)) + QString(40000, 'x'));
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Editor()->text(), "Gin Dry  Old " + QString(40000, 'x'));
}

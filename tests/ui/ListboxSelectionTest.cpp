#include "UiFixture.h"

using ListboxSelectionTest = UiTest;

TEST_F(ListboxSelectionTest, ChangeComesOnceForAChangeAndTheLowestRowIsTheIndex) {
    GivenRows({"Ale", "Bock", "  Cava", "Duvel"});
    Listbox& list = window->List;
    list.Change = [&] { log << QString("%1 of %2").arg(list.ListIndex()).arg(list.SelCount()); };
    const std::tuple<const char*, std::function<void()>, QStringList> cases[] = {
        {"row", [&] { list.SetListIndex(2); }, {"2 of 1"}},
        {"row again", [&] { list.SetListIndex(2); }, {}},
        {"none", [&] { list.SetListIndex(-5); }, {"-1 of 0"}},
        {"focus", [&] { list.SetFocus(); }, {}},
        {"down into the list", [] { Press(Qt::Key_Down); }, {"0 of 1"}},
        {"click", [&] { ClickCell(1, 0); }, {"1 of 1"}},
        {"click again", [&] { ClickCell(1, 1); }, {}},
        {"end", [] { Press(Qt::Key_End); }, {"3 of 1"}},
        {"with a lower one", [&] { ClickCell(1, 0, Qt::ControlModifier); }, {"1 of 2"}},
        {"with one between", [&] { ClickCell(2, 0, Qt::ControlModifier); }, {"1 of 3"}},
        {"the lowest alone", [&] { list.SetListIndex(1); }, {"1 of 1"}},
        {"letter", [] { Type("c"); }, {"2 of 1"}},
        {"removed above", [&] { list.RemoveRow(0); }, {}},
        {"removed itself", [&] { list.RemoveRow(1); }, {"-1 of 0"}},
        {"first again", [&] { ClickCell(0, 0); }, {"0 of 1"}},
        {"with a second", [&] { ClickCell(1, 0, Qt::ControlModifier); }, {"0 of 2"}},
        {"all deleted", [&] { list.DeleteAllRows(); }, {"-1 of 0"}},
        {"deleted again", [&] { list.DeleteAllRows(); }, {}},
    };
    for (const auto& [name, act, told] : cases) {
        act();
        EXPECT_EQ(TakeLog(), told) << name;
    }
}

TEST_F(ListboxSelectionTest, CellClickComesBeforeTheSelectionMovesOnBothPresses) {
    GivenRows({"Ale", "Bock", "Cava"});
    bool takes = false;
    window->List.CellClick = [&](int row, int column, int x, int y) {
        log << QString("cell %1,%2 at %3,%4 index %5").arg(row).arg(column).arg(x).arg(y).arg(window->List.ListIndex());
        return takes;
    };
    window->List.Change = [this] { log << "change"; };
    window->List.DoubleClick = [this] { log << "double"; };
    const QPoint place = InWindow(window->List, QPoint(112, 25));
    QTest::mouseDClick(Handle(), Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_EQ(TakeLog(), QStringList({"cell 1,1 at 12,5 index -1", "change", "cell 1,1 at 12,5 index 1", "double"}));
    takes = true;
    Click(window->List, QPoint(3, 40));
    EXPECT_EQ(TakeLog(), QStringList({"cell 2,0 at 3,0 index 1"}));

    // Where the second press meets another row, Qt makes a plain press of it, which must not be told again.
    takes = false;
    QWidget* viewport = Find<QTableView>(window->List)->viewport();
    const QPoint corner(0, 0);
    QMouseEvent second(QEvent::MouseButtonDblClick, corner, viewport->mapToGlobal(corner), Qt::LeftButton,
                       Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(viewport, &second);
    EXPECT_EQ(log.filter("cell"), QStringList({"cell 0,0 at 0,0 index 1"}));
}

#include "UiFixture.h"

using ListboxActionsTest = UiTest;

TEST_F(ListboxActionsTest, ABoxIsTickedByTheMouseAndTheSpaceBarOnly) {
    GivenRows({"Ale", "Bock"});
    window->List.SetColumnType(1, ColumnType::CheckBox);
    const QPoint box = InWindow(window->List, QPoint(150, 30));
    ClickCell(1, 1);
    EXPECT_TRUE(window->List.CellCheck(1, 1));
    QTest::mouseDClick(Handle(), Qt::LeftButton, {}, box);
    EXPECT_TRUE(window->List.CellCheck(1, 1)) << "unticked and ticked";
    QTest::mousePress(Handle(), Qt::LeftButton, {}, box);
    QTest::mouseRelease(Handle(), Qt::LeftButton, {}, InWindow(window->List, QPoint(150, 10)));
    EXPECT_TRUE(window->List.CellCheck(1, 1)) << "drawn away";
    Press(Qt::Key_End);
    Press(Qt::Key_Space);
    EXPECT_FALSE(window->List.CellCheck(1, 1));
}

#include "UiFixture.h"
#include "platform/base/Exceptions.h"

class ListboxActionsTest : public UiTest {
protected:
    // The rows, with a plus before the ticked ones.
    [[nodiscard]] QString Rows() const {
        QStringList rows;
        const Listbox& list = window->List;
        for (int row = 0; row < list.ListCount(); ++row) {
            rows << (list.CellCheck(row, 1) ? '+' + list.Cell(row, 0) : list.Cell(row, 0));
        }
        return rows.join(" ");
    }
};

TEST_F(ListboxActionsTest, ABoxIsTickedByTheMouseAndTheSpaceBarOnly) {
    GivenRows({"Ale", "Bock"});
    window->List.SetColumnType(1, ColumnType::CheckBox);
    struct Case {
        const char* name;
        std::function<void()> act;
        const char* rows;
    };
    const QPoint box = InWindow(window->List, QPoint(150, 30));
    const Case cases[] = {
        {"click", [&] { ClickCell(1, 1); }, "Ale +Bock"},
        {"click beside", [&] { ClickCell(0, 0); }, "Ale +Bock"},
        {"double click", [&] { QTest::mouseDClick(Handle(), Qt::LeftButton, {}, box); }, "Ale +Bock"},
        {"right click", [&] { QTest::mouseClick(Handle(), Qt::RightButton, {}, box); }, "Ale +Bock"},
        {"pressed and drawn away",
         [&] {
             QTest::mousePress(Handle(), Qt::LeftButton, {}, box);
             QTest::mouseRelease(Handle(), Qt::LeftButton, {}, InWindow(window->List, QPoint(150, 10)));
         },
         "Ale +Bock"},
        {"space bar", [] { Press(Qt::Key_Space); }, "+Ale +Bock"},
        {"return", [] { Press(Qt::Key_Return); }, "+Ale +Bock"},
        {"down and space bar", [] { Press(Qt::Key_Down), Press(Qt::Key_Space); }, "+Ale Bock"},
        {"logic", [&] { window->List.SetCellCheck(1, 1, true); }, "+Ale +Bock"},
    };
    for (const Case& row : cases) {
        row.act();
        EXPECT_EQ(Rows(), row.rows) << row.name;
    }
}

TEST_F(ListboxActionsTest, InsertedRowsShowWhereTheyWerePut) {
    Listbox& list = window->List;
    list.AddRow("Ale");
    list.InsertRow(0, "Absinthe", 0);
    QCoreApplication::processEvents();
    list.AddRow("Cava");
    list.InsertRow(2, "Bock", 0);
    list.SetListIndex(1);
    list.InsertRow(1, "Aguardiente", 0);
    list.InsertRow(5, "Duvel", 0);
    EXPECT_EQ(Rows(), "Absinthe Aguardiente Ale Bock Cava Duvel");
    EXPECT_EQ(list.ListIndex(), 2) << "the selection stays with its row";
    QCoreApplication::processEvents();
    const auto* model = Find<QTableView>(list)->model();
    EXPECT_EQ(model->rowCount(), 6);
    EXPECT_EQ(model->index(3, 0).data().toString(), "Bock");
    EXPECT_THROW(list.InsertRow(7, "Eau", 0), OutOfBoundsException);
}

TEST_F(ListboxActionsTest, WhereRowsArePressedKeysClickTheMarkedRow) {
    GivenRows({"Ale", "Bock", "Cava"});
    window->List.SetLook({.rowsArePressed = true});
    window->List.CellClick = [this](int row, int /*column*/, int /*x*/, int /*y*/) {
        log << QString::number(row);
        return false;
    };
    const auto isMarked = [this](int row) {
        const QImage image = Find<QWidget>(window->List)->grab().toImage();
        return image.pixel(50, 20 * row) != image.pixel(50, 20 * row + 3);
    };
    window->Button.SetFocus();
    Press(Qt::Key_Tab);
    ASSERT_TRUE(Find<QWidget>(window->List)->hasFocus());
    EXPECT_TRUE(isMarked(0));
    Press(Qt::Key_Down);
    Press(Qt::Key_Space);
    Press(Qt::Key_Return);
    EXPECT_TRUE(isMarked(1));
    ClickCell(2, 0);
    EXPECT_EQ(TakeLog(), QStringList({"1", "1", "2"}));
    EXPECT_FALSE(isMarked(2)) << "after a click";
    EXPECT_FALSE(isMarked(1));
}

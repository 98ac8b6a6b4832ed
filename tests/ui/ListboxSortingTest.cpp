#include "UiFixture.h"

namespace {

class ListboxSortingTest : public UiTest {
protected:
    ListboxSortingTest() {
        ListboxLook look;
        look.hasHeading = true;
        look.headingsSort = true;
        look.selection = RowSelection::Multiple;
        window->List.SetLook(look);
        Fill();
    }

    void Fill() {
        GivenRows({"pear", QString::fromUtf8("Éclair"), "apple", "Zest", "Banana"});
        for (int row = 0; row < window->List.ListCount(); ++row) {
            window->List.SetCellTag(row, 0, row);
        }
    }

    void ClickHeading(int column) { Click(window->List, QPoint(100 * column + 20, 10)); }

    // The rows by their tags, which are their places before the sorting.
    [[nodiscard]] QString Order() const {
        QString order;
        for (int row = 0; row < window->List.ListCount(); ++row) {
            order += QString::number(window->List.CellTag(row, 0));
        }
        return order;
    }
};

} // namespace

TEST_F(ListboxSortingTest, RowsMoveWithTagAndSelectionUntilARefill) {
    ClickCell(0, 0);
    ClickCell(2, 0, Qt::ControlModifier);
    ClickHeading(0);
    EXPECT_EQ(Order(), "24103");
    EXPECT_TRUE(window->List.Selected(0) && window->List.Selected(3));
    EXPECT_EQ(window->List.SelCount(), 2);
    ClickHeading(0);
    EXPECT_EQ(Order(), "30142");
    window->List.DeleteAllRows();
    Fill();
    EXPECT_EQ(Order(), "01234");
    // After that a click is a first click again.
    ClickHeading(0);
    EXPECT_EQ(Order(), "24103");
}

TEST_F(ListboxSortingTest, CompareRowsDecidesForItsColumnOnly) {
    window->List.CompareRows = [this](int row1, int row2, int column, int& result) {
        result = window->List.CellTag(row2, 0) - window->List.CellTag(row1, 0);
        return column == 1;
    };
    ClickHeading(1);
    EXPECT_EQ(Order(), "43210");
    ClickHeading(0);
    EXPECT_EQ(Order(), "24103");
}

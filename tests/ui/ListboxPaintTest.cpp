#include "UiFixture.h"
#include "platform/ui/Graphics.h"

using ListboxPaintTest = UiTest;

TEST_F(ListboxPaintTest, GroundIsPaintedCellByCellAlsoBelowTheLastRow) {
    GivenRows({"", ""});
    window->List.SetListIndex(0);
    window->List.CellBackgroundPaint = [](Graphics& g, int row, int column) {
        g.SetForeColor(row % 2 == column ? Color{0xFF0000} : Color{0x0000FF});
        g.FillRect(0, 0, 2 * g.Width(), 2 * g.Height()); // what goes beyond the cell is cut off
        return true;                                     // no mark of the selection over it
    };
    const QImage image = Find<QWidget>(window->List)->grab().toImage();
    for (int row = 0; row < 6; ++row) {
        for (int column = 0; column < 2; ++column) {
            const QRgb expected = row % 2 == column ? 0xFFFF0000 : 0xFF0000FF;
            EXPECT_EQ(image.pixel(100 * column + 1, 20 * row + 1), expected) << row << "," << column;
            EXPECT_EQ(image.pixel(100 * column + 98, 20 * row + 18), expected) << row << "," << column;
        }
    }
}

#include "UiFixture.h"
#include "platform/ui/Graphics.h"
#include "platform/ui/LineWidths.h"

#include <QFontMetricsF>

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

// The list's letters are only estimated; what is shown must be what Qt would show.
TEST_F(ListboxPaintTest, TextsAreShortenedAsQtShortensThem) {
    const QString texts[] = {"",
                             "Tiki",
                             "AVAVAVAV To. Ty. fifi ffl WAWA",
                             "Crème de Cacao, Piña, Rye",
                             "iiiiiiiiiiiiiiii",
                             "Overproof Rum, Lime Juice, Simple Syrup, Angostura Bitters, Nutmeg"};
    for (const int size : {9, 11, 24}) {
        QFont font = Find<QWidget>(window->List)->font();
        font.setPixelSize(size);
        const QFontMetricsF metrics(font);
        const LineWidths widths(font);
        for (const QString& text : texts) {
            for (int width = 0; width < 600; width += 7) {
                const QString shown = widths.Fits(text, width) ? text : widths.Cut(text, width);
                EXPECT_EQ(metrics.elidedText(shown, Qt::ElideRight, width),
                          metrics.elidedText(text, Qt::ElideRight, width))
                    << qPrintable(text) << " in " << width;
            }
        }
    }
}

TEST_F(ListboxPaintTest, CellsKeepWhatTheyHaveWhenOthersChange) {
    GivenRows({"Ale", "Bock"});
    Listbox& list = window->List;
    list.SetCellCheck(0, 0, true);
    list.SetColumnCount(4);
    list.SetCell(0, 3, "Crème");
    list.SetCell(1, 0, "Barley Wine");
    list.SetCell(0, 0, "IPA");
    list.SetCell(0, 0, "Porter");
    list.RemoveRow(1);
    list.AddRow("Stout");
    EXPECT_EQ((QStringList{list.Cell(0, 0), list.Cell(0, 2), list.Cell(0, 3), list.Cell(1, 0), list.Cell(1, 3)}),
              (QStringList{"Porter", "", "Crème", "Stout", ""}));
    EXPECT_TRUE(list.CellCheck(0, 0));
}

#include "browser/Rating.h"
#include "platform/ui/Graphics.h"
#include "shell/App.h"
#include "shell/MainWindow.h"

namespace {

constexpr Color stripe = Color{0xF1F5FA};
constexpr Color secondaryText = Color{0x666666};

} // namespace

bool MainWindow::DrinkList_CellBackgroundPaint(Graphics& g, int row, int /*column*/) {
    if (row % 2 == 1) {
        g.SetForeColor(stripe);
        g.FillRect(0, 0, g.Width(), g.Height());
    }
    return false;
}

// Everything behind the drink's name is grey, but for the row of the recipe that shows: it has to read against the
// selection mark.
bool MainWindow::DrinkList_CellTextPaint(Graphics& g, int row, int column, int /*x*/, int /*y*/) {
    const int nameColumn = App::Instance().Option_ViewRatings ? 1 : 0;
    if (column > nameColumn && row != DrinkList.ListIndex()) {
        g.SetForeColor(secondaryText);
    }
    return false;
}

// The rating column has no text to sort by. Most stars come first.
bool MainWindow::DrinkList_CompareRows(int row1, int row2, int column, int& result) {
    if (column != 0 || !App::Instance().Option_ViewRatings) {
        return false;
    }
    result = RatingOfPicture(DrinkList.RowPicture(row2)) - RatingOfPicture(DrinkList.RowPicture(row1));
    return true;
}

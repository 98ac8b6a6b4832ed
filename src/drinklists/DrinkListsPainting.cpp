#include "platform/ui/Graphics.h"
#include "platform/ui/Picture.h"
#include "shell/MainWindow.h"

namespace {

constexpr Color ground = Color{0xD0D6E2};
constexpr Color accent = Color{0x8797BA};
constexpr Color white = Color{0xFFFFFF};
constexpr Color black = Color{0x000000};

constexpr int countColumn = 2;
constexpr int nameColumn = 1;

struct Badge {
    int x;
    int width;
};

// The badge grows with the number of digits, up to four.
Badge BadgeOf(int digits) {
    if (digits >= 4) {
        return {5, 39};
    }
    if (digits == 3) {
        return {8, 33};
    }
    return digits == 2 ? Badge{11, 25} : Badge{14, 20};
}

const Picture* RowIcon(int row, bool selected) {
    const QString name = row == 0 ? QStringLiteral("Lists_Library") : QStringLiteral("Lists_UserList");
    return NamedPicture(selected ? name + QStringLiteral("_Selected") : name);
}

} // namespace

// The icon of a row follows the selection here, before the list draws it. The event also comes for the empty space
// below the last row.
bool MainWindow::DrinkListsList_CellBackgroundPaint(Graphics& g, int row, int column) {
    const bool selected = row == DrinkListsList.ListIndex();
    const bool exists = row < DrinkListsList.ListCount();
    g.SetForeColor(selected ? accent : ground);
    if (exists) {
        DrinkListsList.SetRowPicture(row, RowIcon(row, selected));
    }
    g.FillRect(0, 0, g.Width(), g.Height());
    if (column == countColumn && exists) {
        const Badge badge = BadgeOf(static_cast<int>(DrinkListsList.Cell(row, countColumn).size()));
        g.SetForeColor(selected ? white : accent);
        g.FillRoundRect(badge.x, 3, badge.width, 14, 15, 15);
    }
    return true;
}

bool MainWindow::DrinkListsList_CellTextPaint(Graphics& g, int row, int column, int /*x*/, int /*y*/) {
    const bool selected = row == DrinkListsList.ListIndex();
    g.SetTextSize(11);
    if (column == nameColumn) {
        g.SetTextFont(QStringLiteral("System"));
        g.SetForeColor(selected ? white : black);
        if (selected) {
            g.SetBold(true);
        }
    } else {
        g.SetTextFont(QStringLiteral("Arial"));
        g.SetBold(true);
        g.SetForeColor(selected ? accent : white);
    }
    return false;
}

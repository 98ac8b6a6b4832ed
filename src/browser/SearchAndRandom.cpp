#include "platform/base/Random.h"
#include "platform/base/Text.h"
#include "platform/ui/MsgBox.h"
#include "shell/App.h"
#include "shell/MainWindow.h"

namespace {

constexpr int downKey = 31;

} // namespace

// The fills below have told the user of any failure, and nothing follows them.

void MainWindow::SearchBox_TextChange() {
    if (App::Instance().AppLoaded) {
        static_cast<void>(App::Instance().FillDrinkList());
    }
}

// Coming back to the field, the next key replaces the old search.
void MainWindow::SearchBox_GotFocus() {
    if (!SearchBox.Text().isEmpty()) {
        SearchBox.SetSelStart(0);
        SearchBox.SetSelLength(Len(SearchBox.Text()));
    }
}

// Down leads to what was found.
bool MainWindow::SearchBox_KeyDown(const QString& key) {
    if (Asc(key) != downKey) {
        return false;
    }
    DrinkList.SetFocus();
    if (DrinkList.ListIndex() < 0 && DrinkList.ListCount() > 0) {
        DrinkList.SetListIndex(0);
        DrinkList.SetScrollPosition(0);
    }
    return true;
}

void MainWindow::MatchIngredients_Action() {
    static_cast<void>(App::Instance().FillDrinkList());
}

void MainWindow::RandomDrink_Action() {
    Random random;
    const int last = DrinkList.ListCount() - 1;
    if (last > 1) {
        DrinkList.SetListIndex(random.InRange(0, last));
    } else {
        MsgBox(QStringLiteral("You must have more drinks in your list for this feature"), 64,
               QStringLiteral("Random Drink"));
    }
}

#include "platform/ui/Picture.h"
#include "shell/App.h"
#include "shell/MainWindow.h"

namespace {

// A name that is still being edited is settled first: one that is refused holds the user, and a second new row would
// stay behind without a name of its own.
bool EditIsSettled(Listbox& list) {
    if (list.ActiveCell() != nullptr) {
        list.SetFocus();
    }
    return list.ActiveCell() == nullptr;
}

// A start that could not read the file leaves the list empty and without its columns. A second try brings it up, or
// tells why not.
bool IsFilled(const Listbox& list) {
    return list.ListCount() > 0 || App::Instance().FillDrinkListsList();
}

bool CanAddRow(Listbox& list) {
    return EditIsSettled(list) && IsFilled(list);
}

// The row has no id until its name is accepted.
void AddUnsavedRow(Listbox& list) {
    list.AddRow(QString());
    const int row = list.LastIndex();
    list.SetCellTag(row, 0, 0);
    list.SetCell(row, 1, QStringLiteral("New Drinklist"));
    list.SetRowPicture(row, NamedPicture(QStringLiteral("Lists_UserList")));
}

// Nothing is written to the database here: that is done when the edit of the name ends.
void EditLastRow(Listbox& list) {
    list.SetScrollPosition(1000);
    list.EditCell(list.LastIndex(), 1);
}

} // namespace

// The count cell stays empty until the next fill, and the text keeps its size: the menu and the button differ here.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the names of the handlers, see App.h
bool App::_File_NewDrinklist_Action() {
    MainWindow& window = MainWindow::Instance();
    window.DrinkListAdd.SetBackdrop(NamedPicture(QStringLiteral("AddDrinkList")));
    if (CanAddRow(window.DrinkListsList)) {
        AddUnsavedRow(window.DrinkListsList);
        EditLastRow(window.DrinkListsList);
    }
    return false;
}

bool MainWindow::DrinkListAdd_MouseDown() {
    DrinkListAdd.SetBackdrop(NamedPicture(QStringLiteral("AddDrinkList_Down")));
    return true;
}

void MainWindow::DrinkListAdd_MouseExit() {
    DrinkListAdd.SetBackdrop(NamedPicture(QStringLiteral("AddDrinkList")));
}

void MainWindow::DrinkListAdd_MouseUp() {
    DrinkListAdd.SetBackdrop(NamedPicture(QStringLiteral("AddDrinkList")));
    if (!CanAddRow(DrinkListsList)) {
        return;
    }
    AddUnsavedRow(DrinkListsList);
    DrinkListsList.SetTextSize(12);
    DrinkListsList.SetTextFont(QStringLiteral("Arial"));
    DrinkListsList.SetCell(DrinkListsList.LastIndex(), 2, QStringLiteral("0"));
    EditLastRow(DrinkListsList);
}

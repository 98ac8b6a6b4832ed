#include "shell/MainWindow.h"

#include "platform/ui/MenuBar.h"
#include "shell/App.h"

namespace {

const WindowProperties properties = {
    "MainWindow", QStringLiteral("Pourbook"), 750, 550, 750, 500, 32000, 32000, true,
};

} // namespace

MainWindow::MainWindow() : Window(properties) {
    PlaceControls();
    DressControls();
    BindEvents();
    PrepareKeyboard();
    SetMenuBar(App::Instance().ApplicationMenuBar());
}

void MainWindow::BindEvents() {
    CloseEvent = [this] { Event_Close(); };
    EnableMenuItems = [this] { Event_EnableMenuItems(); };

    DrinkList.Change = [this] { DrinkList_Change(); };
    DrinkList.CellClick = [this](int row, int column, int x, int y) { return DrinkList_CellClick(row, column, x, y); };
    DrinkList.KeyDown = [this](const QString& key) { return DrinkList_KeyDown(key); };
    DrinkList.CommandKeyDown = [this](const QString& key) { return DrinkList_CommandKeyDown(key); };
    DrinkList.DragRow = [this](DragItem& drag, int row) { return DrinkList_DragRow(drag, row); };
    DrinkList.CellBackgroundPaint = [this](Graphics& g, int row, int column) {
        return DrinkList_CellBackgroundPaint(g, row, column);
    };
    DrinkList.CellTextPaint = [this](Graphics& g, int row, int column, int x, int y) {
        return DrinkList_CellTextPaint(g, row, column, x, y);
    };
    DrinkList.CompareRows = [this](int row1, int row2, int column, int& result) {
        return DrinkList_CompareRows(row1, row2, column, result);
    };

    SearchBox.TextChange = [this] { SearchBox_TextChange(); };
    SearchBox.GotFocus = [this] { SearchBox_GotFocus(); };
    SearchBox.KeyDown = [this](const QString& key) { return SearchBox_KeyDown(key); };
    MatchIngredients.Action = [this] { MatchIngredients_Action(); };
    RandomDrink.Action = [this] { RandomDrink_Action(); };

    InBarList.CellClick = [this](int row, int column, int x, int y) { return InBarList_CellClick(row, column, x, y); };
    InBarList.CellBackgroundPaint = [this](Graphics& g, int row, int column) {
        return InBarList_CellBackgroundPaint(g, row, column);
    };
    InBarList.CellTextPaint = [this](Graphics& g, int row, int column, int x, int y) {
        return InBarList_CellTextPaint(g, row, column, x, y);
    };
    IngredAdd.MouseDown = [this](int x, int y) { return IngredAdd_MouseDown(x, y); };
    IngredAdd.MouseUp = [this](int x, int y) { IngredAdd_MouseUp(x, y); };
    IngredAdd.MouseExit = [this] { IngredAdd_MouseExit(); };

    BindDrinkListsEvents();
}

void MainWindow::BindDrinkListsEvents() {
    DrinkListsList.Change = [this] { DrinkListsList_Change(); };
    DrinkListsList.MouseDown = [this](int x, int y) { return DrinkListsList_MouseDown(x, y); };
    DrinkListsList.DoubleClick = [this] { DrinkListsList_DoubleClick(); };
    DrinkListsList.CellLostFocus = [this](int row, int /*column*/) { DrinkListsList_CellLostFocus(row); };
    DrinkListsList.KeyDown = [this](const QString& key) { return DrinkListsList_KeyDown(key); };
    DrinkListsList.DragOver = [this](int x, int y, const DragItem&, int) { return DrinkListsList_DragOver(x, y); };
    DrinkListsList.DropObject = [this](const DragItem&, int) { DrinkListsList_DropObject(); };
    DrinkListsList.LostFocus = [this] { DrinkListsList_LostFocus(); };
    DrinkListsList.CellBackgroundPaint = [this](Graphics& g, int row, int column) {
        return DrinkListsList_CellBackgroundPaint(g, row, column);
    };
    DrinkListsList.CellTextPaint = [this](Graphics& g, int row, int column, int x, int y) {
        return DrinkListsList_CellTextPaint(g, row, column, x, y);
    };
    DrinkListsList_Open();

    DrinkListAdd.MouseDown = [this](int, int) { return DrinkListAdd_MouseDown(); };
    DrinkListAdd.MouseUp = [this](int, int) { DrinkListAdd_MouseUp(); };
    DrinkListAdd.MouseExit = [this] { DrinkListAdd_MouseExit(); };
}

// The tab key goes as the window is read, from the top and from the left, and begins where most users do: at a name.
void MainWindow::PrepareKeyboard() {
    SetTabOrder({&RandomDrink, &MatchIngredients, &SearchBox, &DrinkListsList, &InBarList, &DrinkList, &DrinkName,
                 &DrinkType, &DrinkInstructions, &DrinkQuantities, &DrinkIngredients});
    SearchBox.SetFocus();
}

// A menu bar knows nothing of drinks; what it offers depends on what is selected.
void MainWindow::Event_EnableMenuItems() {
    const MenuBar& menus = App::Instance().ApplicationMenuBar();
    MenuItem& deleteList = menus.Item(QStringLiteral("File_DeleteList"));
    deleteList.SetEnabled(deleteList.Enabled() && DrinkListsList.ListIndex() >= 1);
    const bool drinkSelected = DrinkList.ListIndex() >= 0;
    menus.Item(QStringLiteral("Edit_CopyRecipe")).SetEnabled(drinkSelected);
    menus.Item(QStringLiteral("File_Print")).SetEnabled(drinkSelected);
}

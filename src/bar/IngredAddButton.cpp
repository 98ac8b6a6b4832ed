#include "platform/ui/Picture.h"
#include "shell/App.h"
#include "shell/MainWindow.h"

// The window opens on the press, not on the release, by decision.
bool MainWindow::IngredAdd_MouseDown(int /*x*/, int /*y*/) {
    IngredAdd.SetBackdrop(NamedPicture(QStringLiteral("AddIngredients_Down")));
    App::Instance().ShowIngredientsWindow();
    return true;
}

void MainWindow::IngredAdd_MouseUp(int /*x*/, int /*y*/) {
    IngredAdd.SetBackdrop(NamedPicture(QStringLiteral("AddIngredients")));
}

void MainWindow::IngredAdd_MouseExit() {
    IngredAdd.SetBackdrop(NamedPicture(QStringLiteral("AddIngredients")));
}

bool App::_Ingredients_AddRemove_Action() { // NOLINT(bugprone-reserved-identifier): see App.h
    ShowIngredientsWindow();
    return false;
}

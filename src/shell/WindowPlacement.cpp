#include "shell/WindowPlacement.h"

#include "shell/MainWindow.h"

void PlaceUnderMainWindow(Window& window) {
    const MainWindow& main = MainWindow::Instance();
    window.SetTop(main.Top() + 100);
    window.SetLeft(static_cast<int>(main.Left() + main.Width() / 2.0 - window.Width() / 2.0));
}

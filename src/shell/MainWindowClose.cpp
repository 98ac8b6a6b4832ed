#include "shell/App.h"
#include "shell/MainWindow.h"

// The one way out of the program. Without a connection nothing is saved, the user has been told, and the window's
// closing takes its course.
void MainWindow::Event_Close() {
    REALSQLDatabase db;
    if (!App::Instance().GetDatabase(db)) {
        return;
    }
    // A save that fails is silent: the user is leaving, and what is lost is a window's place.
    db.SQLExecute(QStringLiteral("UPDATE Setup SET AppWidth = %1, AppHeight = %2, AppLeft = %3, AppTop = %4, "
                                 "UserOptions = '%5'")
                      .arg(Width())
                      .arg(Height())
                      .arg(Left())
                      .arg(Top())
                      .arg(App::Instance().EncodeOptions()));
    db.Close();
    Quit(0);
}

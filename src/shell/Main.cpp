#include "platform/ui/Application.h"
#include "platform/ui/Picture.h"
#include "shell/App.h"
#include "shell/MenuBar1.h"
#include "shell/Pictures.h"

int main(int argc, char** argv) {
    Runtime runtime(argc, argv);
    runtime.SetDesktopEntry(QStringLiteral(POURBOOK_APPLICATION_ID));
    PreparePictures();
    runtime.SetIcon({NamedPicture(QStringLiteral("pourbook_16")), NamedPicture(QStringLiteral("pourbook_32")),
                     NamedPicture(QStringLiteral("pourbook"))});
    App app(QString::fromUtf8(POURBOOK_VENDOR_SITE));
    MenuBar1 menuBar;
    app.SetMenuBar(menuBar);
    app._ApplicationAddMenuHandlers();
    return runtime.Run(app);
}

#include "platform/base/Exceptions.h"
#include "platform/ui/MsgBox.h"
#include "shell/App.h"
#include "store/DatabaseFiles.h"

// Only the folder is looked at, not what is in it: a folder that lost its file is not filled again, because an empty
// library in the place of the user's own would look as if everything were gone.
void App::ProvisionDatabase() {
    const FolderItem seed = SeedDatabase(OnMac);
    const FolderItem folder = UserFolder(OnMac, DrinkAppName);
    if (folder.Exists()) {
        return;
    }
    bool made = false;
    try {
        folder.CreateAsFolder();
        made = true;
        seed.CopyFileTo(folder);
    } catch (const RuntimeException&) {
        // An empty folder would keep every later start from trying again. One that cannot be removed changes nothing
        // about what the user is told. What was not made here stays: a link to a disk that is not there, say.
        if (made) {
            static_cast<void>(folder.Delete());
        }
        MsgBox(QStringLiteral("An error occurred attempting to create a user specific database in the folder  '") +
                   folder.AbsolutePath() + QStringLiteral("'"),
               16, QStringLiteral("Setup Error"));
        Quit(0);
    }
}

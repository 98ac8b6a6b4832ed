#include "platform/ui/MsgBox.h"
#include "shell/App.h"
#include "store/DatabaseFiles.h"

bool App::GetDatabase(REALSQLDatabase& db) {
    if constexpr (InDevelopment) {
        db.SetDatabaseFile(GetFolderItem(DatabaseName()));
    } else {
        db.SetDatabaseFile(WorkingDatabase(OnMac, DrinkAppName));
        db.SetEncryptionKey(DatabaseKey());
        db.SetDerivedKey(LibraryKey());
    }
    if (!db.Connect()) {
        MsgBox(QStringLiteral("Could not open database.  ") + db.ErrorMessage());
        return false;
    }
    return true;
}

#include "store/DatabaseFiles.h"

FolderItem SeedDatabase(bool onMac) {
    const FolderItem folder = ExecutableFile().Parent();
    return onMac ? folder.Parent().Child(QStringLiteral("Resources")).Child(DatabaseName())
                 : folder.Child(DatabaseName());
}

FolderItem UserFolder(bool onMac, const QString& appName) {
    const FolderItem preferences = PreferencesFolder();
    return onMac ? preferences.Parent().Child(QStringLiteral("Application Support")).Child(appName)
                 : preferences.Child(appName);
}

FolderItem WorkingDatabase(bool onMac, const QString& appName) {
    return UserFolder(onMac, appName).Child(DatabaseName());
}

QString DatabaseName() {
    return QStringLiteral("drinkdb.rsd");
}

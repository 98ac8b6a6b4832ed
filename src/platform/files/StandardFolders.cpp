#include "platform/files/FolderItem.h"

#include <QDir>
#include <QFile>

FolderItem GetFolderItem(const QString& name) {
    return FolderItem(QDir::currentPath()).Child(name);
}

FolderItem PreferencesFolder() {
    const QString given = qEnvironmentVariable("XDG_DATA_HOME");
    const QString data = QDir::isAbsolutePath(given) ? given : QDir::homePath() + QStringLiteral("/.local/share");
    return FolderItem(data).Child(QStringLiteral("Preferences"));
}

FolderItem ExecutableFile() {
    return FolderItem(QFile::symLinkTarget(QStringLiteral("/proc/self/exe")));
}

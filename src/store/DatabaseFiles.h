#pragma once

#include "platform/files/FolderItem.h"
#include "store/LibraryKey.h"

#include <QString>

// Where the database files lie. With onMac the seed stands in Resources beside the executable's folder, and the
// user's data below "Application Support" beside the folder of preferences; otherwise the seed stands beside the
// executable and the user's data in the folder of preferences.

[[nodiscard]] FolderItem SeedDatabase(bool onMac);
[[nodiscard]] FolderItem UserFolder(bool onMac, const QString& appName);
[[nodiscard]] FolderItem WorkingDatabase(bool onMac, const QString& appName);

// The one name of seed and working file.
[[nodiscard]] QString DatabaseName();

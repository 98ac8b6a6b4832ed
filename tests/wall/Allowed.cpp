// What a feature folder lives on: Qt Core's values and the headers of the platform.
#include "platform/base/Date.h"
#include "platform/base/Text.h"
#include "platform/database/Database.h"
#include "platform/files/FolderItem.h"
#include "platform/ui/Listbox.h"
#include "platform/ui/Window.h"

#include <QString>
#include <QStringList>

#include "help/VersionText.h"

#include "platform/base/Text.h"
#include "platform/ui/Application.h"

QString VersionText(const ApplicationVersion& version) {
    QString numbers = QStringLiteral("Version ") + CStr(version.major) + QLatin1Char('.') + CStr(version.minor) +
                      QLatin1Char('.') + CStr(version.bug);
    switch (version.stage) {
        case 0:
            return numbers + QStringLiteral(" In Development");
        case 1:
            return numbers + QStringLiteral(" Alpha ") + CStr(version.nonRelease);
        case 2:
            return numbers + QStringLiteral(" Beta ") + CStr(version.nonRelease);
        default:
            return numbers;
    }
}

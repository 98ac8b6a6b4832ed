#include "updates/VersionNumber.h"

#include "platform/base/Text.h"

int VersionNumber(const QString& reply) {
    return CLong(ReplaceAll(reply, QStringLiteral("."), QString()));
}

int VersionNumber(int major, int minor, int bug) {
    return CLong(CStr(major) + CStr(minor) + CStr(bug));
}

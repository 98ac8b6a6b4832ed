#include "platform/files/SystemError.h"

#include "platform/base/Exceptions.h"

#include <system_error>

void ThrowSystemError(const QString& deed, int code) {
    throw IOException(deed + QStringLiteral(": ") + QString::fromStdString(std::generic_category().message(code)));
}

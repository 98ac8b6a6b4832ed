#include "platform/base/Exceptions.h"

RuntimeException::RuntimeException(const QString& message) : message_(message.toUtf8()) {}

QString RuntimeException::Message() const {
    return QString::fromUtf8(message_);
}

const char* RuntimeException::what() const noexcept {
    return message_.constData();
}

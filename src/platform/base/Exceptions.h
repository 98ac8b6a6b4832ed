// The faults of the platform layer. Program logic does not catch them, apart from the guarded file steps of
// start-up: the layer's event entry tells the user and abandons the operation.
#pragma once

#include <QByteArray>
#include <QString>

#include <exception>

// The root of all faults. `Message` is one sentence part without a full stop, fit to be shown to the user.
class RuntimeException : public std::exception {
public:
    explicit RuntimeException(const QString& message = {});

    QString Message() const;
    const char* what() const noexcept override;

private:
    QByteArray message_;
};

// An object was used that is not there: a nil record set, a nil folder item.
class NilObjectException : public RuntimeException {
public:
    using RuntimeException::RuntimeException;
};

// An index outside of what the object holds.
class OutOfBoundsException : public RuntimeException {
public:
    using RuntimeException::RuntimeException;
};

// A file operation failed. The message ends in the system's own words for the cause.
class IOException : public RuntimeException {
public:
    using RuntimeException::RuntimeException;
};

// A name that the object does not know, such as a field that a record set does not have.
class KeyNotFoundException : public RuntimeException {
public:
    using RuntimeException::RuntimeException;
};

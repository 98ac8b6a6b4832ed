#pragma once

#include <QString>

// Throws IOException with `deed`, as in "Could not make the folder \"/x\"", and the words of the system for `code`, a
// value of errno.
[[noreturn]] void ThrowSystemError(const QString& deed, int code);

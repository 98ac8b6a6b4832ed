#pragma once

#include <QByteArray>

// Gives the file or folder at `from` the path `to`, in the same file system, in one step. Returns 0, or the error
// number: EEXIST when something stands at `to`, which is never replaced.
[[nodiscard]] int RenameToFreeName(const QByteArray& from, const QByteArray& to);

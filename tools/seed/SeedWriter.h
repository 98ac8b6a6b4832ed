#pragma once

#include "library/Library.h"

// Writes the library as an encrypted seed database to `path`, in place of a file that is there. The file appears under
// that name only once it is whole. On false
// `problem` says why, and a file at `path` is as it was before.
[[nodiscard]] bool WriteSeed(const Library& library, const QString& path, QString& problem);

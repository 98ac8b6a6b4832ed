#pragma once

#include "platform/database/DerivedKey.h"

#include <QString>

// The key that seed and working file are encrypted with.
[[nodiscard]] QString DatabaseKey();

// The same key, derived for the salt that every seed is written with. Each user's file is a copy of a seed and keeps
// its salt, so no start has to derive: that would be 30 milliseconds. A file with another salt opens all the same.
[[nodiscard]] DerivedKey LibraryKey();

#pragma once

#include <QString>

// Versions are compared as the number that all their digits form: 1.2.0 is 120. That holds while both sides have as
// many digits in each field. It is a convention with the server that names the latest version, so it stays.

// The version at the front of a reply; a line end behind it does no harm. A reply that does not begin with a digit, an
// error page say, is version 0.
[[nodiscard]] int VersionNumber(const QString& reply);
[[nodiscard]] int VersionNumber(int major, int minor, int bug);

#pragma once

#include <QString>

struct ApplicationVersion;

// The version as the about window shows it: "Version 1.2.0 Alpha 3". A final release has its three numbers alone.
[[nodiscard]] QString VersionText(const ApplicationVersion& version);

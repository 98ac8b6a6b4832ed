#pragma once

#include <QString>

// Asks the user, with Yes and No. True for Yes.
[[nodiscard]] bool Confirmed(const QString& question);

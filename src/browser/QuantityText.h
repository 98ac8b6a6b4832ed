#pragma once

#include <QString>

// How a stored quantity reads in the recipe panel, with its unit.
//
// The stored text is split at its first point, and the digits behind it are read as a whole number: 5 is one half,
// whether it stands as .5 or .05, and 25, 75, 33, 66, 1 and 2 are the quarter, three quarters, third, two thirds, tenth
// and fifth. Any other digits are shown behind a point. There is no arithmetic on the number, and none is meant: 1.05
// reads as 1 1/2, and 0.50 as .50. "0" shows the unit alone.
[[nodiscard]] QString QuantityText(const QString& quantity, const QString& unit);

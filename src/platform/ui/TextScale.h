#pragma once

#include <QSize>

// For the layer itself. Places are measured in pixels for text of the usual size, so for a user who has chosen larger
// text the windows grow as a whole.

// How many times larger than designed windows should be for a desktop whose text is so many pixels high and whose
// screen has so much room: in steps of a quarter, at least 1, and never so large that a screen of the smallest usual
// size would not fit into the room.
[[nodiscard]] double TextScale(double textPixels, const QSize& room);

// For the desktop that the running QApplication found; 1 where the user has set a scale of their own.
[[nodiscard]] double DesktopTextScale();

#pragma once

#include <QString>

class QKeyEvent;

// For the layer itself: a key as the logic reads it. The text's first character is 8 for backspace, 9 for tab (with
// or without shift), 13 for return, 27 for escape, 28 to 31 for left, right, up and down, 127 for forward delete, and
// otherwise the text that the key types; a key that types nothing, or that is pressed with the
// control key to give a command, gives the empty text.
[[nodiscard]] QString KeyText(const QKeyEvent& event);

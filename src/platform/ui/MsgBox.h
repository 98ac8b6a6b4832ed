#pragma once

#include <QString>

// Shows a message over the active window and waits for the answer. The text is plain text, whatever it holds.
//
// The code says which buttons and icon: 16 stop icon with OK, 36 question with Yes and No, 48 caution with OK,
// 64 note with OK. The result is 6 for Yes, 7 for No and for Escape, 1 for OK. The form with one argument has the OK
// button and no icon of its own. While the box is open the program's other events are served.
void MsgBox(const QString& text);
int MsgBox(const QString& text, int code, const QString& title);

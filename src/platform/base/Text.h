// Text functions with the framework's manners: positions count from 1, comparison ignores case, and no
// argument ever makes one fail. A position or length counts UTF-16 units, as `QString` does.
#pragma once

#include <QString>

// The place of the first occurrence of `search`, ignoring case; 0 when there is none. An empty `search` is
// nowhere: 0. A `start` below 1 counts as 1.
int InStr(const QString& text, const QString& search);
int InStr(int start, const QString& text, const QString& search);

// Parts of a text. A length that is negative gives the empty text, one that is too large the whole rest.
// For `Mid`, a `start` below 1 counts as 1, and one behind the end gives the empty text.
QString Left(const QString& text, int length);
QString Right(const QString& text, int length);
QString Mid(const QString& text, int start);
QString Mid(const QString& text, int start, int length);

int Len(const QString& text);

// Without white space at both ends; white space inside stays.
QString Trim(const QString& text);

QString Uppercase(const QString& text);

// `Replace` changes the first occurrence only, `ReplaceAll` every one. Both ignore case, and an empty `search`
// changes nothing.
QString Replace(const QString& text, const QString& search, const QString& replacement);
QString ReplaceAll(const QString& text, const QString& search, const QString& replacement);

// Decimal digits, with a leading "-" where negative.
QString CStr(int number);

// The integer at the front of the text: white space, one optional sign, digits 0 to 9. What follows is not
// looked at, so "2." and "2 cl" read 2. Without a digit 0; beyond 32 bits the nearest 32-bit number.
int CLong(const QString& text);

// True for a plain decimal number with white space around it allowed:
//     number = [sign] (digits ["." [digits]] | "." digits) ["e" [sign] digits]
// The digits are 0 to 9, "e" stands in either case. So "2", " -1.5 ", "2." and "1e3" are numbers; "", "1/2",
// "0x10", "1,5", "1 2" and "inf" are not.
bool IsNumeric(const QString& text);

// The Unicode code of the first character; 0 for the empty text.
int Asc(const QString& text);

// The framework's `=` for texts: equal but for case.
bool SameText(const QString& a, const QString& b);

// The line ends of the three platforms. The multi-line controls of this layer take each of them as one line end.
namespace EndOfLine {
QString Macintosh(); // carriage return
QString Windows();   // carriage return, line feed
QString Unix();      // line feed
} // namespace EndOfLine

// The text with a line feed in the place of each line end, of whatever platform.
QString WithLineFeeds(const QString& text);

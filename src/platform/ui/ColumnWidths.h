#pragma once

#include <QString>

#include <vector>

// The widths of a list's columns, in pixels, from a text such as "65,180,*,90" or "20%,*,22%". Pure.
//
// A number is a width in pixels, a number with "%" that share of the total, and "*" what the others leave, shared
// evenly between several of them and never below 0. A column that the text does not name gets the rest like "*" when
// the text has no "*", and 0 otherwise. Unreadable parts count as 0.
[[nodiscard]] std::vector<int> ColumnWidths(const QString& text, int columnCount, int totalWidth);

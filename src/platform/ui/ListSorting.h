#pragma once

#include <QtCore/qnamespace.h>

#include <functional>

class Listbox;
class ListModel;

// For the layer itself: the order of a list's rows when the user sorts by a column. The list's CompareRows decides
// where it wants to; otherwise the texts compare as a person would sort them, without regard to case and accents
// first.
[[nodiscard]] std::function<bool(int row1, int row2)> RowOrder(const Listbox& list, const ListModel& model, int column,
                                                               Qt::SortOrder order);

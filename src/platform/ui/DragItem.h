#pragma once

#include <QString>

// What is carried by a drag: a text.
struct DragItem {
    QString text;
};

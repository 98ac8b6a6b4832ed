#pragma once

#include "library/NameIndex.h"

#include <QSet>

// What a recipe may name.
struct Vocabulary {
    NameIndex types;
    NameIndex glasses;
    NameIndex units;
    NameIndex ingredients;
    QSet<int> unitsWithoutNumber;
};

#include "library/NameIndex.h"

bool NameIndex::Add(const QString& name) {
    const QString key = name.toCaseFolded();
    if (numbers_.contains(key)) {
        return false;
    }
    numbers_.insert(key, static_cast<int>(numbers_.size()));
    return true;
}

int NameIndex::Find(const QString& name) const {
    return numbers_.value(name.toCaseFolded(), -1);
}

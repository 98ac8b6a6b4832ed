#pragma once

#include <QHash>
#include <QString>

// Finds the index of a name, ignoring case.
class NameIndex {
public:
    // Numbers count up from 0. False when the name is there already.
    [[nodiscard]] bool Add(const QString& name);

    // -1 when the name is unknown.
    int Find(const QString& name) const;

private:
    QHash<QString, int> numbers_;
};

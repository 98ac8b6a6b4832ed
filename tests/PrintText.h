#pragma once

#include <QString>

#include <ostream>

// How a text shows in the report of a failed check. PrintTo is for the checks themselves, which would take a QString
// for a container of characters.
inline std::ostream& operator<<(std::ostream& out, const QString& text) {
    return out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QString& text, std::ostream* out) {
    *out << text;
}

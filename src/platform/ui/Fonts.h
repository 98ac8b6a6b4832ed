#pragma once

#include <QFont>
#include <QString>

// For the layer itself: the names and sizes of fonts as the logic gives them.
namespace fonts {

// "System" is the platform's own family; any other name is taken as it is, with the closest installed one in its place.
[[nodiscard]] QFont WithFamily(const QFont& font, const QString& family);

// In logical pixels; 0 is the platform's default size.
[[nodiscard]] QFont WithSize(const QFont& font, int pixels);

} // namespace fonts

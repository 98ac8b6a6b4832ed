#pragma once

#include <QString>

class Picture;

// The picture of a glass by the name of its type, in any case; null for a name that has none.
[[nodiscard]] const Picture* GlassPicture(const QString& glassTypeName);

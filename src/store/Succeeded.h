#pragma once

#include "platform/database/Database.h"

#include <QString>

// Whether the database's last statement succeeded. If not, the user was told: these words, directly followed by the
// engine's.
[[nodiscard]] bool Succeeded(const REALSQLDatabase& db, const QString& words);

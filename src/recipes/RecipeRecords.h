#pragma once

#include "platform/database/Database.h"
#include "recipes/NewRecipe.h"

#include <QString>
#include <QStringList>

// How a recipe that the user wrote becomes records. Texts go between quotes as they are, by decision: an apostrophe
// ends in the database's own message. Each record stands once it is written; nothing is taken back.
//
// A result of false means that it failed and the user was told.

[[nodiscard]] bool InsertDrink(REALSQLDatabase& db, const NewRecipe& window, const QString& name,
                               const QStringList& ingredients);

// One row of the grid, with its ingredient. `sameName` are the closed records of drinks with the new drink's name.
[[nodiscard]] bool InsertRecipeRow(REALSQLDatabase& db, const Listbox& grid, int row, int DrinkID,
                                   const RecordSet& sameName);

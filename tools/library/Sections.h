// The readers of the single files. Each appends what it finds to the library and its errors to `reading.errors`.
#pragma once

#include "library/LibraryText.h"
#include "library/SourceText.h"
#include "library/Vocabulary.h"

// One name a line. `what` is the noun for the messages: "glass".
void ReadNames(const LibraryFile& file, const QString& what, QStringList& names, NameIndex& index,
               QList<LibraryError>& errors);

void ReadUnits(const LibraryFile& file, LibraryReading& reading, Vocabulary& vocabulary);
void ReadIngredientTree(const LibraryFile& file, LibraryReading& reading, Vocabulary& vocabulary);
void ReadStarterBar(const LibraryFile& file, LibraryReading& reading, const Vocabulary& vocabulary);

// `recipeNames` grows from file to file: a name is unique in the whole library.
void ReadRecipes(const LibraryFile& file, LibraryReading& reading, const Vocabulary& vocabulary,
                 NameIndex& recipeNames);

// One ingredient line of a recipe. On false the line is wrong and `errors` says how.
[[nodiscard]] bool ReadRecipeRow(const SourceLine& line, const Vocabulary& vocabulary, RecipeRow& row,
                                 QList<LibraryError>& errors);

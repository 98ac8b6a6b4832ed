#pragma once

#include "platform/files/FolderItem.h"

namespace GeneratedLibrary {

constexpr int drinks = 100'000;
constexpr int ingredients = 1'000;
constexpr int rowsOfRecipe = 5;
constexpr int listedDrinks = 50'000;

// Writes an encrypted library of that size, the same at each call: every ingredient in the bar, every recipe row
// required, and one drinklist with every other drink. A failure ends the process with the engine's words.
void Write(const FolderItem& file);

} // namespace GeneratedLibrary

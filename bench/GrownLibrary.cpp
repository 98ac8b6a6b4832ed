#include "GrownLibrary.h"

#include "library/LibraryText.h"

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int ingredientCopies = 4;

Library ReadShipped() {
    LibraryReading reading = ReadLibraryFolder(QStringLiteral(POURBOOK_LIBRARY_FOLDER));
    for (const LibraryError& error : reading.errors) {
        std::fprintf(stderr, "%s\n", qPrintable(error.Text()));
    }
    if (!reading.errors.isEmpty() || reading.library.recipes.isEmpty()) {
        std::exit(EXIT_FAILURE);
    }
    return reading.library;
}

QString Numbered(const QString& name, int copy) {
    return copy == 0 ? name : QStringLiteral("%1 No. %2").arg(name).arg(copy + 1);
}

void CopyIngredients(Library& library, int copies) {
    const QList<LibraryIngredient> originals = library.ingredients;
    for (int copy = 1; copy < copies; ++copy) {
        const auto offset = static_cast<int>(library.ingredients.size());
        for (LibraryIngredient ingredient : originals) {
            ingredient.name = Numbered(ingredient.name, copy);
            ingredient.parent += ingredient.parent < 0 ? 0 : offset;
            library.ingredients.append(ingredient);
        }
    }
}

} // namespace

Library GrownLibrary(int drinks) {
    Library library = ReadShipped();
    const QList<Recipe> originals = library.recipes;
    const auto ingredients = static_cast<int>(library.ingredients.size());
    const auto shipped = static_cast<int>(originals.size());
    CopyIngredients(library, drinks > shipped ? ingredientCopies : 1);
    library.recipes.clear();
    for (int drink = 0; drink < drinks; ++drink) {
        const int copy = drink / shipped;
        Recipe recipe = originals.at(drink % shipped);
        recipe.name = Numbered(recipe.name, copy);
        for (RecipeRow& row : recipe.rows) {
            row.ingredient += copy % ingredientCopies * ingredients;
        }
        library.recipes.append(recipe);
    }
    return library;
}

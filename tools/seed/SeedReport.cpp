#include "seed/SeedReport.h"

#include <QMap>
#include <QSet>

#include <algorithm>

namespace {

QString CountsByName(const QStringList& names, const Library& library, int Recipe::*kind) {
    QString text;
    for (int index = 0; index < names.size(); ++index) {
        const auto count = std::count_if(library.recipes.cbegin(), library.recipes.cend(),
                                         [=](const Recipe& recipe) { return recipe.*kind == index; });
        text += QStringLiteral("  %1  %2\n").arg(count, 4).arg(names.at(index));
    }
    return text;
}

// A kind of a used ingredient is of use, because it can stand in for it, and so is the general name of a used one.
QStringList UnusedIngredients(const Library& library) {
    QSet<int> named;
    QSet<int> general;
    for (const Recipe& recipe : library.recipes) {
        for (const RecipeRow& row : recipe.rows) {
            named.insert(row.ingredient);
            general.insert(library.ingredients.at(row.ingredient).parent);
        }
    }
    QStringList unused;
    for (int index = 0; index < library.ingredients.size(); ++index) {
        const LibraryIngredient& ingredient = library.ingredients.at(index);
        if (!named.contains(index) && !general.contains(index) && !named.contains(ingredient.parent)) {
            unused.append(ingredient.name);
        }
    }
    return unused;
}

// The required rows of a recipe in an order that does not depend on how they were written.
QString Composition(const Recipe& recipe) {
    QStringList rows;
    for (const RecipeRow& row : recipe.rows) {
        if (row.required) {
            rows.append(QStringLiteral("%1 %2 %3").arg(row.ingredient).arg(row.quantity).arg(row.unit));
        }
    }
    rows.sort();
    return rows.join(u',');
}

QStringList EqualDrinks(const Library& library) {
    QMap<QString, QStringList> drinks;
    for (const Recipe& recipe : library.recipes) {
        drinks[Composition(recipe)].append(recipe.name);
    }
    QStringList equal;
    for (const QStringList& names : drinks) {
        if (names.size() > 1) {
            equal.append(names.join(QStringLiteral(" = ")));
        }
    }
    return equal;
}

int MakeableDrinks(const Library& library) {
    QSet<int> available;
    for (const int ingredient : library.starterBar) {
        available.insert(ingredient);
        available.insert(library.ingredients.at(ingredient).parent);
    }
    const auto isMakeable = [&available](const Recipe& recipe) {
        return std::all_of(recipe.rows.cbegin(), recipe.rows.cend(), [&available](const RecipeRow& row) {
            return !row.required || available.contains(row.ingredient);
        });
    };
    return static_cast<int>(std::count_if(library.recipes.cbegin(), library.recipes.cend(), isMakeable));
}

QStringList StarterBar(const Library& library) {
    QStringList names;
    for (const int ingredient : library.starterBar) {
        names.append(library.ingredients.at(ingredient).name);
    }
    return names;
}

QString Listed(const QStringList& lines) {
    QString text;
    for (const QString& line : lines) {
        text += QStringLiteral("  ") + line + u'\n';
    }
    return text.isEmpty() ? QStringLiteral("  none\n") : text;
}

} // namespace

QString SeedReport(const Library& library) {
    QString text =
        QStringLiteral("%1 drinks, %2 ingredients\n").arg(library.recipes.size()).arg(library.ingredients.size());
    text += QStringLiteral("By type:\n") + CountsByName(library.types, library, &Recipe::type);
    text += QStringLiteral("By glass:\n") + CountsByName(library.glasses, library, &Recipe::glass);
    text += QStringLiteral("Ingredients never used:\n") + Listed(UnusedIngredients(library));
    text += QStringLiteral("Drinks with the same recipe:\n") + Listed(EqualDrinks(library));
    text += QStringLiteral("The starter bar of %1 ingredients makes %2 drinks:\n")
                .arg(library.starterBar.size())
                .arg(MakeableDrinks(library));
    text += Listed(StarterBar(library));
    return text;
}

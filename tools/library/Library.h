#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// Where something stands in the text of the library: a file name relative to its folder, and a line from 1 on. Line 0
// means the file as a whole.
struct TextPlace {
    QString file;
    int line = 0;
};

// An ingredient; `parent` is the index of the general ingredient that it is a kind of, or -1.
struct LibraryIngredient {
    QString name;
    int parent = -1;
    TextPlace place;
};

// One row of a recipe. `quantity` is the text to be stored: "0" when the recipe gives no number. `unit` is an index
// or -1 for none.
struct RecipeRow {
    QString quantity;
    int unit = -1;
    int ingredient = -1;
    bool required = true;
    QString preparation;
};

struct Recipe {
    QString name;
    int type = -1;
    int glass = -1;
    QList<RecipeRow> rows;
    QString instructions;
    TextPlace place;
};

// The library as read. Indexes point into the lists; all lists are in the order of the text, which is the order of the
// ids in the seed.
struct Library {
    QStringList types;
    QStringList glasses;
    QStringList units;
    QList<LibraryIngredient> ingredients;
    QList<Recipe> recipes;
    QList<int> starterBar;
};

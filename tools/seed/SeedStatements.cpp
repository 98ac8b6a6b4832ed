#include "seed/SeedStatements.h"

namespace {

QString Quoted(const QString& text) {
    QString doubled = text;
    return u'\'' + doubled.replace(u'\'', QStringLiteral("''")) + u'\'';
}

QString QuotedOrNull(const QString& text) {
    return text.isEmpty() ? QStringLiteral("NULL") : Quoted(text);
}

QString Id(int index) {
    return index < 0 ? QStringLiteral("NULL") : QString::number(index + 1);
}

QString Insert(const QString& table, const QStringList& values) {
    return QStringLiteral("INSERT INTO %1 VALUES (").arg(table) + values.join(QStringLiteral(", ")) + u')';
}

void AppendNames(const QString& table, const QStringList& names, QStringList& statements) {
    for (int index = 0; index < names.size(); ++index) {
        statements.append(Insert(table, {Id(index), Quoted(names.at(index))}));
    }
}

QString IngredientNames(const Recipe& recipe, const Library& library) {
    QStringList names;
    for (const RecipeRow& row : recipe.rows) {
        names.append(library.ingredients.at(row.ingredient).name);
    }
    return names.join(QStringLiteral(", "));
}

int RequiredRows(const Recipe& recipe) {
    int count = 0;
    for (const RecipeRow& row : recipe.rows) {
        count += row.required ? 1 : 0;
    }
    return count;
}

void AppendRecipe(int index, const Library& library, QStringList& statements) {
    const Recipe& recipe = library.recipes.at(index);
    const QString drink = Id(index);
    statements.append(
        Insert(QStringLiteral("Drinks"),
               {drink, Quoted(recipe.name), Quoted(recipe.instructions), Id(recipe.type), Id(recipe.glass),
                QString::number(RequiredRows(recipe)), Quoted(IngredientNames(recipe, library)), QStringLiteral("NULL"),
                QStringLiteral("NULL")}));
    int step = 0;
    for (const RecipeRow& row : recipe.rows) {
        ++step;
        statements.append(Insert(QStringLiteral("DrinkRecipes"),
                                 {drink, Id(row.ingredient), QString::number(step), Quoted(row.quantity), Id(row.unit),
                                  QString::number(row.required ? 1 : 0), QuotedOrNull(row.preparation)}));
    }
}

} // namespace

// NOCASE on the names lets the lists read as a person would sort them, and makes "gin" and "Gin" one name. A quantity
// is text, because the recipe panel reads its digits as they were written.
QStringList SchemaStatements() {
    return {
        QStringLiteral("CREATE TABLE DrinkTypes (DrinkTypeID INTEGER PRIMARY KEY, DrinkTypeName TEXT COLLATE NOCASE)"),
        QStringLiteral("CREATE TABLE GlassTypes (GlassTypeID INTEGER PRIMARY KEY, GlassTypeName TEXT COLLATE NOCASE)"),
        QStringLiteral("CREATE TABLE UnitsOfMeasure (UofMID INTEGER PRIMARY KEY, UofM TEXT COLLATE NOCASE)"),
        QStringLiteral("CREATE TABLE Ingredients (IngredientID INTEGER PRIMARY KEY, IngredientParentID INTEGER, "
                       "IngredientName TEXT COLLATE NOCASE, InBar INTEGER, Empty INTEGER)"),
        QStringLiteral("CREATE TABLE Drinks (DrinkID INTEGER PRIMARY KEY, DrinkName TEXT COLLATE NOCASE, "
                       "DrinkInstruction TEXT, DrinkTypeID INTEGER, GlassTypeID INTEGER, IngredientCount INTEGER, "
                       "IngredientList TEXT, UserRating INTEGER, UserModified TEXT)"),
        QStringLiteral("CREATE TABLE DrinkRecipes (DrinkID INTEGER, IngredientID INTEGER, RecipeStep INTEGER, "
                       "IngredientQuantity TEXT, UofMID INTEGER, Required INTEGER, Preparation TEXT)"),
        QStringLiteral("CREATE TABLE DrinkLists (DrinkListID INTEGER PRIMARY KEY, DrinkListName TEXT COLLATE NOCASE)"),
        QStringLiteral("CREATE TABLE DrinkListXRef (DrinkListXRefID INTEGER PRIMARY KEY, DrinkListID INTEGER, "
                       "DrinkID INTEGER)"),
        QStringLiteral("CREATE TABLE Setup (AppLeft INTEGER, AppTop INTEGER, AppWidth INTEGER, AppHeight INTEGER, "
                       "UserOptions TEXT, LastUpdateCheck TEXT, DBVersion INTEGER)"),
        QStringLiteral("CREATE INDEX DrinksByName ON Drinks (DrinkName, IngredientList, UserRating, DrinkTypeID, "
                       "GlassTypeID)"),
        QStringLiteral("CREATE INDEX DrinkRecipesByDrink ON DrinkRecipes (DrinkID, Required, IngredientID)"),
        QStringLiteral("CREATE INDEX DrinkRecipesByIngredient ON DrinkRecipes (IngredientID)"),
        QStringLiteral("CREATE INDEX IngredientsByName ON Ingredients (IngredientName)"),
        QStringLiteral("CREATE INDEX IngredientsByParent ON Ingredients (IngredientParentID)"),
        QStringLiteral("CREATE INDEX DrinkListXRefByList ON DrinkListXRef (DrinkListID, DrinkID)"),
        QStringLiteral("CREATE INDEX DrinkListXRefByDrink ON DrinkListXRef (DrinkID)"),
    };
}

QStringList RowStatements(const Library& library) {
    QStringList statements;
    AppendNames(QStringLiteral("DrinkTypes"), library.types, statements);
    AppendNames(QStringLiteral("GlassTypes"), library.glasses, statements);
    AppendNames(QStringLiteral("UnitsOfMeasure"), library.units, statements);
    for (int index = 0; index < library.ingredients.size(); ++index) {
        const LibraryIngredient& ingredient = library.ingredients.at(index);
        statements.append(
            Insert(QStringLiteral("Ingredients"), {Id(index), Id(ingredient.parent), Quoted(ingredient.name),
                                                   QStringLiteral("0"), QStringLiteral("0")}));
    }
    for (int index = 0; index < library.recipes.size(); ++index) {
        AppendRecipe(index, library, statements);
    }
    // An empty AppWidth is what tells the program that it runs for the first time.
    statements.append(QStringLiteral("INSERT INTO Setup (DBVersion) VALUES (2)"));
    return statements;
}

#include "GeneratedLibrary.h"

#include "platform/database/Database.h"
#include "seed/SeedStatements.h"
#include "store/DatabaseFiles.h"

#include <QStringList>

#include <cstdio>
#include <cstdlib>
#include <random>

namespace {

// Many rows go into one statement, because reading a statement takes longer than adding its row.
constexpr int rowsOfStatement = 500;
constexpr int parents = 100;

const QStringList kinds = {
    QStringLiteral("Gin"),    QStringLiteral("Rum"),   QStringLiteral("Vodka"),   QStringLiteral("Whiskey"),
    QStringLiteral("Brandy"), QStringLiteral("Syrup"), QStringLiteral("Juice"),   QStringLiteral("Bitters"),
    QStringLiteral("Crème"),  QStringLiteral("Soda"),  QStringLiteral("Tequila"),
};
const QStringList words = {
    QStringLiteral("Royal"),  QStringLiteral("Harbour"),  QStringLiteral("Piña"),    QStringLiteral("Garden"),
    QStringLiteral("Velvet"), QStringLiteral("Northern"), QStringLiteral("Copper"),  QStringLiteral("Midnight"),
    QStringLiteral("Island"), QStringLiteral("Smoky"),    QStringLiteral("Orchard"),
};

void Execute(REALSQLDatabase& db, const QString& statement) {
    db.SQLExecute(statement);
    if (db.Error()) {
        std::fprintf(stderr, "Could not write the library: %s\n", qPrintable(db.ErrorMessage()));
        std::exit(EXIT_FAILURE);
    }
}

class Rows {
public:
    Rows(REALSQLDatabase& db, const char* table) : db_(db), table_(QString::fromLatin1(table)) {}

    void Add(const QString& row) {
        rows_.append(row);
        if (rows_.size() == rowsOfStatement) {
            Flush();
        }
    }

    void Flush() {
        if (!rows_.isEmpty()) {
            Execute(db_, QStringLiteral("INSERT INTO %1 VALUES ").arg(table_) + rows_.join(QStringLiteral(", ")));
            rows_.clear();
        }
    }

private:
    REALSQLDatabase& db_;
    QString table_;
    QStringList rows_;
};

QString IngredientName(int id) {
    return QStringLiteral("%1 %2 %3").arg(words[id % words.size()], kinds[id % kinds.size()]).arg(id);
}

void WriteIngredients(REALSQLDatabase& db) {
    Rows rows(db, "Ingredients");
    for (int id = 1; id <= GeneratedLibrary::ingredients; ++id) {
        const QString parent = id <= parents ? QStringLiteral("NULL") : QString::number(id % parents + 1);
        rows.Add(QStringLiteral("(%1, %2, '%3', 1, 0)").arg(id).arg(parent, IngredientName(id)));
    }
    rows.Flush();
}

void WriteDrinks(REALSQLDatabase& db) {
    std::mt19937 random(1);
    Rows drinks(db, "Drinks");
    Rows recipes(db, "DrinkRecipes");
    for (int drink = 1; drink <= GeneratedLibrary::drinks; ++drink) {
        QStringList names;
        for (int step = 1; step <= GeneratedLibrary::rowsOfRecipe; ++step) {
            const int ingredient = static_cast<int>(random() % GeneratedLibrary::ingredients) + 1;
            names.append(IngredientName(ingredient));
            recipes.Add(QStringLiteral("(%1, %2, %3, '1.5', 1, 1, NULL)").arg(drink).arg(ingredient).arg(step));
        }
        // The names come in no order, as they would from people.
        const auto number = static_cast<int>(random() % GeneratedLibrary::drinks);
        drinks.Add(QStringLiteral("(%1, '%2 %3 Fizz', 'Shake well with ice, and strain.', %4, %5, %6, '%7', %8, NULL)")
                       .arg(drink)
                       .arg(words[number % words.size()])
                       .arg(number)
                       .arg(drink % 3 + 1)
                       .arg(drink % 2 + 1)
                       .arg(GeneratedLibrary::rowsOfRecipe)
                       .arg(names.join(QStringLiteral(", ")))
                       .arg(drink % 6));
    }
    drinks.Flush();
    recipes.Flush();
}

void WriteDrinklist(REALSQLDatabase& db) {
    Execute(db, QStringLiteral("INSERT INTO DrinkLists VALUES (1, 'Every other')"));
    Rows rows(db, "DrinkListXRef");
    for (int entry = 1; entry <= GeneratedLibrary::listedDrinks; ++entry) {
        rows.Add(QStringLiteral("(%1, 1, %2)").arg(entry).arg(entry * 2));
    }
    rows.Flush();
}

void WriteLookUpTables(REALSQLDatabase& db) {
    Execute(db, QStringLiteral("INSERT INTO DrinkTypes VALUES (1, 'Cocktail'), (2, 'Sour'), (3, 'Highball')"));
    Execute(db, QStringLiteral("INSERT INTO GlassTypes VALUES (1, 'Cocktail'), (2, 'Collins')"));
    Execute(db, QStringLiteral("INSERT INTO UnitsOfMeasure VALUES (1, 'oz')"));
    Execute(db, QStringLiteral("INSERT INTO Setup VALUES (100, 100, 750, 600, 'V01', NULL, 2)"));
}

} // namespace

void GeneratedLibrary::Write(const FolderItem& file) {
    REALSQLDatabase db;
    db.SetDatabaseFile(file);
    db.SetEncryptionKey(DatabaseKey());
    if (!db.CreateDatabaseFile()) {
        std::fprintf(stderr, "Could not make the library: %s\n", qPrintable(db.ErrorMessage()));
        std::exit(EXIT_FAILURE);
    }
    Execute(db, QStringLiteral("BEGIN"));
    for (const QString& statement : SchemaStatements()) {
        Execute(db, statement);
    }
    WriteLookUpTables(db);
    WriteIngredients(db);
    WriteDrinks(db);
    WriteDrinklist(db);
    Execute(db, QStringLiteral("COMMIT"));
}

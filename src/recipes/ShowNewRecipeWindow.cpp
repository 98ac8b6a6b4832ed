#include "recipes/NewRecipe.h"
#include "shell/App.h"
#include "shell/WindowPlacement.h"
#include "store/Succeeded.h"

namespace {

struct GridColumn {
    const char* heading;
    ColumnType type;
    const char* maxWidth;
};

constexpr GridColumn gridColumns[] = {
    {" ", ColumnType::Plain, nullptr},           {"Ingredient Name", ColumnType::Editable, "100"},
    {"Quantity", ColumnType::Editable, "5"},     {"Unit", ColumnType::Editable, "10"},
    {"Preparation", ColumnType::Editable, "30"},
};

// A name table of the library, and where its rows go.
struct NameTable {
    const char* select;
    const char* nameColumn;
    const char* idColumn;
    const char* failure;
};

constexpr NameTable drinkTypes = {"SELECT * FROM DrinkTypes ORDER BY DrinkTypeName", "DrinkTypeName", "DrinkTypeID",
                                  "Could not query the database for drink types:  "};
constexpr NameTable glassTypes = {"SELECT * FROM GlassTypes ORDER BY GlassTypeName", "GlassTypeName", "GlassTypeID",
                                  "Could not query the database for glass types:  "};
constexpr NameTable units = {"SELECT * FROM UnitsOfMeasure ORDER BY UofM", "UofM", "UofMID",
                             "Could not query the database for units of measure:  "};
constexpr NameTable ingredients = {"SELECT * FROM Ingredients ORDER BY IngredientName", "IngredientName",
                                   "IngredientID", "Could not query the database for ingredient names:  "};

// The sixth column is part of the grid and holds nothing.
void PrepareGrid(Listbox& grid) {
    grid.SetColumnCount(6);
    grid.SetColumnWidths(QStringLiteral("5%,45%,15%,10%,25%"));
    int column = 0;
    for (const GridColumn& row : gridColumns) {
        grid.SetHeading(column, QString::fromLatin1(row.heading));
        grid.SetColumnType(column, row.type);
        if (row.maxWidth != nullptr) {
            grid.SetMaxWidthExpression(column, QString::fromLatin1(row.maxWidth));
        }
        ++column;
    }
}

// False: the user was told.
bool SelectNames(REALSQLDatabase& db, const NameTable& table, RecordSet& names) {
    names = db.SQLSelect(QString::fromLatin1(table.select));
    return Succeeded(db, QString::fromLatin1(table.failure));
}

// The blank first row can be chosen too: a drink needs no type and no glass. Rows are only added, also to those that a
// window that is open already shows.
bool LoadBox(REALSQLDatabase& db, const NameTable& table, ComboBox& box) {
    RecordSet names;
    if (!SelectNames(db, table, names)) {
        return false;
    }
    box.AddRow(QString());
    box.SetRowTag(0, 0);
    for (; !names.Eof(); names.MoveNext()) {
        box.AddRow(names.Field(table.nameColumn).StringValue());
        box.SetRowTag(box.ListCount() - 1, names.Field(table.idColumn).IntegerValue());
    }
    return true;
}

bool LoadNames(REALSQLDatabase& db, const NameTable& table, QStringList& list) {
    RecordSet names;
    if (!SelectNames(db, table, names)) {
        return false;
    }
    QStringList loaded = {QString()};
    for (; !names.Eof(); names.MoveNext()) {
        loaded.append(names.Field(table.nameColumn).StringValue());
    }
    list = loaded;
    return true;
}

} // namespace

// The window is on the screen before anything is loaded, and stays there, as far as it is filled, when a query fails.
void App::ShowNewRecipeWindow() {
    NewRecipe& window = NewRecipe::Instance();
    PlaceUnderMainWindow(window);
    window.Show();
    window.DrinkName.SetFocus();

    REALSQLDatabase db;
    if (!GetDatabase(db)) {
        return;
    }
    PrepareGrid(window.Recipe);
    if (LoadBox(db, drinkTypes, window.DrinkType) && LoadBox(db, glassTypes, window.Glass) &&
        LoadNames(db, units, window.UofMs)) {
        static_cast<void>(LoadNames(db, ingredients, window.IngredientNames));
    }
}

// NOLINTNEXTLINE(bugprone-reserved-identifier): the names of the handlers, see App.h
bool App::_File_NewDrink_Action() {
    ShowNewRecipeWindow();
    return false;
}

#include "recipes/RecipeRecords.h"

#include "platform/base/Text.h"
#include "recipes/RecipeGrid.h"
#include "store/Succeeded.h"

namespace {

bool InsertIngredient(REALSQLDatabase& db, const QString& name) {
    DatabaseRecord ingredient;
    ingredient.SetColumn(QStringLiteral("IngredientName"), name);
    ingredient.SetColumn(QStringLiteral("InBar"), QStringLiteral("0"));
    ingredient.SetColumn(QStringLiteral("Empty"), QStringLiteral("0"));
    db.InsertRecord(QStringLiteral("Ingredients"), ingredient);
    db.Commit();
    return Succeeded(db, QStringLiteral("An error occurred inserting the new ingredient:  "));
}

// Whether the ingredient is new is asked of the drink's records and not of its own, by decision. They stood at their
// end when they were closed, so each row of a user's recipe brings an ingredient of its own.
bool FindIngredient(REALSQLDatabase& db, const QString& name, const RecordSet& sameName, int& IngredientID) {
    RecordSet ingredient =
        db.SQLSelect(QStringLiteral("SELECT * FROM Ingredients WHERE IngredientName = '") + name + QStringLiteral("'"));
    if (!Succeeded(db, QStringLiteral("An error occurred checking for ingredient:  "))) {
        return false;
    }
    if (sameName.Eof()) {
        if (!InsertIngredient(db, name)) {
            return false;
        }
        IngredientID = db.LastRowID();
    } else {
        IngredientID = ingredient.Field("IngredientID").IntegerValue();
    }
    ingredient.Close();
    return true;
}

// A unit that the library does not know is dropped without a word: 0.
bool FindUnit(REALSQLDatabase& db, const QString& unit, int& UofMID) {
    UofMID = 0;
    if (unit.isEmpty()) {
        return true;
    }
    RecordSet units =
        db.SQLSelect(QStringLiteral("SELECT * FROM UnitsOfMeasure WHERE UofM LIKE '") + unit + QStringLiteral("'"));
    if (!Succeeded(db, QStringLiteral("An error occurred while attempting to lookup the unit of measure:  "))) {
        return false;
    }
    if (!units.Eof()) {
        UofMID = units.Field("UofMID").IntegerValue();
    }
    units.Close();
    return true;
}

} // namespace

bool InsertDrink(REALSQLDatabase& db, const NewRecipe& window, const QString& name, const QStringList& ingredients) {
    DatabaseRecord drink;
    drink.SetColumn(QStringLiteral("DrinkName"), name);
    drink.SetColumn(QStringLiteral("DrinkInstruction"), Trim(window.Instructions.Text()));
    drink.SetColumn(QStringLiteral("DrinkTypeID"), CStr(window.DrinkType.RowTag(window.DrinkType.ListIndex())));
    drink.SetColumn(QStringLiteral("GlassTypeID"), CStr(window.Glass.RowTag(window.Glass.ListIndex())));
    drink.SetColumn(QStringLiteral("UserModified"), QStringLiteral("1"));
    drink.SetColumn(QStringLiteral("IngredientCount"), CStr(window.Recipe.ListCount()));
    drink.SetColumn(QStringLiteral("IngredientList"), ingredients.join(QStringLiteral(", ")));
    db.InsertRecord(QStringLiteral("Drinks"), drink);
    db.Commit();
    return Succeeded(db, QStringLiteral("An error occurred attempting to save the drink record:  "));
}

bool InsertRecipeRow(REALSQLDatabase& db, const Listbox& grid, int row, int DrinkID, const RecordSet& sameName) {
    int IngredientID = 0;
    int UofMID = 0;
    if (!FindIngredient(db, Trim(grid.Cell(row, recipegrid::NameColumn)), sameName, IngredientID) ||
        !FindUnit(db, Trim(grid.Cell(row, recipegrid::UnitColumn)), UofMID)) {
        return false;
    }
    DatabaseRecord step;
    step.SetColumn(QStringLiteral("RecipeStep"), CStr(row + 1));
    step.SetColumn(QStringLiteral("DrinkID"), CStr(DrinkID));
    step.SetColumn(QStringLiteral("IngredientID"), CStr(IngredientID));
    // What is no number, a fraction like 1/2 too, is left out.
    if (const QString quantity = grid.Cell(row, recipegrid::QuantityColumn); IsNumeric(quantity)) {
        step.SetColumn(QStringLiteral("IngredientQuantity"), quantity);
    }
    if (UofMID != 0) {
        step.SetColumn(QStringLiteral("UofMID"), CStr(UofMID));
    }
    step.SetColumn(QStringLiteral("Required"), QStringLiteral("1"));
    if (const QString preparation = grid.Cell(row, recipegrid::PreparationColumn); !preparation.isEmpty()) {
        step.SetColumn(QStringLiteral("Preparation"), preparation);
    }
    db.InsertRecord(QStringLiteral("DrinkRecipes"), step);
    db.Commit();
    return Succeeded(db, QStringLiteral("An error occurred while attempting to insert a recipe record:  "));
}

#include "bar/Ingredients.h"
#include "shell/App.h"
#include "shell/WindowPlacement.h"
#include "store/Succeeded.h"

namespace {

constexpr auto selectGeneric = "SELECT IngredientID, IngredientName, Empty, InBar FROM Ingredients "
                               "WHERE IngredientParentID IS NULL ORDER BY IngredientName";
constexpr auto selectSpecific =
    "SELECT IngredientID, IngredientParentID, IngredientName, Empty, InBar FROM Ingredients "
    "WHERE IngredientParentID IS NOT NULL ORDER BY IngredientName DESC";

void PrepareList(Listbox& list) {
    list.DeleteAllRows();
    list.SetTextSize(12);
    list.SetColumnCount(2);
    list.SetColumnWidths(QStringLiteral("40,*"));
    list.SetHeading(0, QStringLiteral(" "));
    list.SetHeading(1, QStringLiteral("Ingredient Name"));
    list.SetColumnType(0, ColumnType::CheckBox);
}

void WriteRow(Listbox& list, int row, const RecordSet& rs, const QString& indent) {
    list.SetCellTag(row, 0, rs.Field("IngredientID").IntegerValue());
    if (rs.Field("InBar").BooleanValue()) {
        list.SetCellCheck(row, 0, true);
    }
    list.SetCell(row, 1, indent + rs.Field("IngredientName").StringValue());
}

// The row of the parent, or -1: an ingredient whose parent is not listed is not listed either.
int ParentRow(const Listbox& list, int parent) {
    for (int row = 0; row < list.ListCount(); ++row) {
        if (list.CellTag(row, 0) == parent) {
            return row;
        }
    }
    return -1;
}

// False: the user was told.
bool SelectIngredients(REALSQLDatabase& db, const char* statement, RecordSet& rs) {
    rs = db.SQLSelect(QString::fromLatin1(statement));
    return Succeeded(db, QStringLiteral("Could not query the database for ingredients:  "));
}

bool AddGenericIngredients(REALSQLDatabase& db, Listbox& list) {
    RecordSet rs;
    if (!SelectIngredients(db, selectGeneric, rs)) {
        return false;
    }
    for (; !rs.Eof(); rs.MoveNext()) {
        list.AddRow(QString());
        WriteRow(list, list.LastIndex(), rs, QString());
    }
    return true;
}

// Each goes directly below its parent and pushes down the ones before it, so they come last name first.
void InsertSpecificIngredients(REALSQLDatabase& db, Listbox& list) {
    RecordSet rs;
    if (!SelectIngredients(db, selectSpecific, rs)) {
        return;
    }
    for (; !rs.Eof(); rs.MoveNext()) {
        const int parent = ParentRow(list, rs.Field("IngredientParentID").IntegerValue());
        if (parent >= 0) {
            list.InsertRow(parent + 1, QString(), 0);
            WriteRow(list, parent + 1, rs, QStringLiteral("    "));
        }
    }
}

} // namespace

// The window shows before it is filled. One that is open already is filled again, and forgets what was not saved.
void App::ShowIngredientsWindow() {
    Ingredients& window = Ingredients::Instance();
    PlaceUnderMainWindow(window);
    window.Show();

    REALSQLDatabase db;
    if (!GetDatabase(db)) {
        return;
    }
    PrepareList(window.IngredientList);
    if (AddGenericIngredients(db, window.IngredientList)) {
        InsertSpecificIngredients(db, window.IngredientList);
    }
    db.Close();
}

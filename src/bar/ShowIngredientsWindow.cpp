#include "bar/Ingredients.h"
#include "platform/ui/MsgBox.h"
#include "shell/App.h"
#include "shell/WindowPlacement.h"

namespace {

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

RecordSet SelectIngredients(REALSQLDatabase& db, const QString& statement) {
    RecordSet rs = db.SQLSelect(statement);
    if (db.Error()) {
        MsgBox(QStringLiteral("Could not query the database for ingredients:  ") + db.ErrorMessage());
    }
    return rs;
}

bool AddGenericIngredients(REALSQLDatabase& db, Listbox& list) {
    RecordSet rs = SelectIngredients(db, QStringLiteral("SELECT IngredientID, IngredientName, Empty, InBar "
                                                        "FROM Ingredients WHERE IngredientParentID IS NULL "
                                                        "ORDER BY IngredientName"));
    if (rs.IsNil()) {
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
    RecordSet rs = SelectIngredients(db, QStringLiteral("SELECT IngredientID, IngredientParentID, IngredientName, "
                                                        "Empty, InBar FROM Ingredients "
                                                        "WHERE IngredientParentID IS NOT NULL "
                                                        "ORDER BY IngredientName DESC"));
    if (rs.IsNil()) {
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

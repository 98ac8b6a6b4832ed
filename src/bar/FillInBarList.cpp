#include "platform/ui/Graphics.h"
#include "platform/ui/Picture.h"
#include "shell/App.h"
#include "shell/MainWindow.h"
#include "store/Succeeded.h"

bool App::FillInBarList() {
    REALSQLDatabase db;
    if (!GetDatabase(db)) {
        return false;
    }
    RecordSet rs = db.SQLSelect(QStringLiteral(
        "SELECT IngredientID, IngredientName, Empty FROM Ingredients WHERE InBar = 1 ORDER BY IngredientName"));
    if (!Succeeded(db, QStringLiteral("Could not query the database for ingredients:  "))) {
        return false;
    }

    Listbox& list = MainWindow::Instance().InBarList;
    list.SetListIndex(-1);
    list.DeleteAllRows();
    list.SetDefaultRowHeight(14);
    list.SetTextSize(10);
    list.SetColumnCount(2);
    list.SetColumnWidths(QStringLiteral("19%,*"));
    for (; !rs.Eof(); rs.MoveNext()) {
        list.AddRow(QString());
        const int row = list.LastIndex();
        list.SetCellTag(row, 0, rs.Field("IngredientID").IntegerValue());
        list.SetCell(row, 1, rs.Field("IngredientName").StringValue());
        list.SetRowPicture(row, NamedPicture(rs.Field("Empty").BooleanValue() ? QStringLiteral("BarEmpty")
                                                                              : QStringLiteral("BarFull")));
    }
    list.SetScrollPosition(0);
    return true;
}

// The list has no visible selection: every row, and the space below the last, has the ground of the side panel.
bool MainWindow::InBarList_CellBackgroundPaint(Graphics& g, int /*row*/, int /*column*/) {
    g.SetForeColor(Color{0xD0D6E2});
    g.FillRect(0, 0, g.Width(), g.Height());
    return true;
}

bool MainWindow::InBarList_CellTextPaint(Graphics& g, int row, int /*column*/, int /*x*/, int /*y*/) {
    const bool empty = InBarList.RowPicture(row) == NamedPicture(QStringLiteral("BarEmpty"));
    g.SetForeColor(empty ? RGB(175, 0, 0) : RGB(40, 40, 40));
    return false;
}

#include "platform/base/Text.h"
#include "platform/ui/Picture.h"
#include "shell/App.h"
#include "shell/MainWindow.h"
#include "store/Succeeded.h"

namespace {

void PrepareList(Listbox& list) {
    list.SetListIndex(-1);
    list.DeleteAllRows();
    list.SetDefaultRowHeight(21);
    list.SetTextSize(11);
    list.SetTextFont(QStringLiteral("Arial"));
    list.SetColumnCount(3);
    list.SetColumnWidths(QStringLiteral("20%,*,22%"));
}

// Writes the number of rows that the select finds into the count cell of the list's last row. False: the user was
// told.
bool ShowCount(REALSQLDatabase& db, Listbox& list, const QString& select) {
    const RecordSet rows = db.SQLSelect(select);
    if (!Succeeded(db, QStringLiteral("Could not query the database for a drink count:  "))) {
        return false;
    }
    list.SetCell(list.LastIndex(), 2, CStr(rows.RecordCount()));
    return true;
}

} // namespace

bool App::FillDrinkListsList() {
    REALSQLDatabase db;
    if (!GetDatabase(db)) {
        return false;
    }
    RecordSet rs = db.SQLSelect(QStringLiteral("SELECT * FROM DrinkLists ORDER BY DrinkListName"));
    if (!Succeeded(db, QStringLiteral("Could not query the database for drink lists:  "))) {
        return false;
    }

    Listbox& list = MainWindow::Instance().DrinkListsList;
    PrepareList(list);
    list.AddRow(QString());
    list.SetCellTag(0, 0, 0);
    list.SetCell(0, 1, QStringLiteral("All Drinks"));
    list.SetColumnAlignment(2, TextAlignment::Centre);
    if (!ShowCount(db, list, QStringLiteral("SELECT DrinkID FROM Drinks"))) {
        return false;
    }
    list.SetRowPicture(0, NamedPicture(QStringLiteral("Lists_Library")));

    for (; !rs.Eof(); rs.MoveNext()) {
        list.AddRow(QString());
        const int row = list.LastIndex();
        list.SetCellTag(row, 0, rs.Field("DrinkListID").IntegerValue());
        list.SetCell(row, 1, rs.Field("DrinkListName").StringValue());
        if (!ShowCount(db, list,
                       QStringLiteral("SELECT * FROM DrinkListXRef WHERE DrinkListID = ") +
                           rs.Field("DrinkListID").StringValue())) {
            return false;
        }
        list.SetRowPicture(row, NamedPicture(QStringLiteral("Lists_UserList")));
    }
    list.SetScrollPosition(0);
    // This refills the list of drinks, on a connection of its own, while this one is open.
    list.SetListIndex(0);
    return true;
}

#include "browser/DrinkFilter.h"
#include "browser/Rating.h"
#include "platform/base/Text.h"
#include "platform/ui/MsgBox.h"
#include "shell/App.h"
#include "shell/MainWindow.h"

#include <unordered_set>

namespace {

// In a search only the apostrophe is escaped: "%" and "_" stay wildcards for the user.
QString DrinksStatement(const QString& SearchText) {
    const QString base = QStringLiteral(
        "SELECT D.DrinkID, D.DrinkName, D.IngredientList, D.UserRating, T.DrinkTypeName, G.GlassTypeName "
        "FROM Drinks AS D LEFT JOIN DrinkTypes AS T ON (D.DrinkTypeID = T.DrinkTypeID) "
        "LEFT JOIN GlassTypes AS G ON (D.GlassTypeID = G.GlassTypeID) ");
    const QString order = QStringLiteral("ORDER BY D.DrinkName");
    if (SearchText.isEmpty()) {
        return base + order;
    }
    const QString text = ReplaceAll(SearchText, QStringLiteral("'"), QStringLiteral("''"));
    return base + QStringLiteral("WHERE D.DrinkName LIKE '%") + text +
           QStringLiteral("%' OR D.IngredientList LIKE '%") + text + QStringLiteral("%'") + order;
}

// Writes the current record into a new row of the list, in the columns that SetupDrinkList has made.
void AddDrinkRow(const App& app, Listbox& list, const RecordSet& rs) {
    list.AddRow(QString());
    const int row = list.LastIndex();
    list.SetCellTag(row, 0, rs.Field("DrinkID").IntegerValue());

    int column = app.Option_ViewRatings ? 1 : 0;
    list.SetCell(row, column++, rs.Field("DrinkName"));
    list.SetCell(row, column++, rs.Field("IngredientList"));
    if (app.Option_ViewRatings) {
        list.SetRowPicture(row, RatingPicture(rs.Field("UserRating").IntegerValue()));
    }
    if (app.Option_ViewDrinkType) {
        list.SetCell(row, column++, rs.Field("DrinkTypeName"));
    }
    if (app.Option_ViewGlass) {
        list.SetCell(row, column, rs.Field("GlassTypeName"));
    }
}

} // namespace

// The one way to bring the list up to date: it is always rebuilt whole, from the search text, the match box and the
// selected drinklist as they stand on the screen now.
//
// The filter's ids are not written into the statement: a chain of thousands of tests is more than the engine takes,
// and leaving out rows here costs no more than listing them.
bool App::FillDrinkList() {
    ClearDrinkInfo();
    REALSQLDatabase db;
    if (!GetDatabase(db)) {
        return false;
    }
    Listbox& list = MainWindow::Instance().DrinkList;
    const QString SearchText = MainWindow::Instance().SearchBox.Text();
    const DrinkFilter filter = ReadDrinkFilter(db);
    if (filter.UseFilter() && filter.FilterDrinks.empty()) {
        SetupDrinkList();
        return true;
    }

    RecordSet rs = db.SQLSelect(DrinksStatement(SearchText));
    if (db.Error()) {
        MsgBox(QStringLiteral("Could not query the database:  ") + db.ErrorMessage());
        return false;
    }
    db.Close();

    SetupDrinkList();
    const std::unordered_set<int> FilterDrinks(filter.FilterDrinks.begin(), filter.FilterDrinks.end());
    for (; !rs.Eof(); rs.MoveNext()) {
        if (!filter.UseFilter() || FilterDrinks.contains(rs.Field("DrinkID").IntegerValue())) {
            AddDrinkRow(*this, list, rs);
        }
    }
    list.SetScrollPosition(0);
    return true;
}

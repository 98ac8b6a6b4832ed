#include "platform/ui/MenuBar.h"
#include "shell/App.h"
#include "shell/MainWindow.h"

#include <QStringList>

#include <vector>

namespace {

struct DrinkListColumn {
    const char* heading;
    const char* width;
};

// The widths of the last two belong to their places and not to the columns: with both on, the type is wider.
std::vector<DrinkListColumn> ColumnsOf(const App& app) {
    std::vector<DrinkListColumn> columns;
    if (app.Option_ViewRatings) {
        columns.push_back({"Rating", "65"});
    }
    columns.push_back({"Cocktail", "180"});
    columns.push_back({"Ingredients", "*"});
    const bool both = app.Option_ViewDrinkType && app.Option_ViewGlass;
    if (app.Option_ViewDrinkType) {
        columns.push_back({"Type", both ? "90" : "70"});
    }
    if (app.Option_ViewGlass) {
        columns.push_back({"Glass", both ? "70" : "90"});
    }
    return columns;
}

// Turns a column on or off. The caption says what the command will do next time.
void ToggleColumn(App& app, bool App::*option, MenuItem& item, const char* column) {
    app.*option = !(app.*option);
    const QString verb = app.*option ? QStringLiteral("Hide") : QStringLiteral("Show");
    item.SetText(QStringLiteral("%1 %2 Column").arg(verb, QString::fromLatin1(column)));
    // The fill has told the user of any failure.
    static_cast<void>(app.FillDrinkList());
}

} // namespace

void App::SetupDrinkList() {
    Listbox& list = MainWindow::Instance().DrinkList;
    // Deselecting first: what follows the selection must not see rows that are about to go.
    list.SetListIndex(-1);
    list.DeleteAllRows();
    list.SetDefaultRowHeight(20);
    list.SetTextSize(11);

    const std::vector<DrinkListColumn> columns = ColumnsOf(*this);
    list.SetColumnCount(static_cast<int>(columns.size()));
    QStringList widths;
    for (const DrinkListColumn& column : columns) {
        list.SetHeading(static_cast<int>(widths.size()), QString::fromLatin1(column.heading));
        widths.append(QString::fromLatin1(column.width));
    }
    list.SetColumnWidths(widths.join(QLatin1Char(',')));
}

// NOLINTBEGIN(bugprone-reserved-identifier): the names of the handlers, see App.h
bool App::_View_RatingsColumn_Action() {
    ToggleColumn(*this, &App::Option_ViewRatings, View_RatingsColumn(), "Ratings");
    return false;
}

bool App::_View_DrinkTypeColumn_Action() {
    ToggleColumn(*this, &App::Option_ViewDrinkType, View_DrinkTypeColumn(), "Drink Type");
    return false;
}

bool App::_View_GlassColumn_Action() {
    ToggleColumn(*this, &App::Option_ViewGlass, View_GlassColumn(), "Glass");
    return false;
}
// NOLINTEND(bugprone-reserved-identifier)

#include "bar/IngredientRecommendations.h"

#include "platform/base/Text.h"
#include "shell/App.h"
#include "shell/WindowPlacement.h"
#include "store/Succeeded.h"

namespace {

const WindowProperties properties = {
    .name = "IngredientRecommendations",
    .title = QStringLiteral("Ingredient Recommendations"),
    .width = 298,
    .height = 374,
    .kind = WindowKind::Floating,
    .minimizeable = false,
};

// An ingredient that is marked empty is still in the bar. Its general kind or its special ones play no part.
constexpr auto selectMissing =
    R"(SELECT COUNT(R.IngredientID) AS "IngredCount", R.IngredientID, I.IngredientName FROM DrinkRecipes AS R )"
    "INNER JOIN Ingredients AS I ON (R.IngredientID = I.IngredientID) WHERE NOT R.IngredientID IN "
    "( SELECT IngredientID FROM Ingredients WHERE InBar = 1) GROUP BY R.IngredientID ORDER BY IngredCount DESC";

} // namespace

IngredientRecommendations::IngredientRecommendations() : Window(properties) {
    PlaceAll(*this, {
                        {StaticText1, nullptr, {"StaticText1", "", {20, 14, 265, 46}}},
                        {GroupBox1, nullptr, {"GroupBox1", "", {20, 72, 258, 282}}},
                        {IngredientNames, &GroupBox1, {"IngredientNames", "", {31, 81, 236, 265}}},
                    });
    StaticText1.SetLook({.textFont = "Arial", .textSize = 11, .multiLine = true});
    StaticText1.SetText(
        QStringLiteral("Before your next trip to the store, let the Tipplewise Pourbook help you select the items to "
                       "purchase that will give you the most recipes to make."));
    IngredientNames.SetLook({.textFont = "Arial", .textSize = 10, .multiLine = true});
    SetMenuBar(App::Instance().ApplicationMenuBar());
}

void App::ShowIngredientRecommendations() {
    REALSQLDatabase db;
    if (!GetDatabase(db)) {
        return;
    }
    const QString lineEnd = OnMac ? EndOfLine::Macintosh() : EndOfLine::Windows();
    RecordSet rs = db.SQLSelect(QString::fromLatin1(selectMissing));
    if (!Succeeded(db, QStringLiteral("Could not query the database for ingredients:  "))) {
        return;
    }
    QString names;
    for (; !rs.Eof(); rs.MoveNext()) {
        names += rs.Field("I.IngredientName").StringValue() + lineEnd;
    }
    auto& window = IngredientRecommendations::Instance();
    PlaceUnderMainWindow(window);
    window.Show();
    window.IngredientNames.SetText(names);
    rs.Close();
    db.Close();
}

// NOLINTNEXTLINE(bugprone-reserved-identifier): the handler of a menu item, see App.h
bool App::_Ingredients_Recommend_Action() {
    ShowIngredientRecommendations();
    return false;
}

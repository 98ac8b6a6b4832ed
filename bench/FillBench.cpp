#include "BareDatabase.h"
#include "BenchHomes.h"
#include "Benchmarks.h"
#include "Comparison.h"
#include "GeneratedLibrary.h"
#include "shell/App.h"
#include "shell/MainWindow.h"

#include <QCoreApplication>

#include <memory>
#include <vector>

namespace {

constexpr double frame = 1.0 / 60.0;

const QString base = QStringLiteral(
    "SELECT D.DrinkID, D.DrinkName, D.IngredientList, D.UserRating, T.DrinkTypeName, G.GlassTypeName FROM Drinks AS D "
    "LEFT JOIN DrinkTypes AS T ON (D.DrinkTypeID = T.DrinkTypeID) LEFT JOIN GlassTypes AS G ON (D.GlassTypeID = "
    "G.GlassTypeID) ");
const QString order = QStringLiteral("ORDER BY D.DrinkName");
const QString drinklist = QStringLiteral("SELECT * FROM DrinkListXRef WHERE DrinkListID = 1");
const QStringList match = {
    QStringLiteral("SELECT IngredientID FROM Ingredients WHERE InBar = 1 AND Empty = 0"),
    QStringLiteral("SELECT IngredientID, IngredientParentID FROM Ingredients WHERE IngredientParentID IS NOT NULL"),
    QStringLiteral("SELECT D.DrinkID, D.IngredientCount, R.IngredientID FROM Drinks AS D INNER JOIN DrinkRecipes AS R "
                   "ON (D.DrinkID = R.DrinkID) WHERE R.Required != 0 ORDER BY D.DrinkID"),
};

QString SearchStatement(const QString& text) {
    return base + QStringLiteral("WHERE D.DrinkName LIKE '%%1%' OR D.IngredientList LIKE '%%1%'").arg(text) + order;
}

struct FillCase {
    const char* name;
    const char* sentence;
    QString search;
    bool useMatch;
    int drinkListRow;
    QStringList statements;
    int expectedDrinks; // negative: as many as the last statement finds
};

std::vector<FillCase> Cases() {
    return {
        {"fill/all", "all 100,000 drinks", {}, false, 0, {base + order}, GeneratedLibrary::drinks},
        {"fill/search",
         "a search that finds 40% of them, the engine with its own LIKE",
         QStringLiteral("gin"),
         false,
         0,
         {SearchStatement(QStringLiteral("gin"))},
         -1},
        {"fill/match",
         "the match, with all 1,000 ingredients in the bar",
         {},
         true,
         0,
         match + QStringList{base + order},
         GeneratedLibrary::drinks},
        {"fill/drinklist",
         "a drinklist of 50,000",
         {},
         false,
         1,
         {drinklist, base + order},
         GeneratedLibrary::listedDrinks},
        {"fill/both",
         "the match and the drinklist",
         {},
         true,
         1,
         match + QStringList{drinklist, base + order},
         GeneratedLibrary::listedDrinks},
    };
}

void SetControls(const QString& search, bool useMatch, int drinkListRow) {
    App& app = App::Instance();
    MainWindow& window = MainWindow::Instance();
    // The change handlers stay quiet meanwhile, as they do at start-up.
    app.AppLoaded = false;
    static_cast<void>(app.FillDrinkListsList());
    window.DrinkListsList.SetListIndex(drinkListRow);
    window.SearchBox.SetText(search);
    window.MatchIngredients.SetValue(useMatch);
    app.AppLoaded = true;
}

void Fill(benchmark::State& state) {
    if (!App::Instance().FillDrinkList()) {
        state.SkipWithError("the fill failed");
    }
}

// The bare engine starts with an empty page cache, as the program's own connection does.
void FillLargeLibrary(benchmark::State& state, const FillCase& fill) {
    BenchHomes::UseGenerated();
    SetControls(fill.search, fill.useMatch, fill.drinkListRow);
    std::unique_ptr<BareDatabase> bare;
    int found = 0;
    const auto walk = [&] {
        for (const QString& statement : fill.statements) {
            found = bare->Walk(statement);
        }
    };
    const auto open = [&] { bare = std::make_unique<BareDatabase>(BenchHomes::File()); };
    const std::string sentence = std::string("a fill against its bare statements: ") + fill.sentence;
    Compare(state, {[&] { Fill(state); }, {}}, {walk, open}, sentence.c_str());

    const int listed = MainWindow::Instance().DrinkList.ListCount();
    if (listed != (fill.expectedDrinks < 0 ? found : fill.expectedDrinks)) {
        state.SkipWithError("the fill did not list what the statement finds");
    }
    SetControls({}, false, 0);
}

const QString typed = QStringLiteral("margarita");

// Each turn types the word and deletes it; what is measured is the whole way from the key to the painted window.
void TypeAndDelete() {
    EditField& box = MainWindow::Instance().SearchBox;
    for (int length = 1; length <= typed.size(); ++length) {
        box.SetText(typed.left(length));
        QCoreApplication::processEvents();
    }
    for (auto length = typed.size() - 1; length >= 0; --length) {
        box.SetText(typed.left(length));
        QCoreApplication::processEvents();
    }
}

void KeystrokesAgainstStatements(benchmark::State& state) {
    BenchHomes::UseShipped();
    SetControls({}, false, 0);
    const auto walk = [] {
        for (int length = 1; length <= typed.size(); ++length) {
            BareDatabase(BenchHomes::File()).Walk(SearchStatement(typed.left(length)));
        }
        for (auto length = typed.size() - 1; length >= 0; --length) {
            BareDatabase(BenchHomes::File()).Walk(length == 0 ? base + order : SearchStatement(typed.left(length)));
        }
    };
    Compare(state, {TypeAndDelete, {}}, {walk, {}},
            "a keystroke in the search box, connected, filled and painted, against a bare connect and the statement "
            "(shipped library)");
}

void KeystrokesAgainstFrame(benchmark::State& state) {
    BenchHomes::UseShipped();
    SetControls({}, false, 0);
    CompareWithSeconds(state, {TypeAndDelete, {}}, frame * 2 * static_cast<double>(typed.size()),
                       "the same keystroke, against the time of one picture at 60 a second");
}

} // namespace

void RegisterFills() {
    for (const FillCase& fill : Cases()) {
        benchmark::RegisterBenchmark(fill.name, FillLargeLibrary, fill)->UseManualTime()->Iterations(7);
    }
}

void RegisterKeystrokes() {
    benchmark::RegisterBenchmark("keystroke/statement", KeystrokesAgainstStatements)->UseManualTime()->Iterations(30);
    benchmark::RegisterBenchmark("keystroke/frame", KeystrokesAgainstFrame)->UseManualTime()->Iterations(30);
}

#include "browser/GlassPicture.h"
#include "browser/QuantityText.h"
#include "platform/base/Text.h"
#include "shell/App.h"
#include "shell/MainWindow.h"
#include "store/Succeeded.h"

#include <QStringList>

namespace {

// A recipe of up to this many rows stands double-spaced and fills its box.
constexpr int mostDoubleSpacedRows = 6;

struct RecipeColumns {
    QString quantities;
    QString ingredients;
};

void SetPanelFrameVisible(MainWindow& window, bool visible) {
    Control* const panelFrame[] = {
        &window.DrinkBanner,   &window.DrinkRecipeLabel,       &window.DrinkRecipeBox,       &window.DrinkGlassLabel,
        &window.DrinkGlassBox, &window.DrinkInstructionsLabel, &window.DrinkInstructionsBox,
    };
    for (Control* control : panelFrame) {
        control->SetVisible(visible);
    }
}

RecordSet SelectDrink(REALSQLDatabase& db, int DrinkID) {
    return db.SQLSelect(
        QStringLiteral("SELECT D.DrinkName, D.DrinkInstruction, D.IngredientCount, D.UserRating, T.DrinkTypeName, "
                       "G.GlassTypeName FROM Drinks AS D LEFT JOIN DrinkTypes AS T ON (D.DrinkTypeID = "
                       "T.DrinkTypeID) LEFT JOIN GlassTypes AS G ON (D.GlassTypeID = G.GlassTypeID) WHERE D.DrinkID "
                       "= ") +
        CStr(DrinkID));
}

RecordSet SelectRecipe(REALSQLDatabase& db, int DrinkID) {
    return db.SQLSelect(
        QStringLiteral("SELECT R.IngredientQuantity, R.RecipeStep, R.Preparation, I.IngredientName, U.UofM FROM "
                       "DrinkRecipes AS R INNER JOIN Ingredients AS I ON (R.IngredientID = I.IngredientID) LEFT JOIN "
                       "UnitsOfMeasure AS U ON (R.UofMID = U.UofMID) WHERE R.DrinkID = ") +
        CStr(DrinkID) + QStringLiteral(" ORDER BY R.RecipeStep"));
}

bool SelectSucceeded(const REALSQLDatabase& db) {
    return Succeeded(db, QStringLiteral("Could not query the database:  "));
}

// The two texts have a line for each row of the recipe, so that side by side they read quantity, dash, name.
RecipeColumns RecipeTexts(RecordSet recipe, const QString& LineEnd) {
    QStringList QuantityTexts;
    QStringList IngredientNames;
    for (; !recipe.Eof(); recipe.MoveNext()) {
        QuantityTexts.append(
            QuantityText(recipe.Field("IngredientQuantity").StringValue(), recipe.Field("UofM").StringValue()));
        IngredientNames.append(recipe.Field("IngredientName").StringValue());
    }

    const QString lineEnds = IngredientNames.size() > mostDoubleSpacedRows ? LineEnd : LineEnd + LineEnd;
    RecipeColumns columns;
    for (int row = 0; row < IngredientNames.size(); ++row) {
        columns.quantities += QuantityTexts[row] + QStringLiteral(" -") + lineEnds;
        columns.ingredients += IngredientNames[row] + lineEnds;
    }
    return columns;
}

void ShowDrinkType(EditField& field, const QString& typeName) {
    const QString label = QStringLiteral("Drink Type:  ");
    field.SetText(label + typeName);
    StyledText styled = field.StyledText();
    styled.SetSize(0, Len(field.Text()), 10);
    styled.SetBold(0, Len(Trim(label)), true);
    // The field itself is bold; only its label is meant to be.
    styled.SetBold(Len(label), Len(typeName), false);
    styled.SetTextColor(Len(label), Len(typeName), Color{0x666666});
}

} // namespace

void App::ClearDrinkInfo() {
    MainWindow& window = MainWindow::Instance();
    window.GlassImage.SetBackdrop(nullptr);
    EditField* const fields[] = {&window.DrinkName, &window.DrinkType, &window.DrinkInstructions,
                                 &window.DrinkQuantities, &window.DrinkIngredients};
    for (EditField* field : fields) {
        field->SetText(QString());
    }
    SetPanelFrameVisible(window, false);
}

// Both selects come before the first control is touched, so that a failure leaves the panel as it was.
void App::ShowDrinkInfo(int DrinkID) {
    REALSQLDatabase db;
    if (!GetDatabase(db)) {
        return;
    }
    const RecordSet drink = SelectDrink(db, DrinkID);
    if (!SelectSucceeded(db)) {
        return;
    }
    const RecordSet recipe = SelectRecipe(db, DrinkID);
    if (!SelectSucceeded(db)) {
        return;
    }

    MainWindow& window = MainWindow::Instance();
    SetPanelFrameVisible(window, true);
    window.DrinkName.SetText(drink.Field("DrinkName").StringValue());
    ShowDrinkType(window.DrinkType, drink.Field("DrinkTypeName").StringValue());
    window.DrinkInstructions.SetText(drink.Field("DrinkInstruction").StringValue());

    const RecipeColumns columns = RecipeTexts(recipe, OnMac ? EndOfLine::Macintosh() : EndOfLine::Windows());
    window.DrinkQuantities.SetText(columns.quantities);
    window.DrinkIngredients.SetText(columns.ingredients);

    // A glass without a picture leaves the one that shows.
    if (const Picture* glass = GlassPicture(drink.Field("GlassTypeName").StringValue()); glass != nullptr) {
        window.GlassImage.SetBackdrop(glass);
    }
    db.Close();
}

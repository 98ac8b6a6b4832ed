#include "bar/Ingredients.h"

#include "platform/ui/Graphics.h"
#include "shell/App.h"

namespace {

constexpr Color stripe = Color{0xF1F5FA};

const WindowProperties properties = {
    .name = "Ingredients",
    .title = QStringLiteral("Ingredients In Your Bar"),
    .width = 352,
    .height = 440,
    .kind = WindowKind::Floating,
    .minimizeable = false,
};

} // namespace

Ingredients::Ingredients() : Window(properties) {
    PlaceAll(*this, {
                        {Save, nullptr, {"Save", "", {260, 410, 80, 20}}},
                        {Cancel, nullptr, {"Cancel", "", {168, 410, 80, 20}}},
                        {StaticText1, nullptr, {"StaticText1", "", {12, 14, 276, 13}}},
                        {IngredientList, nullptr, {"IngredientList", "All ingredients", {12, 39, 328, 365}}},
                    });
    Save.SetCaption(QStringLiteral("Save"));
    Cancel.SetCaption(QStringLiteral("Cancel"));
    StaticText1.SetLook({.textSize = 10});
    StaticText1.SetText(QStringLiteral("Select the ingredients in your home from the list below."));
    IngredientList.SetLook({.hasHeading = true, .useFocusRing = true});
    IngredientList.SetTextSize(12);
    IngredientList.SetDefaultRowHeight(0);

    Save.Action = [this] { Save_Action(); };
    Cancel.Action = [this] { Cancel_Action(); };
    IngredientList.CellBackgroundPaint = [this](Graphics& g, int row, int column) {
        return IngredientList_CellBackgroundPaint(g, row, column);
    };
    SetMenuBar(App::Instance().ApplicationMenuBar());
    SetTabOrder({&IngredientList, &Cancel, &Save});
    // Otherwise the keys would start at Save, and the space bar would save instead of ticking.
    IngredientList.SetFocus();
}

void Ingredients::Save_Action() {
    App::Instance().SaveIngredientsWindow();
}

void Ingredients::Cancel_Action() {
    Close();
}

bool Ingredients::IngredientList_CellBackgroundPaint(Graphics& g, int row, int /*column*/) {
    if (row % 2 == 1) {
        g.SetForeColor(stripe);
        g.FillRect(0, 0, g.Width(), g.Height());
    }
    return false;
}

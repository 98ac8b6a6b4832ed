#include "recipes/NewRecipe.h"

// Where the controls of the recipe window stand and how they look. The rows stand in the order in which the tab key
// visits the controls: a recipe is written from top to bottom, and then saved.

void NewRecipe::PlaceControls() {
    PlaceAll(*this,
             {
                 {StaticText1, nullptr, {"StaticText1", "", {39, 16, 54, 20}}},
                 {DrinkName, nullptr, {"DrinkName", "Name of the drink", {105, 14, 382, 22}}},
                 {StaticText2, nullptr, {"StaticText2", "", {11, 46, 82, 20}}},
                 {Instructions, nullptr, {"Instructions", "Instructions", {105, 45, 382, 52}}},
                 {StaticText3, nullptr, {"StaticText3", "", {17, 106, 76, 20}}},
                 {DrinkType, nullptr, {"DrinkType", "Drink type", {105, 105, 163, 20}}},
                 {StaticText4, nullptr, {"StaticText4", "", {292, 105, 41, 20}}},
                 {Glass, nullptr, {"Glass", "Glass", {345, 105, 142, 20}}},
                 {Recipe, nullptr, {"Recipe", "Ingredients of the recipe", {17, 157, 470, 146}}},
                 {AddIngredient, nullptr, {"AddIngredient", "Add an ingredient row", {17, 304, 20, 16}}},
                 {RemoveIngredient, nullptr, {"RemoveIngredient", "Remove the ingredient row", {38, 304, 20, 16}}},
                 {AddRecipe, nullptr, {"AddRecipe", "", {375, 315, 112, 20}}},
                 {Cancel, nullptr, {"Cancel", "", {280, 315, 83, 20}}},
             });
}

void NewRecipe::DressControls() {
    const std::pair<StaticText&, const char*> labels[] = {
        {StaticText1, "Name"},
        {StaticText2, "Instructions"},
        {StaticText3, "Drink Type"},
        {StaticText4, "Glass"},
    };
    StaticTextLook labelLook;
    labelLook.alignment = TextAlignment::Right;
    for (const auto& [label, text] : labels) {
        label.SetLook(labelLook);
        label.SetText(QString::fromLatin1(text));
    }

    EditFieldLook fieldLook;
    fieldLook.border = true;
    DrinkName.SetLook(fieldLook);
    fieldLook.verticalScrollBar = true;
    Instructions.SetLook(fieldLook);

    ListboxLook gridLook;
    gridLook.hasHeading = true;
    gridLook.border = true;
    gridLook.autoHideScrollbars = true;
    gridLook.horizontalLines = GridLines::ThinDotted;
    gridLook.verticalLines = GridLines::ThinDotted;
    Recipe.SetLook(gridLook);

    AddRecipe.SetCaption(QStringLiteral("Add Recipe"));
    Cancel.SetCaption(QStringLiteral("Cancel"));
    AddIngredient.SetCaption(QStringLiteral("+"));
    RemoveIngredient.SetCaption(QStringLiteral("-"));
}

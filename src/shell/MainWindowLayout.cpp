#include "platform/ui/Picture.h"
#include "shell/MainWindow.h"

// Where the controls of the main window stand and how they look. Places are those of a window of 750 x 550; the locks
// say how a control follows its parent from there. The rows stand in creation order: later ones lie above.

namespace {

constexpr Locks L = LockLeft;
constexpr Locks T = LockTop;
constexpr Locks R = LockRight;
constexpr Locks B = LockBottom;

struct DressedField {
    EditField& field;
    const char* text = "";
    EditFieldLook look;
};

constexpr Color darkText = Color{0x101010};
constexpr Color greyText = Color{0x666666};
constexpr Color black = Color{0x000000};
constexpr Color white = Color{0xFFFFFF};
constexpr Color bannerGrey = Color{0xEEEEEE};
constexpr Color sidebar = Color{0xD0D6E2};

constexpr ShapeLook sidebarGround = {sidebar, sidebar, 0, 0};
constexpr ShapeLook panelGround = {white, black, 0, 0};
constexpr ShapeLook bannerGround = {bannerGrey, black, 0, 0};
constexpr ShapeLook panelFrame = {white, bannerGrey, 1, 16};

constexpr EditFieldLook Label(Color foreground, Color ground, int size, bool bold, TextAlignment alignment) {
    return {foreground, ground, size, bold, alignment, true, false, true};
}

constexpr EditFieldLook Caption() {
    EditFieldLook look = Label(black, white, 10, true, TextAlignment::Centre);
    look.isCaption = true;
    return look;
}

// The two columns of a recipe do not wrap: a wrapped line would put what follows out of step with the other column.
constexpr EditFieldLook Column(TextAlignment alignment) {
    return {greyText, white, 10, false, alignment, true, false, false};
}

} // namespace

void MainWindow::PlaceControls() {
    PlaceAll(
        *this,
        {
            {Rectangle1, nullptr, {"Rectangle1", "", {0, 51, 225, 474}, T | B}},
            {InBarList, &Rectangle1, {"InBarList", "Ingredients in your bar", {7, 238, 211, 285}, L | T | B}},
            {DrinkListsList, &Rectangle1, {"DrinkListsList", "Drinklists", {7, 81, 211, 118}, LockNone}},
            {DrinkList, nullptr, {"DrinkList", "Drinks", {224, 50, 527, 193}, L | T | R | B}},
            {Separator3, &DrinkList, {"Separator3", "", {750, 51, 1, 192}, T | R | B}},
            {Separator4, &DrinkList, {"Separator4", "", {224, 51, 1, 192}, L | T | B}},
            {Separator1, nullptr, {"Separator1", "", {0, 50, 750, 1}, L | T | R}},
            {MatchIngredients, nullptr, {"MatchIngredients", "", {224, 16, 260, 20}, T}},
            {SideTools, nullptr, {"SideTools", "", {0, 525, 225, 25}, L | B}},
            {DrinkListAdd, &SideTools, {"DrinkListAdd", "Add a drinklist", {0, 525, 34, 25}, B}},
            {IngredAdd, &SideTools, {"IngredAdd", "Choose the ingredients in your bar", {34, 525, 46, 25}, B}},
            {Canvas5, &SideTools, {"Canvas5", "Checkmark: in stock, e: empty", {146, 525, 79, 25}, B}},
            {RandomDrink, nullptr, {"RandomDrink", "", {7, 16, 150, 20}, LockNone}},
            {Canvas6, nullptr, {"Canvas6", "", {562, 13, 182, 26}, R}},
            {SearchBox, &Canvas6, {"SearchBox", "Search drinks", {587, 19, 145, 16}, T | R}},
            {SideDrinklistsLabel, &Rectangle1, {"SideDrinklistsLabel", "Drinklists", {7, 51, 218, 27}, LockNone}},
            {SideIngredLabel, &Rectangle1, {"SideIngredLabel", "In your bar", {7, 204, 218, 30}, LockNone}},
            {Separator5, nullptr, {"Separator5", "", {224, 51, 1, 499}, T | B}},
            {Canvas1, nullptr, {"Canvas1", "", {225, 242, 524, 10}, L | R | B}},

            {Rectangle2, nullptr, {"Rectangle2", "", {225, 252, 524, 298}, L | R | B}},
            {DrinkBanner, &Rectangle2, {"DrinkBanner", "", {225, 260, 524, 29}, L | R}},
            {DrinkName, &DrinkBanner, {"DrinkName", "Drink name", {238, 266, 288, 20}, L | T | R}},
            {DrinkType, &DrinkBanner, {"DrinkType", "Drink type", {530, 268, 203, 17}, T | R}},
            {DrinkRecipeBox, &Rectangle2, {"DrinkRecipeBox", "", {239, 371, 243, 167}, L | R | B}},
            {DrinkGlassBox, &Rectangle2, {"DrinkGlassBox", "", {492, 371, 241, 167}, R | B}},
            {DrinkGlassLabel, &Rectangle2, {"DrinkGlassLabel", "", {504, 365, 42, 14}, R | B}},
            {DrinkQuantities, &DrinkRecipeBox, {"DrinkQuantities", "Quantities", {246, 386, 59, 148}, B}},
            {DrinkIngredients, &DrinkRecipeBox, {"DrinkIngredients", "Ingredients", {310, 386, 170, 148}, L | R | B}},
            {GlassImage, &DrinkGlassBox, {"GlassImage", "Glass", {498, 375, 232, 156}, R | B}},
            {DrinkInstructionsBox, &Rectangle2, {"DrinkInstructionsBox", "", {239, 305, 494, 55}, L | R | B}},
            {DrinkInstructions,
             &DrinkInstructionsBox,
             {"DrinkInstructions", "Instructions", {256, 317, 470, 35}, L | R}},
            {DrinkRecipeLabel, &Rectangle2, {"DrinkRecipeLabel", "", {251, 365, 46, 14}, B}},
            {DrinkInstructionsLabel, &Rectangle2, {"DrinkInstructionsLabel", "", {251, 299, 75, 14}, B}},
        });
}

void MainWindow::DressControls() {
    const std::pair<Shape&, ShapeLook> shapes[] = {
        {Rectangle1, sidebarGround},  {Rectangle2, panelGround},   {DrinkBanner, bannerGround},
        {DrinkRecipeBox, panelFrame}, {DrinkGlassBox, panelFrame}, {DrinkInstructionsBox, panelFrame},
    };
    for (const auto& [shape, look] : shapes) {
        shape.SetLook(look);
    }

    const std::pair<Canvas&, const char*> pictures[] = {
        {SideTools, "SideToolBar"},      {DrinkListAdd, "AddDrinkList"},
        {IngredAdd, "AddIngredients"},   {Canvas5, "Legend"},
        {Canvas6, "SearchBoxBG"},        {SideDrinklistsLabel, "DrinkListsLabel"},
        {SideIngredLabel, "InBarLabel"}, {Canvas1, "SliderBar"},
    };
    for (const auto& [canvas, picture] : pictures) {
        canvas.SetBackdrop(NamedPicture(QString::fromLatin1(picture)));
    }
    SideDrinklistsLabel.SetEnabled(false);
    SideIngredLabel.SetEnabled(false);

    //                                heading focus  selection             drag   hide   sorts  pressed
    const std::pair<Listbox&, ListboxLook> lists[] = {
        {InBarList, {false, false, RowSelection::Single, false, true, false, true}},
        {DrinkListsList, {false, true, RowSelection::Single, false, true, false}},
        {DrinkList, {true, false, RowSelection::Multiple, true, false, true}},
    };
    for (const auto& [list, look] : lists) {
        list.SetLook(look);
    }
    DrinkListsList.SetTextFont(QStringLiteral("Arial"));
    DrinkListsList.SetTextSize(12);

    const DressedField fields[] = {
        {SearchBox, "", {black, white, 0, false, TextAlignment::Left, false, false, false}},
        {DrinkName, "Drink Name", Label(darkText, bannerGrey, 0, true, TextAlignment::Left)},
        {DrinkType, "(Drink Type)", Label(darkText, bannerGrey, 10, true, TextAlignment::Right)},
        {DrinkGlassLabel, "Glass", Caption()},
        {DrinkQuantities, "", Column(TextAlignment::Right)},
        {DrinkIngredients, "", Column(TextAlignment::Left)},
        {DrinkInstructions, "", Label(greyText, white, 10, false, TextAlignment::Left)},
        {DrinkRecipeLabel, "Recipe", Caption()},
        {DrinkInstructionsLabel, "Instructions", Caption()},
    };
    for (const DressedField& row : fields) {
        row.field.SetLook(row.look);
        row.field.SetText(QString::fromLatin1(row.text));
    }

    MatchIngredients.SetCaption(QStringLiteral("Match list of cocktails to ingredients in your bar"));
    MatchIngredients.SetTextSize(10);
    RandomDrink.SetCaption(QStringLiteral("Random Drink Selection"));
    RandomDrink.SetTextSize(11);
}

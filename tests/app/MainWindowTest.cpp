#include "PourbookFixture.h"

#include <QAction>

namespace {

struct Expected {
    Control& control;
    Rect atMinimum;
    Rect larger;
};

void ExpectPlace(const Control& control, const Rect& place) {
    EXPECT_TRUE((Rect{control.Left(), control.Top(), control.Width(), control.Height()} == place))
        << control.Name() << " at " << control.Left() << ", " << control.Top() << ", " << control.Width() << ", "
        << control.Height();
}

} // namespace

class MainWindowTest : public PourbookTest {};

TEST_F(MainWindowTest, ControlsFollowTheWindowAtEverySize) {
    GivenEmptyLibrary();
    Start();
    MainWindow& window = Window();
    const Expected expected[] = {
        {window.Rectangle1, {0, 51, 225, 424}, {0, 51, 225, 624}},
        {window.InBarList, {-2, 233, 227, 243}, {-2, 233, 227, 443}},
        {window.SideTools, {0, 475, 225, 25}, {0, 675, 225, 25}},
        {window.DrinkList, {224, 50, 527, 143}, {224, 50, 777, 343}},
        {window.MatchIngredients, {224, 16, 260, 20}, {224, 16, 260, 20}},
        {window.Canvas6, {562, 13, 182, 26}, {812, 13, 182, 26}},
        {window.Rectangle2, {225, 202, 524, 298}, {225, 402, 774, 298}},
        {window.DrinkBanner, {225, 210, 524, 29}, {225, 410, 774, 29}},
        {window.DrinkName, {238, 216, 288, 20}, {238, 416, 538, 20}},
        {window.DrinkRecipeBox, {239, 321, 243, 167}, {239, 521, 493, 167}},
        {window.DrinkQuantities, {246, 336, 59, 148}, {246, 536, 59, 148}},
        {window.DrinkGlassBox, {492, 321, 241, 167}, {742, 521, 241, 167}},
        {window.GlassImage, {498, 325, 232, 156}, {748, 525, 232, 156}},
    };
    window.SetWidth(1);
    window.SetHeight(1);
    EXPECT_EQ(window.Width(), 750);
    EXPECT_EQ(window.Height(), 500);
    for (const Expected& row : expected) {
        ExpectPlace(row.control, row.atMinimum);
    }
    window.SetWidth(1000);
    window.SetHeight(700);
    for (const Expected& row : expected) {
        ExpectPlace(row.control, row.larger);
    }
}

TEST_F(MainWindowTest, CommandsFollowTheSelection) {
    GivenEmptyLibrary();
    GivenDrink(1, "Americano", QString());
    GivenDrink(2, "Bramble", QString());
    Execute("INSERT INTO DrinkLists VALUES (1, 'Mine')");
    Start();
    MenuBar& menus = Program().ApplicationMenuBar();
    const auto enabled = [&](const char* item) {
        menus.UpdateItems();
        return menus.Item(QString(item)).Enabled();
    };
    EXPECT_FALSE(enabled("File_Print") || enabled("Edit_CopyRecipe"));
    ClickDrink(0, 1, 20);
    ClickDrink(1, 1, 20, Qt::ControlModifier);
    EXPECT_TRUE(enabled("File_Print") && enabled("Edit_CopyRecipe"));
    EXPECT_TRUE(enabled("View_GlassColumn") && enabled("File_Exit"));
    EXPECT_FALSE(enabled("File_DeleteList"));
    EXPECT_FALSE(enabled("EditPaste")) << "no field has the focus";
}

TEST_F(MainWindowTest, AtStartChangesOfTheListsRaiseNoFillOfTheirOwn) {
    GivenEmptyLibrary();
    GivenDrink(1, "Americano", QString());
    Start();
    Program().AppLoaded = false;
    Search("zzz");
    Window().DrinkList.SetListIndex(0);
    EXPECT_EQ(ListedDrinks().size(), 1);
    EXPECT_TRUE(PanelIsBlank());
    Program().AppLoaded = true;
    Search("zzzz");
    EXPECT_TRUE(ListedDrinks().isEmpty());
}

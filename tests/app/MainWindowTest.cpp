#include "PourbookFixture.h"

class MainWindowTest : public PourbookTest {};

TEST_F(MainWindowTest, ControlsFollowTheWindowAtEverySize) {
    GivenEmptyLibrary();
    Start();
    MainWindow& window = Window();
    struct Expected {
        Control& control;
        Rect atMinimum;
        Rect larger;
    };
    const Expected expected[] = {
        {window.InBarList, {-2, 233, 227, 243}, {-2, 233, 227, 443}},
        {window.SideTools, {0, 475, 225, 25}, {0, 675, 225, 25}},
        {window.DrinkList, {224, 50, 527, 143}, {224, 50, 777, 343}},
        {window.Canvas6, {562, 13, 182, 26}, {812, 13, 182, 26}},
        {window.DrinkName, {238, 216, 288, 20}, {238, 416, 538, 20}},
        {window.DrinkQuantities, {246, 336, 59, 148}, {246, 536, 59, 148}},
        {window.GlassImage, {498, 325, 232, 156}, {748, 525, 232, 156}},
    };
    const auto expectPlaces = [&](Rect Expected::*place) {
        for (const Expected& row : expected) {
            const Control& control = row.control;
            const Rect seen = {control.Left(), control.Top(), control.Width(), control.Height()};
            EXPECT_TRUE(seen == row.*place) << control.Name() << " in a window of height " << window.Height();
        }
    };
    window.SetWidth(1);
    window.SetHeight(1);
    EXPECT_EQ(window.Width(), 750);
    EXPECT_EQ(window.Height(), 500);
    expectPlaces(&Expected::atMinimum);
    window.SetWidth(1000);
    window.SetHeight(700);
    expectPlaces(&Expected::larger);
}

TEST_F(MainWindowTest, CommandsFollowTheSelection) {
    GivenEmptyLibrary();
    GivenDrink(1, "Americano");
    Execute("INSERT INTO DrinkLists VALUES (1, 'Mine')");
    Start();
    const auto enabled = [this](const char* item) {
        Program().ApplicationMenuBar().UpdateItems();
        return Program().ApplicationMenuBar().Item(QString(item)).Enabled();
    };
    EXPECT_FALSE(enabled("File_Print") || enabled("Edit_CopyRecipe"));
    ClickDrink(0, 1, 20);
    EXPECT_TRUE(enabled("File_Print") && enabled("Edit_CopyRecipe"));
    EXPECT_TRUE(enabled("View_GlassColumn") && enabled("File_Exit"));
    EXPECT_FALSE(enabled("File_DeleteList"));
    EXPECT_FALSE(enabled("EditPaste")) << "no field has the focus";
}

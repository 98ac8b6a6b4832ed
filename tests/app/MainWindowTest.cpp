#include "PourbookFixture.h"

#include <QRect>

class MainWindowTest : public PourbookTest {};

TEST_F(MainWindowTest, ControlsFollowTheWindowAtEverySize) {
    GivenEmptyLibrary();
    Start();
    MainWindow& window = Window();
    const std::tuple<Control&, QRect, QRect> places[] = {
        // in a window of 750 x 500, and in one of 1000 x 700
        {window.InBarList, {-2, 233, 227, 243}, {-2, 233, 227, 443}},
        {window.SideTools, {0, 475, 225, 25}, {0, 675, 225, 25}},
        {window.DrinkList, {224, 50, 527, 143}, {224, 50, 777, 343}},
        {window.Canvas6, {562, 13, 182, 26}, {812, 13, 182, 26}},
        {window.DrinkName, {238, 216, 288, 20}, {238, 416, 538, 20}},
        {window.DrinkQuantities, {246, 336, 59, 148}, {246, 536, 59, 148}},
        {window.GlassImage, {498, 325, 232, 156}, {748, 525, 232, 156}},
    };
    for (const bool larger : {false, true}) {
        window.SetWidth(larger ? 1000 : 1);
        window.SetHeight(larger ? 700 : 1);
        const QPoint content(0, window.Widget()->height() - window.Height());
        for (const auto& [control, atMinimum, inLarger] : places) {
            const auto* shown = window.Widget()->findChild<QWidget*>(control.Name());
            const QPoint corner = shown->mapTo(window.Widget(), QPoint()) - content;
            EXPECT_EQ(QRect(corner, shown->size()), larger ? inLarger : atMinimum) << control.Name();
            EXPECT_EQ(QPoint(control.Left(), control.Top()), corner) << control.Name();
        }
    }
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

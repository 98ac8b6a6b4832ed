#pragma once

#include "platform/ui/Buttons.h"
#include "platform/ui/Canvas.h"
#include "platform/ui/EditField.h"
#include "platform/ui/Listbox.h"
#include "platform/ui/Shapes.h"
#include "platform/ui/Window.h"

// The program's one permanent window: the user's drinklists above the ingredients in the bar at the left, the list of
// drinks above the recipe panel at the right. Closing it ends the program.
//
// Between two events the window keeps no state of its own: its controls and the database are the state. Where the
// controls stand is in MainWindowLayout.cpp; each handler is defined in the folder of its subsystem.
class MainWindow : public Window {
public:
    MainWindow();

    // Creates the window at the first call.
    static MainWindow& Instance() { return Implicit<MainWindow>(); }

    // Left column and the strip above the lists, in creation order.
    Rectangle Rectangle1;
    Listbox InBarList;
    Listbox DrinkListsList;
    Listbox DrinkList;
    Separator Separator3;
    Separator Separator4;
    Separator Separator1;
    CheckBox MatchIngredients;
    Canvas SideTools;
    Canvas DrinkListAdd;
    Canvas IngredAdd;
    Canvas Canvas5;
    PushButton RandomDrink;
    Canvas Canvas6;
    EditField SearchBox{EditField::Lines::One};
    Canvas SideDrinklistsLabel;
    Canvas SideIngredLabel;
    Separator Separator5;
    Canvas Canvas1;

    // Recipe panel.
    Rectangle Rectangle2;
    Rectangle DrinkBanner;
    EditField DrinkName{EditField::Lines::Many};
    EditField DrinkType{EditField::Lines::Many};
    RoundRectangle DrinkRecipeBox;
    RoundRectangle DrinkGlassBox;
    EditField DrinkGlassLabel{EditField::Lines::Many};
    EditField DrinkQuantities{EditField::Lines::Many};
    EditField DrinkIngredients{EditField::Lines::Many};
    Canvas GlassImage;
    RoundRectangle DrinkInstructionsBox;
    EditField DrinkInstructions{EditField::Lines::Many};
    EditField DrinkRecipeLabel{EditField::Lines::Many};
    EditField DrinkInstructionsLabel{EditField::Lines::Many};

    // The row of DrinkListsList under the pointer during the latest drag; -1 below the last row.
    int DrinkListDragRow = 0;

private:
    void PlaceControls();
    void DressControls();
    void BindEvents();
    void BindDrinkListsEvents();
    void PrepareKeyboard();

    // shell/
    void Event_Close();
    void Event_EnableMenuItems();

    // browser/
    void DrinkList_Change();
    bool DrinkList_CellClick(int row, int column, int x, int y);
    bool DrinkList_KeyDown(const QString& key);
    bool DrinkList_CommandKeyDown(const QString& key);
    bool DrinkList_DragRow(DragItem& drag, int row);
    bool DrinkList_CellBackgroundPaint(Graphics& g, int row, int column);
    bool DrinkList_CellTextPaint(Graphics& g, int row, int column, int x, int y);
    bool DrinkList_CompareRows(int row1, int row2, int column, int& result);
    void SearchBox_TextChange();
    void SearchBox_GotFocus();
    bool SearchBox_KeyDown(const QString& key);
    void MatchIngredients_Action();
    void RandomDrink_Action();

    // bar/
    bool InBarList_CellClick(int row, int column, int x, int y);
    bool InBarList_CellBackgroundPaint(Graphics& g, int row, int column);
    bool InBarList_CellTextPaint(Graphics& g, int row, int column, int x, int y);
    bool IngredAdd_MouseDown(int x, int y);
    void IngredAdd_MouseUp(int x, int y);
    void IngredAdd_MouseExit();

    // drinklists/
    void DrinkListsList_Open();
    void DrinkListsList_Change();
    bool DrinkListsList_MouseDown(int x, int y);
    void DrinkListsList_DoubleClick();
    void DrinkListsList_CellLostFocus(int row);
    bool DrinkListsList_KeyDown(const QString& key);
    bool DrinkListsList_DragOver(int x, int y);
    void DrinkListsList_DropObject();
    void DrinkListsList_LostFocus();
    bool DrinkListsList_CellBackgroundPaint(Graphics& g, int row, int column);
    bool DrinkListsList_CellTextPaint(Graphics& g, int row, int column, int x, int y);
    bool DrinkListAdd_MouseDown();
    void DrinkListAdd_MouseUp();
    void DrinkListAdd_MouseExit();
};

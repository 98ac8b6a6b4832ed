#include "shell/MenuBar1.h"

#include "shell/App.h"
#include "shell/MainWindow.h"

namespace {

using Kind = MenuItemKind;

const std::vector<MenuTitle> menus = {
    {"FileMenu", "&File"},    {"EditMenu", "&Edit"}, {"ViewMenu", "View"}, {"IngredientsMenu", "Ingredients"},
    {"WindowMenu", "Window"}, {"HelpMenu", "Help"},
};

const std::vector<MenuRow> rows = {
    {"FileMenu", "File_NewDrink", Kind::Command, "New Drink Recipe", "Cmd+N"},
    {"FileMenu", "UntitledSeparator0", Kind::Separator, "-", ""},
    {"FileMenu", "File_NewDrinklist", Kind::Command, "New Drinklist", ""},
    {"FileMenu", "File_DeleteList", Kind::Command, "Delete Drinklist", ""},
    {"FileMenu", "UntitledSeparator", Kind::Separator, "-", ""},
    {"FileMenu", "File_Print", Kind::Command, "Print Drink Recipe", "Cmd+P"},
    {"FileMenu", "UntitledSeparator2", Kind::Separator, "-", ""},
    {"FileMenu", "File_Exit", Kind::Quit, "Exit", ""},

    {"EditMenu", "Edit_CopyRecipe", Kind::Command, "&Copy Cocktail Recipe", "Cmd+C"},
    {"EditMenu", "UntitledSeparator1", Kind::Separator, "-", ""},
    {"EditMenu", "Edit_Preferences", Kind::Preferences, "Preferences", ""},
    {"EditMenu", "EditCut", Kind::EditCut, "Cu&t", "Cmd+X"},
    {"EditMenu", "EditCopy", Kind::EditCopy, "&Copy", "Cmd+C"},
    {"EditMenu", "EditPaste", Kind::EditPaste, "&Paste", "Cmd+V"},

    {"ViewMenu", "View_RatingsColumn", Kind::Command, "Show Ratings Column", ""},
    {"ViewMenu", "View_DrinkTypeColumn", Kind::Command, "Show Drink Type Column", ""},
    {"ViewMenu", "View_GlassColumn", Kind::Command, "Show Glass Column", ""},

    {"IngredientsMenu", "Ingredients_AddRemove", Kind::Command, "Ingredients In Your Bar", ""},
    {"IngredientsMenu", "Ingredients_Recommend", Kind::Command, "Recommend Ingredients To Buy", ""},

    {"WindowMenu", "Window_Minimize", Kind::Command, "Minimize", "Cmd+M"},
    {"WindowMenu", "Window_Zoom", Kind::Command, "Zoom", ""},

    {"HelpMenu", "Help_Pourbook", Kind::Command, "Pourbook Help", ""},
    {"HelpMenu", "UntitledSeparator3", Kind::Separator, "-", ""},
    {"HelpMenu", "Help_About", Kind::About, "About Tipplewise Pourbook", ""},
};

} // namespace

MenuBar1::MenuBar1() : MenuBar(menus, rows) {}

MenuItem& App::View_RatingsColumn() const {
    return ApplicationMenuBar().Item(QStringLiteral("View_RatingsColumn"));
}

MenuItem& App::View_DrinkTypeColumn() const {
    return ApplicationMenuBar().Item(QStringLiteral("View_DrinkTypeColumn"));
}

MenuItem& App::View_GlassColumn() const {
    return ApplicationMenuBar().Item(QStringLiteral("View_GlassColumn"));
}

MenuItem& App::Window_Zoom() const {
    return ApplicationMenuBar().Item(QStringLiteral("Window_Zoom"));
}

// NOLINTBEGIN(bugprone-reserved-identifier): the names of the handlers, see App.h
void App::_ApplicationAddMenuHandlers() {
    const auto bind = [this](const char* item, bool (App::*handler)()) {
        AddMenuHandler(QString::fromLatin1(item), [this, handler] { return (this->*handler)(); });
    };
    bind("View_RatingsColumn", &App::_View_RatingsColumn_Action);
    bind("View_DrinkTypeColumn", &App::_View_DrinkTypeColumn_Action);
    bind("View_GlassColumn", &App::_View_GlassColumn_Action);
    bind("File_DeleteList", &App::_File_DeleteList_Action);
    bind("Edit_CopyRecipe", &App::_Edit_CopyRecipe_Action);
    bind("File_NewDrinklist", &App::_File_NewDrinklist_Action);
    bind("File_Print", &App::_File_Print_Action);
    bind("Window_Minimize", &App::_Window_Minimize_Action);
    bind("Window_Zoom", &App::_Window_Zoom_Action);
    bind("Help_Pourbook", &App::_Help_Pourbook_Action);
    bind("Edit_Preferences", &App::_Edit_Preferences_Action);
    bind("Help_About", &App::_Help_About_Action);
    bind("Ingredients_AddRemove", &App::_Ingredients_AddRemove_Action);
    bind("File_DeleteDrink", &App::_File_DeleteDrink_Action);
    bind("File_NewDrink", &App::_File_NewDrink_Action);
    bind("Ingredients_Recommend", &App::_Ingredients_Recommend_Action);
}

// The command stands in the menu and does nothing when chosen, by decision; the fields of the recipe panel can be
// selected and copied.
bool App::_Edit_CopyRecipe_Action() {
    return false;
}

// The same, for printing.
bool App::_File_Print_Action() {
    return false;
}

bool App::_Window_Minimize_Action() {
    MainWindow::Instance().Minimize();
    return false;
}

bool App::_Window_Zoom_Action() {
    MainWindow::Instance().Maximize();
    return false;
}
// NOLINTEND(bugprone-reserved-identifier)

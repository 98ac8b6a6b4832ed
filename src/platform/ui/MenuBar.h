#pragma once

#include <QString>

#include <memory>
#include <vector>

class QMenuBar;
class QWidget;

// What kind of command a menu item is. The platform gives quit and preferences its own standard shortcuts where the
// item has none. The edit kinds act on the text field that has the focus and need no handler.
enum class MenuItemKind { Command, Separator, Quit, Preferences, About, EditCut, EditCopy, EditPaste };

// One row of a menu bar's table.
struct MenuRow {
    const char* menu; // the name of the menu that the item belongs to
    const char* item; // the name that handlers are bound to
    MenuItemKind kind;
    const char* caption;  // "&" stands before the keyboard accelerator
    const char* shortcut; // such as "Cmd+N", or empty; Cmd is the Control key
};

struct MenuTitle {
    const char* menu;
    const char* caption;
};

// One command of a menu bar. It is enabled while it has a handler, or is one that the platform handles, and no
// EnableMenuItems says otherwise.
class MenuItem {
public:
    ~MenuItem();
    MenuItem(const MenuItem&) = delete;
    MenuItem& operator=(const MenuItem&) = delete;

    [[nodiscard]] QString Name() const;
    [[nodiscard]] QString Text() const;
    void SetText(const QString& caption);
    [[nodiscard]] bool Enabled() const;
    void SetEnabled(bool enabled);

private:
    friend class MenuBar;
    struct State;

    explicit MenuItem(std::unique_ptr<State> state);

    std::unique_ptr<State> state_;
};

// The menu bar that the application and its windows share.
//
// Where two items have one shortcut, the shortcut is the first item's, and the other one shows it. A text field that
// has the focus takes the keys of cut, copy and paste before any item.
class MenuBar {
public:
    MenuBar(const std::vector<MenuTitle>& menus, const std::vector<MenuRow>& rows);
    virtual ~MenuBar();
    MenuBar(const MenuBar&) = delete;
    MenuBar& operator=(const MenuBar&) = delete;

    // The item of that name. An unknown name throws KeyNotFoundException.
    [[nodiscard]] MenuItem& Item(const QString& name) const;

    // Enables every item that has a handler, then lets the window in front adjust that. Done before a menu shows and
    // before a shortcut is taken.
    void UpdateItems();

    // For the layer itself: a widget for one window that shows the bar. The caller owns it.
    [[nodiscard]] QMenuBar* MakeWidget();
    // For the layer itself: lets a window without the bar have its shortcuts, and the key that opens its menus.
    void AddShortcutsTo(QWidget& window) const;

private:
    struct State;

    void AddRow(const MenuRow& row);

    std::unique_ptr<State> state_;
};

#include "platform/ui/MenuBar.h"

#include "platform/base/Exceptions.h"
#include "platform/ui/Application.h"
#include "platform/ui/Events.h"
#include "platform/ui/OpenWindows.h"
#include "platform/ui/StandardEdit.h"
#include "platform/ui/Window.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QTimer>
#include <QWindow>

#include <map>
#include <set>

struct MenuItem::State {
    QString name;
    MenuItemKind kind;
    QAction* action;
};

MenuItem::MenuItem(std::unique_ptr<State> state) : state_(std::move(state)) {}

MenuItem::~MenuItem() = default;

QString MenuItem::Name() const {
    return state_->name;
}

QString MenuItem::Text() const {
    return state_->action->text();
}

void MenuItem::SetText(const QString& caption) {
    state_->action->setText(caption);
}

bool MenuItem::Enabled() const {
    return state_->action->isEnabled();
}

void MenuItem::SetEnabled(bool enabled) {
    state_->action->setEnabled(enabled);
}

namespace {

// Sees each key that could be a shortcut before the shortcuts do.
class ShortcutWatcher : public QObject {
public:
    explicit ShortcutWatcher(MenuBar& menuBar) : menuBar_(menuBar) { qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::ShortcutOverride &&
            (static_cast<QKeyEvent*>(event)->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0) {
            menuBar_.UpdateItems();
        }
        return false;
    }

private:
    MenuBar& menuBar_;
};

QKeySequence ShortcutOf(const MenuRow& row) {
    const QString text = QString::fromLatin1(row.shortcut);
    if (!text.isEmpty()) {
        return QKeySequence(QString(text).replace(QLatin1String("Cmd"), QLatin1String("Ctrl")));
    }
    if (row.kind == MenuItemKind::Quit) {
        return QKeySequence(QKeySequence::Quit).isEmpty() ? QKeySequence(QStringLiteral("Ctrl+Q"))
                                                          : QKeySequence(QKeySequence::Quit);
    }
    if (row.kind == MenuItemKind::Preferences) {
        return QKeySequence(QKeySequence::Preferences).isEmpty() ? QKeySequence(QStringLiteral("Ctrl+,"))
                                                                 : QKeySequence(QKeySequence::Preferences);
    }
    return {};
}

bool CanRun(const QString& name, MenuItemKind kind) {
    switch (kind) {
        case MenuItemKind::Quit:
            return true;
        case MenuItemKind::EditCut:
        case MenuItemKind::EditCopy:
        case MenuItemKind::EditPaste:
            return standardedit::CanDo(kind);
        default:
            return Application::Current().MenuHandler(name) != nullptr;
    }
}

// Quitting closes the windows, so that each one's CloseEvent comes, as if the user had closed them.
void CloseAllWindows() {
    while (Window* window = OpenWindows::Any()) {
        window->Close();
    }
}

void RunCommand(const QString& name, MenuItemKind kind) {
    switch (kind) {
        case MenuItemKind::Quit:
            events::Raise(std::function<void()>(CloseAllWindows));
            break;
        case MenuItemKind::EditCut:
        case MenuItemKind::EditCopy:
        case MenuItemKind::EditPaste:
            standardedit::Do(kind);
            break;
        default:
            if (const auto* handler = Application::Current().MenuHandler(name); handler != nullptr) {
                events::Raise(*handler);
            }
    }
}

// A window without the bar brings the one with it to the front; a menu that opens before it is there would be closed.
void OpenFirstMenu() {
    const Window* document = OpenWindows::Document();
    auto* bar = document == nullptr ? nullptr : document->Widget()->findChild<QMenuBar*>();
    if (bar == nullptr) {
        return;
    }
    const auto open = [bar] { bar->setActiveAction(bar->actions().value(0)); };
    if (bar->isActiveWindow()) {
        open();
        return;
    }
    auto* change = new QObject(bar);
    QObject::connect(qApp, &QGuiApplication::focusWindowChanged, change, [change, bar, open](QWindow* focused) {
        // Between the two windows none has the focus.
        if (focused != nullptr) {
            change->deleteLater();
        }
        if (focused == bar->window()->windowHandle()) {
            QTimer::singleShot(0, bar, open);
        }
    });
    bar->window()->activateWindow();
}

// The key that opens the menus on this platform; Qt knows only the letters of the captions.
void AddMenuKeyTo(QWidget& widget) {
    auto* key = new QShortcut(QKeySequence(Qt::Key_F10), &widget);
    QObject::connect(key, &QShortcut::activated, &widget, OpenFirstMenu);
}

} // namespace

struct MenuBar::State {
    std::map<QString, QMenu*> menuByName;
    std::vector<std::unique_ptr<QMenu>> menus;
    std::vector<std::unique_ptr<MenuItem>> items;
    std::set<QString> takenShortcuts;
    std::unique_ptr<ShortcutWatcher> watcher;
};

MenuBar::MenuBar(const std::vector<MenuTitle>& menus, const std::vector<MenuRow>& rows)
    : state_(std::make_unique<State>()) {
    for (const MenuTitle& title : menus) {
        auto& menu = state_->menus.emplace_back(std::make_unique<QMenu>(QString::fromUtf8(title.caption)));
        menu->setObjectName(QString::fromLatin1(title.menu));
        menu->setAccessibleName(QString::fromUtf8(title.caption).remove(QLatin1Char('&')));
        QObject::connect(menu.get(), &QMenu::aboutToShow, menu.get(), [this, shown = menu.get()] {
            UpdateItems();
            // The menu takes the focus as it shows. That ends an edit, whose handler may change what can be done.
            QTimer::singleShot(0, shown, [this] { UpdateItems(); });
        });
        state_->menuByName[QString::fromLatin1(title.menu)] = menu.get();
    }
    for (const MenuRow& row : rows) {
        AddRow(row);
    }
    state_->watcher = std::make_unique<ShortcutWatcher>(*this);
}

MenuBar::~MenuBar() = default;

void MenuBar::AddRow(const MenuRow& row) {
    QMenu* menu = state_->menuByName.at(QString::fromLatin1(row.menu));
    const QString name = QString::fromLatin1(row.item);
    if (row.kind == MenuItemKind::Separator) {
        menu->addSeparator()->setObjectName(name);
        return;
    }
    QAction* action = menu->addAction(QString());
    action->setObjectName(name);
    auto itemState = std::make_unique<MenuItem::State>(MenuItem::State{name, row.kind, action});
    const QKeySequence shortcut = ShortcutOf(row);
    const bool isEdit =
        row.kind == MenuItemKind::EditCut || row.kind == MenuItemKind::EditCopy || row.kind == MenuItemKind::EditPaste;
    // The field with the focus takes the keys of the edit commands itself, and no two actions may share a key:
    // Qt would then run neither. Such a key is only shown: it counts while the menu bar has the focus, which takes
    // none.
    action->setShortcut(shortcut);
    if (isEdit || (!shortcut.isEmpty() && !state_->takenShortcuts.insert(shortcut.toString()).second)) {
        action->setShortcutContext(Qt::WidgetShortcut);
    }
    QObject::connect(action, &QAction::triggered, action, [name, kind = row.kind] { RunCommand(name, kind); });
    auto& item = state_->items.emplace_back(new MenuItem(std::move(itemState)));
    item->SetText(QString::fromUtf8(row.caption));
}

MenuItem& MenuBar::Item(const QString& name) const {
    for (const auto& item : state_->items) {
        if (item->Name() == name) {
            return *item;
        }
    }
    throw KeyNotFoundException(QStringLiteral("There is no menu item %1").arg(name));
}

void MenuBar::UpdateItems() {
    for (const auto& item : state_->items) {
        item->SetEnabled(CanRun(item->Name(), item->state_->kind));
    }
    if (Window* window = OpenWindows::Frontmost(); window != nullptr) {
        events::Raise(window->EnableMenuItems);
    }
}

QMenuBar* MenuBar::MakeWidget() {
    auto* widget = new QMenuBar;
    widget->setAccessibleName(QStringLiteral("Menus"));
    for (const auto& menu : state_->menus) {
        widget->addMenu(menu.get());
    }
    AddMenuKeyTo(*widget);
    return widget;
}

void MenuBar::AddShortcutsTo(QWidget& window) const {
    for (const auto& item : state_->items) {
        window.addAction(item->state_->action);
    }
    AddMenuKeyTo(window);
}

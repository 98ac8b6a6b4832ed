// monkey STEPS SEED: a user without a plan before a real window. What it does with mouse and keys goes through the X
// server. The choices follow from the seed; how far the program has come with one when the next follows does not.
//
// The program is started again and again in this one process. What it leaves behind, windows or memory, is told.
#include "shell/App.h"
#include "shell/MenuBar1.h"
#include "shell/Pictures.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QMenuBar>
#include <QMessageBox>
#include <QPixmapCache>
#include <QTimer>

#include <algorithm>
#include <random>

// The sanitizer's own; their header is not in every package of the compiler.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
extern "C" void __sanitizer_print_stack_trace();

namespace {

constexpr int stepsARun = 500;
constexpr int millisecondsAStep = 4;
// In steps' time. What was done may go nowhere, a key without a window for it say.
constexpr int longestWait = 20;

const QStringList keys = {
    "Tab",    "shift+Tab", "Return",     "Escape",    "Up",        "Down",       "Left",   "Right",  "Home",
    "End",    "Page_Up",   "Page_Down",  "shift+End", "Delete",    "BackSpace",  "space",  "F2",     "F10",
    "plus",   "minus",     "apostrophe", "a",         "g",         "5",          "period", "ctrl+a", "ctrl+c",
    "ctrl+x", "ctrl+v",    "ctrl+n",     "ctrl+p",    "ctrl+Home", "shift+Down", "ctrl+z", "alt+f",  "Menu",
};
const QStringList words = {"gin", "Rum", "1.5", "1/2", "-.e", "x'; DELETE FROM Drinks; --", "%", "_", "<b>", "oz"};
const QStringList clicks = {
    "click 1",
    "click 1",
    "click 1",
    "click --repeat 2 --delay 0 1",
    "click 3",
    "click 4",
    "click 5",
    "keydown ctrl click 1 keyup ctrl",
    "keydown shift click 1 keyup shift",
};

QWidget* MainWidget() {
    const QWidgetList open = QApplication::topLevelWidgets();
    const auto found = std::ranges::find_if(
        open, [](const QWidget* window) { return window->isVisible() && window->findChild<QMenuBar*>() != nullptr; });
    return found == open.end() ? nullptr : *found;
}

QString Move(const QPoint& place) {
    return QString("mousemove -- %1 %2 ").arg(place.x()).arg(place.y());
}

class Monkey : public QObject {
public:
    Monkey(int steps, unsigned seed) : stepsLeft(steps), random_(seed), hands_(popen("xdotool -", "w")) {
        qApp->installEventFilter(this);
        // Letters that the keyboard does not have.
        QGuiApplication::clipboard()->setText("Crème\nÜ😀\t");
        next_.callOnTimeout([this] { Step(); });
        next_.start(millisecondsAStep);
    }
    ~Monkey() override { pclose(hands_); }

    int stepsLeft;
    int inputs = 0; // keys, presses and drops that arrived
    int messages = 0;
    int faults = 0; // messages that no input may lead to

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const QEvent::Type type = event->type();
        const bool toWindow = watched->isWindowType() && (type == QEvent::KeyPress || type == QEvent::MouseButtonPress);
        inputs += toWindow || (type == QEvent::Drop && watched->isWidgetType()) ? 1 : 0;
        const auto* box = qobject_cast<QMessageBox*>(watched);
        if (box == nullptr || type != QEvent::Show) {
            return false;
        }
        ++messages;
        if (box->text().startsWith("Something went wrong") || box->text().startsWith("Could not open database")) {
            ++faults;
            std::printf("fault, with %d steps left: %s\n", stepsLeft, qPrintable(box->text()));
            __sanitizer_print_stack_trace(); // to the handler that failed, whose own frames are gone
        }
        return false;
    }

private:
    void Step() {
        if (stepsLeft <= 0 || stepsLeft % stepsARun == 0) {
            CloseFront();
        } else if (inputs != inputsBefore_ || waited_++ >= longestWait) {
            --stepsLeft;
            Act();
        }
    }

    void Act() {
        QWidget* main = MainWidget();
        // What somebody does who finds the window minimized.
        if (main != nullptr && main->isMinimized()) {
            main->showNormal();
        }
        const int choice = Below(100);
        if (choice < 40) {
            PressAt(SomePlace(), OneOf(clicks));
        } else if (choice < 68) {
            Do(QString("key --delay 0 --repeat %1 %2").arg(1 + Below(3)).arg(OneOf(keys)));
        } else if (choice < 78) {
            Do(QString("type --delay 0 -- \"%1\"").arg(OneOf(words)));
        } else if (choice < 86) {
            OpenMenu();
        } else if (choice < 94) {
            const bool ofDrinks = Below(2) == 0;
            Drag(ofDrinks ? PlaceInList("DrinkList") : SomePlace(),
                 ofDrinks ? PlaceInList("DrinkListsList") : SomePlace());
        } else if (choice < 98 && main != nullptr) {
            main->move(Below(500) - 100, Below(300));
            main->resize(700 + Below(500), 450 + Below(400));
        } else if (QApplication::activeWindow() != main || Below(10) == 0) {
            CloseFront();
        }
    }

    void OpenMenu() {
        const QWidget* main = MainWidget();
        if (main != nullptr && QApplication::activePopupWidget() == nullptr) {
            const auto* bar = main->findChild<QMenuBar*>();
            PressAt(bar->mapToGlobal(bar->actionGeometry(OneOf(bar->actions())).center()), "click 1");
        }
    }

    void Drag(const QPoint& start, const QPoint& end) {
        PressAt(start, "mousedown 1 " + Move(start + QPoint(20, 0)) + "sleep 0.01 " + Move((start + end) / 2) +
                           "sleep 0.01 " + Move(end) + "sleep 0.02 " + Move(end + QPoint(2, 1)) +
                           "sleep 0.02 mouseup 1");
    }

    // What stands before the other windows: a message keeps their buttons from being pressed.
    static QWidget* Front() {
        QWidget* menu = QApplication::activePopupWidget();
        return menu != nullptr ? menu : QApplication::activeModalWidget();
    }

    void CloseFront() {
        QWidget* front = Front();
        if (front == nullptr) {
            front = stepsLeft % stepsARun == 0 ? MainWidget() : QApplication::activeWindow();
        }
        if (front != nullptr) {
            QTimer::singleShot(0, front, [front] { front->close(); });
        }
    }

    // Most of what is done behind a message or a menu goes nowhere.
    QWidget* SomeWindow() {
        if (Front() != nullptr && Below(10) > 0) {
            return Front();
        }
        QWidgetList open = QApplication::topLevelWidgets();
        open.removeIf([](const QWidget* window) { return !window->isVisible() || window->isMinimized(); });
        return open.isEmpty() ? nullptr : OneOf(open);
    }

    QPoint SomePlace() {
        const QWidget* window = SomeWindow();
        if (window == nullptr) {
            return {};
        }
        QWidgetList widgets = window->findChildren<QWidget*>();
        widgets.removeIf([](const QWidget* widget) { return !widget->isVisible(); });
        return PlaceIn(widgets.isEmpty() ? window : OneOf(widgets));
    }

    QPoint PlaceInList(const char* name) {
        const auto* main = MainWidget();
        return main == nullptr ? QPoint() : PlaceIn(main->findChild<QAbstractItemView*>(name)->viewport());
    }

    QPoint PlaceIn(const QWidget* widget) {
        return widget->mapToGlobal(QPoint(Below(widget->width()), Below(widget->height())));
    }

    int Below(int bound) { return std::uniform_int_distribution<int>(0, std::max(bound, 1) - 1)(random_); }

    template <class List>
    typename List::value_type OneOf(const List& list) {
        return list[Below(static_cast<int>(list.size()))];
    }

    // A press beside the windows would reach the desktop, which has a menu of its own.
    void PressAt(const QPoint& place, const QString& commands) {
        if (QApplication::topLevelAt(place) != nullptr) {
            Do(Move(place) + commands);
        }
    }

    void Do(const QString& commands) {
        inputsBefore_ = inputs;
        waited_ = 0;
        std::fprintf(hands_, "%s\n", qPrintable(commands));
        std::fflush(hands_);
    }

    std::mt19937 random_;
    QTimer next_;
    std::FILE* hands_;
    int inputsBefore_ = -1;
    int waited_ = 0;
};

void RunProgram(Runtime& runtime) {
    App app;
    MenuBar1 menuBar;
    app.SetMenuBar(menuBar);
    app._ApplicationAddMenuHandlers();
    runtime.Run(app);
}

} // namespace

int main(int argc, char** argv) {
    Runtime runtime(argc, argv);
    PreparePictures();
    const QStringList arguments = QApplication::arguments();
    Monkey monkey(arguments.value(1).toInt(), arguments.value(2).toUInt());

    std::ptrdiff_t widgets = 0;
    while (monkey.stepsLeft > 0) {
        --monkey.stepsLeft; // off the number at which the run before ended
        RunProgram(runtime);
        // Qt keeps one that stands for the desktop.
        widgets = std::ranges::count_if(QApplication::allWidgets(),
                                        [](const QWidget* widget) { return widget->windowType() != Qt::Desktop; });
        QPixmapCache::clear();
        std::printf("%6d steps left, %5d inputs, %4d messages, %d faults, %td widgets and %zu KB in use\n",
                    monkey.stepsLeft, monkey.inputs, monkey.messages, monkey.faults, widgets,
                    __sanitizer_get_current_allocated_bytes() / 1024);
        std::fflush(stdout);
    }
    return monkey.faults == 0 && widgets == 0 ? 0 : 1;
}

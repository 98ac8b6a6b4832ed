#include "KillInWrite.h"
#include "PourbookFixture.h"
#include "bar/Ingredients.h"
#include "platform/ui/Picture.h"
#include "recipes/NewRecipe.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <algorithm>
#include <ctime>
#include <random>
#include <utility>

namespace {

// The program at work: random operations, done as a person does them, and told on standard output, a JSON object a
// line: what begins, every message that is shown, and that the handler of the operation has returned. A line is out
// before the next deed begins, whatever ends the process.
//
// Several workers on one file each keep to drinks and lists of their own, so that what each was told can be looked for
// afterwards. The bar is everyone's.
class Worker : public PourbookTest {
public:
    Worker(const QString& home, unsigned seed, int place, int workers)
        : random_(seed), seed_(seed), place_(place), workers_(workers) {
        qputenv("XDG_DATA_HOME", home.toUtf8());
        AnswerOtherMessages([this](QMessageBox& box) {
            Say({{"message", box.text()}, {"milliseconds", sinceLine_.restart()}});
            box.defaultButton()->click();
        });
    }

    // Starts, does so many operations, and closes. A start that the program itself ends is the end.
    void Work(int operations) {
        Begin("start", {});
        Start();
        End();
        for (int done = 0; done < operations && !Runtime::HasQuit(); ++done) {
            DoOne();
            End();
        }
        if (!Runtime::HasQuit()) {
            Close();
            End();
        }
    }

private:
    void TestBody() override {}

    void DoOne() {
        static constexpr std::pair<void (Worker::*)(), int> operations[] = {
            {&Worker::Rate, 6},         {&Worker::FillBar, 2},       {&Worker::FlipBottle, 4},
            {&Worker::NewList, 2},      {&Worker::RenameList, 1},    {&Worker::DeleteList, 1},
            {&Worker::DropDrinks, 4},   {&Worker::TakeOutDrinks, 1}, {&Worker::WriteRecipe, 3},
            {&Worker::DeleteDrinks, 2}, {&Worker::CloseAndStart, 1},
        };
        int left = Random(27);
        const auto* chosen = operations;
        while (left >= chosen->second) {
            left -= chosen++->second;
        }
        (this->*chosen->first)();
    }

    void Rate() {
        constexpr int places[] = {1, 7, 18, 30, 42, 55};
        ShowList(0);
        const int stars = Random(6);
        for (const QJsonValue name : SelectDrinks(1)) {
            Begin("rate", {{"drink", name}, {"stars", stars}});
            ClickDrink(Window().DrinkList.ListIndex(), 0, places[stars]);
        }
    }

    void FillBar() {
        Choose("Ingredients_AddRemove");
        const Listbox& list = Ingredients::Instance().IngredientList;
        for (int click = Random(6); click >= 0 && list.ListCount() > 0; --click) {
            Click(Ingredients::Instance(), "IngredientList", Random(list.ListCount()), 0);
        }
        QJsonArray ticked;
        for (int row = 0; row < list.ListCount(); ++row) {
            if (list.CellCheck(row, 0)) {
                ticked.append(list.CellTag(row, 0));
            }
        }
        Begin("fill bar", {{"ingredients", ticked}});
        Ingredients::Instance().Widget()->findChild<QPushButton*>("Save")->click();
    }

    void FlipBottle() {
        const Listbox& bar = Window().InBarList;
        if (bar.ListCount() > 0) {
            const int row = Random(bar.ListCount());
            const bool full = bar.RowPicture(row) == NamedPicture("BarFull");
            Begin("flip bottle", {{"ingredient", bar.CellTag(row, 0)}, {"empty", full}});
            Click(Window(), "InBarList", row, 1);
        }
    }

    void NewList() {
        Choose("File_NewDrinklist");
        if (Window().DrinkListsList.ActiveCell() != nullptr) {
            EnterListName("new list", {});
        }
    }

    void RenameList() {
        if (const QString list = SelectList(); !list.isEmpty()) {
            const QPoint middle = ShowCell(Window(), "DrinkListsList", Window().DrinkListsList.ListIndex(), 1);
            QTest::mouseDClick(Find<QTableView>("DrinkListsList")->viewport(), Qt::LeftButton, {}, middle);
            EnterListName("rename list", {{"list", list}});
        }
    }

    void DeleteList() {
        if (const QString list = SelectList(); !list.isEmpty()) {
            Begin("delete list", {{"list", list}});
            Choose("File_DeleteList");
        }
    }

    void DropDrinks() {
        if (const QString list = SelectList(); !list.isEmpty()) {
            Listbox& lists = Window().DrinkListsList;
            const int row = lists.ListIndex();
            ShowList(0);
            Begin("drop drinks", {{"list", list}, {"drinks", SelectDrinks(4)}});
            const QPoint target = ShowCell(Window(), "DrinkListsList", row, 1);
            lists.DragOver(target.x(), target.y(), {}, 0);
            lists.DropObject({}, 0);
        }
    }

    void TakeOutDrinks() {
        if (const QString list = SelectList(); !list.isEmpty()) {
            Begin("take out drinks", {{"list", list}, {"drinks", SelectDrinks(3)}});
            QTest::keyClick(Find<QTableView>("DrinkList"), Qt::Key_Delete);
        }
    }

    void WriteRecipe() {
        Choose("File_NewDrink");
        NewRecipe& form = NewRecipe::Instance();
        if (form.Recipe.ColumnCount() < 5) {
            return; // the file could not be read, and the window has told so
        }
        for (const auto& [box, text] : {std::pair("DrinkType", "Sour"), std::pair("Glass", "Cocktail")}) {
            auto* field = form.Widget()->findChild<QComboBox*>(QString(box))->lineEdit();
            field->selectAll();
            QTest::keyClicks(field, text);
        }
        const QString name = NewName("My");
        form.DrinkName.SetText(name);
        form.Recipe.DeleteAllRows();
        QJsonArray rows;
        for (int row = 0, count = 1 + Random(5); row < count; ++row) {
            const char* const names[] = {"Gin", "Lime Juice", "Syrup of nothing", "Soda Water", "Mint"};
            const QString cells[] = {names[Random(5)], QString::number(1 + Random(3)), row % 2 == 0 ? "oz" : "thimble"};
            form.Recipe.AddRow(QString());
            for (int column = 0; column < 3; ++column) {
                form.Recipe.SetCell(row, column + 1, cells[column]);
            }
            rows.append(QJsonArray{cells[0], cells[1], cells[2]});
        }
        Begin("write recipe", {{"drink", name}, {"rows", rows}});
        form.Widget()->findChild<QPushButton*>("AddRecipe")->click();
    }

    void DeleteDrinks() {
        ShowList(0);
        Begin("delete drinks", {{"drinks", SelectDrinks(2)}});
        QTest::keyClick(Find<QTableView>("DrinkList"), Qt::Key_Delete);
    }

    void Close() {
        const class Window& window = Window();
        Begin("close", {{"left", window.Left()},
                        {"top", window.Top()},
                        {"width", window.Width()},
                        {"height", window.Height()},
                        {"options", Program().EncodeOptions()}});
        CloseWindow();
    }

    void CloseAndStart() {
        Close();
        End();
        Begin("start", {});
        Start();
    }

    void Begin(const char* operation, QJsonObject what) {
        what["begin"] = operation;
        Say(what);
    }

    void End() { Say({{"done", true}}); }

    // The clock is the same for all processes.
    void Say(QJsonObject line) {
        timespec now{};
        clock_gettime(CLOCK_MONOTONIC, &now);
        line["time"] = double(now.tv_sec) + double(now.tv_nsec) / 1e9;
        const QByteArray text = QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
        EXPECT_EQ(write(STDOUT_FILENO, text.constData(), std::size_t(text.size())), text.size());
        sinceLine_.start();
    }

    [[nodiscard]] int Random(int count) { return std::uniform_int_distribution(0, count - 1)(random_); }

    [[nodiscard]] QString NewName(const char* kind) {
        return QString("%1 %2 %3 %4").arg(kind).arg(place_).arg(seed_).arg(++names_);
    }

    // A name with two apostrophes stops an upgrade, by decision.
    [[nodiscard]] bool IsOwn(const QString& name, int id) const {
        const bool isMade = name.startsWith("My ") || name.startsWith("List ");
        return name.count('\'') < 2 && (isMade ? name.section(' ', 1, 1).toInt() : id % workers_) == place_;
    }

    [[nodiscard]] std::vector<int> RandomRows(const Listbox& list, int most) {
        std::vector<int> own;
        for (int row = 0; row < list.ListCount(); ++row) {
            if (list.CellTag(row, 0) != 0 && IsOwn(list.Cell(row, 1), list.CellTag(row, 0))) {
                own.push_back(row);
            }
        }
        std::shuffle(own.begin(), own.end(), random_);
        own.resize(std::min(own.size(), std::size_t(1 + Random(most))));
        return own;
    }

    // Scrolls to the cell and gives its middle.
    [[nodiscard]] static QPoint ShowCell(class Window& window, const char* list, int row, int column) {
        QCoreApplication::processEvents();
        auto* view = window.Widget()->findChild<QTableView*>(QString(list));
        view->scrollTo(view->model()->index(row, column));
        return view->visualRect(view->model()->index(row, column)).center();
    }

    static void Click(class Window& window, const char* list, int row, int column) {
        const QPoint middle = ShowCell(window, list, row, column);
        auto* view = window.Widget()->findChild<QTableView*>(QString(list));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, middle);
    }

    QJsonArray SelectDrinks(int most) {
        const Listbox& list = Window().DrinkList;
        Qt::KeyboardModifiers modifiers = Qt::NoModifier;
        for (const int row : RandomRows(list, most)) {
            static_cast<void>(ShowCell(Window(), "DrinkList", row, 1));
            ClickDrink(row, 1, 20, std::exchange(modifiers, Qt::ControlModifier));
        }
        QJsonArray names;
        for (int row = 0; row < list.ListCount(); ++row) {
            if (list.Selected(row)) {
                names.append(list.Cell(row, 1));
            }
        }
        return names;
    }

    // A start that could not read the file leaves no list, not even that of all drinks.
    void ShowList(int row) {
        if (row < Window().DrinkListsList.ListCount()) {
            Window().DrinkListsList.SetListIndex(row);
        }
    }

    // Its name; empty when this worker has none.
    [[nodiscard]] QString SelectList() {
        const std::vector<int> rows = RandomRows(Window().DrinkListsList, 1);
        ShowList(rows.empty() ? 0 : rows.front());
        return rows.empty() ? QString() : Window().DrinkListsList.Cell(rows.front(), 1);
    }

    // A name that could not be saved stays in its cell, and so does the user.
    void EnterListName(const char* operation, QJsonObject what) {
        const QString name = NewName("List");
        const auto* lists = Find<QTableView>("DrinkListsList");
        lists->findChild<QLineEdit*>()->selectAll();
        QTest::keyClicks(lists->findChild<QLineEdit*>(), name);
        what["name"] = name;
        Begin(operation, what);
        for (int attempt = 0; attempt < 3 && Window().DrinkListsList.ActiveCell() != nullptr; ++attempt) {
            QTest::keyClick(lists->findChild<QLineEdit*>(), Qt::Key_Return);
        }
    }

    std::mt19937 random_;
    unsigned seed_;
    int place_;
    int workers_;
    int names_ = 0;
    QElapsedTimer sinceLine_;
};

} // namespace

// pourbook_worker HOME SEED OPERATIONS PLACE WORKERS CALL: works in this home, as the one in this place, from 0 on, of
// so many workers, and kills itself with this call that changes a file, if it is not 0.
int main(int argc, char** argv) {
    const Runtime runtime(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    Worker worker(arguments.at(1), arguments.at(2).toUInt(), arguments.at(4).toInt(), arguments.at(5).toInt());
    KillAtCall(arguments.at(6).toInt());
    worker.Work(arguments.at(3).toInt());
    return testing::UnitTest::GetInstance()->Failed() ? 1 : 0;
}

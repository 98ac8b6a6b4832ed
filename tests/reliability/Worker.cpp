#include "KillInWrite.h"
#include "PourbookFixture.h"
#include "bar/Ingredients.h"
#include "platform/ui/Picture.h"
#include "recipes/NewRecipe.h"

#include <QComboBox>
#include <QDeadlineTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <algorithm>
#include <random>

namespace {

// The program at work: random operations, done as a person does them, and told on standard output, a JSON object a
// line: what begins, every message that is shown, and that the handler of the operation has returned. A line is out
// before the next deed begins, whatever ends the process.
//
// Several workers on one file each keep to drinks and lists of their own, so that what each was told can be looked for
// afterwards. The bar is everyone's.
class Worker : public PourbookTest {
public:
    // HOME SEED OPERATIONS PLACE WORKERS
    explicit Worker(const QStringList& arguments)
        : random_(arguments[1].toUInt()),
          names_(arguments[3] + ' ' + arguments[1] + " %1"),
          place_(arguments[3].toInt()),
          workers_(arguments[4].toInt()) {
        qputenv("XDG_DATA_HOME", arguments[0].toUtf8());
        AnswerOtherMessages([this](QMessageBox& box) {
            Say({{"message", box.text()}});
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
        static constexpr void (Worker::*operations[])() = {
            &Worker::Rate,        &Worker::FillBar,      &Worker::FlipBottle,    &Worker::NewList,
            &Worker::RenameList,  &Worker::DeleteList,   &Worker::DropDrinks,    &Worker::TakeOutDrinks,
            &Worker::WriteRecipe, &Worker::DeleteDrinks, &Worker::CloseAndStart,
        };
        std::discrete_distribution<std::size_t> weights{6, 2, 4, 2, 1, 1, 4, 1, 3, 2, 1};
        (this->*operations[weights(random_)])();
    }

    void Rate() {
        ShowList(0);
        const int stars = Random(6);
        for (const QJsonValue name : SelectDrinks(1)) {
            Begin("rate", {{"drink", name}, {"stars", stars}});
            QTest::keyClick(Find<QTableView>("DrinkList"), char('0' + stars), Qt::ControlModifier);
        }
    }

    void FillBar() {
        Choose("Ingredients_AddRemove");
        const Listbox& list = Ingredients::Instance().IngredientList;
        for (int click = Random(6); click >= 0 && list.ListCount() > 0; --click) {
            ClickCell(*Ingredients::Instance().Widget()->findChild<QTableView*>(), Random(list.ListCount()), 0, 20);
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
            ClickCell(*Find<QTableView>("InBarList"), row, 1, 20);
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
            QTest::keyClick(Find<QTableView>("DrinkListsList"), Qt::Key_F2);
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
            const int row = Window().DrinkListsList.ListIndex();
            ShowList(0);
            Begin("drop drinks", {{"list", list}, {"drinks", SelectDrinks(4)}});
            const QPoint target = ShowCell(*Find<QTableView>("DrinkListsList"), row, 1).center();
            Window().DrinkListsList.DragOver(target.x(), target.y(), {}, 0);
            Window().DrinkListsList.DropObject({}, 0);
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
        form.Widget()->findChild<QComboBox*>("DrinkType")->setEditText("Sour");
        form.Widget()->findChild<QComboBox*>("Glass")->setEditText("Cocktail");
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

    // In milliseconds of the clock that all processes share.
    static void Say(QJsonObject line) {
        line["time"] = double(QDeadlineTimer::current().deadlineNSecs()) / 1e6;
        std::puts(QJsonDocument(line).toJson(QJsonDocument::Compact).constData());
        std::fflush(stdout);
    }

    [[nodiscard]] int Random(int count) { return std::uniform_int_distribution(0, count - 1)(random_); }

    [[nodiscard]] QString NewName(const char* kind) { return kind + (' ' + names_.arg(++made_)); }

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
        std::vector<int> rows;
        std::ranges::sample(own, std::back_inserter(rows), 1 + Random(most), random_);
        return rows;
    }

    QJsonArray SelectDrinks(int most) {
        QJsonArray names;
        for (const int row : RandomRows(Window().DrinkList, most)) {
            ClickDrink(row, 1, 20, names.isEmpty() ? Qt::NoModifier : Qt::ControlModifier);
            names.append(Window().DrinkList.Cell(row, 1));
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
        auto* field = Find<QTableView>("DrinkListsList")->findChild<QLineEdit*>();
        field->selectAll();
        QTest::keyClicks(field, name);
        what["name"] = name;
        Begin(operation, what);
        for (int attempt = 0; attempt < 3 && Window().DrinkListsList.ActiveCell() != nullptr; ++attempt) {
            QTest::keyClick(field, Qt::Key_Return);
        }
    }

    std::mt19937 random_;
    QString names_;
    int made_ = 0;
    int place_;
    int workers_;
};

} // namespace

// pourbook_worker HOME SEED OPERATIONS PLACE WORKERS CALL: works in this home, as the one in this place, from 0 on, of
// so many workers, and kills itself with this call that changes a file, if it is not 0.
int main(int argc, char** argv) {
    const Runtime runtime(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    Worker worker(arguments);
    KillAtCall(arguments[5].toInt());
    worker.Work(arguments[2].toInt());
    return testing::UnitTest::GetInstance()->Failed() ? 1 : 0;
}

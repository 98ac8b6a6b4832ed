#include "PourbookFixture.h"

#include "platform/files/FolderItem.h"
#include "shell/Pictures.h"
#include "store/DatabaseFiles.h"

#include <QAction>
#include <QCheckBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QTest>

namespace {

const QString appName = "Tipplewise Pourbook";

void Connect(REALSQLDatabase& db) {
    db.SetDatabaseFile(WorkingDatabase(true, appName));
    db.SetEncryptionKey(DatabaseKey());
    ASSERT_TRUE(db.Connect()) << db.ErrorMessage();
}

} // namespace

PourbookTest::PourbookTest() {
    qputenv("XDG_DATA_HOME", home_.path().toUtf8());
    PreparePictures();
}

PourbookTest::~PourbookTest() = default;

void PourbookTest::GivenUserFile() {
    const FolderItem folder = UserFolder(true, appName);
    folder.CreateAsFolder();
    SeedDatabase(true).CopyFileTo(folder);
}

void PourbookTest::GivenEmptyLibrary() {
    GivenUserFile();
    for (const char* table : {"Drinks", "DrinkRecipes", "Ingredients", "DrinkLists", "DrinkListXRef"}) {
        Execute(QString("DELETE FROM %1").arg(QString(table)));
    }
}

void PourbookTest::GivenDrink(int id, const QString& name, const QString& ingredientList, const QString& more) {
    Execute(QString("INSERT INTO Drinks (DrinkID, DrinkName, IngredientList, IngredientCount) "
                    "VALUES (%1, '%2', '%3', 1)")
                .arg(id)
                .arg(name, ingredientList));
    if (!more.isEmpty()) {
        Execute(QString("UPDATE Drinks SET %1 WHERE DrinkID = %2").arg(more).arg(id));
    }
}

void PourbookTest::Execute(const QString& statement) {
    REALSQLDatabase db;
    Connect(db);
    db.SQLExecute(statement);
    ASSERT_FALSE(db.Error()) << db.ErrorMessage();
}

QString PourbookTest::Value(const QString& select) {
    REALSQLDatabase db;
    Connect(db);
    const RecordSet rows = db.SQLSelect(QString("SELECT (%1) AS Answer").arg(select));
    EXPECT_FALSE(db.Error()) << db.ErrorMessage();
    return rows.Field("Answer").IsNull() ? "NULL" : rows.Field("Answer").StringValue();
}

QString PourbookTest::WorkingFile() const {
    return WorkingDatabase(true, appName).AbsolutePath();
}

void PourbookTest::Start() {
    app_ = std::make_unique<App>();
    menuBar_ = std::make_unique<MenuBar1>();
    app_->SetMenuBar(*menuBar_);
    app_->_ApplicationAddMenuHandlers();
    Runtime::Start(*app_);
    ASSERT_TRUE(WaitFor([this] { return app_->AppLoaded || HasQuit(); }));
}

void PourbookTest::StartAgain() {
    app_.reset();
    menuBar_.reset();
    Start();
}

void PourbookTest::Search(const QString& text) {
    auto* box = Find<QLineEdit>("SearchBox");
    box->clear();
    QTest::keyClicks(box, text);
}

void PourbookTest::TickMatch(bool ticked) {
    auto* box = Find<QCheckBox>("MatchIngredients");
    if (box->isChecked() != ticked) {
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    }
    ASSERT_EQ(box->isChecked(), ticked);
}

void PourbookTest::Choose(const QString& menuItem) {
    menuBar_->UpdateItems();
    for (QAction* menu : Window().Widget()->findChild<QMenuBar*>()->actions()) {
        if (auto* action = menu->menu()->findChild<QAction*>(menuItem); action != nullptr) {
            ASSERT_TRUE(action->isEnabled()) << menuItem;
            action->trigger();
            return;
        }
    }
    FAIL() << "no menu item " << menuItem;
}

void PourbookTest::ClickDrink(int row, int column, int x, Qt::KeyboardModifiers modifiers) {
    auto* list = Find<QTableView>("DrinkList");
    const QRect cell = list->visualRect(list->model()->index(row, column));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers, QPoint(cell.left() + x, cell.center().y()));
}

void PourbookTest::CloseWindow() {
    Window().Widget()->close();
}

QStringList PourbookTest::ListedDrinks() {
    QStringList names;
    const Listbox& list = Window().DrinkList;
    for (int row = 0; row < list.ListCount(); ++row) {
        names.append(list.Cell(row, Program().Option_ViewRatings ? 1 : 0));
    }
    return names;
}

QStringList PourbookTest::Headings() {
    QStringList headings;
    for (int column = 0; column < Window().DrinkList.ColumnCount(); ++column) {
        headings.append(Window().DrinkList.Heading(column));
    }
    return headings;
}

QString PourbookTest::Caption(const char* menuItem) {
    return menuBar_->Item(QString(menuItem)).Text();
}

bool PourbookTest::PanelIsBlank() {
    MainWindow& window = Window();
    return !window.DrinkBanner.Visible() && !window.DrinkRecipeBox.Visible() && !window.DrinkGlassBox.Visible() &&
           !window.DrinkInstructionsBox.Visible() && window.DrinkName.Text().isEmpty() &&
           window.DrinkQuantities.Text().isEmpty() && window.GlassImage.Backdrop() == nullptr;
}

bool PourbookTest::WaitFor(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, 5000);
}

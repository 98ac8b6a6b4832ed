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

void PourbookTest::GivenUserFile() {
    const FolderItem folder = UserFolder(true, appName);
    folder.CreateAsFolder();
    SeedDatabase(true).CopyFileTo(folder);
}

void PourbookTest::GivenEmptyLibrary() {
    GivenUserFile();
    for (const char* table : {"Drinks", "DrinkRecipes", "Ingredients", "DrinkLists", "DrinkListXRef"}) {
        Execute(QString("DELETE FROM ") + table);
    }
}

void PourbookTest::GivenDrink(int id, const QString& name, const QString& ingredientList, const QString& more) {
    const QString values = QString("VALUES (%1, '%2', '%3', 1)").arg(id).arg(name, ingredientList);
    Execute("INSERT INTO Drinks (DrinkID, DrinkName, IngredientList, IngredientCount) " + values);
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
    app_.reset();
    menuBar_.reset();
    app_ = std::make_unique<App>(vendorSite_);
    menuBar_ = std::make_unique<MenuBar1>();
    app_->SetMenuBar(*menuBar_);
    app_->_ApplicationAddMenuHandlers();
    Runtime::Start(*app_);
    ASSERT_TRUE(QTest::qWaitFor([this] { return app_->AppLoaded || Runtime::HasQuit(); }));
}

void PourbookTest::Search(const QString& text) {
    auto* box = Find<QLineEdit>("SearchBox");
    box->clear();
    QTest::keyClicks(box, text);
}

void PourbookTest::TickMatch(bool ticked) {
    auto* box = Find<QCheckBox>("MatchIngredients");
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    ASSERT_EQ(box->isChecked(), ticked);
}

void PourbookTest::Choose(const QString& menuItem) {
    menuBar_->UpdateItems();
    for (const QAction* menu : Window().Widget()->findChild<QMenuBar*>()->actions()) {
        if (auto* action = menu->menu()->findChild<QAction*>(menuItem); action != nullptr && action->isEnabled()) {
            action->trigger();
            return;
        }
    }
    FAIL() << "no menu item that can be chosen is " << menuItem;
}

void PourbookTest::ClickDrink(int row, int column, int x, Qt::KeyboardModifiers modifiers) {
    ClickCell(*Find<QTableView>("DrinkList"), row, column, x, modifiers);
}

// The screen learns late of rows that were just added.
QRect PourbookTest::ShowCell(QTableView& list, int row, int column) {
    QCoreApplication::processEvents();
    list.scrollTo(list.model()->index(row, column));
    return list.visualRect(list.model()->index(row, column));
}

void PourbookTest::ClickCell(QTableView& list, int row, int column, int x, Qt::KeyboardModifiers modifiers) {
    const QRect cell = ShowCell(list, row, column);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers, QPoint(cell.left() + x, cell.center().y()));
}

QString PourbookTest::ListedDrinks() {
    QStringList names;
    const Listbox& list = Window().DrinkList;
    for (int row = 0; row < list.ListCount(); ++row) {
        names.append(list.Cell(row, Program().Option_ViewRatings ? 1 : 0));
    }
    return names.join("|");
}

QString PourbookTest::Headings() {
    QStringList headings;
    for (int column = 0; column < Window().DrinkList.ColumnCount(); ++column) {
        headings.append(Window().DrinkList.Heading(column));
    }
    return headings.join(",");
}

bool PourbookTest::PanelIsBlank() {
    MainWindow& window = Window();
    return !window.DrinkBanner.Visible() && !window.DrinkRecipeBox.Visible() && !window.DrinkGlassBox.Visible() &&
           !window.DrinkInstructionsBox.Visible() && window.DrinkName.Text().isEmpty() &&
           window.DrinkQuantities.Text().isEmpty() && window.GlassImage.Backdrop() == nullptr;
}

#include "recipes/NewRecipe.h"

#include "PourbookFixture.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>

class NewRecipeTest : public PourbookTest {
protected:
    void SetUp() override {
        GivenEmptyLibrary();
        Execute("INSERT INTO Ingredients (IngredientName) VALUES ('Crème de Cacao'), ('Gin'), ('Ginger Ale')");
        GivenDrink(1, "Old");
        Start();
        Choose("File_NewDrink");
        ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == Form().Widget(); }));
    }

    [[nodiscard]] NewRecipe& Form() { return NewRecipe::Instance(); }

    // "\t" is the tab key, "<" the same with shift, and "^" and "_" are the arrows up and down.
    static void Type(const QString& text) {
        const std::map<QChar, Qt::Key> keys = {{'\t', Qt::Key_Tab}, {'<', Qt::Key_Backtab}, {'\r', Qt::Key_Return},
                                               {'^', Qt::Key_Up},   {'_', Qt::Key_Down},    {'\b', Qt::Key_Backspace}};
        ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; }));
        for (const QChar character : text) {
            if (const auto key = keys.find(character); key != keys.end()) {
                QTest::keyClick(QGuiApplication::focusWindow(), key->second,
                                character == '<' ? Qt::ShiftModifier : Qt::NoModifier);
            } else {
                QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, character);
                QCoreApplication::sendEvent(QApplication::focusWidget(), &press);
            }
        }
    }

    // A bar stands between two cells, in what is given and in what is seen.
    void GivenRows(const QStringList& rows) {
        Form().Recipe.DeleteAllRows();
        for (const QString& row : rows) {
            Form().Recipe.AddRow(QString());
            for (int column = 1; column <= row.count('|') + 1; ++column) {
                Form().Recipe.SetCell(Form().Recipe.LastIndex(), column, row.section('|', column - 1, column - 1));
            }
        }
    }
    [[nodiscard]] QString Grid() {
        QString text;
        for (int cell = 0; cell < 5 * Form().Recipe.ListCount(); ++cell) {
            text += Form().Recipe.Cell(cell / 5, cell % 5) + (cell % 5 < 4 ? "|" : "/");
        }
        return text;
    }

    void Save(const QString& name) {
        Form().DrinkName.SetText(name);
        QTest::mouseClick(Form().Widget()->findChild<QPushButton*>("AddRecipe"), Qt::LeftButton);
    }
};

TEST_F(NewRecipeTest, GridCompletesNamesWhileTheyAreTyped) {
    // clang-format off
    const std::pair<const char*, const char*> cases[] = { // the bar is the caret
        {"g", "G|in"}, {"gin", "Gin|"}, {"ging", "Ging|er Ale"}, {"gx", "Gx|"}, {"g\b", "|in"}, {"g\bq", "q|"},
        {"crè", "Crè|ème de Cacao"}, {"crèm", "Crèm|e de Cacao"}, {"_", "|"}, {"gin_", "Ginger Ale|"},
        {"ginger_", "Ginger| Ale"}, {"gin^", "Crème de Cacao|"}, {"c^", "|"}, {"gin\t1\to", "o|z"},
        {"gin\tgin_", "Ginger Ale|"}, {"gin\t1/2", "1/2|"}, {"gin\t1\tq~", "q~|"},
    };
    // clang-format on
    Form().Recipe.SetFocus();
    for (const auto& [typed, expected] : cases) {
        Type(typed);
        ASSERT_NE(Form().Recipe.ActiveCell(), nullptr);
        EXPECT_EQ(Form().Recipe.ActiveCell()->Text().insert(Form().Recipe.ActiveCell()->SelStart(), "|"), expected);
        Type("\r+");
    }
}

TEST_F(NewRecipeTest, GridIsFilledAndThinnedOutByKeys) {
    Form().Recipe.SetFocus();
    Type("gin\t1.5\to\tcold\tginge\t2<<");
    EXPECT_EQ(Grid(), "1|Gin|1.5|oz|cold/1|Ginger Ale|2||/");
    EXPECT_EQ(Form().Recipe.ActiveCell(), nullptr) << "the number of a row is not edited";
    Type("\rrum\t\t\t\t\r+mint\r");
    EXPECT_EQ(Grid(), "1|Gin|1.5|oz|cold/1|rum|2||/2||||/4|mint|||/");
    Type("^^-\b");
    EXPECT_EQ(Grid(), "1|Gin|1.5|oz|cold/1|rum|2||/");
}

TEST_F(NewRecipeTest, TypingInABoxChoosesARow) {
    const std::tuple<const char*, const char*, bool> cases[] = {
        {"", "", false},       {"m", "Margarita", true}, {"COCKT", "Cocktail", true},
        {"co\b", "Co", false}, {"x", "x", false},
    };
    for (const auto& [typed, text, chosen] : cases) {
        Form().Glass.SetFocus();
        Type(typed);
        EXPECT_EQ(Form().Glass.Text(), text);
        EXPECT_EQ(Form().Glass.ListIndex() >= 0, chosen) << typed;
        QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_A, Qt::ControlModifier);
    }
    const int glasses = Form().Glass.ListCount();
    Execute("DROP TABLE UnitsOfMeasure");
    AnswerNextMessage();
    Choose("File_NewDrink");
    EXPECT_EQ(LastMessage().text, "Could not query the database for units of measure:  no such table: UnitsOfMeasure");
    EXPECT_EQ(Form().Glass.ListCount(), 2 * glasses) << "a second call adds all names again";
    EXPECT_EQ(Form().Glass.Text(), "x");
}

// What is wrong is told in this order, and what was typed stays.
TEST_F(NewRecipeTest, SaveTellsWhatIsMissingOrFailedAndThenStoresWhatWasTyped) {
    AnswerNextMessage();
    Save("New");
    EXPECT_EQ(LastMessage().text, "You must select both a glass type and a drink type.");
    Form().DrinkType.SetFocus();
    Type("sour\tcock");
    const std::tuple<const char*, QStringList, const char*, const char*> cases[] = {
        // name, rows, beginning of the message, and the drinks and recipe rows that the library then has
        {"  ", {}, "You must enter in a drink name.", "1,0"},
        {"Old", {}, "A drink with this name already exists in the database.", "1,0"},
        {"O'Hara", {"Gin"}, "An error occurred checking for duplicate drink:  ", "1,0"},
        {"x'; DELETE FROM Drinks; --", {"Gin"}, "An error occurred checking for duplicate drink:  ", "1,0"},
        {"New", {}, "You must enter in at least one ingredient.", "1,0"},
        {"New", {" ", "Gin"}, "You must enter in at least one ingredient.", "1,0"},
        {"New", {"Gin", " "}, "You must enter an ingredient name for each recipe row.", "1,0"},
        {"Half", {"Gin", "x'; DELETE FROM Drinks; --"}, "An error occurred checking for ingredient:  ", "2,1"},
        {"Half", {"Gin"}, "A drink with this name already exists in the database.", "2,1"},
        {"Unit", {"Gin|1|o'z"}, "An error occurred while attempting to lookup the unit of measure:  ", "3,1"},
    };
    for (const auto& [name, rows, message, survivors] : cases) {
        GivenRows(rows);
        AnswerNextMessage();
        Save(name);
        EXPECT_TRUE(LastMessage().text.startsWith(message)) << name << ": " << LastMessage().text;
        EXPECT_EQ(Value("SELECT COUNT(*) || ',' || (SELECT COUNT(*) FROM DrinkRecipes) FROM Drinks"), survivors);
        EXPECT_TRUE(Form().Widget()->isVisible() && Form().DrinkName.Text() == name);
    }

    GivenRows({" Gin |0.50| OZ |cold ", "Crème 🍸| 1.5 |cup of", "ליקר|1/2|d_sh|a\nb", "\"; --|0x10||it's", "Gin|1e3",
               QString(10000, 'x')});
    Form().Instructions.SetText(" Stir.\nStrain. ");
    Save("  New  ");
    EXPECT_EQ(
        Value("SELECT DrinkName || DrinkInstruction || IngredientCount || UserModified || IFNULL(UserRating, '-') "
              "|| IngredientList || DrinkTypeName || GlassTypeName FROM Drinks JOIN DrinkTypes USING "
              "(DrinkTypeID) JOIN GlassTypes USING (GlassTypeID) WHERE DrinkName = 'New'"),
        "NewStir.\nStrain.61-Gin, Crème 🍸, ליקר, \"; --, Gin, " + QString(10000, 'x') + "SourCocktail");
    EXPECT_EQ(Value("SELECT GROUP_CONCAT(IngredientName || '|' || IFNULL(IngredientQuantity, '-') || '|' || "
                    "IFNULL(UofM, '-') || '|' || IFNULL(Preparation, '-') || '|' || Required, ';') FROM (SELECT * FROM "
                    "DrinkRecipes JOIN Ingredients USING (IngredientID) LEFT JOIN UnitsOfMeasure USING (UofMID) JOIN "
                    "Drinks USING (DrinkID) WHERE DrinkName = 'New' AND RecipeStep < 6 ORDER BY RecipeStep)"),
              "Gin|0.50|oz|cold |1;Crème 🍸| 1.5 |-|-|1;ליקר|-|dash|a\nb|1;\"; --|-|-|it's|1;Gin|1e3|-|-|1");
    EXPECT_EQ(Value("SELECT COUNT(*) FROM Ingredients WHERE IngredientName = 'Gin'"), "5") << "each row has its own";
    EXPECT_EQ(Window().DrinkName.Text() + ListedDrinks(), "NewHalf|New|Old|Unit");
    EXPECT_EQ(Window().DrinkList.ListIndex(), 1);
}

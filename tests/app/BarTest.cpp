#include "PourbookFixture.h"
#include "bar/Ingredients.h"
#include "platform/ui/Picture.h"

#include <QPushButton>

// Two kinds of whiskey, one of them with a kind of its own; gin and lime; and one whose parent is not there.
class BarTest : public PourbookTest {
protected:
    void SetUp() override {
        GivenEmptyLibrary();
        Execute("INSERT INTO Ingredients (IngredientID, IngredientName, IngredientParentID, InBar, Empty) VALUES "
                "(1, 'Whiskey', NULL, 0, 0), (2, 'Rye', 1, 1, 0), (3, 'Canadian', 1, NULL, NULL), "
                "(4, 'Lime', NULL, 1, 1), (5, 'Gin', NULL, 1, NULL), (6, 'Orphan', 99, 1, 0), (7, 'Alberta', 2, 0, 0)");
        GivenDrink(11, "Gimlet");
        Execute("INSERT INTO DrinkRecipes (DrinkID, IngredientID, Required) VALUES (11, 5, 1)");
        Start();
    }
    void GivenRefusal(const QString& change) {
        Execute("CREATE TRIGGER Refuse BEFORE UPDATE ON Ingredients WHEN NEW.IngredientID = 4 AND NEW." + change +
                " BEGIN SELECT RAISE(FAIL, 'no limes'); END");
    }

    void ClickBar(int row, int column) { ClickCell(*Find<QTableView>("InBarList"), row, column, 10); }
    void Tick(int row) { ClickCell(*Ingredients::Instance().Widget()->findChild<QTableView*>(), row, 0, 20); }
    void Press(const char* button) {
        Ingredients::Instance().Widget()->findChild<QPushButton*>(QString(button))->click();
    }
    void Reopen() { Choose("Ingredients_AddRemove"); }

    // The names, with a plus before each that is in stock or ticked.
    [[nodiscard]] static QString Rows(const Listbox& list) {
        QStringList rows;
        for (int row = 0; row < list.ListCount(); ++row) {
            const bool plus = list.CellCheck(row, 0) || list.RowPicture(row) == NamedPicture("BarFull");
            rows << (plus ? '+' : ' ') + list.Cell(row, 1);
        }
        return rows.join("|");
    }
    [[nodiscard]] QString Bar() { return Rows(Window().InBarList); }
    [[nodiscard]] QString Ticks() { return Rows(Ingredients::Instance().IngredientList); }
};

TEST_F(BarTest, AClickAnywhereOnARowFlipsItAndTheMatchFollowsEvenAChangeThatFails) {
    ClickBar(0, 1);
    EXPECT_EQ(Bar(), " Gin| Lime|+Orphan|+Rye");
    EXPECT_EQ(ListedDrinks(), "Gimlet") << "without the match the drinks stay";
    TickMatch(true);
    ClickBar(0, 0);
    EXPECT_EQ(ListedDrinks(), "Gimlet");
    Execute("UPDATE Ingredients SET Empty = 1 WHERE IngredientID = 5");
    GivenRefusal("Empty = 0");
    AnswerNextMessage();
    ClickBar(1, 1);
    EXPECT_EQ(LastMessage().text, "An error occurred changing the ingredient status: no limes");
    EXPECT_EQ(Bar(), "+Gin| Lime|+Orphan|+Rye");
    EXPECT_EQ(ListedDrinks(), "");
}

TEST_F(BarTest, KindsStandBelowTheirParentAndOnlySavedTicksLast) {
    for (const bool cancels : {false, true}) {
        Reopen();
        EXPECT_EQ(Ticks(), "+Gin|+Lime| Whiskey|     Canadian|+    Rye|     Alberta");
        Tick(0);
        EXPECT_EQ(Ticks(), " Gin|+Lime| Whiskey|     Canadian|+    Rye|     Alberta");
        if (cancels) {
            Press("Cancel");
        }
    }
    Reopen();
    GivenDrink(12, "Sling");
    Tick(3);
    Tick(4);
    Press("Save");
    EXPECT_EQ(Value("SELECT group_concat(IngredientID || ':' || InBar || Empty, ' ') FROM Ingredients"),
              "1:00 2:00 3:10 4:10 5:10 6:00 7:00");
    EXPECT_EQ(Bar(), "+Canadian|+Gin|+Lime");
    EXPECT_EQ(ListedDrinks(), "Gimlet|Sling");
}

TEST_F(BarTest, ASaveThatFailsStaysOpenAndLeavesWhatWasDoneBefore) {
    Execute("WITH RECURSIVE N(I) AS (SELECT 100 UNION ALL SELECT I + 1 FROM N WHERE I < 499) "
            "INSERT INTO Ingredients (IngredientID, IngredientName, InBar, Empty) SELECT I, 'A ' || I, 1, 0 FROM N");
    Reopen();
    GivenRefusal("InBar = 1");
    AnswerNextMessage();
    Press("Save");
    EXPECT_EQ(LastMessage().text, "Could not update the In Bar status:  no limes");
    EXPECT_EQ(Value("SELECT group_concat(IngredientID) FROM Ingredients WHERE InBar = 1 AND IngredientID < 100"), "5");
    EXPECT_EQ(Value("SELECT SUM(InBar) FROM Ingredients"), "401");
    EXPECT_EQ(Bar(), "+Gin| Lime|+Orphan|+Rye");
    EXPECT_TRUE(Ingredients::Instance().Widget()->isVisible());
}

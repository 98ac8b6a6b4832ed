#include "PourbookFixture.h"

#include <QTest>

class DeleteDrinkTest : public PourbookTest {
protected:
    // Gin is in the first two drinks, twice in the second; both are in Mine, and the first in Yours too.
    void SetUp() override {
        GivenEmptyLibrary();
        GivenDrink(1, "Americano");
        GivenDrink(2, "Bramble");
        GivenDrink(3, "Clover Club");
        Execute("INSERT INTO Ingredients (IngredientID, IngredientName, InBar) VALUES (1, 'Gin', 1), (2, 'Lime', 0)");
        Execute("INSERT INTO DrinkRecipes (DrinkID, IngredientID) VALUES (1, 1), (1, 2), (2, 1), (2, 1)");
        Execute("INSERT INTO DrinkLists VALUES (1, 'Mine'), (2, 'Yours')");
        Execute("INSERT INTO DrinkListXRef (DrinkListID, DrinkID) VALUES (1, 1), (1, 2), (2, 1)");
        Start();
    }

    void Delete(Qt::Key key, QMessageBox::StandardButton answer) {
        AnswerNextMessage(answer);
        QTest::keyClick(Find<QTableView>("DrinkList"), key);
    }

    // The ids in the four tables, each list in its order.
    [[nodiscard]] QString Library() {
        return Value("SELECT GROUP_CONCAT(DrinkID) FROM Drinks") + "/" +
               Value("SELECT GROUP_CONCAT(DrinkID) FROM DrinkRecipes") + "/" +
               Value("SELECT GROUP_CONCAT(IngredientID) FROM Ingredients") + "/" +
               Value("SELECT GROUP_CONCAT(DrinkListID || '-' || DrinkID) FROM DrinkListXRef");
    }
};

TEST_F(DeleteDrinkTest, FromAllDrinksTheKeysDeleteWithWhatNothingElseNeeds) {
    ClickDrink(0, 1, 20);
    Delete(Qt::Key_Delete, QMessageBox::No);
    EXPECT_EQ(LastMessage().text, "Are you sure you want to delete the selected drink(s)?");
    EXPECT_EQ(Library(), "1,2,3/1,1,2,2/1,2/1-1,1-2,2-1");
    QTest::keyClick(Find<QTableView>("DrinkList"), Qt::Key_H, Qt::ControlModifier);
    Delete(Qt::Key_Backspace, QMessageBox::Yes);
    EXPECT_EQ(Library(), "2,3/2,2/1/1-2") << "gin is still needed";
    EXPECT_EQ(Window().DrinkListsList.Cell(0, 2) + Window().DrinkListsList.Cell(2, 2), "20");
    Delete(Qt::Key_Delete, QMessageBox::Yes);
    EXPECT_EQ(ListedDrinks(), "Bramble|Clover Club") << "nothing was selected";
    QTest::keyClick(Find<QTableView>("DrinkList"), Qt::Key_A, Qt::ControlModifier);
    Delete(Qt::Key_Delete, QMessageBox::Yes);
    EXPECT_EQ(Library(), "NULL/NULL/NULL/NULL");
}

TEST_F(DeleteDrinkTest, FromADrinklistTheKeysOnlyTakeOut) {
    Window().DrinkListsList.SetListIndex(1);
    ClickDrink(1, 1, 20);
    Delete(Qt::Key_Backspace, QMessageBox::Yes);
    EXPECT_EQ(LastMessage().text, "Are you sure you want to remove the selected drink(s) from this drinklist?");
    EXPECT_EQ(Library(), "1,2,3/1,1,2,2/1,2/1-1,2-1");
    EXPECT_EQ(Window().DrinkListsList.ListIndex(), 1);
    EXPECT_EQ(Window().DrinkListsList.Cell(1, 2), "1");
    EXPECT_EQ(ListedDrinks(), "Americano");

    Window().DrinkListsList.SetListIndex(2);
    Execute("DELETE FROM DrinkLists WHERE DrinkListID = 2");
    Delete(Qt::Key_Backspace, QMessageBox::Yes);
    EXPECT_EQ(Window().DrinkListsList.ListIndex(), 0) << "the list is gone";
}

TEST_F(DeleteDrinkTest, AFailureStopsThereAndTheListShowsWhatIsLeft) {
    Execute("CREATE TRIGGER Keep BEFORE DELETE ON Drinks WHEN OLD.DrinkID = 2 BEGIN SELECT RAISE(FAIL, 'kept'); END");
    QTest::keyClick(Find<QTableView>("DrinkList"), Qt::Key_A, Qt::ControlModifier);
    AnswerNextMessage(QMessageBox::Yes);
    AnswerNextMessage();
    Program()._File_DeleteDrink_Action();
    EXPECT_EQ(LastMessage().text, "An error occurred removing the drink: kept");
    EXPECT_EQ(ListedDrinks(), "Bramble|Clover Club");
    EXPECT_EQ(Library(), "2,3/NULL/1/1-2") << "each statement stands once it ran";
}

#include "PourbookFixture.h"

#include <QDir>
#include <QFileInfo>

// A user's file of another version, in which no drink has the id that it has in the new library.
class UpgradeTest : public PourbookTest {
protected:
    UpgradeTest() {
        GivenUserFile();
        Execute("UPDATE Setup SET DBVersion = 1, AppWidth = 900, UserOptions = 'V02'");
        Execute("UPDATE Drinks SET DrinkID = DrinkID + 5000");
        GivenDrink(1, "My Own");
    }

    [[nodiscard]] QStringList Files() const {
        return QFileInfo(WorkingFile()).dir().entryList(QDir::Files, QDir::Name);
    }
};

TEST_F(UpgradeTest, CarriesWhatIsTheUsersOwnByName) {
    Execute("UPDATE Drinks SET UserRating = 4 WHERE DrinkName IN ('Planter''s Punch', 'My Own')");
    Execute("UPDATE Drinks SET UserRating = 0 WHERE DrinkName = 'Negroni'");
    Execute("UPDATE Ingredients SET InBar = 1, Empty = IngredientName = 'Gin' "
            "WHERE IngredientName IN ('Gin', 'Peychaud''s Bitters')");
    Execute("INSERT INTO DrinkLists VALUES (7, 'Mum''s'), (8, 'Gone'), (9, 'Without members')");
    Execute("INSERT INTO DrinkListXRef (DrinkListID, DrinkID) SELECT 7, DrinkID FROM Drinks "
            "WHERE DrinkName IN ('My Own', 'Negroni', 'Planter''s Punch')");
    Execute("INSERT INTO DrinkListXRef (DrinkListID, DrinkID) VALUES (8, 1)");
    Start();

    EXPECT_EQ(Value("SELECT group_concat(DrinkName || UserRating, ', ') FROM "
                    "(SELECT * FROM Drinks WHERE UserRating IS NOT NULL ORDER BY DrinkName)"),
              "Negroni0, Planter's Punch4");
    EXPECT_EQ(Value("SELECT group_concat(IngredientName || Empty, ', ') FROM "
                    "(SELECT * FROM Ingredients WHERE InBar = 1 ORDER BY IngredientName)"),
              "Gin1, Peychaud's Bitters0");
    EXPECT_EQ(Value("SELECT group_concat(DrinkListName || ': ' || (SELECT COUNT(*) FROM DrinkListXRef X JOIN Drinks D "
                    "ON D.DrinkID = X.DrinkID WHERE X.DrinkListID = L.DrinkListID), ', ') FROM DrinkLists L"),
              "Gone: 0, Mum's: 2");
    EXPECT_EQ(Window().DrinkListsList.ListCount(), 3);
    EXPECT_EQ(Window().Width(), 750) << "the settings are the new file's";
    EXPECT_EQ(Files(), QStringList({"drinkdb.rsd", "drinkdb_v1_backup.rsd"}));

    // A file of another version again: the older backup stays beside the newer one.
    Execute("UPDATE Setup SET DBVersion = 3");
    Start();
    EXPECT_EQ(Files().size(), 3) << Files().join(", ").toStdString();
    EXPECT_EQ(Value("SELECT COUNT(*) FROM DrinkListXRef"), "2");
}

// Only the first apostrophe of a name is doubled. What was not carried is in the backup, and the next start goes on
// with the new file.
TEST_F(UpgradeTest, ANameWithTwoApostrophesStopsItWithTheOldFileWhole) {
    GivenDrink(2, "Rock ''n'' Roll");
    Execute("INSERT INTO DrinkLists VALUES (7, 'Old')");
    Execute("INSERT INTO DrinkListXRef (DrinkListID, DrinkID) VALUES (7, 2)");
    AnswerNextMessage();
    Start();
    EXPECT_TRUE(Runtime::HasQuit()) << "the select of the member failed, and its record set is nil";

    Execute("UPDATE Setup SET DBVersion = 1");
    GivenDrink(9000, "Rock ''n'' Roll", {}, "UserRating = 5");
    AnswerNextMessage();
    Start();
    EXPECT_TRUE(Runtime::HasQuit());
    EXPECT_TRUE(LastMessage().text.startsWith("An error occurred copying the user ratings.  "));
    EXPECT_EQ(Files().size(), 3);
    Start();
    EXPECT_FALSE(Runtime::HasQuit());
}

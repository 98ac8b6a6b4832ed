#include "PourbookFixture.h"

#include <QDir>
#include <QFileInfo>

// A user's file of another version.
class UpgradeTest : public PourbookTest {
protected:
    UpgradeTest() {
        GivenUserFile();
        Execute("UPDATE Setup SET DBVersion = 1, AppWidth = 900");
        Execute("INSERT INTO DrinkLists VALUES (7, 'Old'), (8, 'Gone'), (9, 'Without members')");
        GivenDrink(9000, "My Own", {}, "UserRating = 4");
    }

    [[nodiscard]] qsizetype FileCount() const { return QFileInfo(WorkingFile()).dir().count() - 2; }
};

// No drink keeps its id. Names with one apostrophe come first; those with two stop an upgrade, by decision.
TEST_F(UpgradeTest, RatingsBarAndListsMoveByTheirNames) {
    for (const char* statement :
         {"DELETE FROM Drinks WHERE DrinkID = 9000", "UPDATE Drinks SET DrinkID = DrinkID + 5000",
          "UPDATE Drinks SET UserRating = DrinkID % 6 WHERE DrinkID IN (SELECT DrinkID FROM Drinks WHERE DrinkName "
          "NOT LIKE '%''%''%' ORDER BY DrinkName LIKE '%''%' DESC LIMIT 200)",
          "UPDATE Ingredients SET InBar = 1, Empty = IngredientID % 3 = 0 WHERE IngredientID IN (SELECT "
          "IngredientID FROM Ingredients ORDER BY IngredientName LIKE '%''%' DESC LIMIT 80)",
          "UPDATE DrinkLists SET DrinkListID = DrinkListID + 40, DrinkListName = 'Mum''s ' || DrinkListID",
          "INSERT INTO DrinkListXRef (DrinkListID, DrinkID) SELECT DrinkListID, DrinkID FROM DrinkLists, Drinks "
          "WHERE (DrinkID + DrinkListID) % 40 = 0 AND DrinkName NOT LIKE '%''%''%'"}) {
        Execute(statement);
    }
    QStringList seen;
    for (int look = 0; look < 2; ++look) {
        for (const char* rows :
             {"DrinkName || UserRating AS Row FROM Drinks",
              "IngredientName || Empty AS Row FROM Ingredients WHERE InBar",
              "DrinkListName || DrinkName AS Row FROM DrinkLists NATURAL JOIN DrinkListXRef NATURAL JOIN Drinks"}) {
            seen << Value(QString("SELECT group_concat(Row) FROM (SELECT %1 ORDER BY 1)").arg(rows));
        }
        Start();
    }
    EXPECT_EQ(seen.mid(3), seen.first(3));
    EXPECT_GT(seen.join(',').count(','), 300);
    EXPECT_EQ(Value("SELECT DBVersion || MIN(DrinkID) FROM Setup, Drinks"), "21");
}

TEST_F(UpgradeTest, DrinksThatTheNewLibraryDoesNotHaveDropOut) {
    Execute("INSERT INTO DrinkListXRef (DrinkListID, DrinkID) SELECT 7, DrinkID FROM Drinks WHERE DrinkID < 4");
    Execute("INSERT INTO DrinkListXRef (DrinkListID, DrinkID) VALUES (7, 9000), (8, 9000)");
    Start();
    EXPECT_EQ(Value("SELECT group_concat(DrinkListName || ': ' || (SELECT COUNT(*) FROM DrinkListXRef X JOIN Drinks D "
                    "ON D.DrinkID = X.DrinkID WHERE X.DrinkListID = L.DrinkListID), ', ') FROM DrinkLists L"),
              "Gone: 0, Old: 3");
    EXPECT_EQ(Value("SELECT COUNT(UserRating) FROM Drinks"), "0");
    EXPECT_EQ(Window().Width(), 750) << "the settings are the new file's";

    // A file of another version again: the older backup stays beside the newer one.
    Execute("UPDATE Setup SET DBVersion = 3");
    Start();
    EXPECT_EQ(FileCount(), 3);
    EXPECT_EQ(Value("SELECT COUNT(*) FROM DrinkListXRef"), "3");
}

// Only the first apostrophe of a name is doubled. What was not carried is in the backup, and the next start goes on
// with the new file.
TEST_F(UpgradeTest, ANameWithTwoApostrophesStopsItWithTheOldFileWhole) {
    GivenDrink(9001, "Rock ''n'' Roll");
    Execute("INSERT INTO DrinkListXRef (DrinkListID, DrinkID) VALUES (7, 9001)");
    AnswerNextMessage();
    Start();
    EXPECT_TRUE(Runtime::HasQuit()) << "the select of the member failed, and its record set is nil";

    Execute("UPDATE Setup SET DBVersion = 1");
    GivenDrink(9001, "Rock ''n'' Roll", {}, "UserRating = 5");
    AnswerNextMessage();
    Start();
    EXPECT_TRUE(Runtime::HasQuit());
    EXPECT_TRUE(LastMessage().text.startsWith("An error occurred copying the user ratings.  "));
    EXPECT_EQ(FileCount(), 3);
    Start();
    EXPECT_FALSE(Runtime::HasQuit());
}

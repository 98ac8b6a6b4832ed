"""A library of another version is replaced, and what is the user's own moves along or stays whole in the backup."""

import os

import Desktop
from Library import Library
from Pourbook import ExpectEqual, Home, Pourbook

# No drink has the id that it has in the new library. Names with one apostrophe come first; those with two stop the
# upgrade, by decision.
OLD_FILE = """
    UPDATE Setup SET DBVersion = 1;
    UPDATE Drinks SET DrinkID = DrinkID + 5000;
    UPDATE DrinkRecipes SET DrinkID = DrinkID + 5000;
    UPDATE Drinks SET UserRating = DrinkID % 6 WHERE DrinkID IN
        (SELECT DrinkID FROM Drinks WHERE DrinkName NOT LIKE '%''%''%' ORDER BY DrinkName LIKE '%''%' DESC, DrinkID
         LIMIT 200);
    UPDATE Ingredients SET InBar = 1, Empty = IngredientID % 3 = 0 WHERE IngredientID IN
        (SELECT IngredientID FROM Ingredients ORDER BY IngredientName LIKE '%''%' DESC, IngredientID LIMIT 80);
    WITH RECURSIVE N(I) AS (SELECT 1 UNION ALL SELECT I + 1 FROM N WHERE I < 12)
        INSERT INTO DrinkLists SELECT I + 40, CASE I % 3 WHEN 0 THEN 'Mum''s list ' ELSE 'List ' END || I FROM N;
    INSERT INTO DrinkListXRef (DrinkListID, DrinkID)
        SELECT DrinkListID, DrinkID FROM DrinkLists, Drinks
        WHERE (DrinkID + DrinkListID) % 40 = 0 AND DrinkName NOT LIKE '%''%''%'"""

USER_DATA = """
    SELECT DrinkName, UserRating FROM Drinks WHERE UserRating IS NOT NULL ORDER BY DrinkName;
    SELECT IngredientName, Empty FROM Ingredients WHERE InBar = 1 ORDER BY IngredientName;
    SELECT DrinkListName, DrinkName FROM DrinkListXRef JOIN DrinkLists USING (DrinkListID) JOIN Drinks USING (DrinkID)
        ORDER BY DrinkListName, DrinkName"""


def GivenOldFile(home):
    home.GivenLibrary().Run(OLD_FILE)
    data = home.library.Run(USER_DATA)
    ExpectEqual(home.library.Run("SELECT COUNT(UserRating) FROM Drinks; SELECT SUM(InBar) FROM Ingredients;"
                                 "SELECT COUNT(*) FROM DrinkLists"), ["200", "80", "12"], "what the user has")
    return data


def BackupOf(home):
    return os.path.join(home.userFolder, "drinkdb_v1_backup.rsd")


def UpgradeInPeace(desktop):
    home = Home(desktop)
    data = GivenOldFile(home)
    Pourbook(desktop, home).WaitForWindow().Close()
    ExpectEqual(home.library.Run(USER_DATA), data, "what the user has in the new library")
    ExpectEqual(Library(BackupOf(home)).Run(USER_DATA), data, "what the user has in the backup")
    ExpectEqual(home.library.Run("SELECT DBVersion FROM Setup; SELECT COUNT(*) FROM Drinks WHERE DrinkID > 5000"),
                ["2", "0"], "the new library")


with Desktop.Desktop() as desktop:
    UpgradeInPeace(desktop)

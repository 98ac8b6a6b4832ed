"""What can be made from what is at home."""

import Desktop
from Pourbook import MATCH, ExpectEqual, Home, Pourbook

# Gin alone is asked for by its generic name; the rum and the whiskey here are kinds of what recipes ask for.
BAR = ["Gin", "White Rum", "Bourbon", "Campari", "Sweet Vermouth", "Lime Juice", "Lemon Juice", "Simple Syrup",
       "Soda Water", "Tonic Water", "Angostura Bitters"]

# All required ingredients of a drink are at home, each ingredient with all that it is a kind of.
MAKEABLE = """NOT EXISTS (
    WITH RECURSIVE Bar(Id) AS (
        SELECT IngredientID FROM Ingredients WHERE InBar = 1 AND Empty = 0
        UNION SELECT IngredientParentID FROM Ingredients JOIN Bar ON IngredientID = Id
        WHERE IngredientParentID IS NOT NULL)
    SELECT 1 FROM DrinkRecipes AS R
    WHERE R.DrinkID = Drinks.DrinkID AND Required <> 0 AND IngredientID NOT IN (SELECT Id FROM Bar))"""


def Refill(pourbook, library):
    """The list is made anew when the box is ticked, from what the file says then."""
    pourbook.Click(pourbook.screen.Find(MATCH))
    pourbook.WaitForDrinks(library.Names(), "without the match")
    pourbook.Click(pourbook.screen.Find(MATCH))


with Desktop.Desktop() as desktop:
    home = Home(desktop)
    pourbook = Pourbook(desktop, home).WaitForWindow()
    library = home.library
    pourbook.Click(pourbook.screen.Find(MATCH))
    pourbook.WaitForDrinks([], "from an empty bar")

    names = ", ".join(f"'{name}'" for name in BAR)
    library.Run(f"UPDATE Ingredients SET InBar = 1 WHERE IngredientName IN ({names})")
    ExpectEqual(library.Run("SELECT COUNT(*) FROM Ingredients WHERE InBar = 1"), [str(len(BAR))], "size of the bar")
    full = library.Names(MAKEABLE)
    Refill(pourbook, library)
    pourbook.WaitForDrinks(full, "from the bar")

    library.Run("UPDATE Ingredients SET Empty = 1 WHERE IngredientName = 'Gin'")
    withoutGin = library.Names(MAKEABLE)
    if not 0 < len(withoutGin) < len(full) < len(library.Names()):
        raise AssertionError(f"this bar makes a poor test: {full}, and {withoutGin} without gin")
    Refill(pourbook, library)
    pourbook.WaitForDrinks(withoutGin, "from the bar without gin")

    pourbook.Click(pourbook.screen.Find("Search drinks"))
    Desktop.Type("rum")
    found = [name for name in withoutGin if name in library.Found("rum")]
    pourbook.WaitForDrinks(found, "from the bar that the search finds")
    pourbook.Close()

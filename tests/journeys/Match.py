"""What can be made from what is at home."""

import Desktop
from Pourbook import ExpectEqual, Home, Pourbook
from Waiting import WaitUntilEqual

MATCH = "Match list of cocktails to ingredients in your bar"

# Gin alone is asked for by its generic name; the rum and the whiskey here are kinds of what recipes ask for.
BAR = ["Gin", "White Rum", "Bourbon", "Campari", "Sweet Vermouth", "Lime Juice", "Lemon Juice", "Simple Syrup",
       "Soda Water", "Tonic Water", "Angostura Bitters"]

# The drinks of which all required ingredients are at home, each ingredient with all that it is a kind of.
MAKEABLE = """
    WITH RECURSIVE Bar(Id) AS (
        SELECT IngredientID FROM Ingredients WHERE InBar = 1 AND Empty = 0
        UNION SELECT IngredientParentID FROM Ingredients JOIN Bar ON IngredientID = Id
        WHERE IngredientParentID IS NOT NULL)
    SELECT DrinkName FROM Drinks AS D
    WHERE NOT EXISTS (SELECT 1 FROM DrinkRecipes AS R
                      WHERE R.DrinkID = D.DrinkID AND Required <> 0 AND IngredientID NOT IN (SELECT Id FROM Bar))
    ORDER BY DrinkName"""


def Makeable(library):
    return [name for name, in library.Run(MAKEABLE)]


def Toggle(pourbook, expected):
    box = pourbook.screen.Find(MATCH)
    pourbook.Click(box)
    WaitUntilEqual(lambda: pourbook.screen.Has(box, pourbook.screen.atspi.STATE_CHECKED), expected, "the match box")


def Refill(pourbook, library):
    """The list is made anew when the box is ticked, from what the file says then."""
    Toggle(pourbook, False)
    pourbook.WaitForDrinks(library.Names(), "without the match")
    Toggle(pourbook, True)


with Desktop.Desktop() as desktop:
    home = Home(desktop)
    pourbook = Pourbook(desktop, home).WaitForWindow()
    library = home.library

    Toggle(pourbook, True)
    pourbook.WaitForDrinks([], "from an empty bar")
    ExpectEqual(pourbook.Drinks().Headings(), ["Rating", "Cocktail", "Ingredients"], "headings of the empty list")

    names = ", ".join(f"'{name}'" for name in BAR)
    library.Run(f"UPDATE Ingredients SET InBar = 1 WHERE IngredientName IN ({names})")
    ExpectEqual(library.Value("SELECT COUNT(*) FROM Ingredients WHERE InBar = 1"), str(len(BAR)), "size of the bar")
    full = Makeable(library)
    if not 5 < len(full) < len(library.Names()):
        raise AssertionError(f"this bar makes a poor test: {full}")
    Refill(pourbook, library)
    pourbook.WaitForDrinks(full, "from the bar")

    library.Run("UPDATE Ingredients SET Empty = 1 WHERE IngredientName = 'Gin'")
    withoutGin = Makeable(library)
    if not 0 < len(withoutGin) < len(full):
        raise AssertionError(f"the bar without gin makes a poor test: {withoutGin}")
    Refill(pourbook, library)
    pourbook.WaitForDrinks(withoutGin, "from the bar without gin")

    pourbook.Click(pourbook.screen.Find("Search drinks"))
    Desktop.Type("rum")
    found = [name for name in withoutGin if name in library.Found("rum")]
    pourbook.WaitForDrinks(found, "from the bar that the search finds")
    ExpectEqual(pourbook.Close(), 0, "exit status")

"""What can be made from what is at home."""

import Desktop
from Library import BAR, MAKEABLE
from Pourbook import MATCH, ExpectEqual, Home, Pourbook

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

    library.FillBar(BAR)
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

"""The program without eyes and without a mouse."""

import Desktop
from Pourbook import ExpectEqual, Home, Pourbook
from Screen import List
from Waiting import WaitFor, WaitUntilEqual

MATCH = "Match list of cocktails to ingredients in your bar"
RANDOM = "Random Drink Selection"


def CheckNames(pourbook):
    screen = pourbook.screen
    for element in screen.All():
        if screen.Has(element, screen.atspi.STATE_FOCUSABLE) and not element.name:
            raise AssertionError(f"a {element.getRoleName()} has no name")
    roles = [
        ("Drinks", screen.atspi.ROLE_TABLE),
        ("Drinklists", screen.atspi.ROLE_TABLE),
        ("Ingredients in your bar", screen.atspi.ROLE_TABLE),
        ("Search drinks", screen.atspi.ROLE_TEXT),
        (MATCH, screen.atspi.ROLE_CHECK_BOX),
        (RANDOM, screen.atspi.ROLE_PUSH_BUTTON),
    ]
    for name, role in roles:
        screen.Find(name, role)


def CheckTables(pourbook):
    drinks = pourbook.Drinks()
    ExpectEqual(drinks.Headings(), ["Rating", "Cocktail", "Ingredients"], "headings")
    row = pourbook.DrinkNames().index("Negroni")
    ExpectEqual([drinks.Cell(row, column).name for column in range(2)], ["3 of 5 stars", "Negroni"], "a rated drink")
    ExpectEqual(drinks.Cell(row + 1, 0).name, "not rated", "the drink below")

    bar = List(pourbook.screen.Find("Ingredients in your bar"))
    ExpectEqual([(bar.Cell(row, 0).name, bar.Cell(row, 1).name) for row in range(bar.Count())],
                [("empty", "Campari"), ("in stock", "Gin")], "the bar")

    lists = List(pourbook.screen.Find("Drinklists", pourbook.screen.atspi.ROLE_TABLE))
    ExpectEqual([lists.Cell(1, column).name for column in range(3)], ["drinklist", "Friday", "1"], "a drinklist")


def TabThrough(pourbook):
    """The names of all that the tab key reaches before it comes round."""
    names = [FocusedName(pourbook)]
    while True:
        Desktop.Key("Tab")
        WaitFor(lambda: FocusedName(pourbook) != names[-1], f"the tab key to leave {names[-1]!r}")
        name = FocusedName(pourbook)
        if name in names:
            return names
        names.append(name)


def FocusedName(pourbook):
    element = pourbook.screen.Focused()
    return element.name if element is not None else None


def TabTo(pourbook, name):
    for _ in range(30):
        if FocusedName(pourbook) == name:
            return
        before = FocusedName(pourbook)
        Desktop.Key("Tab")
        WaitFor(lambda: FocusedName(pourbook) != before, f"the tab key to leave {before!r}")
    raise AssertionError(f"the tab key does not reach {name!r}")


def UseKeyboard(pourbook, library):
    TabTo(pourbook, "Search drinks")
    Desktop.Type("negroni")
    pourbook.WaitForDrinks(library.Found("negroni"), "for a search by keyboard")
    TabTo(pourbook, "Drinks")
    Desktop.Key("Down")
    WaitFor(lambda: pourbook.SelectedDrinks() == [pourbook.Text("Drink name")], "the recipe of the drink chosen")

    TabTo(pourbook, MATCH)
    Desktop.Key("space")
    pourbook.WaitForDrinks([], "with the match ticked by keyboard")
    TabTo(pourbook, RANDOM)
    Desktop.Key("space")
    WaitFor(lambda: "You must have more drinks in your list for this feature" in pourbook.screen.Texts(),
            "the message of the random button")
    Desktop.Key("Return")
    WaitFor(lambda: FocusedName(pourbook) == RANDOM, "the message to go")


with Desktop.Desktop() as desktop:
    home = Home(desktop)
    library = home.GivenLibrary()
    library.Run("UPDATE Drinks SET UserRating = 3 WHERE DrinkName = 'Negroni'")
    library.Run("UPDATE Ingredients SET InBar = 1, Empty = IngredientName = 'Campari' "
                "WHERE IngredientName IN ('Gin', 'Campari')")
    library.Run("INSERT INTO DrinkLists VALUES (1, 'Friday'); INSERT INTO DrinkListXRef VALUES (1, 1, 5)")

    pourbook = Pourbook(desktop, home).WaitForWindow()
    CheckNames(pourbook)
    CheckTables(pourbook)
    reached = TabThrough(pourbook)
    for name in ("Search drinks", "Drinks", "Drinklists", "Ingredients in your bar", MATCH, RANDOM):
        if name not in reached:
            raise AssertionError(f"the tab key does not reach {name!r}, only {reached}")
    UseKeyboard(pourbook, library)
    ExpectEqual(pourbook.Close(), 0, "exit status")

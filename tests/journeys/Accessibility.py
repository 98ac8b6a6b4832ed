"""The program without eyes and without a mouse."""

import Desktop
from Pourbook import MATCH, ExpectEqual, Home, Pourbook
from Screen import Has, List
from Waiting import WaitFor, WaitUntilEqual

RANDOM = "Random Drink Selection"


def CheckNames(screen):
    for element in screen.All():
        if Has(element, screen.atspi.STATE_FOCUSABLE) and not element.name:
            raise AssertionError(f"a {element.getRoleName()} has no name")
    screen.Find("Search drinks", screen.atspi.ROLE_TEXT)
    screen.Find(MATCH, screen.atspi.ROLE_CHECK_BOX)
    screen.Find(RANDOM, screen.atspi.ROLE_PUSH_BUTTON)


def CheckTables(pourbook):
    drinks = pourbook.Drinks()
    row = pourbook.DrinkNames().index("Negroni")
    ExpectEqual(drinks.Row(row)[:2], ["3 of 5 stars", "Negroni"], "a rated drink")
    ExpectEqual(drinks.Cell(row + 1, 0).name, "not rated", "the drink below")
    bar = List(pourbook.screen.Find("Ingredients in your bar"))
    ExpectEqual([bar.Row(row) for row in range(bar.Count())], [["empty", "Campari"], ["in stock", "Gin"]], "the bar")
    lists = List(pourbook.screen.Find("Drinklists", pourbook.screen.atspi.ROLE_TABLE))
    ExpectEqual(lists.Row(1), ["drinklist", "Friday", "1"], "a drinklist")


def TabTo(screen, name):
    for _ in range(30):
        before = screen.FocusedName()
        if before == name:
            return
        Desktop.Key("Tab")
        WaitFor(screen.FocusedName, f"the tab key to leave {before!r}", lambda focused: focused != before)
    raise AssertionError(f"the tab key does not reach {name!r}")


def UseKeyboard(pourbook, library):
    screen = pourbook.screen
    for name in ("Drinklists", "Ingredients in your bar", "Search drinks"):
        TabTo(screen, name)
    Desktop.Type("negroni")
    pourbook.WaitForDrinks(library.Found("negroni"), "for a search by keyboard")
    TabTo(screen, "Drinks")
    Desktop.Key("Down")
    WaitUntilEqual(lambda: pourbook.Text("Drink name"), pourbook.DrinkNames()[0], "recipe of the drink chosen")

    TabTo(screen, MATCH)
    Desktop.Key("space")
    pourbook.WaitForDrinks([], "with the match ticked by keyboard")
    TabTo(screen, RANDOM)
    Desktop.Key("space")
    WaitFor(screen.Message, "the message of the random button")
    Desktop.Key("Return")
    WaitUntilEqual(screen.FocusedName, RANDOM, "focus behind the message")


with Desktop.Desktop() as desktop:
    home = Home(desktop)
    library = home.GivenLibrary()
    library.Run("UPDATE Drinks SET UserRating = 3 WHERE DrinkName = 'Negroni'")
    library.Run("UPDATE Ingredients SET InBar = 1, Empty = IngredientName = 'Campari' "
                "WHERE IngredientName IN ('Gin', 'Campari')")
    library.Run("INSERT INTO DrinkLists VALUES (1, 'Friday'); INSERT INTO DrinkListXRef VALUES (1, 1, 5)")
    pourbook = Pourbook(desktop, home).WaitForWindow()
    CheckNames(pourbook.screen)
    CheckTables(pourbook)
    UseKeyboard(pourbook, library)
    pourbook.Close()

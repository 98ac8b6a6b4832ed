"""Each window of the program, opened one after the other as a screen reader opens it."""

import os

import Desktop
from Pourbook import TITLE, Home, Pourbook
from Screen import Has
from VersionSite import VersionSite
from Waiting import WaitFor

NOTICE = "Pourbook Update Available"
FROM_MENU = ("New Drink Recipe", "Ingredients In Your Bar", "Recommend Ingredients To Buy", "Preferences",
             "Pourbook Help", "About Tipplewise Pourbook")
TITLES = {"Recommend Ingredients To Buy": "Ingredient Recommendations", "Pourbook Help": "Tipplewise Pourbook Help"}
# What is pressed in a window to come to its other face.
OTHER_FACE = {"Preferences": "Community", "Pourbook Help": "How to find a drink recipe"}


def GivenBar(library):
    library.Run("UPDATE Drinks SET UserRating = 3 WHERE DrinkName = 'Negroni'")
    library.Run("UPDATE Ingredients SET InBar = 1, Empty = IngredientName = 'Campari' "
                "WHERE IngredientName IN ('Gin', 'Campari')")
    library.Run("INSERT INTO DrinkLists VALUES (1, 'Friday'); INSERT INTO DrinkListXRef VALUES (1, 1, 5)")


def Start(desktop):
    """With drinks rated, listed and at home, and with a newer version on the vendor's web site."""
    home = Home(desktop)
    library = home.GivenLibrary()
    GivenBar(library)
    return Pourbook(desktop, home, os.environ["POURBOOK_AT"], VersionSite("9.9.9").name), library


def Press(element):
    element.queryAction().doAction(0)


def Walk(pourbook):
    """Gives the name and the element of each window, and leaves the main window alone in the end."""
    screen = pourbook.screen
    atspi = screen.atspi
    yield NOTICE, WaitFor(lambda: screen.Find(NOTICE), "the notice of a newer version")
    Press(screen.Find("Close", atspi.ROLE_PUSH_BUTTON))
    pourbook.WaitForWindow()

    Desktop.Xdotool("key", "Down", "Down")
    WaitFor(lambda: screen.Find("Instructions", atspi.ROLE_TEXT), "a recipe")
    yield TITLE, screen.Find(TITLE)

    for command in FROM_MENU:
        Press(screen.Find(command, atspi.ROLE_MENU_ITEM, anywhere=True))
        title = TITLES.get(command, command)
        window = WaitFor(lambda: screen.Find(title, atspi.ROLE_FRAME), "the window " + title)
        # Only then a row of it can be told as the one where the keyboard is.
        WaitFor(lambda: Has(window, atspi.STATE_ACTIVE), "the keyboard in " + title)
        yield title, window
        if command in OTHER_FACE:
            Press(screen.Find(OTHER_FACE[command]))
            yield f"{title}, {OTHER_FACE[command]}", window
        Desktop.Key("alt+F4")
        pourbook.WaitForWindow()

    screen.Find("Search drinks").queryComponent().grabFocus()
    WaitFor(lambda: screen.FocusedName() == "Search drinks", "the keyboard in the search field")
    Desktop.Type("nothing is called so")
    pourbook.WaitForDrinks([], "for a name that no drink has")
    Press(screen.Find("Random Drink Selection"))
    WaitFor(screen.Message, "the message of the random button")
    yield "Message", next(element for element in screen.All() if element.getRole() == atspi.ROLE_ALERT)
    Desktop.Key("Return")

"""Two drinklists: made, named, filled by dragging, and one of them deleted."""

import Desktop
from Pourbook import TITLE, ExpectEqual, Home, Pourbook
from Screen import List, PlaceOf
from Waiting import WaitFor, WaitUntilEqual

MEMBERS = "SELECT DrinkName FROM DrinkListXRef JOIN Drinks USING (DrinkID) ORDER BY DrinkName"


def Lists():
    return List(pourbook.screen.Find("Drinklists", pourbook.screen.atspi.ROLE_TABLE))


def WaitForLists(*rows):
    WaitUntilEqual(lambda: [tuple(Lists().Row(row)[1:]) for row in range(1, Lists().Count())], [*rows], "drinklists")


def NameLast(count, name):
    WaitUntilEqual(lambda: Lists().Count(), count, "number of drinklists")
    WaitUntilEqual(lambda: Desktop.Xdotool("getactivewindow", "getwindowname"), TITLE, "window with the keyboard")
    Desktop.Type(name)
    Desktop.Key("Return")


def Answer(words, button="OK"):
    """By mouse: the keyboard follows the message only when the window manager comes round to it."""
    WaitFor(lambda: words in pourbook.screen.Message()[1], "the message " + words)
    pourbook.Click(pourbook.screen.Find(button, pourbook.screen.atspi.ROLE_PUSH_BUTTON))


with Desktop.Desktop() as desktop:
    home = Home(desktop)
    names = home.GivenLibrary().Names()
    pourbook = Pourbook(desktop, home).WaitForWindow()
    pourbook.Click(pourbook.screen.Find("Add a drinklist"))
    NameLast(2, "Joe's")
    Desktop.Key("alt+f")
    pourbook.Click(WaitFor(lambda: pourbook.screen.Find("New Drinklist"), "the menu"))
    NameLast(3, "joe's")
    Answer("You already have a Drinklist with that name.  Please select a different name.")
    NameLast(3, "Sunday")
    WaitForLists(("Joe's", "0"), ("Sunday", ""))

    pourbook.Click(Lists().Cell(0, 1))
    pourbook.WaitForDrinks(names, "of all lists")
    Desktop.Drag(PlaceOf(pourbook.Drinks().Cell(2, 1)), PlaceOf(Lists().Cell(2, 1)))
    WaitForLists(("Joe's", "0"), ("Sunday", "1"))
    pourbook.Click(pourbook.Drinks().Cell(0, 1))
    Desktop.Xdotool("keydown", "shift")
    pourbook.Click(pourbook.Drinks().Cell(4, 1))
    Desktop.Xdotool("keyup", "shift")
    Desktop.Drag(PlaceOf(pourbook.Drinks().Cell(3, 1)), PlaceOf(Lists().Cell(2, 1)))
    Answer("You have previously added this drink to the selected drinklist")
    WaitForLists(("Joe's", "0"), ("Sunday", "5"))

    pourbook.Click(Lists().Cell(1, 1))
    Desktop.Key("Delete")
    Answer("Are you sure you want to remove this Drinklist?", "Yes")
    WaitForLists(("Sunday", "5"))
    pourbook.Close()
    ExpectEqual(home.library.Run("SELECT DrinkListName FROM DrinkLists"), ["Sunday"], "lists in the file")
    ExpectEqual(home.library.Run(MEMBERS), names[:5], "drinks of the list")

"""The ingredients at home: chosen in their window, marked in the panel, followed by the drinks."""

import Desktop
from Library import BAR, MAKEABLE
from Pourbook import MATCH, ExpectEqual, Home, Pourbook
from Screen import List
from Waiting import WaitFor, WaitUntilEqual

LOCKED = "An error occurred changing the ingredient status: database is locked"


def Rows(bar):
    return [" ".join(bar.Row(row)) for row in range(bar.Count())]


def Choose(pourbook, library, bar):
    """Turns the ticks of fifteen rows: eight by the mouse, the others by the keyboard."""
    pourbook.Click(pourbook.screen.Find("Choose the ingredients in your bar"))
    ingredients = List(WaitFor(lambda: pourbook.screen.Find("All ingredients"), "the ingredients window"))
    WaitFor(ingredients.Count, "the rows of the ingredients window")
    for row in range(8):
        pourbook.Click(ingredients.Cell(row, 0))
    Desktop.Xdotool("key", *["Down", "space"] * 7)
    turned = {ingredients.Cell(row, 1).name.strip() for row in range(15)}
    pourbook.Click(pourbook.screen.Find("Save"))
    names = sorted("in stock " + name for name in turned ^ set(BAR))
    WaitUntilEqual(lambda: sorted(Rows(bar)), names, "the panel")
    ExpectEqual(library.Bar(), Rows(bar), "the bar in the file")


def Mark(pourbook, library, bar):
    """By the mouse and by the keyboard; the drinks follow, as the match is on."""
    pourbook.Click(pourbook.screen.Find(MATCH))
    pourbook.WaitForDrinks(library.Names(MAKEABLE), "from the bar")
    pourbook.Click(bar.Cell(Rows(bar).index("in stock Gin"), 1))
    WaitFor(lambda: "empty Gin" in library.Bar(), "gin marked empty")
    pourbook.WaitForDrinks(library.Names(MAKEABLE), "without gin")
    Desktop.Key("space")
    WaitFor(lambda: "in stock Gin" in library.Bar(), "gin in stock")
    pourbook.WaitForDrinks(library.Names(MAKEABLE), "with gin again")


def MarkWhileHeld(pourbook, library, bar):
    before = library.Bar()
    holder = library.Hold()
    Desktop.Key("space")
    ExpectEqual(LOCKED in WaitFor(pourbook.screen.Message, "the message")[1], True, "words of the message")
    holder.communicate()
    Desktop.Key("Return")
    WaitUntilEqual(pourbook.screen.FocusedName, "Ingredients in your bar", "focus behind the message")
    ExpectEqual([Rows(bar), library.Bar()], [before, before], "panel and file after the failure")


with Desktop.Desktop() as desktop:
    home = Home(desktop)
    library = home.GivenLibrary()
    library.FillBar(BAR)
    pourbook = Pourbook(desktop, home).WaitForWindow()
    bar = List(pourbook.screen.Find("Ingredients in your bar"))
    Choose(pourbook, library, bar)
    Mark(pourbook, library, bar)
    MarkWhileHeld(pourbook, library, bar)
    pourbook.Close()

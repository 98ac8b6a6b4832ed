"""The program without eyes and without a mouse, and what a screen reader is told of each window, in print."""

import Desktop
import Windows
from Pourbook import MATCH, TITLE, ExpectEqual
from Screen import List
from Tree import Tree
from Waiting import WaitFor, WaitUntilEqual

RANDOM = "Random Drink Selection"
LISTS = (RANDOM, MATCH, "Search drinks", "Drinklists", "Ingredients in your bar", "Drinks")
RECIPE = ("Drink name", "Drink type", "Instructions", "Quantities", "Ingredients")


def CheckTables(pourbook):
    drinks = pourbook.Drinks()
    row = pourbook.DrinkNames().index("Negroni")
    ExpectEqual(drinks.Row(row)[:2], ["3 of 5 stars", "Negroni"], "a rated drink")
    bar = List(pourbook.screen.Find("Ingredients in your bar"))
    ExpectEqual([bar.Row(row) for row in range(bar.Count())], [["empty", "Campari"], ["in stock", "Gin"]], "the bar")
    lists = List(pourbook.screen.Find("Drinklists", pourbook.screen.atspi.ROLE_TABLE))
    ExpectEqual(lists.Row(1), ["drinklist", "Friday", "1"], "a drinklist")


def CheckWindows(pourbook):
    tree = Tree(pourbook.screen)
    lines = []
    for title, window in Windows.Walk(pourbook):
        told = list(tree.Lines([window], 1))
        print(f"\n{title}", *told, sep="\n")
        lines += map(str.strip, told)
        if title == TITLE:
            CheckTables(pourbook)
    ExpectEqual([line for line in lines if tree.NO_NAME in line], [], "controls without a name")
    for line in ("push button 'Add a drinklist'", "image 'Glass: cocktail glass'", "link 'About drink ratings' focusable",
                 "row table cell 'Absinthe' focusable focused | table cell 'Absinthe' focusable"):
        ExpectEqual(line in lines, True, line)


def TabThrough(screen, names):
    for name in names:
        WaitUntilEqual(screen.FocusedName, name, "control with the keyboard")
        Desktop.Key("Tab")


def UseKeyboard(pourbook, library):
    """Comes with the focus on the random button and a search for nothing."""
    screen = pourbook.screen
    TabThrough(screen, LISTS[:2])
    WaitUntilEqual(screen.FocusedName, "Search drinks", "control with the keyboard")
    Desktop.Type("negroni")
    pourbook.WaitForDrinks(library.Found("negroni"), "for a search by keyboard")
    Desktop.Key("Down")
    drink = pourbook.DrinkNames()[0]
    WaitUntilEqual(lambda: pourbook.Text("Drink name"), drink, "recipe of the drink chosen")
    Desktop.Key("ctrl+4")
    WaitUntilEqual(lambda: pourbook.Drinks().Row(0)[:2], ["4 of 5 stars", drink], "rated drink")
    Desktop.Xdotool("key", "ctrl+d", "Down", "Return")
    WaitUntilEqual(lambda: library.Run("SELECT DrinkName FROM DrinkListXRef JOIN Drinks USING (DrinkID) "
                                       "WHERE UserRating = 4"), [drink], "drink added to the list")
    TabThrough(screen, LISTS[-1:] + RECIPE + LISTS[:2])

    Desktop.Key("shift+Tab")
    Desktop.Key("space")
    pourbook.WaitForDrinks([], "with the match ticked by keyboard")
    Desktop.Key("shift+Tab")
    Desktop.Key("space")
    WaitFor(screen.Message, "the message of the random button")
    Desktop.Key("Return")
    WaitUntilEqual(screen.FocusedName, RANDOM, "focus behind the message")


# Large text makes the program connect a second time, and it must be told of all the same.
with Desktop.Desktop("large text") as desktop:
    pourbook, library = Windows.Start(desktop)
    CheckWindows(pourbook)
    UseKeyboard(pourbook, library)
    pourbook.Close()

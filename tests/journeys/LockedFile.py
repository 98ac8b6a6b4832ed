"""Another program is writing to the file just when the user marks a bottle."""

import Desktop
from Pourbook import ExpectEqual, Home, Pourbook
from Screen import List
from Waiting import WaitFor, WaitUntilEqual

LOCKED = "An error occurred changing the ingredient status: database is locked"

with Desktop.Desktop() as desktop:
    home = Home(desktop)
    library = home.GivenLibrary()
    library.FillBar(["Gin", "Campari"])
    pourbook = Pourbook(desktop, home).WaitForWindow()
    pourbook.Click(List(pourbook.screen.Find("Ingredients in your bar")).Cell(1, 1))
    marked = ["in stock Campari", "empty Gin"]
    WaitUntilEqual(pourbook.Bar, marked, "bar with a bottle marked")
    holder = library.Hold()
    Desktop.Key("space")
    ExpectEqual(LOCKED in WaitFor(pourbook.screen.Message, "the message")[1], True, "words of the message")
    holder.communicate()
    Desktop.Key("Return")
    WaitUntilEqual(pourbook.screen.FocusedName, "Ingredients in your bar", "focus behind the message")
    ExpectEqual([pourbook.Bar(), library.Bar()], [marked, marked], "panel and file after the failure")
    pourbook.Close()

"""A user's first evening: search, look at a recipe, rate it, close, and find all of it again."""

import Desktop
from Pourbook import ExpectEqual, Home, Pourbook
from Screen import PlaceOf
from Waiting import WaitFor, WaitUntilEqual

SETUP = "SELECT AppLeft, AppTop, AppWidth, AppHeight, UserOptions FROM Setup"
DRINK = "Aviation"
RATING = f"SELECT IFNULL(UserRating, 'never') FROM Drinks WHERE DrinkName = '{DRINK}'"
QUANTITIES = ["1 1/2 oz -", "1/2 oz -", "1/2 oz -", "1 tsp -", "1  -"]
INGREDIENTS = ["Gin", "Maraschino Liqueur", "Lemon Juice", "Crème de Violette", "Cherry"]
FOURTH_STAR = 42


def CheckFirstWindow(pourbook):
    left, top, width, height = pourbook.Place()
    menuHeight = PlaceOf(pourbook.screen.Find("View"))[3]
    ExpectEqual((width, height - menuHeight), (750, 600), "size of the window's content")
    if not (0 <= left - 100 <= 10 and 0 <= top - 100 <= 40):
        raise AssertionError(f"the frame of the window should stand at 100, 100; its content is at {left}, {top}")
    ExpectEqual(pourbook.Drinks().Headings(), ["Rating", "Cocktail", "Ingredients"], "columns of a first run")


def CheckSearch(pourbook, library):
    pourbook.WaitForDrinks(library.Names(), "of the whole library")
    pourbook.Click(pourbook.screen.Find("Search drinks"))
    for typed in ("g", "gi", "gin"):
        Desktop.Type(typed[-1])
        pourbook.WaitForDrinks(library.Found(typed), f"for the search {typed!r}")


def CheckRating(pourbook, library):
    row = pourbook.DrinkNames().index(DRINK)
    pourbook.Click(pourbook.Drinks().Cell(row, 0), FOURTH_STAR)
    WaitUntilEqual(lambda: pourbook.Text("Drink name"), DRINK, "drink in the recipe panel")
    ExpectEqual(pourbook.Text("Quantities").split("\n\n")[:-1], QUANTITIES, "quantities")
    ExpectEqual(pourbook.Text("Ingredients").split("\n\n")[:-1], INGREDIENTS, "ingredients")
    ExpectEqual(library.Run(RATING), ["never"], "rating after the click that selects")
    pourbook.Click(pourbook.Drinks().Cell(row, 0), FOURTH_STAR)
    WaitUntilEqual(lambda: library.Run(RATING), ["4"], "rating in the file after the second click")


def FirstEvening(desktop, home):
    pourbook = Pourbook(desktop, home).WaitForWindow()
    CheckFirstWindow(pourbook)
    CheckSearch(pourbook, home.library)
    CheckRating(pourbook, home.library)
    pourbook.Close()
    ExpectEqual(home.library.Run(SETUP), ["100|100|750|600|V01V04V05"], "Setup row")


def SecondEvening(desktop, home):
    """Changes the columns and the place of the window, and gives the place."""
    pourbook = Pourbook(desktop, home).WaitForWindow()
    pourbook.WaitForDrinks(home.library.Names(), "after the search was forgotten")
    pourbook.Click(pourbook.screen.Find("View"))
    pourbook.Click(WaitFor(lambda: pourbook.screen.Find("Show Glass Column"), "the menu"))
    WaitUntilEqual(lambda: pourbook.Drinks().Headings()[-1], "Glass", "last column")
    before = pourbook.Place()
    Desktop.Xdotool("getactivewindow", "windowmove", "--", "-60", "-40")
    place = WaitFor(pourbook.Place, "the window to move", lambda seen: seen != before)
    pourbook.Close()
    return place


def ThirdEvening(desktop, home, place):
    pourbook = Pourbook(desktop, home).WaitForWindow()
    WaitUntilEqual(pourbook.Place, place, "place of the window")
    drinks = pourbook.Drinks()
    ExpectEqual(drinks.Headings(), ["Rating", "Cocktail", "Ingredients", "Glass"], "columns")
    ExpectEqual(drinks.Cell(pourbook.DrinkNames().index(DRINK), 0).name, "4 of 5 stars", "rating")
    pourbook.Close()
    ExpectEqual(home.library.Run(SETUP), ["-60|-40|750|600|V02V01V04V05"], "Setup row")


with Desktop.Desktop() as desktop:
    home = Home(desktop)
    FirstEvening(desktop, home)
    ThirdEvening(desktop, home, SecondEvening(desktop, home))

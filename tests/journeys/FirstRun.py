"""A user's first evening: search, look at a recipe, rate it, close, and find all of it again."""

import os
import subprocess

import Desktop
from Pourbook import TITLE, ExpectEqual, Home, Output, Pourbook
from Screen import PlaceOf
from Waiting import WaitFor, WaitUntilEqual

SETUP = "SELECT AppLeft, AppTop, AppWidth, AppHeight, UserOptions FROM Setup"
FRACTIONS = {"1": "1/10", "2": "1/5", "25": "1/4", "33": "1/3", "5": "1/2", "66": "2/3", "75": "3/4"}
FOURTH_STAR = 42


def QuantityLine(quantity, unit):
    if quantity == "0":
        return unit + " -"
    whole, point, digits = quantity.partition(".")
    number = quantity if not point else " ".join(part for part in (whole.strip("0"), FRACTIONS[digits]) if part)
    return f"{number} {unit} -"


def RecipeLines(library, drink):
    """The two columns that the recipe of a drink must show."""
    rows = library.Run("SELECT IngredientQuantity, IFNULL(UofM, ''), IngredientName FROM Drinks "
                       "JOIN DrinkRecipes USING (DrinkID) JOIN Ingredients USING (IngredientID) "
                       f"LEFT JOIN UnitsOfMeasure USING (UofMID) WHERE DrinkName = '{drink}' ORDER BY RecipeStep")
    return [QuantityLine(quantity, unit) for quantity, unit, _ in rows], [name for _, _, name in rows]


def Lines(text):
    return [line for line in text.split("\n") if line]


def CheckWindow(pourbook):
    left, top, width, height = PlaceOf(pourbook.screen.Find(TITLE))
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


def RowWithFraction(pourbook, library):
    """The first drink in the list whose recipe has a fraction. It is near the top, where it can be clicked."""
    known = {name for name, in library.Run(
        "SELECT DISTINCT DrinkName FROM Drinks JOIN DrinkRecipes USING (DrinkID) WHERE IngredientQuantity LIKE '1.%' "
        "AND DrinkName NOT LIKE '%''%'")}
    names = pourbook.DrinkNames()
    row = next(row for row, name in enumerate(names) if name in known)
    return row, names[row]


def CheckRecipe(pourbook, library, drink):
    WaitUntilEqual(lambda: pourbook.Text("Drink name"), drink, "drink in the recipe panel")
    quantities, ingredients = RecipeLines(library, drink)
    if not any("/" in line for line in quantities):
        raise AssertionError(f"{drink} has no fraction: {quantities}")
    ExpectEqual(Lines(pourbook.Text("Quantities")), quantities, "quantities of " + drink)
    ExpectEqual(Lines(pourbook.Text("Ingredients")), ingredients, "ingredients of " + drink)

    # A quantity is of use only beside its ingredient.
    columns = [pourbook.screen.Find(name, pourbook.screen.atspi.ROLE_TEXT) for name in ("Quantities", "Ingredients")]
    ExpectEqual(*[LineTops(column.queryText()) for column in columns], "heights of the lines of both columns")


def LineTops(text):
    content = text.getText(0, -1)
    starts = [place for place in range(len(content))
              if content[place] != "\n" and (place == 0 or content[place - 1] == "\n")]
    return [text.getCharacterExtents(place, 0)[1] for place in starts]


def CheckRating(pourbook, library):
    row, drink = RowWithFraction(pourbook, library)
    rating = f"SELECT IFNULL(UserRating, 'never') FROM Drinks WHERE DrinkName = '{drink}'"
    pourbook.Click(pourbook.Drinks().Cell(row, 0), FOURTH_STAR)
    CheckRecipe(pourbook, library, drink)
    ExpectEqual(library.Value(rating), "never", "rating after the click that selects")
    pourbook.Click(pourbook.Drinks().Cell(row, 0), FOURTH_STAR)
    WaitUntilEqual(lambda: library.Value(rating), "4", "rating in the file after the second click")
    WaitUntilEqual(lambda: pourbook.Drinks().Cell(row, 0).name, "4 of 5 stars", "words of the rating cell")
    return drink


def CheckRandom(pourbook):
    before = pourbook.Text("Drink name")
    for _ in range(20):
        pourbook.Click(pourbook.screen.Find("Random Drink Selection"))
        WaitFor(lambda: pourbook.SelectedDrinks() == [pourbook.Text("Drink name")], "the recipe of the drink picked")
        if pourbook.Text("Drink name") != before:
            return
    raise AssertionError(f"the random button gave {before} twenty times")


def SwitchOn(pourbook, item):
    pourbook.Click(pourbook.screen.Find("View"))
    pourbook.Click(WaitFor(lambda: pourbook.screen.Find(item), f"the menu with {item!r}"))


def MoveWindow(pourbook, left, top):
    window = Output("xdotool", "getactivewindow")
    before = pourbook.Place()
    subprocess.run(["xdotool", "windowmove", window, str(left), str(top)], check=True)
    return WaitFor(lambda: pourbook.Place() != before and pourbook.Place(), "the window to move")


def FirstEvening(desktop, home):
    pourbook = Pourbook(desktop, home).WaitForWindow()
    CheckWindow(pourbook)
    ExpectEqual(os.stat(home.file).st_mode & 0o777, 0o600, "rights of the user's file")
    ExpectEqual(os.stat(home.userFolder).st_mode & 0o777, 0o700, "rights of the user's folder")
    CheckSearch(pourbook, home.library)
    drink = CheckRating(pourbook, home.library)
    CheckRandom(pourbook)
    ExpectEqual(pourbook.Close(), 0, "exit status")
    ExpectEqual(home.library.Run(SETUP), [("100", "100", "750", "600", "V01V04V05")], "Setup row")
    return drink


def SecondEvening(desktop, home):
    pourbook = Pourbook(desktop, home).WaitForWindow()
    CheckWindow(pourbook)
    pourbook.WaitForDrinks(home.library.Names(), "after the search was forgotten")
    SwitchOn(pourbook, "Show Glass Column")
    WaitUntilEqual(lambda: pourbook.Drinks().Headings(), ["Rating", "Cocktail", "Ingredients", "Glass"], "columns")
    place = MoveWindow(pourbook, -60, -40)
    ExpectEqual(pourbook.Close(), 0, "exit status")
    ExpectEqual(home.library.Run(SETUP), [("-60", "-40", "750", "600", "V02V01V04V05")], "Setup row")
    return place


def ThirdEvening(desktop, home, place, drink):
    pourbook = Pourbook(desktop, home).WaitForWindow()
    WaitUntilEqual(pourbook.Place, place, "place of the window")
    drinks = pourbook.Drinks()
    ExpectEqual(drinks.Headings(), ["Rating", "Cocktail", "Ingredients", "Glass"], "columns")
    ExpectEqual(drinks.Cell(pourbook.DrinkNames().index(drink), 0).name, "4 of 5 stars", "rating of " + drink)
    ExpectEqual(pourbook.Close(), 0, "exit status")
    ExpectEqual(home.library.Run(SETUP), [("-60", "-40", "750", "600", "V02V01V04V05")], "Setup row")


with Desktop.Desktop() as desktop:
    home = Home(desktop)
    ratedDrink = FirstEvening(desktop, home)
    lastPlace = SecondEvening(desktop, home)
    ThirdEvening(desktop, home, lastPlace, ratedDrink)

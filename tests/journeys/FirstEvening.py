"""A first evening with the program, from the first look to the next start, by mouse and keyboard alone, on the desktop
that the first argument names. With a second argument, "pictures", each deed leaves one."""

import itertools
import os
import shutil
import sys

import Desktop
from Library import BAR, MAKEABLE
from Pourbook import MATCH, TITLE, ExpectEqual, Home, Pourbook
from Screen import Has, List, PlaceOf
from Waiting import WaitFor, WaitUntilEqual

RATED = "Aviation"
FOURTH_STAR = 42
QUANTITIES = ["1 1/2 oz -", "1/2 oz -", "1/2 oz -", "1 tsp -", "1  -"]
INGREDIENTS = ["Gin", "Maraschino Liqueur", "Lemon Juice", "Crème de Violette", "Cherry"]

WRITTEN = "Garden Gimlet"
FORM = (("Name of the drink", WRITTEN), ("Instructions", "Shake with ice and strain."), ("Drink type", "sou"),
        ("Glass", "cockt"))
ROWS = (("gin", "1.5", "o", ""), ("lime j", "0.75", "oz", "fresh"), ("simple", "0.5", "oz", ""),
        ("maras", "0.25", "ts", ""), ("angos", "2", "dash", ""), ("my own bitters", "1/3", "", ""))
SHOWN = ["1 1/2 oz -", "3/4 oz -", "1/2 oz -", "1/4 tsp -", "2 dash -", "  -"]
STORED = ["1|Gin|1.5|oz|", "2|Lime Juice|0.75|oz|fresh", "3|Simple Syrup|0.5|oz|", "4|Maraschino Liqueur|0.25|tsp|",
          "5|Angostura Bitters|2|dash|", "6|My own bitters|||"]
RECIPE = """SELECT RecipeStep, IngredientName, IngredientQuantity, UofM, Preparation FROM Drinks
    JOIN DrinkRecipes USING (DrinkID) JOIN Ingredients USING (IngredientID) LEFT JOIN UnitsOfMeasure USING (UofMID)
    WHERE DrinkTypeID = (SELECT DrinkTypeID FROM DrinkTypes WHERE DrinkTypeName = 'Sour')
    AND UserModified = '1' ORDER BY RecipeStep"""

MEMBERS = "SELECT DrinkName FROM DrinkListXRef JOIN Drinks USING (DrinkID) ORDER BY DrinkName"
TO_BUY = """SELECT IngredientName FROM DrinkRecipes JOIN Ingredients USING (IngredientID) WHERE InBar = 0
    GROUP BY IngredientID ORDER BY COUNT(*) DESC"""
SETUP = "SELECT AppLeft, AppTop, AppWidth, AppHeight, UserOptions FROM Setup"


def LookAtWindow():
    left, top, width, height = pourbook.Place()
    menuHeight = PlaceOf(screen.Find("View"))[3]
    ExpectEqual((width, height - menuHeight), (750, 600), "size of the window's content")
    if not (0 <= left - 100 <= 10 and 0 <= top - 100 <= 40):
        raise AssertionError(f"the frame of the window should stand at 100, 100; its content is at {left}, {top}")
    ExpectEqual(pourbook.Drinks().Headings(), ["Rating", "Cocktail", "Ingredients"], "columns of a first run")
    pourbook.WaitForDrinks(library.Names(), "of the whole library")
    ground = Desktop.ColourAt(*pourbook.OnScreen(left + 300, top + menuHeight + 4))
    ExpectEqual(ground, "EFEFEF", "ground of the window, whatever the colours of the desktop")


def Search():
    pourbook.Click(screen.Find("Search drinks"))
    for typed in ("g", "gi", "gin"):
        Desktop.Type(typed[-1])
        pourbook.WaitForDrinks(library.Found(typed), f"for the search {typed!r}")


def Rate():
    """The first click only selects."""
    rating = f"SELECT IFNULL(UserRating, 'never') FROM Drinks WHERE DrinkName = '{RATED}'"
    row = pourbook.DrinkNames().index(RATED)
    pourbook.Click(pourbook.Drinks().Cell(row, 0), FOURTH_STAR)
    CheckRecipe(RATED, QUANTITIES, INGREDIENTS)
    ExpectEqual(library.Run(rating), ["never"], "rating after the click that selects")
    pourbook.Click(pourbook.Drinks().Cell(row, 0), FOURTH_STAR)
    WaitUntilEqual(lambda: library.Run(rating), ["4"], "rating in the file after the second click")


def CheckRecipe(drink, quantities, ingredients):
    WaitUntilEqual(lambda: pourbook.Text("Drink name"), drink, "drink in the recipe panel")
    for name, lines in (("Quantities", quantities), ("Ingredients", ingredients)):
        ExpectEqual(pourbook.Text(name).split("\n\n")[:-1], lines, name)


def DeclareBar():
    """The first row is ticked by mouse and let go again, the bar from the keyboard."""
    pourbook.Click(screen.Find("Choose the ingredients in your bar"))
    pourbook.WaitForFront("Ingredients In Your Bar")
    ingredients = List(screen.Find("All ingredients"))
    names = [ingredients.Cell(row, 1).name.strip() for row in range(WaitFor(ingredients.Count, "the ingredients"))]
    pourbook.Click(ingredients.Cell(0, 0))
    Desktop.Key("space")
    for before, row in itertools.pairwise([0, *sorted(map(names.index, BAR))]):
        Desktop.Xdotool("key", "--delay", "2", *["Down"] * (row - before), "space")
    pourbook.Click(screen.Find("Save"))
    WaitUntilEqual(pourbook.Bar, ["in stock " + name for name in sorted(BAR)], "bar in the panel")
    ExpectEqual(library.Bar(), pourbook.Bar(), "bar in the file")


def MatchToBar():
    """The drinks follow the bottles and the search."""
    pourbook.Click(screen.Find(MATCH))
    full = library.Names(MAKEABLE)
    pourbook.WaitForDrinks([name for name in full if name in library.Found("gin")], "from the bar, with gin")
    pourbook.Click(screen.Find("Search drinks"))
    Desktop.Xdotool("key", "ctrl+a", "BackSpace")
    pourbook.WaitForDrinks(full, "from the bar")

    bar = List(screen.Find("Ingredients in your bar"))
    pourbook.Click(bar.Cell(pourbook.Bar().index("in stock Gin"), 1))
    WaitFor(lambda: "empty Gin" in library.Bar(), "gin marked empty")
    withoutGin = library.Names(MAKEABLE)
    if not 0 < len(withoutGin) < len(full) < len(library.Names()):
        raise AssertionError(f"this bar makes a poor test: {full}, and {withoutGin} without gin")
    pourbook.WaitForDrinks(withoutGin, "without gin")
    Desktop.Key("space")
    pourbook.WaitForDrinks(full, "with gin again")
    pourbook.Click(screen.Find(MATCH))
    pourbook.WaitForDrinks(library.Names(), "without the match")


def MarkWhileHeld():
    """Another program is writing to the file just then."""
    before = library.Bar()
    holder = library.Hold()
    pourbook.Click(List(screen.Find("Ingredients in your bar")).Cell(0, 1))
    pourbook.Answer("An error occurred changing the ingredient status: database is locked")
    holder.communicate()
    WaitUntilEqual(screen.FocusedName, "Ingredients in your bar", "focus behind the message")
    ExpectEqual([pourbook.Bar(), library.Bar()], [before, before], "panel and file after the failure")


def MakeLists():
    pourbook.Click(screen.Find("Add a drinklist"))
    NameNewList(2, "Joe's")
    pourbook.Choose("File", "New Drinklist")
    NameNewList(3, "joe's")
    pourbook.Answer("You already have a Drinklist with that name.  Please select a different name.")
    NameNewList(3, "Sunday")
    WaitForLists(("Joe's", "0"), ("Sunday", ""))


def NameNewList(count, name):
    WaitUntilEqual(lambda: pourbook.Lists().Count(), count, "number of drinklists")
    pourbook.WaitForFront(TITLE)
    Desktop.Type(name)
    Desktop.Key("Return")


def WaitForLists(*rows):
    """Those below "All Drinks"."""
    lists = pourbook.Lists()
    WaitUntilEqual(lambda: [tuple(lists.Row(row)[1:]) for row in range(1, lists.Count())], [*rows], "drinklists")


def DragDrinks():
    """One, then five with that one among them; then the other list goes."""
    pourbook.Click(pourbook.Lists().Cell(0, 1))
    pourbook.WaitForDrinks(library.Names(), "of all lists")
    DragToSunday(2)
    WaitForLists(("Joe's", "0"), ("Sunday", "1"))
    pourbook.Click(pourbook.Drinks().Cell(0, 1))
    Desktop.Xdotool("keydown", "shift")
    pourbook.Click(pourbook.Drinks().Cell(4, 1))
    Desktop.Xdotool("keyup", "shift")
    DragToSunday(3)
    pourbook.Answer("You have previously added this drink to the selected drinklist")
    WaitForLists(("Joe's", "0"), ("Sunday", "5"))

    pourbook.Click(pourbook.Lists().Cell(1, 1))
    pourbook.WaitForDrinks([], "of an empty list")
    Desktop.Key("Delete")
    pourbook.Answer("Are you sure you want to remove this Drinklist?", "Yes")
    WaitForLists(("Sunday", "5"))
    ExpectEqual(library.Run(MEMBERS), library.Names()[:5], "drinks of the list in the file")


def DragToSunday(row):
    pourbook.Drag(pourbook.Drinks().Cell(row, 1), pourbook.Lists().Cell(2, 1))


def WriteRecipe():
    """Without the mouse."""
    Desktop.Key("ctrl+n")
    for field, text in FORM:
        WaitUntilEqual(screen.FocusedName, field, "field with the keyboard")
        Desktop.Type(text)
        Desktop.Key("Tab")
    grid = List(screen.Find("Ingredients of the recipe"))
    for place, cells in enumerate(ROWS):
        WaitUntilEqual(grid.Count, place + 1, "number of rows")
        for column, text in enumerate(cells):
            Desktop.Type(text)
            Desktop.Key("Return" if (place + 1, column + 1) == (len(ROWS), len(cells)) else "Tab")
    Desktop.Xdotool("key", "Tab", "Tab")
    WaitUntilEqual(screen.FocusedName, "Add Recipe", "button with the keyboard")
    Desktop.Key("space")
    CheckRecipe(WRITTEN, SHOWN, [line.split("|")[1] for line in STORED])
    ExpectEqual(library.Run(RECIPE), STORED, "recipe in the file")
    cell = pourbook.Drinks().Cell(pourbook.DrinkNames().index(WRITTEN), 1)
    ExpectEqual(Has(cell, screen.atspi.STATE_SELECTED), True, "its row is selected")


def DeleteDrink():
    """One that stands in the list."""
    names = library.Names()
    pourbook.WaitForFront(TITLE)
    pourbook.Click(pourbook.Drinks().Cell(pourbook.DrinkNames().index(WRITTEN), 1))
    Desktop.Key("Home")
    WaitUntilEqual(lambda: pourbook.Text("Drink name"), names[0], "first drink")
    Desktop.Key("Delete")
    pourbook.Answer("Are you sure you want to delete the selected drink(s)?", "Yes")
    pourbook.WaitForDrinks(names[1:], "after the first was deleted")
    WaitForLists(("Sunday", "4"))
    ExpectEqual([library.Names(), library.Run(MEMBERS)], [names[1:], names[1:5]], "drinks in the file")


def SeeWhatToBuy():
    pourbook.Choose("Ingredients", "Recommend Ingredients To Buy")
    pourbook.WaitForFront("Ingredient Recommendations")
    names = library.Run(TO_BUY)
    box = WaitFor(lambda: next(element for element in screen.All() if element.name.startswith(names[0] + "\n")),
                  "the ingredient that most recipes lack")
    ExpectEqual(sorted(box.name.splitlines()), sorted(names), "ingredients to buy")
    Desktop.Key("alt+F4")
    pourbook.WaitForFront(TITLE)


def ReadHelp():
    pourbook.Choose("Help", "Pourbook Help")
    pourbook.WaitForFront("Tipplewise Pourbook Help")
    pourbook.Click(screen.Find("About drink ratings"))
    WaitFor(lambda: [element for element in screen.All() if "The dots will turn to stars." in element.name], "the text")
    pourbook.Click(screen.Find("Return to help topics"))
    WaitFor(lambda: screen.Find("How to use drinklists"), "the topics")
    Desktop.Key("alt+F4")
    pourbook.WaitForFront(TITLE)


def Arrange():
    """Gives the place to which the window was moved, in part off the screen."""
    pourbook.Choose("View", "Show Glass Column")
    WaitUntilEqual(lambda: pourbook.Drinks().Headings()[-1], "Glass", "last column")
    before = pourbook.Place()
    Desktop.Xdotool("getactivewindow", "windowmove", "--", *map(str, pourbook.OnScreen(-60, -40)))
    return WaitFor(pourbook.Place, "the window to move", lambda seen: seen != before)


def FindAllAgain(place):
    WaitFor(pourbook.Place, f"the window near {place}", lambda seen: all(abs(a - b) <= 1 for a, b in zip(seen, place)))
    pourbook.WaitForDrinks(library.Names(), "of the next evening")
    drinks = pourbook.Drinks()
    ExpectEqual(drinks.Headings(), ["Rating", "Cocktail", "Ingredients", "Glass"], "columns")
    names = pourbook.DrinkNames()
    ExpectEqual([drinks.Cell(names.index(RATED), 0).name, WRITTEN in names], ["4 of 5 stars", True], "rating, recipe")
    WaitForLists(("Sunday", "4"))
    ExpectEqual(pourbook.Bar(), library.Bar(), "bar")


def FailToSetUp():
    """A start that tells why it cannot go on, and ends."""
    parent = os.path.dirname(home.userFolder)
    shutil.rmtree(parent)
    open(parent, "w").close()
    pourbook = Pourbook(desktop, home)
    title, words = WaitFor(pourbook.screen.Message, "the message")
    ExpectEqual(title, "Setup Error", "its title")
    pourbook.Answer("An error occurred attempting to create a user specific database in the folder  "
                    f"'{home.userFolder}'")
    pourbook.ExpectEnd()


with Desktop.Desktop(sys.argv[1]) as desktop:
    home = Home(desktop, "Büro Gäste/Zoë's home")
    library = home.library
    pourbook = Pourbook(desktop, home).WaitForWindow()
    screen = pourbook.screen
    for deed in (LookAtWindow, Search, Rate, DeclareBar, MatchToBar, MarkWhileHeld, MakeLists, DragDrinks, WriteRecipe,
                 DeleteDrink, SeeWhatToBuy, ReadHelp):
        deed()
        if "pictures" in sys.argv:
            desktop.Picture(f"{sys.argv[1]}-{deed.__name__}")
    place = Arrange()
    pourbook.Close()
    setup = library.Run(SETUP)
    # A frame may be half a pixel wide.
    ExpectEqual(setup[0] in ("-60|-40|750|600|V02V01V04V05", "-61|-40|750|600|V02V01V04V05"), True, f"Setup row {setup}")

    pourbook = Pourbook(desktop, home).WaitForWindow()
    FindAllAgain(place)
    pourbook.Close()
    ExpectEqual(library.Run(SETUP), setup, "Setup row of the second evening")
    FailToSetUp()

"""A recipe of the user's own, written, saved and found without the mouse."""

import Desktop
from Pourbook import ExpectEqual, Home, Pourbook
from Screen import Has, List
from Waiting import WaitUntilEqual

NAME = "Garden Gimlet"
FORM = (("Name of the drink", NAME), ("Instructions", "Shake with ice and strain."), ("Drink type", "sou"),
        ("Glass", "cockt"))
ROWS = (("gin", "1.5", "o", ""), ("lime j", "0.75", "oz", "fresh"), ("simple", "0.5", "oz", ""),
        ("maras", "0.25", "ts", ""), ("angos", "2", "dash", ""), ("my own bitters", "1/3", "", ""))
STORED = ["1|Gin|1.5|oz|", "2|Lime Juice|0.75|oz|fresh", "3|Simple Syrup|0.5|oz|", "4|Maraschino Liqueur|0.25|tsp|",
          "5|Angostura Bitters|2|dash|", "6|My own bitters|||"]
SELECT = """SELECT RecipeStep, IngredientName, IngredientQuantity, UofM, Preparation FROM Drinks
    JOIN DrinkRecipes USING (DrinkID) JOIN Ingredients USING (IngredientID) LEFT JOIN UnitsOfMeasure USING (UofMID)
    WHERE DrinkTypeID = (SELECT DrinkTypeID FROM DrinkTypes WHERE DrinkTypeName = 'Sour')
    AND UserModified = '1' ORDER BY RecipeStep"""


def Write(screen):
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
    Desktop.Key("Tab")
    WaitUntilEqual(screen.FocusedName, "Add Recipe", "button with the keyboard")
    Desktop.Key("space")


with Desktop.Desktop() as desktop:
    home = Home(desktop)
    pourbook = Pourbook(desktop, home).WaitForWindow()
    Write(pourbook.screen)
    WaitUntilEqual(lambda: pourbook.Text("Drink name"), NAME, "drink in the recipe panel")
    ExpectEqual(home.library.Run(SELECT), STORED, "recipe in the file")
    quantities = pourbook.Text("Quantities").split("\n\n")[:-1]
    ExpectEqual(quantities, ["1 1/2 oz -", "3/4 oz -", "1/2 oz -", "1/4 tsp -", "2 dash -", "  -"], "quantities")
    row = pourbook.DrinkNames().index(NAME)
    ExpectEqual(Has(pourbook.Drinks().Cell(row, 1), pourbook.screen.atspi.STATE_SELECTED), True, "its row is selected")
    pourbook.Close()

"""The user's file, read and changed with the stock command line shell of the database, and what it should show."""

import os
import subprocess

KEY = "MerryMead246"

# Gin alone is asked for by its generic name; the rum and the whiskey here are kinds of what recipes ask for.
BAR = ["Gin", "White Rum", "Bourbon", "Campari", "Sweet Vermouth", "Lime Juice", "Lemon Juice", "Simple Syrup",
       "Soda Water", "Tonic Water", "Angostura Bitters"]

# All required ingredients of a drink are at home, each ingredient with all that it is a kind of.
MAKEABLE = """NOT EXISTS (
    WITH RECURSIVE Bar(Id) AS (
        SELECT IngredientID FROM Ingredients WHERE InBar = 1 AND Empty = 0
        UNION SELECT IngredientParentID FROM Ingredients JOIN Bar ON IngredientID = Id
        WHERE IngredientParentID IS NOT NULL)
    SELECT 1 FROM DrinkRecipes AS R
    WHERE R.DrinkID = Drinks.DrinkID AND Required <> 0 AND IngredientID NOT IN (SELECT Id FROM Bar))"""


class Library:
    def __init__(self, path):
        self.path = path

    def Run(self, statement):
        # No error of the shell may pass for an empty answer, and it must not make the file that it is to look into.
        if not os.path.exists(self.path):
            raise AssertionError(f"there is no file {self.path}")
        shell = subprocess.run(["sqlcipher", "-batch", "-bail", self.path],
                               input=f"PRAGMA key='{KEY}';\n{statement};\n", capture_output=True, text=True)
        if shell.returncode != 0 or shell.stderr:
            raise AssertionError(f"{statement}: {shell.stderr}")
        return shell.stdout.splitlines()

    def Names(self, where="1"):
        return self.Run(f"SELECT DrinkName FROM Drinks WHERE {where} ORDER BY DrinkName")

    def Found(self, search):
        return self.Names(f"DrinkName LIKE '%{search}%' OR IngredientList LIKE '%{search}%'")

    def Bar(self):
        """The ingredients at home, each with what a screen reader says of its bottle."""
        return self.Run("SELECT CASE Empty WHEN 1 THEN 'empty ' ELSE 'in stock ' END || IngredientName "
                        "FROM Ingredients WHERE InBar = 1 ORDER BY IngredientName")

    def Hold(self):
        """Keeps others from writing until the process that is returned ends, which it does with its input."""
        holder = subprocess.Popen(["sqlcipher", "-batch", self.path], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                  text=True)
        holder.stdin.write(f"PRAGMA key='{KEY}';\nBEGIN IMMEDIATE;\nSELECT 'held';\n")
        holder.stdin.flush()
        if holder.stdout.readline() != "held\n":
            raise AssertionError("the file could not be held")
        return holder

"""The user's file, read and changed with the stock command line shell of the database, and what it should show."""

import os
import subprocess
import unicodedata

KEY = "MerryMead246"


class Library:
    def __init__(self, path):
        self.path = path

    def Run(self, statement):
        # No error of the shell may pass for an empty answer, and it must not make the file that it is to look into.
        if not os.path.exists(self.path):
            raise AssertionError(f"there is no file {self.path}")
        shell = subprocess.run(["sqlcipher", "-batch", "-bail", "-separator", "\x1f", "-newline", "\x1e", self.path],
                               input=f"PRAGMA key='{KEY}';\n{statement};\n", capture_output=True, text=True)
        if shell.returncode != 0 or shell.stderr:
            raise AssertionError(f"{statement}: {shell.stderr}")
        rows = shell.stdout.split("\x1e")[:-1]
        return [tuple(row.split("\x1f")) for row in rows]

    def Value(self, statement):
        return self.Run(statement)[0][0]

    def Names(self, where="1"):
        return [row[0] for row in self.Run(f"SELECT DrinkName FROM Drinks WHERE {where} ORDER BY DrinkName")]

    def Found(self, search):
        """The names of the drinks that a search finds, worked out without the engine's LIKE."""
        rows = self.Run("SELECT DrinkName, IngredientList FROM Drinks ORDER BY DrinkName")
        return [name for name, ingredients in rows
                if Folded(search) in Folded(name) or Folded(search) in Folded(ingredients)]


def Folded(text):
    """Without case and accents."""
    return "".join(c for c in unicodedata.normalize("NFD", text) if not unicodedata.combining(c)).casefold()

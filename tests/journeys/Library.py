"""The user's file, read and changed with the stock command line shell of the database, and what it should show."""

import os
import subprocess

KEY = "MerryMead246"


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

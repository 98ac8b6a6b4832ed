"""What a user's file must hold, worked out apart from the program: the statements that each operation stands for, run
on a copy in memory."""

import difflib
import itertools
import sqlite3

DRINK = "(SELECT DrinkID FROM Drinks WHERE DrinkName = :drink)"
LIST = "(SELECT DrinkListID FROM DrinkLists WHERE DrinkListName = :list)"

MEMBER = f"DrinkListID = {LIST} AND DrinkID = {DRINK}"
ONE_STATEMENT = {
    "rate": f"UPDATE Drinks SET UserRating = :stars WHERE DrinkID = {DRINK}",
    "flip bottle": "UPDATE Ingredients SET Empty = :empty WHERE IngredientID = :ingredient",
    "new list": "INSERT INTO DrinkLists (DrinkListName) VALUES (:name)",
    "rename list": f"UPDATE DrinkLists SET DrinkListName = :name WHERE DrinkListID = {LIST}",
    "close": "UPDATE Setup SET AppLeft = :left, AppTop = :top, AppWidth = :width, AppHeight = :height, "
             "UserOptions = :options",
}

# The day of the last look for a new version is no part of what the user made.
LEFT_OUT = {"LastUpdateCheck"}

# The same by names: two programs that write in turn give the ids in an order that nobody can foresee. The bar is left
# out too, because both write it.
BY_NAME = """
    SELECT DrinkName, DrinkTypeID, GlassTypeID, IngredientCount, IngredientList, UserRating, UserModified FROM Drinks
        ORDER BY 1;
    SELECT DrinkName, RecipeStep, IngredientName, IngredientQuantity, UofMID, Required FROM DrinkRecipes
        LEFT JOIN Drinks USING (DrinkID) LEFT JOIN Ingredients USING (IngredientID) ORDER BY 1, 2;
    SELECT 'list', DrinkListName FROM DrinkLists ORDER BY 2;
    SELECT DrinkListName, DrinkName FROM DrinkListXRef LEFT JOIN DrinkLists USING (DrinkListID)
        LEFT JOIN Drinks USING (DrinkID) ORDER BY 1, 2;
    SELECT 'ingredient', IngredientName FROM Ingredients ORDER BY 2"""

# No row without what it belongs to, and no ingredient that no recipe names.
ORPHANS = """
    SELECT 'recipe row', DrinkID, IngredientID FROM DrinkRecipes WHERE DrinkID NOT IN (SELECT DrinkID FROM Drinks)
        OR IngredientID NOT IN (SELECT IngredientID FROM Ingredients);
    SELECT 'member', DrinkListID, DrinkID FROM DrinkListXRef WHERE DrinkID NOT IN (SELECT DrinkID FROM Drinks)
        OR DrinkListID NOT IN (SELECT DrinkListID FROM DrinkLists)"""


def Difference(expected, seen):
    return "\n".join(list(difflib.unified_diff(expected, seen, "expected", "seen", n=0, lineterm=""))[:20])


def Names(operation):
    return {operation.get("drink"), operation.get("list"), operation.get("name"), *operation.get("drinks", ())} - {None}


class Finding(Exception):
    """The program did not keep a promise."""


class Mirror:
    def __init__(self, library):
        self.db = sqlite3.connect(":memory:", isolation_level=None)
        self.db.executescript("\n".join(library.Run(".dump\n--")))
        self.view = "; ".join(
            f"SELECT '{table}', {', '.join(f'quote({row[1]})' for row in columns if row[1] not in LEFT_OUT)} "
            f"FROM {table} ORDER BY rowid"
            for table, columns in [(name, self.Rows(f"PRAGMA table_info({name})"))
                                   for name, in self.Rows("SELECT name FROM sqlite_master WHERE type = 'table'")])

    def Rows(self, statement, values=()):
        return self.db.execute(statement, values).fetchall()

    def View(self, selects=None):
        """As the shell prints it."""
        rows = [row for select in (selects or self.view).split(";") for row in self.Rows(select)]
        return "\n".join("|".join("" if cell is None else str(cell) for cell in row) for row in rows).split("\n")

    def Do(self, statements):
        for statement, values in statements:
            self.db.execute(statement, values)

    def Matches(self, seen, statements):
        """Runs as many of the statements as it takes to come to what was seen. Gives their number, or None."""
        for done in itertools.count():
            if self.View() == seen:
                return done
            statement = next(statements, None)
            if statement is None:
                return None
            self.Do([statement])

    def CheckByName(self, library, operations):
        """Does what was done, in the order in which it was, and compares. What an operation touched that did not end
        in peace is left out, because any part of it may have been done."""
        uncertain = set()
        for operation in sorted(operations, key=lambda operation: operation["done"]):
            if operation["messages"] or Names(operation) & uncertain:
                uncertain |= Names(operation)
            else:
                self.Do(self.Statements(operation))

        def Certain(rows):
            return [row for row in rows
                    if not (uncertain and row.startswith("ingredient|")) and not any(name in row for name in uncertain)]

        expected, seen = Certain(self.View(BY_NAME)), Certain(library.Run(BY_NAME))
        if seen != expected:
            raise Finding("by name:\n" + Difference(expected, seen))
        if library.Run("PRAGMA integrity_check") != ["ok"]:
            raise Finding("the file is corrupt")
        if not uncertain and library.Run(ORPHANS):
            raise Finding(f"left alone: {library.Run(ORPHANS)}")

    def Statements(self, line):
        """The statements of an operation of a worker, each made when its turn comes."""
        operation = line["begin"]
        if operation in ONE_STATEMENT:
            yield ONE_STATEMENT[operation], line
        elif operation == "fill bar":
            yield "UPDATE Ingredients SET InBar = 0, Empty = 0", ()
            for ingredient in line["ingredients"]:
                yield "UPDATE Ingredients SET InBar = 1 WHERE IngredientID = ?", (ingredient,)
        elif operation == "delete list":
            yield f"DELETE FROM DrinkListXRef WHERE DrinkListID = {LIST}", line
            yield "DELETE FROM DrinkLists WHERE DrinkListName = :list", line
        elif operation == "write recipe":
            yield from self.Recipe(line)
        for drink in line.get("drinks", ()):
            pair = dict(line, drink=drink)
            if operation == "delete drinks":
                yield from self.Deletion(pair)
            elif operation == "take out drinks":
                yield f"DELETE FROM DrinkListXRef WHERE {MEMBER}", pair
            elif not self.Rows(f"SELECT 1 FROM DrinkListXRef WHERE {MEMBER}", pair):
                yield f"INSERT INTO DrinkListXRef (DrinkListID, DrinkID) VALUES ({LIST}, {DRINK})", pair

    def Recipe(self, line):
        rows = line["rows"]
        yield ("""INSERT INTO Drinks (DrinkName, DrinkInstruction, DrinkTypeID, GlassTypeID, IngredientCount,
                IngredientList, UserModified)
            SELECT ?, '', DrinkTypeID, GlassTypeID, ?, ?, '1' FROM DrinkTypes, GlassTypes
            WHERE DrinkTypeName = 'Sour' AND GlassTypeName = 'Cocktail'""",
               (line["drink"], len(rows), ", ".join(row[0] for row in rows)))
        for step, (name, quantity, unit) in enumerate(rows, 1):
            yield "INSERT INTO Ingredients (IngredientName, InBar, Empty) VALUES (?, '0', '0')", (name,)
            yield (f"""INSERT INTO DrinkRecipes
                (DrinkID, IngredientID, RecipeStep, IngredientQuantity, UofMID, Required)
                VALUES ({DRINK}, (SELECT MAX(IngredientID) FROM Ingredients), :step, :quantity,
                    (SELECT UofMID FROM UnitsOfMeasure WHERE UofM = :unit), 1)""",
                   dict(line, step=step, quantity=quantity, unit=unit))

    def Deletion(self, name):
        ingredients = self.Rows(f"SELECT IngredientID FROM DrinkRecipes WHERE DrinkID = {DRINK}", name)
        drinkID = self.Rows("SELECT DrinkID FROM Drinks WHERE DrinkName = :drink", name)[0]
        for table in ("DrinkRecipes", "Drinks", "DrinkListXRef"):
            yield f"DELETE FROM {table} WHERE DrinkID = ?", drinkID
        for ingredient in ingredients:
            if not self.Rows("SELECT 1 FROM DrinkRecipes WHERE IngredientID = ?", ingredient):
                yield "DELETE FROM Ingredients WHERE IngredientID = ?", ingredient

"""The real program in its real window."""

import os
import shutil

import Desktop
from Library import Library
from Screen import List, PlaceOf, Screen
from Waiting import WaitFor, WaitUntilEqual

PROGRAM = os.environ["POURBOOK_PROGRAM"]  # a link into the program's own tree
TREE = os.path.dirname(os.path.dirname(os.path.realpath(PROGRAM)))
SEED = os.path.join(TREE, "Resources", "drinkdb.rsd")
TITLE = "Tipplewise Pourbook"
MATCH = "Match list of cocktails to ingredients in your bar"


class Home:
    """A user's data folder, which holds nothing before the program's first start."""

    def __init__(self, desktop, name="home"):
        self.path = os.path.join(desktop.folder.name, name)
        os.makedirs(self.path)
        self.userFolder = os.path.join(self.path, "Application Support", TITLE)
        self.file = os.path.join(self.userFolder, "drinkdb.rsd")
        self.library = Library(self.file)

    def GivenLibrary(self):
        """As after a first start that was never closed."""
        os.makedirs(self.userFolder)
        shutil.copy(SEED, self.file)
        return self.library


class Pourbook:
    def __init__(self, desktop, home, *command, **options):
        self.scale = desktop.scale
        environment = dict(os.environ, XDG_DATA_HOME=home.path,
                           LSAN_OPTIONS="print_suppressions=0:suppressions=" + os.environ["LEAK_SUPPRESSIONS"])
        self.process = desktop.Run(*(command or [PROGRAM]), env=environment, **options)
        self.screen = Screen(self.process.pid)

    def WaitForWindow(self):
        WaitFor(lambda: self.Drinks().Count() > 0, "the main window with drinks")
        self.WaitForKeyboard()
        self.WaitForFront(TITLE)
        return self

    def WaitForFront(self, title):
        WaitUntilEqual(lambda: Desktop.Xdotool("getactivewindow", "getwindowname"), title, "window with the keyboard")

    def WaitForKeyboard(self):
        """A window takes keys only once the window manager has made it the active one."""
        WaitUntilEqual(lambda: Desktop.Xdotool("getactivewindow", "getwindowpid"), str(self.process.pid),
                       "process with the keyboard")

    def Place(self):
        """Left, top, width and height of the content with its menu bar, without the frame."""
        return PlaceOf(self.screen.Find(TITLE))

    def Drinks(self):
        return List(self.screen.Find("Drinks"))

    def DrinkNames(self):
        drinks = self.Drinks()
        return [drinks.Cell(row, 1).name for row in range(drinks.Count())]

    def Lists(self):
        return List(self.screen.Find("Drinklists", self.screen.atspi.ROLE_TABLE))

    def Bar(self):
        """The ingredients at home, each after what its bottle is."""
        bar = List(self.screen.Find("Ingredients in your bar"))
        return [" ".join(bar.Row(row)) for row in range(bar.Count())]

    def Text(self, name):
        return self.screen.Find(name, self.screen.atspi.ROLE_TEXT).queryText().getText(0, -1)

    def Click(self, element, x=None):
        """Presses the mouse in the middle of an element, or `x` pixels from its left edge."""
        left, top, width, height = PlaceOf(element)
        Desktop.ClickAt(*self.OnScreen(left + (width // 2 if x is None else x), top + height // 2))

    def Drag(self, start, end):
        Desktop.Drag(*(self.OnScreen(*PlaceOf(element)[:2]) for element in (start, end)))

    def OnScreen(self, *place):
        """The bus and the program measure in pixels of the program."""
        return [int(measure * self.scale) for measure in place]

    def Choose(self, menu, item):
        self.Click(self.screen.Find(menu, self.screen.atspi.ROLE_MENU_ITEM))
        self.Click(WaitFor(lambda: self.screen.Find(item, self.screen.atspi.ROLE_MENU_ITEM), f"the item {item!r}"))

    def Answer(self, words, button="OK"):
        """By mouse: the keyboard follows the message only when the window manager comes round to it."""
        WaitFor(lambda: words in self.screen.Message()[1], "the message " + words)
        self.Click(self.screen.Find(button, self.screen.atspi.ROLE_PUSH_BUTTON))

    def WaitForDrinks(self, names, what):
        """The list must come to hold these, in this order."""
        WaitUntilEqual(lambda: self.Drinks().Count(), len(names), "number of drinks " + what)
        WaitUntilEqual(self.DrinkNames, names, "drinks " + what)

    def Close(self):
        """Closes the window as a person would."""
        Desktop.Key("alt+F4")
        self.ExpectEnd()

    def ExpectEnd(self):
        ExpectEqual(self.process.wait(timeout=20), 0, "exit status")


def ExpectEqual(seen, expected, what):
    if seen != expected:
        raise AssertionError(f"{what}: expected {expected!r}, but saw {seen!r}")

"""Starts that cannot succeed: each tells why, ends with status 0 and leaves nothing half done."""

import os
import re
import resource
import shutil

import Desktop
from OrdinaryUser import Install, LeaveRoot
from Pourbook import PROGRAM, TITLE, ExpectEqual, Home, Pourbook
from Waiting import WaitFor

CANNOT_OPEN = r"Could not open database\.  "
CANNOT_SET_UP = "An error occurred attempting to create a user specific database in the folder  '{userFolder}'"
OTHER_VERSION = f"Your drink library was made by another version of {TITLE}, and this version cannot open it\\."


def EncryptWithOtherKey(home, install):
    home.GivenLibrary().Run("PRAGMA rekey='PoorMead1357'")


def TakeAwayFile(home, install):
    os.makedirs(home.userFolder)


def Truncate(home, install):
    home.GivenLibrary()
    # Within a page, so that what is left is no smaller database.
    os.truncate(home.file, os.path.getsize(home.file) // 2 + 100)


def Empty(home, install):
    home.GivenLibrary()
    os.truncate(home.file, 0)


def ForbidWriting(home, install):
    os.chmod(home.path, 0o555)


def TakeAwaySeed(home, install):
    shutil.rmtree(os.path.join(install, "Resources"))


def SetVersion(version):
    return lambda home, install: home.GivenLibrary().Run(f"UPDATE Setup SET DBVersion = {version}")


def NoChange(home, install):
    pass


def FillDisk():
    """Runs in the new process: it cannot write a file as large as the library, and is told so by the system. The signal
    that comes with it is ignored by this interpreter, and so by the program it starts."""
    resource.setrlimit(resource.RLIMIT_FSIZE, (65536, 65536))


CASES = [
    # name, what is wrong, the message, its title
    ("another key", EncryptWithOtherKey, CANNOT_OPEN + r"\S", None),
    ("folder without file", TakeAwayFile, CANNOT_OPEN + "unable to open", None),
    ("truncated file", Truncate, CANNOT_OPEN + r"\S", None),
    ("empty file", Empty, CANNOT_OPEN + r"\S", None),
    ("no rights", ForbidWriting, CANNOT_SET_UP, "Setup Error"),
    ("full disk", NoChange, CANNOT_SET_UP, "Setup Error"),
    ("no seed", TakeAwaySeed, CANNOT_SET_UP, "Setup Error"),
    ("older library", SetVersion(1), OTHER_VERSION, None),
    ("newer library", SetVersion(3), OTHER_VERSION, None),
]


def FilesUnder(folder):
    """Every file with its content, so that a change shows."""
    found = {}
    for path, _, names in os.walk(folder):
        for name in names:
            with open(os.path.join(path, name), "rb") as file:
                found[os.path.join(path, name)] = file.read()
    return found


def Message(pourbook):
    """The words of the message box and its title, once it is there."""
    alert = pourbook.screen.atspi.ROLE_ALERT
    box = next(element for element in pourbook.screen.All() if element.getRole() == alert)
    labels = [child.name for child in box if child.getRole() == pourbook.screen.atspi.ROLE_LABEL and child.name]
    return labels, box.name


def Check(desktop, number, name, damage, message, title):
    home = Home(desktop, f"home{number}")
    install = os.path.join(desktop.folder.name, f"install{number}")
    program = Install(PROGRAM, install)
    damage(home, install)
    before = FilesUnder(home.path)

    options = {"preexec_fn": FillDisk, "restore_signals": False} if name == "full disk" else {}
    pourbook = Pourbook(desktop, home, program, **options)
    labels, seenTitle = WaitFor(lambda: Message(pourbook), "the message: " + name)
    expected = message.format(userFolder=re.escape(home.userFolder))
    if not any(re.match(expected, label) for label in labels):
        raise AssertionError(f"{name}: expected {expected!r}, but saw {labels!r}")
    if title is not None:
        ExpectEqual(seenTitle, title, "title: " + name)

    pourbook.WaitForKeyboard()
    Desktop.Key("Return")
    ExpectEqual(pourbook.ExitStatus(), 0, "exit status: " + name)
    ExpectEqual(FilesUnder(home.path) == before, True, "the user's files are as they were: " + name)
    if message == CANNOT_SET_UP:
        # A folder without a file would keep the next start from trying again.
        ExpectEqual(os.path.exists(home.userFolder), False, "a user's folder is left: " + name)
    print(f"{name}: {labels}")


LeaveRoot(__file__)
with Desktop.Desktop() as desktop:
    for place, case in enumerate(CASES):
        Check(desktop, place, *case)

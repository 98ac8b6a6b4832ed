"""Starts that cannot succeed: each tells why, ends with status 0 and leaves nothing half done."""

import os
import pathlib
import re
import resource
import shutil

import Desktop
from Pourbook import TREE, ExpectEqual, Home, Pourbook
from Waiting import WaitFor

CANNOT_OPEN = r"Could not open database\.  "
CANNOT_SET_UP = "An error occurred attempting to create a user specific database in the folder  '{userFolder}'"


def Change(statement):
    return lambda home, install: home.GivenLibrary().Run(statement)


def TakeAwayFile(home, install):
    os.makedirs(home.userFolder)


def ForbidWriting(home, install):
    os.chmod(home.path, 0o555)


def TakeAwaySeed(home, install):
    shutil.rmtree(os.path.join(install, "Resources"))


def FillDisk():
    """Runs in the new process: it cannot write a file as large as the library, and is told so by the system. The signal
    that comes with it is ignored by this interpreter, and so by the program it starts."""
    resource.setrlimit(resource.RLIMIT_FSIZE, (65536, 65536))


CASES = [
    # name, what is wrong, the message
    ("another key", Change("PRAGMA rekey='PoorMead1357'"), CANNOT_OPEN + r"\S"),
    ("folder without file", TakeAwayFile, CANNOT_OPEN + "unable to open"),
    ("no rights", ForbidWriting, CANNOT_SET_UP),
    ("full disk", lambda home, install: None, CANNOT_SET_UP),
    ("no seed", TakeAwaySeed, CANNOT_SET_UP),
]


def FilesUnder(folder):
    """Every file with its content, so that a change shows."""
    return {path: path.read_bytes() for path in pathlib.Path(folder).rglob("*") if path.is_file()}


def Launch(desktop, home, program, name):
    if name == "full disk":
        return Pourbook(desktop, home, program, preexec_fn=FillDisk, restore_signals=False)
    if name == "no rights" and os.geteuid() == 0:
        # Root passes every check of rights, unless it lays its capabilities down.
        return Pourbook(desktop, home, "setpriv", "--bounding-set=-all", program)
    return Pourbook(desktop, home, program)


def Check(desktop, number, name, damage, message):
    home = Home(desktop, f"home{number}")
    install = os.path.join(desktop.folder.name, f"install{number}")
    program = os.path.join(shutil.copytree(TREE, install), "bin", "pourbook")
    damage(home, install)
    before = FilesUnder(home.path)

    pourbook = Launch(desktop, home, program, name)
    title, words = WaitFor(pourbook.screen.Message, "the message: " + name)
    expected = message.format(userFolder=re.escape(home.userFolder))
    if not any(re.match(expected, line) for line in words):
        raise AssertionError(f"{name}: expected {expected!r}, but saw {words!r}")

    pourbook.Click(pourbook.screen.Find("OK", pourbook.screen.atspi.ROLE_PUSH_BUTTON))
    pourbook.ExpectEnd()
    ExpectEqual(FilesUnder(home.path) == before, True, "the user's files are as they were: " + name)
    if message == CANNOT_SET_UP:
        ExpectEqual(title, "Setup Error", "title: " + name)
        # A folder without a file would keep the next start from trying again.
        ExpectEqual(os.path.exists(home.userFolder), False, "a user's folder is left: " + name)


with Desktop.Desktop() as desktop:
    for place, case in enumerate(CASES):
        Check(desktop, place, *case)

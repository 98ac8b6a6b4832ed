"""A newer version on the vendor's web site: the notice, the way to the download page, and the day that is stored."""

import datetime
import os
import socket

import Desktop
from Pourbook import TITLE, ExpectEqual, Home, Pourbook
from Screen import PlaceOf
from VersionSite import VersionSite
from Waiting import WaitFor, WaitUntilEqual


def PutBrowser(folder):
    """Stands where the system's command for it is looked for, and writes the page down in the file that this gives."""
    page, command = os.path.join(folder, "page"), os.path.join(folder, "xdg-open")
    with open(command, "w") as file:
        file.write(f'#!/bin/sh\nprintf %s "$1" > {page}\n')
    os.chmod(command, 0o755)
    os.environ["PATH"] = folder + ":" + os.environ["PATH"]
    return page


def QuitWhileTheSiteIsSilent(desktop):
    """The user's keys count during the wait, not only once the mouse moves."""
    with socket.create_server(("127.0.0.1", 0)) as silent:
        home = Home(desktop, "silent")
        pourbook = Pourbook(desktop, home, os.environ["POURBOOK_AT"], f"127.0.0.1:{silent.getsockname()[1]}")
        pourbook.WaitForWindow()
        Desktop.Key("ctrl+q")
        pourbook.ExpectEnd()
        ExpectEqual(home.library.Run("SELECT LastUpdateCheck IS NULL FROM Setup"), ["1"], "no day of a check")


with Desktop.Desktop("German") as desktop:
    page = PutBrowser(desktop.folder.name)
    site = VersionSite("9.9.9").name

    home = Home(desktop)
    pourbook = Pourbook(desktop, home, os.environ["POURBOOK_AT"], site)
    notice = WaitFor(lambda: PlaceOf(pourbook.screen.Find("Pourbook Update Available")), "the notice")
    left, top, width, _ = pourbook.Place()
    ExpectEqual(notice, (left + (width - 300) // 2, top + 100, 300, 350), "place of the notice")
    today = datetime.date.today()
    WaitUntilEqual(lambda: home.library.Run("SELECT LastUpdateCheck FROM Setup"),
                   [f"{today.year}-{today.month}-{today.day}"], "day of the check")

    pourbook.WaitForKeyboard()
    Desktop.Key("Return")
    WaitUntilEqual(lambda: open(page).read(), f"http://{site}/download.html", "page in the browser")
    pourbook.WaitForFront(TITLE)
    pourbook.Close()

    QuitWhileTheSiteIsSilent(desktop)

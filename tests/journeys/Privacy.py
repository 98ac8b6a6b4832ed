"""What leaves the program, seen from outside: each connection, each write to a file and each new file, in an evening
and in a save that is killed. Only the one request goes out, nothing of the library is written in plain, and nobody
else may read what is written."""

import os
import re

import Desktop
from Library import KEY
from Pourbook import PROGRAM, ExpectEqual, Home, Pourbook
from VersionSite import VersionSite
from Waiting import WaitFor, WaitUntilEqual

# Of the user, of the library, and what opens the file.
WORDS = ["Zanzibar", "Quokka", "Maraschino", "CREATE TABLE", "DrinkName", KEY]
REQUEST = "GET /pourbook/pb1_latestversion.txt HTTP/1.0\r\nAccept: */*\r\nAccept-Language: en\r\nHost: {}\r\n\r\n"


class Trace:
    """A run of the program, with all that the system was asked for."""

    def __init__(self, desktop, home, site, *options):
        self.path = home.path + ".trace"
        # Detached, so that the process is the program's own.
        self.pourbook = Pourbook(desktop, home, "strace", "-D", "-f", "-y", "-s", "200000", "-o", self.path, "-e",
                                 "trace=connect,bind,openat,write,writev,pwrite64,pwritev,mmap,mkdir", *options,
                                 os.environ["POURBOOK_AT"], site.name)

    def Lines(self, pattern):
        WaitFor(lambda: re.search(r"^\d+ +\+\+\+ (exited|killed)", self.text(), re.M), "the end of the trace")
        return re.findall(pattern, self.text(), re.M)

    def text(self):
        with open(self.path, encoding="latin-1") as file:
            return file.read()

    def Check(self, home, connections):
        # A connection that is on its way is asked for again.
        ports = set(self.Lines(r"connect\(.*sa_family=AF_INET6?.*sin6?_port=htons\((\d+)\)"))
        ExpectEqual(ports, connections, "ports of connections")
        ExpectEqual(self.Lines(r"^.* bind\(.*sa_family=AF_INET.*"), [], "ports that are open to others")
        writes = self.Lines(r"^\d+ +p?writev?(?:64)?\(\d+<(/[^>]*)>, (.*)")
        if not any(path == home.file for path, data in writes):
            raise AssertionError("nothing was written to the file")
        for word in WORDS:
            seen = {path for path, data in writes if word in data or "\\0".join(word) in data}
            ExpectEqual(seen, set(), f"files into which {word} was written")
        mapped = self.Lines(r"mmap\(.*PROT_WRITE, MAP_SHARED, \d+<(/[^>]*)>")
        # The index of the log holds numbers of pages; the rest is no file on a disk.
        ExpectEqual([path for path in mapped if not path.startswith((home.file + "-shm", "/memfd:", "/dev/"))], [],
                    "files in memory")
        made = self.Lines(r"openat\(.*\"(" + home.path + r"/[^\"]*)\", [A-Z_|]*O_CREAT[A-Z_|]*, (\d+)")
        ExpectEqual({mode for _, mode in made}, {"0600"}, f"rights of {made}")
        for folder, _, files in os.walk(home.userFolder):
            for path in [folder] + [os.path.join(folder, name) for name in files]:
                ExpectEqual(os.stat(path).st_mode & 0o077, 0, f"rights of others on {path}")
                if path != folder:
                    with open(path, "rb") as file:
                        content = file.read()
                    for word in WORDS:
                        ExpectEqual(word.encode() in content or word.encode("utf-16-le") in content, False,
                                    f"{word} stands in {path}")


def WriteRecipe(screen):
    Desktop.Key("ctrl+n")
    WaitUntilEqual(screen.FocusedName, "Name of the drink", "field with the keyboard")
    # Few looks at the screen: under the trace each takes long.
    Desktop.Type("Zanzibar Sling\tAsk the Quokka.\tsou\tcockt\tZanzibar Bitters\t1.5\toz\tQuokka")
    Desktop.Xdotool("key", "Return", "Tab", "Tab")
    WaitUntilEqual(screen.FocusedName, "Add Recipe", "button with the keyboard")
    Desktop.Key("space")


def Evening(desktop, site):
    home = Home(desktop, "evening")
    trace = Trace(desktop, home, site, "--seccomp-bpf")
    pourbook = trace.pourbook.WaitForWindow()
    WaitUntilEqual(lambda: home.library.Run("SELECT LastUpdateCheck IS NULL FROM Setup"), ["0"], "the check")
    WriteRecipe(pourbook.screen)
    WaitUntilEqual(lambda: pourbook.Text("Drink name"), "Zanzibar Sling", "drink in the recipe panel")
    pourbook.Click(pourbook.screen.Find("Search drinks"))
    Desktop.Type("Maraschino")
    pourbook.WaitForDrinks(home.library.Found("Maraschino"), "for the search")
    pourbook.Close()
    port = site.name.split(":")[1]
    trace.Check(home, {port})
    ExpectEqual(site.requests, [REQUEST.format(site.name)], "all that the site was sent")
    return home


def KilledSave(desktop, site):
    """The same, with the check off, and with an end in the middle of the records."""
    home = Home(desktop, "killed")
    home.GivenLibrary().Run("UPDATE Setup SET AppWidth = 750, UserOptions = 'V01'")
    os.chmod(home.userFolder, 0o700)
    os.chmod(home.file, 0o600)
    trace = Trace(desktop, home, site, "-e", "inject=pwrite64:signal=KILL:when=20")
    pourbook = trace.pourbook.WaitForWindow()
    WriteRecipe(pourbook.screen)
    pourbook.process.wait(timeout=20)
    ExpectEqual(len(os.listdir(home.userFolder)) > 1, True, "a journal is left")
    trace.Check(home, set())


with Desktop.Desktop() as desktop:
    os.umask(0)
    # The leak checker is a tracer itself, and there can be only one.
    os.environ["ASAN_OPTIONS"] = "detect_leaks=0"
    site = VersionSite("0.0.1")
    Evening(desktop, site)
    KilledSave(desktop, site)
    ExpectEqual(len(site.requests), 1, "number of requests")

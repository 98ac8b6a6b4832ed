"""Kills the program at random moments: at work, at its first start, while it moves to a new library. Whatever an
operation had done when its handler returned is there afterwards, and of the one that was cut off a whole number of its
statements, in their order. Half of the kills come after a random time, half in a random change of a file."""

import shutil
import tempfile
import time

from Mirror import ORPHANS, Difference, Finding, Mirror
from Work import SEED, Home, Library, Main, Worker

NO_FILE = "Could not open database.  unable to open database file"
KILLS_A_HOME = 25


class Killer:
    def __init__(self, random, folder, figures):
        self.random = random
        self.folder = folder
        self.figures = figures

    def NewHome(self):
        return Home(tempfile.mkdtemp(dir=self.folder) + "/home")

    def Kill(self, home, mostSeconds, mostCalls):
        """Starts the program and kills it. Gives what it had begun by then."""
        inChange = self.random.random() < 0.5
        worker = Worker(home, self.random.randrange(1 << 30), 100000,
                        dieAtCall=self.random.randint(1, mostCalls) if inChange else 0)
        if not inChange:
            time.sleep(self.random.uniform(0, mostSeconds))
            worker.process.kill()
        if worker.End().Messages():
            raise Finding(f"before the kill: {worker.Messages()}")
        self.figures["kills"] += 1
        self.figures["kills in a change of a file"] += inChange
        for ending in ("-journal", "-wal"):
            beside = home.folder / (home.file.name + ending)
            self.figures["kills that left a *" + ending] += beside.exists() and beside.stat().st_size > 0
        return worker.operations

    def Check(self, file, mirror, statements=()):
        """What the shell finds is what the mirror holds after some of the statements. The files are copied first, so
        that the program finds them as the kill left them. Gives the number of the statements."""
        with tempfile.TemporaryDirectory(dir=self.folder) as folder:
            for path in file.parent.iterdir():
                if not path.name.endswith("-shm"):
                    shutil.copy(path, folder)
            library = Library(f"{folder}/{file.name}")
            seen = library.Run(mirror.view)
            if library.Run("PRAGMA integrity_check") != ["ok"]:
                raise Finding(f"{file} is corrupt")
        before = mirror.View()
        done = mirror.Matches(seen, iter(statements))
        if done is None:
            raise Finding(f"{file} is in no state on the way:\n" + Difference(before, seen))
        return done

    def CheckWork(self, home, mirror, operations):
        for operation in operations:
            if operation["done"]:
                mirror.Do(mirror.Statements(operation))
                self.figures["operations that had returned"] += 1
        cutOff = operations[-1:] if operations and not operations[-1]["done"] else []
        done = self.Check(home.file, mirror, [] if not cutOff else mirror.Statements(cutOff[0]))
        self.figures["operations cut off"] += len(cutOff)
        self.figures["operations cut off behind their first statement"] += done > 0
        self.figures["files with a row left alone, as after a failure"] += any(mirror.View(ORPHANS))

    def Restart(self, home, mirror, messages=()):
        """The next start opens the file, says nothing, and leaves an ordinary file with no other beside it."""
        worker = Worker(home, 1, 0).End()
        if worker.Messages() != list(messages) or worker.status != 0:
            raise Finding(f"the next start: {worker.Messages()}, status {worker.status}")
        if not messages:
            mirror.Do(mirror.Statements(worker.operations[-1]))
            self.Check(home.file, mirror)
            if list(home.folder.glob("drinkdb.rsd-*")):
                raise Finding("the next start left a file beside")

    def AtFirstStart(self):
        home = self.NewHome()
        mirror = Mirror(Library(str(SEED)))
        operations = self.Kill(home, 0.6, 40)
        if home.file.exists():
            self.CheckWork(home, mirror, operations)
        withoutFile = home.folder.exists() and not home.file.exists()
        self.figures["first starts cut off with a folder but no file"] += withoutFile
        self.Restart(home, mirror, [NO_FILE] if withoutFile else [])

    def AtUpgrade(self, file):
        home = self.NewHome().GivenLibrary(1, file)
        old = Mirror(home.library)
        mirror = Mirror(Library(str(SEED)))
        operations = self.Kill(home, 0.8, 60)
        cutOff = not (operations and operations[0]["done"])
        self.Check(home.backup if home.backup.exists() else home.file, old)
        if not home.backup.exists() or not cutOff:
            mirror.Do(mirror.Upgrade(old))
        if not cutOff:
            self.CheckWork(home, mirror, operations)
        elif home.backup.exists() and home.file.exists():
            self.Check(home.file, mirror, mirror.Upgrade(old))
            self.figures["upgrades cut off behind the new file"] += 1
        self.figures["upgrades cut off before the new file"] += not home.file.exists()
        self.Restart(home, mirror, [] if home.file.exists() else [NO_FILE])


def Run(options, random, folder, figures):
    killer = Killer(random, folder, figures)
    for number in range(options.kills):
        if number % KILLS_A_HOME == 0:
            home = killer.NewHome().GivenLibrary()
            mirror = Mirror(home.library)
        choice = random.random()
        if choice < 0.1:
            killer.AtFirstStart()
        elif choice < 0.3:
            killer.AtUpgrade(home.file)
        else:
            killer.CheckWork(home, mirror, killer.Kill(home, 2.5, 300))
            killer.Restart(home, mirror)


Main(__doc__, Run, kills=500)

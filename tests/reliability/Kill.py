"""Kills the program at random moments: at work, at its first start, while it moves to a new library. Whatever an
operation had done when its handler returned is there afterwards, and of the one that was cut off a whole number of its
statements, in their order. Half of the kills come after a random time, half in a random change of a file."""

import shutil
import tempfile
import time

from Mirror import Difference, Finding, Mirror
from Work import SEED, Library, Main, Trial, Worker

NO_FILE = "Could not open database.  unable to open database file"
KILLS_A_HOME = 25


class Kills(Trial):
    def Run(self):
        for number in range(self.options.kills):
            if number % KILLS_A_HOME == 0:
                home = self.NewHome().GivenLibrary()
                mirror = Mirror(home.library)
            choice = self.random.random()
            if choice < 0.1:
                self.AtFirstStart()
            elif choice < 0.3:
                self.AtUpgrade(home.file)
            else:
                self.CheckWork(home, mirror, self.Kill(home, 2.5, 300))
                self.Restart(home, mirror)

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
        for path in home.folder.glob("drinkdb.rsd-*[lw]*"):
            self.figures["kills that left a " + path.name] += path.stat().st_size > 0
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
        cutOff = [operation for operation in operations if not operation["done"]]
        done = self.Check(home.file, mirror, mirror.Statements(cutOff[0]) if cutOff else ())
        self.figures["operations cut off"] += len(cutOff)
        self.figures["operations cut off behind their first statement"] += done > 0

    def Restart(self, home, mirror=None):
        """The next start opens the file, says nothing, and leaves an ordinary file with no other beside it. Without a
        file it says so."""
        messages = [] if home.file.exists() or not home.folder.exists() else [NO_FILE]
        self.figures["kills that left no file"] += len(messages)
        worker = Worker(home, 1, 0).End()
        if worker.Messages() != messages or worker.status != 0:
            raise Finding(f"the next start: {worker.Messages()}, status {worker.status}")
        if list(home.folder.glob("drinkdb.rsd-*")):
            raise Finding("the next start left a file beside")
        if mirror and not messages:
            mirror.Do(mirror.Statements(worker.operations[-1]))
            self.Check(home.file, mirror)

    def AtFirstStart(self):
        home = self.NewHome()
        mirror = Mirror(Library(str(SEED)))
        operations = self.Kill(home, 0.6, 40)
        if home.file.exists():
            self.CheckWork(home, mirror, operations)
        self.Restart(home, mirror)

    def AtUpgrade(self, file):
        """What was the user's is there, in the backup if the program had come so far."""
        home = self.NewHome().GivenLibrary(1, file)
        old = Mirror(home.library)
        self.Kill(home, 0.8, 60)
        self.Check(home.backup if home.backup.exists() else home.file, old)
        self.Restart(home)
        if home.backup.exists():
            self.Check(home.backup, old)


Main(__doc__, Kills, kills=500)

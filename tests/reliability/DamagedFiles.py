"""Starts the program on files that are damaged, are not what they should be, or must not be changed, and on disks
without room. It says what is wrong or works as ever; it never crashes, and what can still be saved stays."""

import os
import pathlib
import random
import re
import shutil
import subprocess

from Mirror import Finding, Mirror
from Work import SEED, WORKER, Library, Main, Trial, Worker

CANNOT_OPEN = r"Could not open database\.  "
NO_DATABASE = CANNOT_OPEN + "file is encrypted or is not a database$"
NO_FILE = CANNOT_OPEN + "unable to open database file$"
CANNOT_SET_UP = "An error occurred attempting to create a user specific database in the folder  '/.*/home/.*'"
# A form whose lists could not be read is refused for want of a choice, and a search of an unreadable page is given up.
FAILURE = re.compile(r"(Could not |An error occurred |You must select both |Something went wrong, ).*\w")
OPERATIONS = 12
FREE = (40, 0, 300, 4, 12, 2200)  # KB; a log has room from 2 MB on

# Root passes every check of rights, unless it lays its capabilities down.
AS_USER = ("setpriv", "--bounding-set=-all") if os.geteuid() == 0 else ()
# The system tells a process that it cannot write a file as large as the library; the signal with it is ignored.
SMALL_FILES = ("sh", "-c", "trap '' XFSZ; ulimit -f 64; exec \"$@\"", "sh")


def FilesUnder(folder):
    return {str(path): os.readlink(path) if path.is_symlink() else path.read_bytes()
            for path in pathlib.Path(folder).rglob("*") if path.is_symlink() or path.is_file()}


def Replaced(make):
    """The user's file is taken away, and something else is made in its place."""
    def Damage(home):
        home.GivenLibrary().file.unlink()
        make(home.file)
    return Damage


def Beside(ending, make):
    return lambda home: make(home.GivenLibrary().file.with_name("drinkdb.rsd" + ending))


def Link(target):
    def Make(file):
        shutil.copy(SEED, file.parents[2] / "elsewhere")
        file.symlink_to(file.parents[2] / target)
    return Make


def LinkedOldFile(home):
    Replaced(Link("elsewhere"))(home)
    home.library.Run("UPDATE Setup SET DBVersion = 1")


def LinkedFolder(home):
    home.folder.parent.mkdir()
    home.folder.symlink_to(home.path / "a disk that is not there")


def Rights(folder, file):
    def Damage(home):
        home.GivenLibrary().file.chmod(file)
        home.folder.chmod(folder)
    return Damage


def WithoutSeed(home):
    home.program = shutil.copy(WORKER, home.path)


def Rubbish(path):
    path.write_bytes(random.Random(1).randbytes(65536))


def PlainDatabase(path):
    subprocess.run(["sqlcipher", path], input="CREATE TABLE Drinks (DrinkID);", text=True, check=True)


# A message ends the start, and every file stays as it is; None: it works as ever; REFUSED: changes are refused.
REFUSED = "refused"
CASES = [
    ("a folder", Replaced(lambda path: path.mkdir()), NO_FILE),
    ("a link to elsewhere", Replaced(Link("elsewhere")), None),
    ("a link to an old file", LinkedOldFile, None),
    ("a link to nothing", Replaced(Link("nothing")), NO_FILE),
    ("a pipe", Replaced(os.mkfifo), CANNOT_OPEN),
    ("rubbish", Replaced(Rubbish), NO_DATABASE),
    ("an empty file", Replaced(lambda path: path.touch()), NO_DATABASE),
    ("less than a salt", Replaced(lambda path: path.write_bytes(b"abc")), NO_DATABASE),
    ("a plain database", Replaced(PlainDatabase), NO_DATABASE),
    ("another key", lambda home: home.GivenLibrary().library.Run("PRAGMA rekey='PoorMead1357'"), NO_DATABASE),
    ("no file", Replaced(lambda path: None), NO_FILE),
    ("no seed", WithoutSeed, CANNOT_SET_UP),
    ("no rights at home", lambda home: home.path.chmod(0o500), CANNOT_SET_UP),
    ("only small files", lambda home: None, CANNOT_SET_UP, SMALL_FILES),
    ("a folder that is a link to nothing", LinkedFolder, CANNOT_SET_UP),
    ("a rubbish journal", Beside("-journal", Rubbish), None),
    ("a rubbish log", Beside("-wal", Rubbish), None),
    ("a journal that is a folder", Beside("-journal", lambda path: path.mkdir()), FAILURE),
    ("a log that is a folder", Beside("-wal", lambda path: path.mkdir()), CANNOT_OPEN),
    ("a read-only file", Rights(0o700, 0o400), REFUSED),
    ("a read-only folder", Rights(0o500, 0o600), REFUSED),
    ("a file without rights", Rights(0o700, 0), NO_FILE),
    ("a folder without rights", Rights(0, 0o600), NO_FILE),
]


class DamagedFiles(Trial):
    def Run(self):
        for case in CASES:
            self.Case(*case)
        for number in range(self.options.truncated):
            length = self.random.randrange(os.path.getsize(SEED))
            self.Case(f"cut off at {length}", lambda home: os.truncate(home.GivenLibrary().file, length), CANNOT_OPEN)
        for name, damage in (("first start", lambda home: None), ("at work", lambda home: home.GivenLibrary()),
                             ("upgrade", lambda home: home.GivenLibrary(1))):
            for free in FREE[:self.options.disks]:
                self.FullDisk(name, damage, free)
        for number in range(self.options.flipped):
            self.Flipped(number)

    def Work(self, home, command=()):
        worker = Worker(home, self.random.randrange(1 << 30), OPERATIONS, command=command).End()
        for operation in worker.operations:
            if not all(FAILURE.match(message["message"]) for message in operation["messages"]):
                raise Finding(f"{home.path}: {operation}")
        self.figures["starts"] += 1
        self.figures["messages"] += len(worker.Messages())
        return worker

    def Case(self, name, damage, expected, command=()):
        home = self.NewHome(name)
        damage(home)
        before = FilesUnder(home.path)
        link = home.file.is_symlink()
        worker = self.Work(home, (*AS_USER, *command))
        # A folder without a file would keep the next start from trying again.
        changed = FilesUnder(home.path) != before or expected == CANNOT_SET_UP and home.folder.exists()
        if expected is None:
            if worker.Messages() or home.file.is_symlink() != (link and not home.backup.exists()):
                raise Finding(f"{name}: {worker.Messages()}")
            Mirror(Library(str(SEED))).CheckByName(home.library, worker.operations)
        elif changed or (expected == REFUSED) != (len(worker.operations) > 1) or (
                expected != REFUSED and not re.match(expected, worker.Messages()[0])):
            raise Finding(f"{name}: changed {changed}, {worker.Messages()}")
        self.figures["cases"] += 1

    def FullDisk(self, name, damage, free):
        home = self.NewHome(f"full disk, {name}, {free}")
        if subprocess.run(["mount", "-t", "tmpfs", "-o", "size=4m", "tmpfs", home.path], stderr=subprocess.DEVNULL,
                          check=False).returncode != 0:
            self.figures["full disks that could not be made, for want of rights"] += 1
            return
        try:
            damage(home)
            mirror = Mirror(home.library if home.file.exists() else Library(str(SEED)))
            room = os.statvfs(home.path)
            filler = home.path / "filler"
            filler.write_bytes(bytes(room.f_bavail * room.f_frsize - free * 1024))
            worker = self.Work(home)
            filler.unlink()
            if home.backup.exists():
                mirror.CheckByName(Library(str(home.backup)), [])
            elif home.folder.exists() or not re.match(CANNOT_SET_UP, worker.Messages()[0]):
                mirror.CheckByName(home.library, worker.operations)
            self.figures["full disks"] += 1
        finally:
            subprocess.run(["umount", home.path], check=True)

    def Flipped(self, number):
        """When the bit is turned back afterwards, all is there but what was changed without a message. Every fourth is
        an old file, which becomes the backup."""
        isOld = number % 4 == 0
        home = self.NewHome("flipped").GivenLibrary(1 if isOld else 2)
        home.library.Run("UPDATE Drinks SET UserRating = DrinkID % 6 WHERE DrinkID % 40 = 0")
        mirror = Mirror(home.library)
        place = self.random.randrange(os.path.getsize(home.file) * 8)
        Flip(home.file, place)
        worker = self.Work(home)
        self.figures["flipped bits that were noticed"] += bool(worker.Messages())
        kept = home.backup if home.backup.exists() else home.file
        Flip(kept, place)
        mirror.CheckByName(Library(str(kept)), [] if isOld else worker.operations)
        self.figures["flipped bits"] += 1


def Flip(file, place):
    contents = bytearray(file.read_bytes())
    contents[place // 8] ^= 1 << place % 8
    file.write_bytes(contents)


Main(__doc__, DamagedFiles, truncated=50, flipped=200, disks=len(FREE))

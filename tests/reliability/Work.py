"""A worker: the program in a window off the screen, at work. It tells what it does, line by line."""

import argparse
import collections
import json
import os
import pathlib
import random
import shutil
import subprocess
import sys
import tempfile

from Mirror import Finding

ROOT = pathlib.Path(__file__).resolve().parents[2]
WORKER = pathlib.Path(os.environ.get("POURBOOK_WORKER", ROOT / "build/release/bin/pourbook_worker"))
SEED = WORKER.parents[1] / "Resources/drinkdb.rsd"

sys.path.append(str(ROOT / "tests/journeys"))
from Library import Library  # noqa: E402  the folder has to be known first

# Messages that are no failure.
USUAL = ("Are you sure ", "You have previously added this drink")


class Home:
    def __init__(self, path):
        self.path = pathlib.Path(path)
        self.folder = self.path / "Application Support" / "Tipplewise Pourbook"
        self.file = self.folder / "drinkdb.rsd"
        self.backup = self.folder / "drinkdb_v1_backup.rsd"
        self.library = Library(str(self.file))
        self.program = WORKER
        self.path.mkdir(parents=True)

    def GivenLibrary(self, version=2, source=SEED):
        self.folder.mkdir(parents=True)
        shutil.copy(source, self.file)
        if version != 2:
            self.library.Run(f"UPDATE Setup SET DBVersion = {version}")
        return self


class Worker:
    def __init__(self, home, seed, operations, place=0, workers=1, dieAtCall=0, command=()):
        self.process = subprocess.Popen(
            [*command, home.program, *map(str, (home.path, seed, operations, place, workers, dieAtCall))], text=True,
            stdout=subprocess.PIPE, stderr=subprocess.PIPE, env=dict(
                os.environ, QT_QPA_PLATFORM="offscreen", TMPDIR=str(home.path.parent),
                LSAN_OPTIONS="print_suppressions=0:suppressions=" + os.environ.get("LEAK_SUPPRESSIONS", "")))

    def End(self):
        """Waits for its end, and reads the operations that it began, each with its messages and when it was done. What
        is shown between two of them, when a window opens, say, is one by itself."""
        said, errors = self.process.communicate(timeout=600)
        self.status = self.process.returncode
        if self.status not in (0, -9):
            raise Finding(f"the worker ended with {self.status}: {errors[-2000:]} {said[-2000:]}")
        self.operations = []
        current = None
        last = 0
        # A line without its end was cut off by a kill.
        for line in map(json.loads, said.split("\n")[:-1]):
            if "begin" in line or "message" in line and not current:
                current = {"begin": "between", "messages": [], "done": None if "begin" in line else line["time"]} | line
                self.operations.append(current)
            if "message" in line and not line["message"].startswith(USUAL):
                current["messages"].append(line | {"milliseconds": line["time"] - last})
            if "done" in line and current:
                current["done"] = line["time"]
            if current and current["done"]:
                current = None
            last = line["time"]
        return self

    def Messages(self):
        return [message["message"] for operation in self.operations for message in operation["messages"]]


class Trial:
    """Names and defaults of its options are given to Main. Run() does it, and raises what it finds."""

    def __init__(self, options, folder):
        self.options = options
        self.folder = folder
        self.random = random.Random(options.seed)
        self.figures = collections.Counter()

    def NewHome(self, name="home"):
        return Home(tempfile.mkdtemp(dir=self.folder, prefix=name + " ") + "/home")


def Main(doc, trial, **options):
    """A finding ends it, and so does Ctrl+C; then the files are kept."""
    parser = argparse.ArgumentParser(description=doc)
    for name, default in dict(options, seed=random.randrange(1 << 30)).items():
        parser.add_argument("--" + name, type=type(default), default=default)
    folder = tempfile.mkdtemp(prefix="pourbook-")
    trial = trial(parser.parse_args(), folder)
    found = None
    try:
        trial.Run()
        shutil.rmtree(folder)
    except (Finding, AssertionError) as finding:
        found = f"FINDING, files kept in {folder}: {finding}"
    except KeyboardInterrupt:
        found = f"stopped by hand, files kept in {folder}"
    print(f"seed {trial.options.seed}")
    for what, count in trial.figures.items():
        print(f"{count:6} {what}")
    sys.exit(found)

"""Monkey.py STEPS [--seed N]: random keys, clicks, drags and menu commands in a real window on a virtual screen. The
program runs in the sanitizer build, must come to its end, and must leave the user's file whole."""

import argparse
import os
import subprocess
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
BUILD = os.path.join(ROOT, "build", "sanitize")
os.environ.setdefault("POURBOOK_PROGRAM", os.path.join(BUILD, "bin", "pourbook"))
os.environ.setdefault("JOURNEY_PICTURES", BUILD)
os.environ.setdefault("LEAK_SUPPRESSIONS", os.path.join(ROOT, "tests", "lsan.supp"))
sys.path.insert(0, os.path.join(ROOT, "tests", "journeys"))

import Desktop
from Pourbook import ExpectEqual, Home, Pourbook

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("steps", type=int)
parser.add_argument("--seed", type=int, default=1)
arguments = parser.parse_args()

with Desktop.Desktop() as desktop:
    home = Home(desktop)
    monkey = Pourbook(desktop, home, os.path.join(BUILD, "bin", "monkey"), str(arguments.steps), str(arguments.seed),
                      stdout=subprocess.PIPE, text=True).process
    for line in monkey.stdout:
        print(line, end="", flush=True)
    ExpectEqual(monkey.wait(), 0, "exit status")
    ExpectEqual(home.library.Run("PRAGMA integrity_check"), ["ok"], "state of the file")
    ExpectEqual(home.library.Run("SELECT COUNT(*) FROM Setup"), ["1"], "rows with settings")
    ExpectEqual(sorted(os.listdir(home.userFolder)), ["drinkdb.rsd"], "files in the user's folder")

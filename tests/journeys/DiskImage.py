"""As root: DiskImage.py BUILD_FOLDER. Evenings in a home that lies on a small disk of its own. Afterwards the raw disk,
with what was deleted from it, is searched for words of the library and of the user."""

import os
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
JOURNEYS = ("FirstRun", "WriteRecipe", "Drinklists", "Bar", "Upgrade")
WORDS = ("Garden Gimlet", "My own bitters", "Sunday", "Maraschino", "Angostura", "CREATE TABLE", "MerryMead246")
# A search that does not find this would find nothing.
FILE = "drinkdb.rsd"


def Run(*command, **options):
    subprocess.run(command, check=True, **options)


binaries = os.path.join(os.path.abspath(sys.argv[1]), "bin")
with tempfile.TemporaryDirectory() as folder:
    image, home = os.path.join(folder, "image"), os.path.join(folder, "disk")
    os.mkdir(home)
    Run("truncate", "--size=100M", image)
    Run("mkfs.ext2", "-q", image)
    Run("mount", "-o", "loop", image, home)
    try:
        environment = dict(os.environ, TMPDIR=home, POURBOOK_PROGRAM=os.path.join(binaries, "pourbook"),
                           POURBOOK_AT=os.path.join(binaries, "pourbook_at"), JOURNEY_PICTURES=folder,
                           LEAK_SUPPRESSIONS=os.path.join(os.path.dirname(HERE), "lsan.supp"))
        for journey in JOURNEYS:
            Run("/usr/bin/python3", "-B", os.path.join(HERE, journey + ".py"), env=environment)
    finally:
        Run("umount", home)
    with open(image, "rb") as file:
        disk = file.read()

found = [word for word in (FILE, *WORDS) if word.encode() in disk or word.encode("utf-16-le") in disk]
print("Found on the disk:", found)
sys.exit(found != [FILE])

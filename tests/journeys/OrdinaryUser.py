"""Runs a journey without root's rights, which pass every check of permissions."""

import os
import shutil
import subprocess
import sys
import tempfile

NOBODY = 65534


def Install(program, root):
    """Copies the program and its library, in the shape of an installed tree. Gives the program in it."""
    source = os.path.dirname(os.path.dirname(program))
    for name in (os.path.join("bin", os.path.basename(program)), os.path.join("Resources", "drinkdb.rsd")):
        target = os.path.join(root, name)
        os.makedirs(os.path.dirname(target))
        shutil.copy(os.path.join(source, name), target)
    return os.path.join(root, "bin", os.path.basename(program))


def LeaveRoot(journey):
    """As root: runs the journey again as a user without rights, and ends. The copies are for a checkout in a place that
    only root can read."""
    if os.geteuid() != 0:
        return
    with tempfile.TemporaryDirectory(prefix="pourbook-ordinary-") as folder:
        os.chmod(folder, 0o755)
        scripts = os.path.join(folder, "journeys")
        shutil.copytree(os.path.dirname(os.path.abspath(journey)), scripts)
        environment = dict(os.environ, HOME=folder,
                           LEAK_SUPPRESSIONS=shutil.copy(os.environ["LEAK_SUPPRESSIONS"], folder),
                           POURBOOK_PROGRAM=Install(os.environ["POURBOOK_PROGRAM"], os.path.join(folder, "program")),
                           JOURNEY_PICTURES=tempfile.gettempdir())
        run = subprocess.run(["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups", sys.executable,
                              "-B", os.path.join(scripts, os.path.basename(journey))], env=environment, cwd=folder)
    sys.exit(run.returncode)

"""A screen of its own, with a window manager, a session bus and the accessibility bus, as one user or another has it."""

import os
import signal
import subprocess
import tempfile

from Waiting import WaitFor

# Debian's own settings, because Alt+F4 has to mean what it means there.
OPENBOX_SETTINGS = "/etc/xdg/openbox/rc.xml"


PLASMA = {"XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5"}
DARK = "".join(f"[Colors:{part}]\nBackgroundNormal=35,38,41\nForegroundNormal=252,252,252\n"
               for part in ("Window", "View", "Button", "Selection", "Tooltip"))
# How many pixels of the screen are one of the program's, the environment, and the settings of a Plasma desktop.
DESKTOPS = {
    "plain": (1, {"LANG": "C.UTF-8", "QT_SCALE_FACTOR": "1"}, ""),
    "German": (1, {"LANG": "de_DE.UTF-8", "QT_SCALE_FACTOR": "1"}, ""),
    "dark and fine": (2, {"LANG": "C", "QT_SCALE_FACTOR": "2", **PLASMA}, DARK),
    "one and a half": (1.5, {"LANG": "C.UTF-8", "QT_SCALE_FACTOR": "1.5"}, ""),
    "large text": (1.5, {"LANG": "C.UTF-8", **PLASMA}, "[General]\nfont=DejaVu Sans,16,-1,5,50,0,0,0,0,0\n"),
    "other style": (1, {"LANG": "C", "QT_SCALE_FACTOR": "1", "QT_STYLE_OVERRIDE": "Windows"}, ""),
}


class Desktop:
    def __init__(self, name="plain"):
        self.scale, environment, settings = DESKTOPS[name]
        self.processes = []
        self.folder = tempfile.TemporaryDirectory(prefix="pourbook-journey-")
        os.environ.update(environment, LOCPATH=self.folder.name, XDG_CONFIG_HOME=self.folder.name)
        with open(os.path.join(self.folder.name, "kdeglobals"), "w") as file:
            file.write(settings)
        language = environment["LANG"]
        if not language.startswith("C"):
            subprocess.run(["localedef", "-i", language.split(".")[0], "-f", "UTF-8",
                            os.path.join(self.folder.name, language)], check=True)
        self.log = open(os.path.join(self.folder.name, "log"), "w+")

    def __enter__(self):
        try:
            self.StartScreen()
            self.StartBuses()
            self.StartWindowManager()
        except BaseException as error:
            self.__exit__(error)
            raise
        return self

    def __exit__(self, kind, *error):
        if kind is not None:
            self.Picture("failed-journey")
            self.log.seek(0)
            print("What the programs said:\n" + self.log.read())
        for process in reversed(self.processes):
            if process.poll() is None:
                os.killpg(process.pid, signal.SIGKILL)
            process.wait()
        self.log.close()
        self.folder.cleanup()

    def Picture(self, name):
        picture = os.path.join(os.environ["JOURNEY_PICTURES"], name + ".png")
        subprocess.run(["import", "-window", "root", picture], check=False, stderr=self.log)
        print("Picture of the screen:", picture)

    def Run(self, *command, **options):
        """Starts a process that ends with the desktop at the latest."""
        # In a group of its own, so that what it starts ends with it.
        process = subprocess.Popen(command, stderr=self.log, start_new_session=True,
                                   **{"stdout": self.log, **options})
        self.processes.append(process)
        return process

    def StartScreen(self):
        read, write = os.pipe()
        # Without -noreset the screen starts anew when its last client goes, and refuses whoever comes meanwhile.
        size = f"{int(1280 * self.scale)}x{int(900 * self.scale)}x24"
        # With -r a key that a busy machine lets go late does not repeat.
        self.Run("Xvfb", "-displayfd", str(write), "-screen", "0", size, "-nolisten", "tcp", "-noreset", "-r",
                 pass_fds=[write])
        os.close(write)
        with os.fdopen(read) as pipe:
            number = pipe.readline().strip()
        if not number:
            raise AssertionError("the virtual screen did not start")
        # The folder is open to this user alone, as a runtime folder has to be.
        os.environ.update(DISPLAY=":" + number, QT_QPA_PLATFORM="xcb", HOME=self.folder.name,
                          XDG_RUNTIME_DIR=self.folder.name, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")

    def StartBuses(self):
        bus = self.Run("dbus-daemon", "--session", "--nofork", "--print-address", stdout=subprocess.PIPE)
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().decode().strip()
        self.Run("/usr/libexec/at-spi-bus-launcher", "--launch-immediately")

    def StartWindowManager(self):
        ready = os.path.join(self.folder.name, "ready")
        self.Run("openbox", "--config-file", OPENBOX_SETTINGS, "--startup", f"touch {ready}")
        WaitFor(lambda: os.path.exists(ready), "the window manager")


def ColourAt(x, y):
    """As two hexadecimal digits each of red, green and blue."""
    shot = subprocess.run(["import", "-window", "root", "-crop", f"1x1+{x}+{y}", "-depth", "8", "txt:-"], check=True,
                          capture_output=True, text=True).stdout
    return shot.split("#")[-1][:6]


def Xdotool(*command):
    return subprocess.run(["xdotool", *command], check=True, capture_output=True, text=True).stdout.strip()


def Key(key):
    Xdotool("key", "--clearmodifiers", key)


def Type(text):
    Xdotool("type", "--clearmodifiers", text)


def ClickAt(x, y):
    Xdotool("mousemove", str(x), str(y), "click", "1")


def Drag(start, end):
    """From one place of a screen to another, a little inside of both, and slowly: the first step is not yet a drag."""
    Xdotool("mousemove", str(start[0] + 20), str(start[1] + 8), "mousedown", "1")
    for part in range(1, 9):
        Xdotool("mousemove", *(str(a + (b - a) * part // 8 + inside) for a, b, inside in zip(start, end, (20, 8))))
    Xdotool("mouseup", "1")

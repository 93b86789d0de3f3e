"""A virtual screen of our own: X server, window manager, session bus and accessibility bus.

One serves all tests of a run, because the accessibility library stays bound to the first bus that it sees.
Nothing of the user's session is touched, and several runs can go on side by side.
"""

import atexit
import os
import re
import select
import shutil
import subprocess
import tempfile
import time
from functools import cache
from pathlib import Path

from gi.repository import GLib

ROOT = Path(__file__).resolve().parents[2]
OUTPUT = ROOT / "build" / "desktop-tests"
BUS = """<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen><servicedir>{}</servicedir>
<policy context="default"><allow send_destination="*"/><allow eavesdrop="true"/><allow own="*"/></policy></busconfig>"""


def start(command, log, environment, **options):
    """Starts a process that ends with this one, however this one ends, and tells all it has to say in a file."""
    with open(log, "ab") as log_file:
        return subprocess.Popen(
            ["setpriv", "--pdeathsig", "TERM", *map(str, command)],
            env=environment,
            stdin=subprocess.DEVNULL,
            stdout=log_file,
            stderr=subprocess.STDOUT,
            start_new_session=True,
            **options,
        )


def wait_until(condition, what, seconds=10.0):
    """Waits for what the program does in its own time: the one place of the desktop tests that sleeps.

    Returns the first true value of condition(); fails with `what` when it stays false for `seconds`. A part of the accessibility tree may vanish while it is read: that counts as "not yet".
    """
    deadline = time.monotonic() + seconds
    last = None
    while True:
        try:
            last = condition()
        except GLib.Error as error:
            last = error.message
        else:
            if last:
                return last
        if time.monotonic() > deadline:
            what = what() if callable(what) else what
            raise AssertionError(f"waited {seconds} s in vain: {what} (at last: {last!r})")
        time.sleep(0.01)


class Screen:
    """Started at the first use by Screen.shared(), ends with the interpreter. Knows nothing of the program."""

    @classmethod
    @cache
    def shared(cls):
        return cls()

    def __init__(self, size="1280x1024"):
        self._processes = []
        OUTPUT.mkdir(parents=True, exist_ok=True)
        for old in (*OUTPUT.glob("*.png"), *OUTPUT.glob("*.log")):
            old.unlink()
        self._folder = Path(tempfile.mkdtemp(prefix="tessarolyne-screen-"))
        atexit.register(shutil.rmtree, self._folder, ignore_errors=True)
        # Whatever the user's session sets (styles, scale factors, input methods) stays outside.
        self.environment = {
            "PATH": "/usr/local/bin:/usr/bin:/bin",
            "LANG": "C.UTF-8",
            "HOME": str(self._folder),
            "XDG_RUNTIME_DIR": str(self._folder),
            "GSETTINGS_BACKEND": "memory",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
        }
        x_server = ["Xvfb", "-displayfd", "{fd}", "-screen", "0", f"{size}x24", "-nolisten", "tcp", "-noreset"]
        self.environment["DISPLAY"] = ":" + self._start_and_read("xvfb", x_server)
        # It runs its start-up command, in its home, when it has taken over the screen: a window that is mapped
        # in the meantime may never be shown.
        self._start("openbox", ["openbox", "--sm-disable", "--startup", "touch managed"])
        wait_until((self._folder / "managed").exists, "the window manager to take over", 20)
        # The bus starts the accessibility bus itself when the first one asks for it, and none of the other
        # services that this machine may have: a portal would answer in the place of a test's own.
        shutil.copy("/usr/share/dbus-1/services/org.a11y.Bus.service", self._folder)
        (self._folder / "bus.conf").write_text(BUS.format(self._folder))
        configuration = f"--config-file={self._folder}/bus.conf"
        bus = ["dbus-daemon", configuration, "--nofork", "--nopidfile", "--print-address={fd}"]
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self._start_and_read("dbus", bus)
        # This process reads the accessibility tree and takes pictures: it belongs to the screen too.
        for name in ("DISPLAY", "DBUS_SESSION_BUS_ADDRESS"):
            os.environ[name] = self.environment[name]
        os.environ.pop("AT_SPI_BUS_ADDRESS", None)
        os.environ.pop("WAYLAND_DISPLAY", None)

    def run(self, *command, check=True):
        """Runs a command on the screen and gives what it printed; fails when the command fails."""
        return subprocess.run(
            command, env=self.environment, stdin=subprocess.DEVNULL, capture_output=True, text=True, check=check
        ).stdout

    def find_windows(self, title, *options):
        """The ids of the windows on the screen whose title matches; none is no failure, as it is to xdotool."""
        command = ("xdotool", "search", "--all", "--onlyvisible", *options, "--name", title)
        return self.run(*command, check=False).split()

    def clipboard(self):
        """The text on the clipboard; nothing when there is none yet, which is a failure to xclip."""
        return self.run("xclip", "-out", "-selection", "clipboard", check=False)

    def press(self, *keys):
        """Presses keys one after the other, as "Tab" or "ctrl+q", on whatever has the focus.

        Only keys of the US layout: for others xdotool changes the layout for a moment, and the program may read
        the key after it was changed back.
        """
        self.run("xdotool", "key", "--clearmodifiers", "--delay", "0", *keys)

    def type(self, text):
        """Types a text, of the US layout's characters, on whatever has the focus."""
        self.run("xdotool", "type", "--clearmodifiers", "--delay", "1", "--", text)

    def click(self, x, y):
        """Clicks the left button at a point of the screen, in pixels."""
        self.run("xdotool", "mousemove", str(x), str(y), "click", "1")

    def drag(self, start, end):
        """Drags from one point of the screen to another, by few and long moves."""
        half = [(a + b) // 2 for a, b in zip(start, end)]
        moves = [str(word) for x, y in (half, end, end) for word in ("mousemove", x, y)]
        self.run("xdotool", "mousemove", *map(str, start), "mousedown", "1", *moves, "mouseup", "1")

    def bounds(self, window, *options):
        """Left, top, width and height of a window in pixels: of its contents, or with -frame of all."""
        said = self.run("xwininfo", *options, "-id", window)
        labels = ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")
        return tuple(int(re.search(rf"{label}: +(-?\d+)", said).group(1)) for label in labels)

    def measure(self, what, left, top, width, height):
        """What ImageMagick tells of that part of the screen by a format such as "%k"."""
        part = f"{width}x{height}+{left}+{top}"
        return float(self.run("import", "-silent", "-window", "root", "-crop", part, "-format", what, "info:-"))

    def _start(self, name, command, **options):
        self._processes.append(start(command, OUTPUT / f"{name}.log", self.environment, **options))

    def _start_and_read(self, name, command):
        """Starts a process that says one line on a descriptor ({fd} in its command) once it is ready."""
        reading, writing = os.pipe()
        with os.fdopen(reading) as pipe:
            self._start(name, [part.format(fd=writing) for part in command], pass_fds=(writing,))
            os.close(writing)
            if select.select([pipe], [], [], 20)[0] and (line := pipe.readline().strip()):
                return line
        raise RuntimeError(f"{name} did not start; see {OUTPUT / name}.log")

"""The built program as a process with a window, in a home of its own."""

import os
import re
import subprocess
from pathlib import Path

from accessibility import Control, descendants, find_application
from screen import OUTPUT, ROOT, start, wait_until

PROGRAM = Path(os.environ.get("TESSAROLYNE_PROGRAM", ROOT / "build" / "release" / "tessarolyne"))
WINDOW_TITLE = "Tessarolyne"


class Program:
    """One run: from the start to the end of the process. Several runs may follow each other in one home."""

    def __init__(self, screen, home, log_name, command, extra_environment):
        self._screen = screen
        self._log_path = OUTPUT / f"{log_name}.log"
        environment = screen.environment | extra_environment
        self._scale = int(environment.get("QT_SCALE_FACTOR", 1))
        environment["HOME"] = str(home)
        environment["PATH"] = f"{home}/bin:{environment['PATH']}"
        for name, folder in (("CONFIG", ".config"), ("DATA", ".local/share"), ("CACHE", ".cache")):
            environment[f"XDG_{name}_HOME"] = str(Path(home) / folder)
        # A shell's background job ignores SIGINT, and hands that on; the program honours it.
        self._process = start(["env", "--default-signal", *command], self._log_path, environment, cwd=home)
        try:
            self.window = self.wait_for(self._find_window, f"the window “{WINDOW_TITLE}” to come up")
            self.wait_for(lambda: self._active_window() == self.window, "the window to become active")
            self.accessible = self.wait_for(
                lambda: find_application(self._process.pid), "the program to join the accessibility bus"
            )
            # The window manager calls the window active a moment before the program takes its first key.
            self.wait_for(self.focused, "the program to take the keyboard")
        except BaseException:
            self.kill()
            raise

    def wait_for(self, condition, what, seconds=10.0):
        """Like wait_until, but fails at once, with the program's last words, when the program has ended."""

        def condition_of_a_living_program():
            if not self.running:
                raise AssertionError(f"the program ended while waiting for {what}\n{self.log()}")
            return condition()

        return wait_until(condition_of_a_living_program, what, seconds)

    def wait_for_end(self, seconds=10.0):
        """Waits for the process to end by itself and gives its exit code (negative: the signal)."""
        try:
            return self._process.wait(seconds)
        except subprocess.TimeoutExpired:
            raise AssertionError(f"the program did not end within {seconds} s") from None

    def kill(self):
        """Ends the process at once if it is still there."""
        self._process.kill()
        self._process.wait()

    @property
    def running(self):
        return self._process.poll() is None

    def signal(self, number):
        self._process.send_signal(number)

    def log(self):
        """What the program has printed so far."""
        return self._log_path.read_text(errors="replace")

    def controls(self):
        """Everything below the program's root, menus included."""
        return [Control(accessible) for accessible in descendants(self.accessible)]

    def focused(self):
        """The controls that say they have the focus."""
        return [control for control in self.controls() if control.focused]

    def showing(self, role, *names, text=None):
        """The controls on the screen, of whatever window, whose name begins with one of these or that show the text."""
        for control in map(Control, descendants(self.accessible)):
            if control.role == role and control.name.startswith(names or "") and control.showing:
                if text is None or control.text == text:
                    yield control

    def find(self, role, *names, text=None):
        """Waits for the first of those controls."""
        return self.wait_for(
            lambda: next(self.showing(role, *names, text=text), None),
            lambda: f"a {role} {names or text} among {self.controls()}",
        )

    def click(self, control):
        self._screen.click(*(self._scale * place for place in control.centre))

    @property
    def bounds(self):
        """Left, top, width and height of the window's contents on the screen, without the frame."""
        return self._screen.bounds(self.window)

    def move(self, x, y):
        """Moves the window as a user's drag does: by way of the window manager."""
        before = self.bounds
        self._screen.run("xdotool", "windowmove", self.window, str(x), str(y))
        self.wait_for(lambda: self.bounds != before, "the window to move")

    def click_close_box(self):
        """Clicks the window manager's close box, the rightmost button of the title bar."""
        extents = self._screen.run("xprop", "-id", self.window, "_NET_FRAME_EXTENTS").split("=")[1]
        _, right_border, title_height, _ = map(int, extents.split(","))
        left, top, width, _ = self.bounds
        self._screen.click(left + width + right_border - title_height // 2, top - title_height // 2)

    def _find_window(self):
        found = self._screen.find_windows(f"^{WINDOW_TITLE}$", "--pid", str(self._process.pid))
        return found[0] if found else None

    def _active_window(self):
        active = re.search(r"0x[0-9a-f]+", self._screen.run("xprop", "-root", "_NET_ACTIVE_WINDOW"))
        return str(int(active.group(0), 16)) if active else None

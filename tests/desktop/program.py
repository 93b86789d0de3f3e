"""The built program as a process with a window, in a home of its own."""

import os
import re
import subprocess
from pathlib import Path

from accessibility import Control, descendants, find_application
from controls import WINDOW_TITLE
from screen import OUTPUT, ROOT
from waiting import wait_until

PROGRAM = Path(os.environ.get("TESSAROLYNE_PROGRAM", ROOT / "build" / "release" / "tessarolyne"))


class Program:
    """One run: from the start to the end of the process. Several runs may follow each other in one home."""

    def __init__(self, screen, home, log_name, command, extra_environment):
        self._screen = screen
        self._log_path = OUTPUT / f"{log_name}.log"
        environment = screen.environment | extra_environment
        environment["HOME"] = str(home)
        environment["PATH"] = f"{home}/bin:{environment['PATH']}"
        for name, folder in (("CONFIG", ".config"), ("DATA", ".local/share"), ("CACHE", ".cache")):
            environment[f"XDG_{name}_HOME"] = str(Path(home) / folder)
        # A shell's background job ignores SIGINT, and hands that on; the program honours it.
        command = ["setpriv", "--pdeathsig", "TERM", "env", "--default-signal", *map(str, command)]
        with open(self._log_path, "ab") as log:
            self._process = subprocess.Popen(
                command,
                env=environment,
                cwd=home,
                stdin=subprocess.DEVNULL,
                stdout=log,
                stderr=subprocess.STDOUT,
                start_new_session=True,
            )
        try:
            self.window = self.wait_for(self._find_window, f"the window “{WINDOW_TITLE}” to come up")
            self.wait_for(lambda: self._active_window() == self.window, "the window to become active")
            self.accessible = self.wait_for(
                lambda: find_application(self._process.pid), "the program to join the accessibility bus"
            )
            # The window manager calls the window active a moment before the program takes its first key.
            self.wait_for(self._has_focus, lambda: f"the program to take the keyboard, {self._keyboard()}")
        except BaseException:
            self.kill()
            raise

    def wait_for(self, condition, what, seconds=10.0):
        """Like wait_until, but fails at once, with the program's last words, when the program has ended."""

        def condition_of_a_living_program():
            if self._process.poll() is not None:
                raise AssertionError(
                    f"the program ended with {self._process.returncode} while waiting for {what}\n{self.log()}"
                )
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
        if self._process.poll() is None:
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

    @property
    def position(self):
        """Left and top of the window's contents on the screen, without the frame."""
        information = self._screen.run("xwininfo", "-id", self.window)
        return tuple(
            int(re.search(rf"Absolute upper-left {axis}: +(-?\d+)", information).group(1)) for axis in "XY"
        )

    @property
    def size(self):
        information = self._screen.run("xwininfo", "-id", self.window)
        return tuple(int(re.search(rf"{side}: (\d+)", information).group(1)) for side in ("Width", "Height"))

    @property
    def frame(self):
        """Widths of the frame that the window manager put around: left, right, top, bottom."""
        extents = self._screen.run("xprop", "-id", self.window, "_NET_FRAME_EXTENTS")
        return tuple(int(number) for number in extents.split("=")[1].split(","))

    def move(self, x, y):
        """Moves the window as a user's drag does: by way of the window manager."""
        before = self.position
        self._screen.run("xdotool", "windowmove", self.window, str(x), str(y))
        self.wait_for(lambda: self.position != before, "the window to move")

    def click_close_box(self):
        """Clicks the window manager's close box, the rightmost button of the title bar."""
        left, top = self.position
        width, _ = self.size
        _, right_border, title_height, _ = self.frame
        self._screen.click(left + width + right_border - title_height // 2, top - title_height // 2)

    def _find_window(self):
        found = self._screen.find_windows(f"^{WINDOW_TITLE}$", "--pid", str(self._process.pid))
        return found[0] if found else None

    def _has_focus(self):
        return any(Control(accessible).focused for accessible in descendants(self.accessible))

    def _keyboard(self):
        """Who has it, for a failure's message."""
        focus = self._screen.run("xdotool", "getwindowfocus").strip()
        return f"which window {focus} has; ours is {self.window}, the active one {self._active_window()}"

    def _active_window(self):
        active = self._screen.run("xprop", "-root", "_NET_ACTIVE_WINDOW")
        match = re.search(r"0x[0-9a-f]+", active)
        return str(int(match.group(0), 16)) if match else None

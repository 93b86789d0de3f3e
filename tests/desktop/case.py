"""The base of all tests that drive the program in its window."""

import shutil
import tempfile
import unittest
from pathlib import Path

from controls import CONTROLS
from program import PROGRAM, Program
from screen import OUTPUT, Screen


class ProgramTestCase(unittest.TestCase):
    """A fresh program in an empty home for each class; its tests run on it in the order of their names.

    Tests press keys and click like a user and read the accessibility tree; they never reach into the program.
    A failure leaves a picture of the screen and the program's messages in build/desktop-tests/.
    """

    program = None

    # What stands in the preferences file of the empty home: the start asks nothing.
    PREFERENCES = "Deja Envoye Don 03 :@: True\n"

    # What the program's environment has besides the screen's; there it speaks French, as in the C locale.
    ENVIRONMENT = {}

    @classmethod
    def setUpClass(cls):
        if not cls.command()[0].is_file():
            raise AssertionError(f"there is no {cls.command()[0]}: build the presets `release` and `desktop` first")
        cls.screen = Screen.shared()
        cls._home = tempfile.mkdtemp(prefix="tessarolyne-home-")
        cls.addClassCleanup(shutil.rmtree, cls._home, ignore_errors=True)
        cls.preferences_file = Path(cls._home) / ".config" / "Tessarolyne Prefs.txt"
        cls.write_preferences(cls.PREFERENCES)
        cls._provide_browser()
        cls.start_program()
        cls.addClassCleanup(lambda: cls.program.kill())

    @classmethod
    def write_preferences(cls, text):
        cls.preferences_file.parent.mkdir(parents=True, exist_ok=True)
        cls.preferences_file.write_text(text)

    @classmethod
    def start_program(cls):
        """Starts the program, again in the same home when it ran before."""
        cls._controls = {}
        cls.program = Program(cls.screen, cls._home, cls.__name__, cls.command(), cls.ENVIRONMENT)

    def setUp(self):
        if not self.running:
            self.write_preferences(self.PREFERENCES)
            self.start_program()

    @classmethod
    def command(cls):
        return [PROGRAM]

    @classmethod
    def _provide_browser(cls):
        """What the desktop opens addresses with, which only notes them, one a line."""
        browser = Path(cls._home) / "bin" / "xdg-open"
        browser.parent.mkdir()
        browser.write_text('#!/bin/sh\nprintf "%s\\n" "$1" >>"$HOME/opened"\n')
        browser.chmod(0o755)

    def wait_until_opened(self, *addresses):
        """Waits until exactly these addresses have gone to the browser, and forgets them."""
        opened = Path(self._home) / "opened"

        def found():
            return opened.read_text().splitlines() if opened.exists() else []

        self.wait_for(lambda: found() == list(addresses), lambda: f"{addresses} to be opened, not {found()}")
        opened.unlink()

    def run(self, result=None):
        result = result if result is not None else self.defaultTestResult()
        bad_before = len(result.failures) + len(result.errors)
        super().run(result)
        if len(result.failures) + len(result.errors) > bad_before:
            picture = OUTPUT / f"{self.id()}.png"
            self.screen.run("import", "-silent", "-window", "root", str(picture))
            print(f"\nPicture of the failure: {picture}\nThe program's messages:\n{self.log()}", flush=True)
        return result

    def __getattr__(self, name):
        """What the run of the program can do and knows, its test has by itself."""
        return getattr(self.program, name)

    def control(self, told_name):
        """The control of the main window that the program calls `told_name`."""
        if told_name not in self._controls:
            name, role = CONTROLS[told_name]
            self._controls[told_name] = self.find(role, name)
        return self._controls[told_name]

    def find_with_keyboard(self, role, name):
        """Like find, and waits for the keyboard too, which a new window gets a moment after it shows."""
        control = self.find(role, name)
        self.wait_for(lambda: control.window_has_keyboard, lambda: f"the window of {control} to take keys")
        return control

    def wait_until_gone(self, role, name):
        self.wait_for(lambda: not any(self.showing(role, name)), f"the {role} “{name}” to go")

    def click(self, role, name):
        self.program.click(self.find(role, name))

    def choose_command(self, caption, menu="Édition"):
        """Chooses a command of the main window's menu bar with the mouse."""
        self.click("menu item", menu)
        self.click("menu item", caption)

    def wait_for_text(self, told_name, text):
        """Waits until the control shows exactly this text."""
        control = self.control(told_name)
        self.wait_for(
            lambda: control.text == text, lambda: f"{told_name} to show “{text}”; it shows “{control.text}”"
        )

    def wait_for_focus(self, told_name):
        name = self.control(told_name).name
        self.wait_for(
            lambda: [c.name for c in self.focused()] == [name],
            lambda: f"{told_name} alone to have the focus, not {self.focused()}",
        )

    def focus(self, told_name):
        """Clicks into a field and waits until it has the focus."""
        self.press_button(told_name)
        self.wait_for_focus(told_name)

    def choose(self, told_name, row):
        """Chooses a row of a popup by keys: opens it, goes to the first row and down.

        Waits for the list to open and to close again: while it is up it takes every click for its own.
        """
        popup = self.control(told_name)
        self.program.click(popup)
        self.wait_for(lambda: popup.expanded, lambda: f"the list of {told_name} to open")
        self.screen.press("Home", *["Down"] * row, "Return")
        self.wait_for(lambda: not popup.expanded, lambda: f"the list of {told_name} to close")

    def press_button(self, told_name):
        self.program.click(self.control(told_name))

    def clear(self, told_name):
        """Empties a field by keys."""
        self.focus(told_name)
        self.screen.press("ctrl+a", "Delete")
        self.wait_for_text(told_name, "")

"""The base of all tests that drive the program in its window."""

import shutil
import tempfile
import unittest
from pathlib import Path

from program import PROGRAM, Program
from screen import OUTPUT, Screen


# The main window's controls by the names that the program calls them, as a screen reader finds them: accessible name
# and role, as AT-SPI says it, in French, which the program speaks in the C locale.
CONTROLS = {
    "EditFieldNbre": ("Nombre en base 10", "text"),
    "EditFieldBaseOrg": ("Nombre en base de départ", "text"),
    "EditFieldMonnaies": ("Devise au pluriel", "text"),
    "EditFieldMonnaie": ("Devise au singulier", "text"),
    "EditFieldCentimes": ("Centime au pluriel", "text"),
    "EditFieldCentime": ("Centime au singulier", "text"),
    "CheckBoxMajusc": ("Première lettre en majuscule", "check box"),
    "PopupMenuLg": ("Langue du montant en lettres", "combo box"),
    "CheckBoxTrUnion": ("Traits d'union", "check box"),
    "EditFieldBaseDest": ("Nombre en base d'arrivée", "text"),
    "PopupMenuBaseOrg": ("Base de départ", "combo box"),
    "PopupMenuBaseDest": ("Base d'arrivée", "combo box"),
    "CheckBoxFormatAuto": ("Format Auto", "check box"),
    "RadioButton09AZ 0": ("01…89AB…YZ", "radio button"),
    "TxtAreaDecomp1er": ("Facteurs premiers", "text"),
    "TxtAreaLettres": ("Montant en lettres", "text"),
    "BevelButtonListe": ("Liste Nb 1ers", "check box"),
    "PushButtonPressPapBOrg": ("Copier : Nombre en base de départ", "push button"),
    "PushButtonPressPapBDest": ("Copier : Nombre en base d'arrivée", "push button"),
    "PushButtonPressPapLettr": ("Copier : Montant en lettres", "push button"),
    "PushButtonPressPapPrem": ("Copier : Facteurs premiers", "push button"),
    "PushButtonFichier": ("Changer Fichier", "push button"),
    "EditFieldFin": ("Calculer jusqu'à", "text"),
    "EditFieldAffDu": ("Rang du premier nombre affiché", "text"),
    "EditFieldAffAu": ("Rang du dernier nombre affiché", "text"),
    "TxtAreaListeNbres1ers": ("Nombres premiers affichés", "text"),
    "EditFieldNbNbresLigne": ("Nombres premiers par ligne du fichier", "text"),
    "StaticTextNbNbre1ers": ("166 nombres premiers", "label"),
}

# Where Tab goes, in its order, before it begins again: the first of them.
TAB_ORDER = list(CONTROLS)[:9]


class ProgramTestCase(unittest.TestCase):
    """A fresh program in an empty home for each class, and after its end; tests run in the order of their names.

    Tests press keys and click like a user and read the accessibility tree; they never reach into the program.
    A failure leaves a picture of the screen and the program's messages in build/desktop-tests/.
    """

    # What stands in the preferences file of the empty home: the start asks nothing.
    PREFERENCES = "Deja Envoye Don 03 :@: True\n"

    # What the program's environment has besides the screen's; there it speaks French, as in the C locale.
    ENVIRONMENT = {}

    # What it is started with.
    ARGUMENTS = []

    @classmethod
    def setUpClass(cls):
        cls.screen = Screen.shared()
        cls.program = None
        cls._home = tempfile.mkdtemp(prefix="tessarolyne-home-")
        cls.addClassCleanup(shutil.rmtree, cls._home, ignore_errors=True)
        cls.preferences_file = Path(cls._home) / ".config" / "Tessarolyne Prefs.txt"
        cls.preferences_file.parent.mkdir()
        # What the desktop opens addresses with, which only notes them, one a line.
        browser = Path(cls._home) / "bin" / "xdg-open"
        browser.parent.mkdir()
        browser.write_text('#!/bin/sh\nprintf "%s\\n" "$1" >>"$HOME/opened"\n')
        browser.chmod(0o755)

    def setUp(self):
        if self.program is None or not self.running:
            self.preferences_file.write_text(self.PREFERENCES)
            self.start_program()

    @classmethod
    def start_program(cls):
        """Starts the program, again in the same home when it ran before."""
        cls._controls = {}
        cls.program = Program(cls.screen, cls._home, cls.__name__, [PROGRAM, *cls.ARGUMENTS], cls.ENVIRONMENT)
        cls.addClassCleanup(cls.program.kill)

    def wait_until_opened(self, address):
        """Waits until this address alone has gone to the browser, and forgets it."""
        opened = Path(self._home) / "opened"
        self.wait_for(lambda: opened.exists() and opened.read_text() == f"{address}\n", f"{address} to be opened")
        opened.unlink()

    def run(self, result=None):
        result = super().run(result)
        if any(test.id().startswith(self.id()) for test, _ in result.failures + result.errors):
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
        self.wait_for(lambda: control.text == text, lambda: f"{told_name} to show “{text}”; it shows “{control.text}”")

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

    def press_button(self, told_name):
        self.program.click(self.control(told_name))

    def clear(self, told_name):
        """Empties a field by keys."""
        self.focus(told_name)
        self.screen.press("ctrl+a", "Delete")
        self.wait_for_text(told_name, "")

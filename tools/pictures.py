#!/usr/bin/python3
"""Takes the pictures in docs/pictures: each window, in both languages, light and dark, at 1x and 2x.

Writes all to build/pictures, and to docs/pictures those that are kept: at 2x only the main window, since each new
set stays in the history. Needs the preset `release` and the packages of ./test.

The windows come up on a virtual screen. Dark colours come in by the way that a user's do: Qt takes them from the
settings of KDE, here those of its scheme Breeze Dark.
"""

import re
import shutil
import sys
import tempfile
from itertools import product
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "tests" / "desktop"))

from program import PROGRAM, Program  # noqa: E402
from screen import Screen, wait_until  # noqa: E402

SCREEN_SIZE = "2560x2048"  # room for two windows side by side, and for the taller one twice as large

LOCALES = {"fr": "fr_FR.UTF-8", "en": "en_GB.UTF-8"}
PALETTES = ("light", "dark")
SCALES = (1, 2)

# Without the date, the same window makes the same file.
SMALL = ("-strip", "-define", "png:exclude-chunks=date,time", "-quality", "95")

# How far the list goes in its picture, and farther than it gets while another is taken.
LIST_LIMIT = 1_000_000
FAR_LIMIT = 999_999_999_999

PREFERENCES = """\
Deja Envoye Don 03 :@: True
Fenetre WinNbres_1ers :@: 650,60,520,585
Format Auto :@: True
Fichier Nbres 1ers :@: Root{file}
"""

# What Qt makes its palette of, and the font that it has elsewhere; a cursor that blinks is now there, now not.
BREEZE_DARK = """\
[General]
font=Sans Serif,9,-1,5,50,0,0,0,0,0
[KDE]
CursorBlinkRate=0
[Colors:Button]
BackgroundNormal=49,54,59
ForegroundNormal=252,252,252
[Colors:Selection]
BackgroundNormal=61,174,233
ForegroundNormal=252,252,252
[Colors:Tooltip]
BackgroundNormal=49,54,59
ForegroundNormal=252,252,252
[Colors:View]
BackgroundAlternate=35,38,41
BackgroundNormal=27,30,32
ForegroundLink=29,153,243
ForegroundNormal=252,252,252
ForegroundVisited=155,89,182
[Colors:Window]
BackgroundNormal=42,46,50
ForegroundNormal=252,252,252
"""


class Session:
    """One run of the program in one look: its windows come up one after the other, each to have its picture taken."""

    def __init__(self, screen, folder, language, palette, scale):
        self._screen = screen
        self._folder = folder
        self._look = f"{language}-{palette}" + (f"@{scale}x" if scale > 1 else "")
        self._home = Path(tempfile.mkdtemp(prefix="tessarolyne-home-"))
        config = self._home / ".config"
        config.mkdir()
        primes = self._home / "primes.txt"
        primes.write_text("2\t3\t5\t7\n")
        (config / "Tessarolyne Prefs.txt").write_text(PREFERENCES.format(file=str(primes).replace("/", ":")))
        environment = {"LANG": LOCALES[language], "LANGUAGE": language, "QT_SCALE_FACTOR": str(scale)}
        if palette == "dark":
            environment |= {"XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5"}
            (config / "kdeglobals").write_text(BREEZE_DARK)
        self._program = Program(screen, self._home, f"pictures-{self._look}", [PROGRAM], environment)
        self._known = {int(self._program.window)}

    def end(self):
        self._program.kill()
        shutil.rmtree(self._home, ignore_errors=True)

    def take_all(self):
        self._screen.type("255")
        self._program.find("text", text="3 x 5 x 17")
        self._take("main", self._program.window)
        self._choose("Préférences", "Preferences")
        self._take("preferences", self._new_window())
        self._close_by("Escape")
        self._choose("À propos", "About")
        self._take("about", self._new_window())
        self._close_by("Return")
        self._take_list()
        self._take_save()

    def _take_list(self):
        self._program.click(self._program.find("check box", "Liste", "Prime"))
        window = self._new_window()
        limit = self._program.find("text", "Calculer", "Compute")
        self._program.wait_for(lambda: limit.focused, "the list to take the keyboard")
        self._run_list_to(LIST_LIMIT)
        self._program.find("label", "78 498")
        self._take("list", window)
        self._screen.press("ctrl+q")
        self._take("message", self._new_window())
        self._program.click(self._program.find("push button", "Ne pas quitter", "Don't Quit", "Don’t Quit"))
        self._wait_until_left({int(self._program.window), window})
        self._run_list_to(FAR_LIMIT)
        wheel = self._program.find("progress bar")
        self._take("calculating", window, moving=True)
        self._screen.press("Escape")
        self._program.wait_for(lambda: not wheel.showing, "the run to end")

    def _run_list_to(self, limit):
        self._screen.press("ctrl+a")
        self._screen.type(str(limit))
        self._screen.press("Return")

    def _take_save(self):
        self._screen.press("ctrl+q")
        self._new_window()
        self._screen.press("Return")
        self._take("saving", self._new_window(), moving=True)

    def _choose(self, *names):
        self._program.click(self._program.find("menu item", "Édition", "Edit"))
        self._program.click(self._program.find("menu item", *names))

    def _windows(self):
        """Those that the window manager knows: no menus."""
        listed = self._screen.run("xprop", "-root", "_NET_CLIENT_LIST")
        return {int(number, 16) for number in re.findall("0x[0-9a-f]+", listed)}

    def _new_window(self):
        new = self._program.wait_for(lambda: self._windows() - self._known, "another window")
        self._known |= new
        return new.pop()

    def _close_by(self, key):
        self._screen.press(key)
        self._wait_until_left({int(self._program.window)})

    def _wait_until_left(self, windows):
        self._known = windows
        self._program.wait_for(lambda: self._windows() == windows, "the other windows to close")

    def _take(self, name, window, moving=False):
        """Takes a picture that is complete: followed by the same one or, where something moves, by another."""
        path = self._folder / f"{name}-{self._look}.png"
        seen = []

        def is_complete():
            self._screen.run("import", "-silent", "-window", str(window), *SMALL, str(path))
            seen.append(path.read_bytes())
            return len(seen) > 1 and (seen[-1] == seen[-2]) != moving

        wait_until(is_complete, f"the window of {path} to be drawn")


def main():
    folder = ROOT / "build" / "pictures"
    kept = ROOT / "docs" / "pictures"
    for place in (folder, kept):
        shutil.rmtree(place, ignore_errors=True)
        place.mkdir(parents=True)
    screen = Screen(SCREEN_SIZE)
    for look in product(LOCALES, PALETTES, SCALES):
        session = Session(screen, folder, *look)
        try:
            session.take_all()
        finally:
            session.end()
        print(*look, flush=True)
    for picture in folder.iterdir():
        if "@" not in picture.name or picture.name.startswith("main-"):
            shutil.copy(picture, kept)


if __name__ == "__main__":
    main()

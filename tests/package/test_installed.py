"""The program as Debian installed it finds what it brought along. Run by tests/package/run."""

import os
import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "desktop"))

from case import ProgramTestCase  # noqa: E402
from program import PROGRAM  # noqa: E402
from screen import OUTPUT  # noqa: E402

TREE = Path(os.environ["TESSAROLYNE_TREE"])
# A player of sounds that the tree gets for this test: it notes what it should play.
PLAYED = TREE / "played"
# Of half of the icon's tiles, and of nothing else in the about window.
TILE_COLOUR = "#F0A35E"


class Installed(ProgramTestCase):
    def tearDown(self):
        self.assertEqual("", self.program.log())

    def test_the_window_has_its_icons(self):
        icons = self.screen.run("xprop", "-id", self.program.window, "_NET_WM_ICON")
        self.assertIn("Icon (16 x 16)", icons)
        self.assertIn("Icon (128 x 128)", icons)

    def test_a_number_is_worked_on_and_the_sound_found(self):
        PLAYED.unlink(missing_ok=True)
        self.clear("EditFieldNbre")
        self.screen.type("255")
        self.wait_for_text("EditFieldBaseDest", "1111 1111")
        self.wait_for_text("TxtAreaLettres", "deux cent cinquante-cinq euros zéro centime")
        self.press_button("PushButtonPressPapBDest")
        self.program.wait_for(lambda: PLAYED.is_file() and PLAYED.read_text().endswith("\n"), "the sound")
        sound = PLAYED.read_text().strip()
        self.assertEqual("/usr/share/tessarolyne/sounds/Bip.wav", sound)
        self.assertTrue((TREE / sound[1:]).is_file())

    def test_the_about_window_shows_the_icon(self):
        self.screen.press("F1")
        self.find_with_keyboard("push button", "Lire À propos")
        self.screen.press("Return")
        picture = OUTPUT / "installed-about.png"

        def shows_the_icon():
            found = self.screen.find_windows("^À propos de Tessarolyne$")
            if not found:
                return False
            self.screen.run("import", "-silent", "-window", found[0], str(picture))
            return TILE_COLOUR in self.screen.run("convert", str(picture), "-format", "%c", "histogram:info:-")

        self.program.wait_for(shows_the_icon, f"the icon in the about window; see {picture}")
        self.screen.press("Return")

    def test_the_version_is_told_without_a_display(self):
        answer = subprocess.run(
            [PROGRAM, "--version"], env={"PATH": os.environ["PATH"]}, capture_output=True, text=True, check=True
        )
        package = os.environ["TESSAROLYNE_PACKAGE_VERSION"]
        self.assertEqual(f"Tessarolyne {package.rpartition('-')[0]}\n", answer.stdout)


class InstalledForTheEnglish(ProgramTestCase):
    ENVIRONMENT = {"LANGUAGE": "en"}

    def test_the_translations_are_found(self):
        self.program.wait_for(lambda: any(c.name == "Factor" for c in self.all_controls()), "an English caption")
        self.assertEqual("", self.program.log())

"""The windows open, whole on the screen, close and come back where they were."""

import re

from case import ProgramTestCase
from screen import ROOT


class Window(ProgramTestCase):
    def test_the_desktop_knows_the_window_and_shows_an_icon(self):
        entry = (ROOT / "resources/linux/org.tessarolyne.Tessarolyne.desktop").read_text()
        window_class = re.search("^StartupWMClass=(.*)$", entry, re.MULTILINE).group(1)
        properties = self.screen.run("xprop", "-id", self.window, "WM_CLASS", "_NET_WM_ICON")
        self.assertIn(f', "{window_class}"\n', properties)
        sizes = re.findall(r"Icon \((\d+) x \1\)", properties)
        self.assertEqual(["16", "22", "24", "32", "48", "64", "128"], sorted(sizes, key=int))

    def test_the_window_comes_back_where_it_was_and_does_not_creep(self):
        self.move(173, 91)
        place = self.bounds
        for leave in (lambda: self.click_close_box(), lambda: self.screen.press("ctrl+q")):
            leave()
            self.assertEqual(self.wait_for_end(), 0)
            self.start_program()
            self.assertEqual(self.bounds, place)


class SmallScreen(ProgramTestCase):
    """640 by 512 points, with the list window open at the end of the last run."""

    ENVIRONMENT = {"QT_SCALE_FACTOR": "2"}
    PREFERENCES = ProgramTestCase.PREFERENCES + "Liste Nb1ers Visible :@: True\n"

    def test_each_window_opens_whole_on_the_screen(self):
        for title in ("Tessarolyne", "Liste des Nombres Premiers"):
            with self.subTest(title=title):
                (window,) = self.screen.find_windows(f"^{title}$")
                self.wait_for(lambda: self._is_on_screen(window), lambda: f"“{title}” to fit")

    def _is_on_screen(self, window):
        left, top, width, height = self.screen.bounds(window, "-frame")
        return left >= 0 and top >= 0 and left + width <= 1280 and top + height <= 1024

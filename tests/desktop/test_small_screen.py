"""Nothing is out of reach on a screen that is smaller than the windows."""

import re

from case import ProgramTestCase
from controls import TAB_ORDER

SCALE = 2


class SmallScreen(ProgramTestCase):
    """640 by 512 points, with the list window open at the end of the last run."""

    ENVIRONMENT = {"QT_SCALE_FACTOR": str(SCALE)}
    PREFERENCES = ProgramTestCase.PREFERENCES + "Liste Nb1ers Visible :@: True\n"

    def test_each_window_opens_whole_on_the_screen(self):
        for title in ("Tessarolyne", "Liste des Nombres Premiers"):
            with self.subTest(title=title):
                (window,) = self.screen.find_windows(f"^{title}$")
                self.program.wait_for(lambda: self._is_on_screen(window), lambda: f"{self._frame(window)} to fit")

    def test_the_first_amount_goes_to_the_number_and_tab_scrolls_to_what_it_reaches(self):
        self.screen.type("255")
        self.wait_for_text("EditFieldBaseOrg", "FF")
        for name in TAB_ORDER[1:]:
            self.screen.press("Tab")
            self.wait_for_focus(name)
            self.program.wait_for(lambda: self._is_in_view(name), lambda: f"{self.control(name).bounds} in view")

    def _frame(self, window):
        """Left, top, width and height, with what the window manager puts around."""
        said = self.screen.run("xwininfo", "-frame", "-id", window)
        return [
            int(re.search(rf"{label}: +(-?\d+)", said).group(1))
            for label in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")
        ]

    def _is_on_screen(self, window):
        left, top, width, height = self._frame(window)
        return left >= 0 and top >= 0 and left + width <= 1280 and top + height <= 1024

    def _is_in_view(self, name):
        x, y = self.control(name).centre  # in points, where the window is measured in pixels
        (left, top), (width, height) = self.program.position, self.program.size
        return left < SCALE * x < left + width and top < SCALE * y < top + height

"""Nothing is out of reach on a screen that is smaller than the windows."""

from case import TAB_ORDER, ProgramTestCase

SCALE = 2


class SmallScreen(ProgramTestCase):
    """640 by 512 points, with the list window open at the end of the last run."""

    ENVIRONMENT = {"QT_SCALE_FACTOR": str(SCALE)}
    PREFERENCES = ProgramTestCase.PREFERENCES + "Liste Nb1ers Visible :@: True\n"

    def test_each_window_opens_whole_on_the_screen(self):
        for title in ("Tessarolyne", "Liste des Nombres Premiers"):
            with self.subTest(title=title):
                (window,) = self.screen.find_windows(f"^{title}$")
                self.wait_for(lambda: self._is_on_screen(window), lambda: f"“{title}” to fit")

    def _is_on_screen(self, window):
        left, top, width, height = self.screen.bounds(window, "-frame")
        return left >= 0 and top >= 0 and left + width <= 1280 and top + height <= 1024

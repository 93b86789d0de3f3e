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

    def test_the_first_amount_goes_to_the_number_and_tab_scrolls_to_what_it_reaches(self):
        self.screen.type("255")
        self.wait_for_text("EditFieldBaseOrg", "FF")
        for name in TAB_ORDER[1:]:
            self.screen.press("Tab")
            self.wait_for_focus(name)
            self.wait_for(lambda: self._is_in_view(name), lambda: f"{self.control(name).bounds} in view")

    def _is_on_screen(self, window):
        left, top, width, height = self.screen.bounds(window, "-frame")
        return left >= 0 and top >= 0 and left + width <= 1280 and top + height <= 1024

    def _is_in_view(self, name):
        x, y = self.control(name).centre  # in points, where the window is measured in pixels
        left, top, width, height = self.bounds
        return left < SCALE * x < left + width and top < SCALE * y < top + height

"""The colours follow the desktop's."""

from case import ProgramTestCase
from screen import Screen
from settings_portal import Portal

LIGHT, DARK = 0, 1


class DesktopThatTellsByItsPortal(ProgramTestCase):
    @classmethod
    def setUpClass(cls):
        Screen.shared()
        cls.portal = Portal(DARK)
        cls.addClassCleanup(cls.portal.end)
        super().setUpClass()

    def wait_until_window_is(self, scheme):
        left, top = self.program.position
        point = f"1x1+{left + 4}+{top + 100}"

        def brightness():
            command = ("import", "-silent", "-window", "root", "-crop", point, "-format", "%[fx:mean]", "info:-")
            return float(self.screen.run(*command))

        self.program.wait_for(lambda: (brightness() < 0.5) == (scheme == DARK), "the window to change its colours")

    def test_the_window_is_dark_where_the_desktop_is_and_turns_with_it(self):
        self.wait_until_window_is(DARK)
        for scheme in (LIGHT, DARK):
            self.portal.change(scheme)
            self.wait_until_window_is(scheme)

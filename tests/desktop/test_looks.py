"""The colours follow the desktop's."""

import subprocess
import sys
from pathlib import Path

from case import ProgramTestCase
from screen import Screen

DARK, LIGHT = "1", "0"


class DesktopThatTellsByItsPortal(ProgramTestCase):
    @classmethod
    def setUpClass(cls):
        cls.portal = subprocess.Popen(
            [sys.executable, Path(__file__).with_name("settings_portal.py"), DARK],
            env=Screen.shared().environment,
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            text=True,
        )
        cls.addClassCleanup(cls.portal.communicate, timeout=10)
        cls.portal.stdout.readline()
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
            print(scheme, file=self.portal.stdin, flush=True)
            self.wait_until_window_is(scheme)

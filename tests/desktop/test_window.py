"""The window opens, closes and comes back where it was."""

import re
import signal

from case import ProgramTestCase
from screen import ROOT


class Quitting(ProgramTestCase):
    def setUp(self):
        if not self.program.running:
            self.start_program()

    def test_ctrl_q_quits(self):
        self.screen.press("ctrl+q")
        self.assertEqual(self.program.wait_for_end(), 0)

    def test_the_close_box_quits(self):
        self.program.click_close_box()
        self.assertEqual(self.program.wait_for_end(), 0)

    def test_signals_end_the_program_in_good_order(self):
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(signal=number.name):
                if not self.program.running:
                    self.start_program()
                self.program.signal(number)
                self.assertEqual(self.program.wait_for_end(), 0)


class Window(ProgramTestCase):
    def test_the_desktop_knows_the_window_and_shows_an_icon(self):
        entry = (ROOT / "resources/linux/org.tessarolyne.Tessarolyne.desktop").read_text()
        window_class = re.search("^StartupWMClass=(.*)$", entry, re.MULTILINE).group(1)
        properties = self.screen.run("xprop", "-id", self.program.window, "WM_CLASS", "_NET_WM_ICON")
        self.assertIn(f', "{window_class}"\n', properties)
        sizes = re.findall(r"Icon \((\d+) x \1\)", properties)
        self.assertEqual(["16", "22", "24", "32", "48", "64", "128"], sorted(sizes, key=int))

    def test_the_window_cannot_be_resized(self):
        before = self.program.size
        hints = self.screen.run("xprop", "-id", self.program.window, "WM_NORMAL_HINTS")
        self.assertIn(f"minimum size: {before[0]} by {before[1]}", hints)
        self.assertIn(f"maximum size: {before[0]} by {before[1]}", hints)

    def test_the_window_comes_back_where_it_was_and_does_not_creep(self):
        self.program.move(173, 91)
        place = self.program.position
        for _ in range(3):
            self.screen.press("ctrl+q")
            self.assertEqual(self.program.wait_for_end(), 0)
            self.start_program()
            self.assertEqual(self.program.position, place)

"""Where the keyboard goes, and that nobody is left without a name on the way."""

from case import ProgramTestCase
from controls import TAB_ORDER


class Focus(ProgramTestCase):
    def test_every_control_that_takes_the_focus_has_a_name(self):
        focusable = [c for c in self.all_controls() if c.focusable and c.showing and c.role != "frame"]
        self.assertGreaterEqual(len(focusable), len(TAB_ORDER))
        self.assertEqual([(c.role, c.bounds) for c in focusable if not c.name.strip()], [])

    def test_tab_goes_round_in_order_and_shift_tab_back(self):
        self.focus("EditFieldNbre")
        for name in TAB_ORDER[1:] + TAB_ORDER[:1]:
            self.screen.press("Tab")
            self.wait_for_focus(name)
            self.assertEqual(len(self.focused()), 1)
        for name in reversed(TAB_ORDER):
            self.screen.press("shift+Tab")
            self.wait_for_focus(name)

"""Where the keyboard goes, and that nobody is left without a name on the way."""

from case import CONTROLS, TAB_ORDER, ProgramTestCase


class Focus(ProgramTestCase):
    def test_tab_goes_round_in_order_and_shift_tab_back(self):
        self.focus("EditFieldNbre")
        for name in TAB_ORDER[1:] + TAB_ORDER[:1]:
            self.screen.press("Tab")
            self.wait_for_focus(name)
            self.assertEqual(len(self.focused()), 1)
        for name in reversed(TAB_ORDER):
            self.screen.press("shift+Tab")
            self.wait_for_focus(name)


# Of the main window and of the list.
TEXTS = [name for name, (_, role) in CONTROLS.items() if role == "text"]


class ClicksIntoTexts(ProgramTestCase):
    def test_a_click_moves_the_focus_from_text_to_text_whatever_is_selected(self):
        self.move(10, 60)  # beside the list
        self.screen.type("1250.40")
        self.wait_for_text("TxtAreaLettres", "mille deux cent cinquante euros quarante centimes")
        self.screen.press("Tab", "Tab")  # which selects the word there
        self.wait_for_focus("EditFieldMonnaies")
        self.screen.click(*self.control("EditFieldNbre").centre)
        self.screen.press("ctrl+a")
        self.screen.type("99.95")
        self.wait_for_text("TxtAreaLettres", "quatre-vingt-dix-neuf euros quatre-vingt-quinze centimes")

        self.press_button("BevelButtonListe")
        self.wait_for_focus("EditFieldFin")
        places = {name: self.control(name).centre for name in TEXTS}
        way = TEXTS + TEXTS[::-1] + [name for pair in zip(TEXTS, TEXTS[::-1]) for name in pair]
        for selected in (True, False):
            for name in way:
                with self.subTest(to=name, selected=selected):
                    self.screen.click(*places[name])
                    self.wait_for_focus(name)
                if selected:
                    self.screen.press("ctrl+a")

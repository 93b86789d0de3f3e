"""Where a click leads the keyboard."""

from case import CONTROLS, ProgramTestCase


# Nine of the main window, then those of the list.
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
        way = TEXTS + TEXTS[::-1] + [name for pair in zip(TEXTS, TEXTS[9:]) for name in pair]
        for selected in (True, False):
            for name in way:
                with self.subTest(to=name, selected=selected):
                    self.screen.click(*places[name])
                    self.wait_for_focus(name)
                if selected:
                    self.screen.press("ctrl+a")

"""The whole main window is worked by keys alone, and by what sets texts without them."""

from case import ProgramTestCase


ENGLISH = "Four-thousand-six-hundred-and-sixty pounds zero penny"
FRENCH = "Quatre mille six cent soixante pounds zéro penny"
# Where F6 goes from the number 4660 on, if anywhere; the keys there, or the text; and what shows what then.
ROUND = [
    ("CheckBoxFormatAuto", ["space"], "EditFieldBaseOrg", "1234"),
    (None, ["space"], "EditFieldBaseOrg", "12 34"),
    ("EditFieldBaseOrg", [], None, ""),
    ("PopupMenuBaseOrg", ["Down"], "EditFieldBaseOrg", "G22"),
    (None, ["1", "6"], "EditFieldBaseOrg", "12 34"),
    ("PushButtonPressPapBOrg", ["space"], "clipboard", "12 34"),
    ("EditFieldBaseDest", [], None, ""),
    ("PopupMenuBaseDest", ["alt+Down"], "PopupMenuBaseDest", "expanded"),
    (None, ["3", "Return"], "EditFieldBaseDest", "201 01121"),
    ("PushButtonPressPapBDest", [], None, ""),
    ("RadioButton09AZ 0", ["Right"], "EditFieldBaseOrg", "BC DE"),
    ("TxtAreaDecomp1er", [], None, ""),
    ("BevelButtonListe", [], None, ""),
    ("PushButtonPressPapPrem", ["space"], "clipboard", "2 x 2 x 5 x 233"),
    ("TxtAreaLettres", [], None, ""),
    ("EditFieldMonnaies", "pounds", "EditFieldMonnaies", "pounds"),
    ("EditFieldMonnaie", "pound", "EditFieldMonnaie", "pound"),
    ("EditFieldCentimes", "pence", "EditFieldCentimes", "pence"),
    ("EditFieldCentime", "penny", "TxtAreaLettres", FRENCH.lower()),
    ("PushButtonPressPapLettr", ["space"], "clipboard", FRENCH.lower()),
    ("CheckBoxMajusc", ["space"], "TxtAreaLettres", FRENCH),
    ("CheckBoxTrUnion", ["space"], None, ""),
    ("PopupMenuLg", ["Up"], "TxtAreaLettres", ENGLISH),
    ("EditFieldNbre", [], None, ""),
]


class Keyboard(ProgramTestCase):
    def wait_for_clipboard(self, text):
        self.wait_for(lambda: self.screen.clipboard() == text, f"“{text}” on the clipboard")

    def test_f6_goes_over_every_control_and_keys_work_it(self):
        self.screen.press("ctrl+a")
        self.screen.type("4660")
        self.wait_for_text("EditFieldBaseOrg", "12 34")
        for arrives, keys, shows, what in ROUND:
            if arrives:
                self.screen.press("F6")
                self.wait_for_focus(arrives)
            if keys:
                self.screen.type(keys) if isinstance(keys, str) else self.screen.press(*keys)
            if shows == "clipboard":
                self.wait_for_clipboard(what)
            elif what == "expanded":
                self.wait_for(lambda: self.control(shows).expanded, "the list to open")
            elif shows:
                self.wait_for_text(shows, what)
        self.screen.press("ctrl+a")
        self.screen.type("1,22")
        self.wait_for_text("TxtAreaLettres", "One pound twenty-two pence")
        self.screen.press("Up", "Down", "Up")
        self.wait_for_text("EditFieldNbre", "4660")

    def test_alt_with_a_letter_presses_buttons_and_leads_to_fields_and_types_nothing(self):
        self.focus("EditFieldNbre")
        self.screen.press("ctrl+a")
        self.screen.type("255")
        self.wait_for_text("TxtAreaLettres", "deux cent cinquante-cinq euros zéro centime")
        for keys, arrived in (("alt+b", "EditFieldBaseOrg"), ("alt+c", "TxtAreaLettres"), ("alt+e", "EditFieldNbre")):
            self.screen.press(keys)
            self.wait_for_focus(arrived)
        self.screen.press("alt+o")  # the check box for groups
        self.wait_for_text("EditFieldBaseDest", "11111111")
        self.screen.press("ctrl+2")
        self.wait_for_clipboard("11111111")
        self.screen.press("alt+o")
        self.wait_for_text("EditFieldBaseDest", "1111 1111")
        self.screen.press("ctrl+quotedbl")  # the key of the 3 on a French keyboard
        self.wait_for_clipboard("3 x 5 x 17")
        self.screen.press("F10", "Right", "Up", "Return")
        self.find_with_keyboard("check box", "Vérifier automatiquement")
        self.screen.press("alt+a")
        self.wait_until_gone("check box", "Vérifier automatiquement")
        self.wait_for_text("EditFieldNbre", "255")
        self.screen.press("Menu", "Up", "Return")  # the last row, which copies without blanks
        self.wait_for_clipboard("255")

    def test_the_list_is_searched_and_paged_by_keys(self):
        self.focus("EditFieldNbre")
        self.screen.press("alt+l")
        self.wait_for_focus("EditFieldFin")
        self.screen.type("30000")
        self.screen.press("Return")
        self.find("label", "3 245 nombres premiers")
        self.screen.press("ctrl+f")
        self.screen.type("7920")
        self.screen.press("Return")
        self.wait_for_focus("TxtAreaListeNbres1ers")
        self.screen.press("ctrl+End", "Prior")
        first = self.control("EditFieldAffDu")
        self.screen.press("ctrl+Home", "Prior")
        self.wait_for(lambda: first.text == "1", lambda: f"the first ranks, not {first.text}")
        self.screen.press("ctrl+End", "Next")
        self.wait_for(lambda: first.text != "1", "the next ranks")
        self.screen.press("alt+a")
        self.wait_for_focus("EditFieldAffDu")

    def test_a_text_set_by_assistive_technology_counts_as_typed(self):
        self.focus("EditFieldMonnaie")
        self.control("EditFieldNbre").set_text("65535")
        self.wait_for_text("EditFieldBaseOrg", "FF FF")
        self.wait_for_focus("EditFieldNbre")

"""The whole main window is worked by keys alone, and by what sets texts without them."""

from case import ProgramTestCase


class Keyboard(ProgramTestCase):
    def go_to(self, told_name):
        """One step of F6, which must arrive there."""
        self.screen.press("F6")
        self.wait_for_focus(told_name)

    def copies(self, text):
        """Presses the button with the focus and waits for the text on the clipboard."""
        self.screen.press("space")
        self.wait_for(lambda: self.screen.clipboard() == text, f"“{text}” on the clipboard")

    def test_f6_goes_over_every_control_and_keys_work_it(self):
        self.screen.press("ctrl+a")
        self.screen.type("4660")
        self.wait_for_text("EditFieldBaseOrg", "12 34")
        self.go_to("CheckBoxFormatAuto")
        self.screen.press("space")
        self.wait_for_text("EditFieldBaseOrg", "1234")
        self.screen.press("space")
        self.go_to("EditFieldBaseOrg")
        self.go_to("PopupMenuBaseOrg")
        self.screen.press("Down")
        self.wait_for_text("EditFieldBaseOrg", "G22")
        self.screen.press("1", "6")
        self.wait_for_text("EditFieldBaseOrg", "12 34")
        self.go_to("PushButtonPressPapBOrg")
        self.copies("12 34")
        self.go_to("EditFieldBaseDest")
        self.go_to("PopupMenuBaseDest")
        self.screen.press("alt+Down")
        self.wait_for(lambda: self.control("PopupMenuBaseDest").expanded, "the list to open")
        self.screen.press("3", "Return")
        self.wait_for_text("EditFieldBaseDest", "201 01121")
        self.go_to("PushButtonPressPapBDest")
        self.go_to("RadioButton09AZ 0")
        self.screen.press("Right")
        self.wait_for_text("EditFieldBaseOrg", "BC DE")
        self.go_to("TxtAreaDecomp1er")
        self.go_to("BevelButtonListe")
        self.go_to("PushButtonPressPapPrem")
        self.copies("2 x 2 x 5 x 233")
        self.go_to("TxtAreaLettres")
        for field, word in (("Monnaies", "pounds"), ("Monnaie", "pound"), ("Centimes", "pence"), ("Centime", "penny")):
            self.go_to(f"EditField{field}")
            self.screen.type(word)
        self.wait_for_text("TxtAreaLettres", "quatre mille six cent soixante pounds zéro penny")
        self.go_to("PushButtonPressPapLettr")
        self.copies("quatre mille six cent soixante pounds zéro penny")
        self.go_to("CheckBoxMajusc")
        self.screen.press("space")
        self.wait_for_text("TxtAreaLettres", "Quatre mille six cent soixante pounds zéro penny")
        self.go_to("CheckBoxTrUnion")
        self.screen.press("space")
        self.go_to("PopupMenuLg")
        self.screen.press("Up")
        self.wait_for_text("TxtAreaLettres", "Four-thousand-six-hundred-and-sixty pounds zero penny")
        self.go_to("EditFieldNbre")
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
        self.wait_for(lambda: self.screen.clipboard() == "11111111", "the copy of a shortcut")
        self.screen.press("alt+o")
        self.wait_for_text("EditFieldBaseDest", "1111 1111")
        self.screen.press("ctrl+quotedbl")  # the key of the 3 on a French keyboard
        self.wait_for(lambda: self.screen.clipboard() == "3 x 5 x 17", "the copy of a shortcut")
        self.screen.press("F10", "Right", "Up", "Return")
        self.find_with_keyboard("check box", "Vérifier automatiquement")
        self.screen.press("alt+a")
        self.wait_until_gone("check box", "Vérifier automatiquement")
        self.wait_for_text("EditFieldNbre", "255")
        self.screen.press("Menu", "Up", "Return")  # the last row, which copies without blanks
        self.wait_for(lambda: self.screen.clipboard() == "255", "the copy of the menu")

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

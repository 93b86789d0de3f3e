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
        self.program.wait_for(lambda: self.screen.clipboard() == text, f"“{text}” on the clipboard")

    def test_f6_goes_over_every_control_and_keys_work_it(self):
        self.screen.press("ctrl+a")
        self.screen.type("4660")
        self.wait_for_text("EditFieldBaseOrg", "12 34")
        self.go_to("PopupMenuBaseOrg")
        self.screen.press("Down")
        self.wait_for_text("EditFieldBaseOrg", "G22")
        self.screen.press("Up")
        self.go_to("EditFieldBaseDest")
        self.go_to("EditFieldBaseOrg")
        self.go_to("PopupMenuBaseDest")
        self.screen.press("Down")
        self.wait_for_text("EditFieldBaseDest", "201 01121")
        self.go_to("RadioButton09AZ 0")
        self.screen.press("Right")
        self.wait_for_text("EditFieldBaseOrg", "BC DE")
        self.go_to("PushButtonPressPapBOrg")
        self.copies("BC DE")
        self.go_to("PushButtonPressPapBDest")
        self.copies("CAB ABBCB")
        self.go_to("PushButtonPressPapLettr")
        self.copies("quatre mille six cent soixante euros zéro centime")
        for field, word in (("Monnaies", "pounds"), ("Monnaie", "pound"), ("Centimes", "pence"), ("Centime", "penny")):
            self.go_to(f"EditField{field}")
            self.screen.type(word)
        self.wait_for_text("TxtAreaLettres", "quatre mille six cent soixante pounds zéro penny")
        self.go_to("TxtAreaLettres")
        self.go_to("CheckBoxMajusc")
        self.screen.press("space")
        self.wait_for_text("TxtAreaLettres", "Quatre mille six cent soixante pounds zéro penny")
        self.go_to("PopupMenuLg")
        self.screen.press("Up")
        self.wait_for_text("TxtAreaLettres", "Four thousand six hundred and sixty pounds zero penny")
        self.go_to("CheckBoxTrUnion")
        self.screen.press("space")
        self.go_to("BevelButtonListe")
        self.go_to("PushButtonPressPapPrem")
        self.copies("2 x 2 x 5 x 233")
        self.go_to("TxtAreaDecomp1er")
        self.go_to("CheckBoxFormatAuto")
        self.screen.press("space")
        self.wait_for_text("EditFieldBaseOrg", "BCDE")
        self.go_to("EditFieldNbre")
        self.screen.press("ctrl+a")
        self.screen.type("1,22")
        self.wait_for_text("TxtAreaLettres", "One pound twenty-two pence")
        self.screen.press("F10", "Right", "Up", "Return")
        self.find_with_keyboard("check box", "Vérifier automatiquement")
        self.screen.press("Escape")
        self.wait_until_gone("check box", "Vérifier automatiquement")

    def test_a_text_set_by_assistive_technology_counts_as_typed(self):
        self.focus("EditFieldMonnaie")
        self.control("EditFieldNbre").set_text("65535")
        self.wait_for_text("EditFieldBaseOrg", "FF FF")
        self.wait_for_focus("EditFieldNbre")

"""What keys, pastes and drags put into the fields, and what they don't."""

from case import TAB_ORDER, ProgramTestCase


class Entry(ProgramTestCase):
    def paste(self, text):
        own = 'printf %s "$1" | xclip -in -selection clipboard >/dev/null 2>&1'  # from the background, until it is lost
        self.screen.run("sh", "-c", own, "sh", text)
        self.wait_for(lambda: self.screen.clipboard() == text, "the clipboard to have its owner")
        self.screen.press("ctrl+v")

    def wait_for_refusal(self, told_name, why):
        control = self.control(told_name)
        self.wait_for(lambda: control.description == why, lambda: f"“{why}”, not “{control.description}”")
        self.find("tool tip", why)

    def test_a_paste_is_taken_whole_or_not_at_all(self):
        self.clear("EditFieldNbre")
        explained = self.control("EditFieldNbre").description
        for pasted in ("1e6", "1/2", "-5", "1234567890123"):
            self.paste("1 234,50 €\n")
            self.wait_for_text("EditFieldNbre", "1234.50")
            self.screen.press("ctrl+a")
            self.paste(pasted)
            self.wait_for(lambda: self.control("EditFieldNbre").description != explained, "a refusal")
            self.wait_for_text("EditFieldNbre", "1234.50")
            self.screen.press("Delete")  # the selection has stayed, too
            self.wait_for_text("EditFieldNbre", "")
        self.screen.type("1234567890123")
        self.wait_for_refusal("EditFieldNbre", "12 chiffres au plus")
        self.wait_for_text("EditFieldNbre", "123456789012")
        self.screen.press("ctrl+z")  # what was refused is none of the steps back
        number = self.control("EditFieldNbre")
        self.wait_for(lambda: number.text != "123456789012", "a step back")
        self.clear("EditFieldBaseOrg")
        self.paste("0xFF:FF")
        self.wait_for_text("EditFieldNbre", "65 535")
        self.paste("GG")
        self.wait_for_refusal("EditFieldBaseOrg", "Seulement des chiffres de la base 16")
        self.wait_for_text("EditFieldBaseOrg", "FFFF")
        self.clear("EditFieldMonnaie")
        self.paste("livre\nsterling\n")
        self.wait_for_text("EditFieldMonnaie", "livre sterling")

    def test_factors_dragged_into_a_field_count_as_typed_there_and_tab_goes_round(self):
        self.clear("EditFieldNbre")
        self.screen.type("97")
        self.wait_for_text("TxtAreaDecomp1er", "97")
        self.focus("TxtAreaDecomp1er")
        self.screen.press("ctrl+a")
        left, top, _, _ = self.control("TxtAreaDecomp1er").bounds
        self.screen.drag((left + 12, top + 12), self.control("EditFieldNbre").centre)
        self.wait_for_text("TxtAreaDecomp1er", "97 x 101")
        # For a while: Qt began a drag anew some moments later.
        for key, names in (("Tab", TAB_ORDER[1:] + TAB_ORDER[:1]), ("shift+Tab", TAB_ORDER[::-1])):
            for name in names:
                self.screen.press(key)
                self.wait_for_focus(name)

    def test_keys_with_alt_or_super_are_no_text(self):
        for name, factors in (("EditFieldNbre", "23"), ("EditFieldBaseOrg", "5 x 7"), ("EditFieldCentime", "5 x 7")):
            self.clear(name)
            self.screen.type("2")
            self.screen.press("alt+5", "super+5", "ctrl+alt+1", "Escape", "3")
            self.wait_for_text(name, "23")
            self.wait_for_text("TxtAreaDecomp1er", factors)  # until then a calculation takes no click

"""A number typed by a user stands at once in the other fields."""

from case import ProgramTestCase


class NumberEntry(ProgramTestCase):
    def setUp(self):
        self.clear("EditFieldNbre")

    def test_255_stands_in_both_bases_before_the_next_key(self):
        self.screen.type("255")
        self.wait_for_text("EditFieldNbre", "255")
        self.wait_for_text("EditFieldBaseOrg", "FF")
        self.wait_for_text("EditFieldBaseDest", "1111 1111")

    def test_a_comma_counts_as_the_point(self):
        self.screen.press("1", "2", "comma", "5")
        self.wait_for_text("EditFieldNbre", "12.5")

"""The program speaks the first of the desktop's languages that it has, with that region's words for money."""

from case import ProgramTestCase


class LanguageTestCase(ProgramTestCase):
    """Its subclasses say in which environment what must be seen."""

    def check(self, buttons, area, words):
        for caption in buttons:
            self.program.wait_for(
                lambda: any(c.name == caption for c in self.all_controls()), lambda: f"“{caption}” to be seen"
            )
        self.screen.type("80.02")
        self.program.wait_for(
            lambda: any(c.role == "text" and c.name == area and c.text == words for c in self.all_controls()),
            lambda: f"“{words}” in “{area}”",
        )


ENGLISH = ("Factor", "Prime List", "Start with a capital letter"), "Amount in words"
FRENCH = ("Décomposer", "Liste Nb 1ers", "Première lettre en majuscule"), "Montant en lettres"


class BritishEnglish(LanguageTestCase):
    ENVIRONMENT = {"LANGUAGE": "en_GB:en"}

    def test_english_captions_and_pounds(self):
        self.check(*ENGLISH, "eighty pounds two pence")


class SwissFrench(LanguageTestCase):
    ENVIRONMENT = {"LANG": "fr_CH.UTF-8"}

    def test_francs_in_swiss_numbers(self):
        self.check(*FRENCH, "huitante francs deux centimes")

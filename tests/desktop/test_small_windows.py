"""The about window, the preferences and the help, as a user meets them."""

from pathlib import Path

from case import ProgramTestCase

AUTHOR_SITE = "http://www.tessarolyne.example"
AUTHOR_SITE_2 = "http://www2.tessarolyne.example"
QUESTIONS = f"{AUTHOR_SITE}/prg/Xojo/Tessarolyne_FAQ.html"
BUILD_TOOL_SITE = "http://www.buildtool.example"


class SmallWindows(ProgramTestCase):
    ARGUMENTS = ["-session", "10ab_12"]  # as an X session starts it again

    def open_preferences(self):
        self.choose_command("Préférences")
        return self.find_with_keyboard("check box", "Vérifier automatiquement")

    def test_the_about_window_shows_its_pictures_and_only_its_button_closes_it(self):
        self.choose_command("À propos")
        logo = self.find("link", BUILD_TOOL_SITE)
        icon = next(c for c in self.controls() if c.showing and c.bounds[2:] == (64, 64))
        for picture in (icon, logo):
            self.wait_for(lambda: self.screen.measure("%k", *picture.bounds) > 8, f"{picture} to be drawn")
        self.find_with_keyboard("push button", "Faire un don")
        self.screen.press("alt+F4", "Tab")
        link = self.find("link", AUTHOR_SITE_2)
        self.wait_for(lambda: link.focused, "the first link to have the focus")
        self.screen.press("Return")
        self.wait_until_opened(AUTHOR_SITE_2)
        for press in (lambda: self.screen.click(*logo.centre), logo.press):
            press()
            self.wait_until_opened(BUILD_TOOL_SITE)
        self.click("push button", "Ok")
        self.wait_until_gone("push button", "Ok")

    def test_an_address_is_shown_where_the_desktop_has_nothing_to_open_it_with(self):
        opener = Path(self._home) / "bin" / "xdg-open"
        self.addCleanup(opener.write_text, opener.read_text())
        opener.write_text("#!/bin/sh\nexit 3\n")
        self.choose_command("Faire un don")
        self.find_with_keyboard("text", f"{AUTHOR_SITE}/site/PayPage.html?Tessarolyne")
        self.screen.press("Return")
        self.wait_until_gone("text", AUTHOR_SITE)

    def test_the_help_leads_to_the_questions_and_to_the_about_window(self):
        self.choose_command("Aide Tessarolyne", "Aide")
        self.find("text", "L'aide n'est pas disponible pour Tessarolyne.")
        self.assertEqual(self.find("push button", "FAQ").description, QUESTIONS)
        self.click("push button", "FAQ")
        self.wait_until_opened(QUESTIONS)
        self.find_with_keyboard("check box", "Format Auto")
        self.screen.press("ctrl+question")
        self.click("push button", "Lire À propos")
        self.find_with_keyboard("link", BUILD_TOOL_SITE)
        self.screen.press("Return")
        self.wait_until_gone("push button", "Ok")

    def test_the_preferences_keep_what_ok_confirms_and_drop_what_is_cancelled(self):
        box = self.open_preferences()
        self.assertFalse(box.checked)
        self.screen.click(*box.centre)
        self.wait_for(lambda: box.checked, "the check mark")
        self.screen.press("Escape")
        self.wait_until_gone("check box", "Vérifier automatiquement")
        box = self.open_preferences()
        self.assertFalse(box.checked)
        self.screen.click(*box.centre)
        self.screen.press("Return")
        self.wait_until_gone("check box", "Vérifier automatiquement")
        self.assertTrue(self.open_preferences().checked)
        self.screen.press("Escape")
        self.find_with_keyboard("check box", "Format Auto")
        self.screen.press("ctrl+q")
        self.assertEqual(self.wait_for_end(), 0)
        self.assertIn("Auto Check Update :@: True", self.preferences_file.read_text())

"""The about window, the preferences, the help and the update check, as a user meets them."""

from pathlib import Path

from case import ProgramTestCase
from program import PROGRAM
from version_site import VERSION_FILE, Site, page

AUTHOR_SITE = "http://www.tessarolyne.example"
AUTHOR_SITE_2 = "http://www2.tessarolyne.example"
QUESTIONS = f"{AUTHOR_SITE}/prg/Xojo/Tessarolyne_FAQ.html"
BUILD_TOOL_SITE = "http://www.buildtool.example"
DOWNLOAD = "http://download.example/"


class SmallWindows(ProgramTestCase):
    @classmethod
    def command(cls):
        return [PROGRAM, "-session", "10ab_12"]  # as an X session starts it again

    def setUp(self):
        if not self.program.running:
            self.start_program()

    def colours(self, left, top, width, height):
        """How many colours there are on that part of the screen; a mere background has one."""
        part = f"{width}x{height}+{left}+{top}"
        return int(self.screen.run("import", "-silent", "-window", "root", "-crop", part, "-format", "%k", "info:-"))

    def open_preferences(self):
        self.choose_command("Préférences")
        return self.find("check box", "Vérifier automatiquement")

    def test_the_about_window_shows_its_pictures_and_only_its_button_closes_it(self):
        self.choose_command("À propos")
        logo = self.find("link", BUILD_TOOL_SITE)
        icon = next(c for c in self.all_controls() if c.showing and c.bounds[2:] == (64, 64))
        for picture in (icon, logo):
            self.program.wait_for(lambda: self.colours(*picture.bounds) > 8, f"{picture} to be drawn")
        self.find_with_keyboard("push button", "Faire un don")
        self.screen.press("alt+F4", "Tab")
        link = self.find("link", AUTHOR_SITE_2)
        self.program.wait_for(lambda: link.focused, "the first link to have the focus")
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

    def test_a_quit_goes_through_while_a_modal_window_is_up(self):
        self.choose_command("À propos")
        self.find_with_keyboard("push button", "Ok")
        self.screen.press("ctrl+q")
        self.assertEqual(self.program.wait_for_end(), 0)

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
        self.program.wait_for(lambda: box.checked, "the check mark")
        self.screen.press("Escape")
        self.wait_until_gone("check box", "Vérifier automatiquement")
        box = self.open_preferences()
        self.assertFalse(box.checked)
        self.screen.click(*box.centre)
        self.screen.press("Return")
        self.wait_until_gone("check box", "Vérifier automatiquement")
        self.screen.press("ctrl+q")
        self.assertEqual(self.program.wait_for_end(), 0)
        self.assertIn("Auto Check Update :@: True", self.preferences_file.read_text())


class UpdateCheck(ProgramTestCase):
    """The program of the same parts at a site of the tests' own, with a deadline of five seconds."""

    PREFERENCES = SmallWindows.PREFERENCES + "Auto Check Update :@: True\nDate Launch :@: 2020-02-02 02:02:02\n"

    @classmethod
    def setUpClass(cls):
        cls.site = Site()
        cls.addClassCleanup(cls.site.end)
        super().setUpClass()

    @classmethod
    def command(cls):
        return [PROGRAM.parent / "tests" / "desktop" / "ProgramAtSite", cls.site.address + VERSION_FILE]

    def version_file(self, version):
        return page(f"Release Notes\r\n{DOWNLOAD}\r\n{version}\r\n-- Plus vite -- Plus sûr\r\n")

    def test_a_start_on_a_new_day_tells_of_a_new_version_and_the_menu_of_every_outcome(self):
        self.site.answer(self.version_file("v.9.9"))
        self.find("text", "Une nouvelle mise à jour est disponible.\nv.9.9\n• Plus vite\n• Plus sûr")
        self.click("push button", "Site Web")
        self.wait_until_opened(DOWNLOAD)

        self.choose_command("Vérifier les mises à jour")
        self.site.answer(self.version_file("v.1.0.0"))
        self.find("text", "Cette version est à jour.\nv.1.0.0")
        self.click("push button", "Historique")
        self.wait_until_opened(self.site.address + "/prg/Xojo/Tessarolyne_AffV.html")

        self.choose_command("Vérifier les mises à jour")
        self.site.answer(page("<html>Not Found</html>"))
        bad = self.find("text", "Impossible de vérifier les mises à jour")
        self.assertNotIn("Server Error", bad.text)
        self.click("push button", "Ok")

        self.choose_command("Vérifier les mises à jour")
        self.assertEqual(self.find("progress bar", "Recherche d'une mise à jour").description, "")
        silent = self.find_with_keyboard("text", "Impossible de vérifier les mises à jour")
        self.assertTrue(silent.text.endswith("\n\nServer Error 102"))
        self.screen.press("Return")
        self.wait_until_gone("push button", "Ok")

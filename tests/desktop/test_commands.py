"""Commands that reach beyond the main window: the list of primes and its file."""

import os
import signal
from pathlib import Path

from case import ProgramTestCase


LOADING = "^Chargement des Nombres Premiers$"


class PrimeFile(ProgramTestCase):
    def load_zeros(self, size):
        """Begins to load four primes and that many zero bytes on a line, which take no place on the disk."""
        path = Path(self._home) / "long.txt"
        path.write_bytes(b"2\t3\t5\t7\n")
        os.truncate(path, size)
        self.screen.press("ctrl+o")
        self.find_with_keyboard("dialog", "Sélectionner le Fichier")
        self.screen.type(str(path))
        self.screen.press("Return")
        self.wait_for(lambda: self.screen.find_windows(LOADING), "the load to begin")
        return path

    def test_primes_are_computed_saved_and_found_again(self):
        target = Path(self._home) / "primes.txt"
        self.press_button("BevelButtonListe")
        self.wait_for(lambda: self.screen.find_windows("^Liste des Nombres"), "the list")
        self.wait_for_focus("EditFieldFin")
        self.screen.press("ctrl+a")
        self.screen.type("987")
        self.screen.press("Return")
        self.control("StaticTextNbNbre1ers")
        self.assertTrue(self.control("TxtAreaListeNbres1ers").text.startswith("\t2\t3\t5\t7\t11\t13\n\t17"))
        self.screen.press("ctrl+s")
        self.wait_for(lambda: [c for c in self.focused() if c.text.endswith(".txt")], "the chooser")
        self.screen.type(str(target.with_suffix("")))  # the chooser adds what it needs to show the file again
        self.screen.press("Return")
        self.wait_for(lambda: target.is_file() and target.read_text().endswith("977\t983\n"), "the file")
        self.control("PushButtonFichier")  # the commands are back: while a save runs the program takes no input
        self.press_button("BevelButtonListe")
        self.wait_for(lambda: not any(c.name == "Changer Fichier" for c in self.controls()), "the list to close")
        self.focus("EditFieldNbre")
        self.screen.press("ctrl+q")
        self.assertEqual(self.wait_for_end(), 0)
        self.assertIn("primes.txt", self.preferences_file.read_text())
        self.start_program()
        self.press_button("BevelButtonListe")
        self.control("StaticTextNbNbre1ers")

    def test_what_is_clicked_during_a_load_is_not_done_after_it(self):
        list_button = self.control("BevelButtonListe").centre
        self.load_zeros(300_000_000)  # a second
        self.screen.click(*list_button)
        self.wait_for(lambda: not self.screen.find_windows(LOADING), "the load to end")
        self.press_button("CheckBoxFormatAuto")
        format_auto = self.control("CheckBoxFormatAuto")
        self.wait_for(lambda: not format_auto.checked, "a click after the load to be done")
        self.assertTrue(self.control("BevelButtonListe").checked)

    def test_a_load_ends_with_the_program_and_writes_nothing(self):
        # Asked of the program that runs then: each end is followed by a fresh one.
        ends = (lambda: self.signal(signal.SIGTERM), lambda: self.click_close_box(), lambda: self.screen.press("ctrl+q"))
        for number, end in enumerate(ends):
            with self.subTest(number):
                self.setUp()
                path = self.load_zeros(25_000_000_000)  # a minute at least
                before = path.stat()
                end()
                self.assertEqual(self.wait_for_end(3), 0)
                self.assertEqual(path.stat().st_mtime_ns, before.st_mtime_ns)

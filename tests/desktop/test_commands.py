"""Commands that reach beyond the main window: the list of primes and its file."""

from pathlib import Path

from case import ProgramTestCase


class PrimeFile(ProgramTestCase):
    def test_primes_are_computed_saved_and_found_again(self):
        target = Path(self._home) / "primes.txt"
        self.press_button("BevelButtonListe")
        self.program.wait_for(lambda: self.screen.find_windows("^Liste des Nombres"), "the list")
        self.wait_for_focus("EditFieldFin")
        self.screen.press("ctrl+a")
        self.screen.type("987")
        self.screen.press("Return")
        self.control("StaticTextNbNbre1ers")
        self.assertTrue(self.control("TxtAreaListeNbres1ers").text.startswith("\t2\t3\t5\t7\t11\t13\n\t17"))
        self.screen.press("ctrl+s")
        self.program.wait_for(
            lambda: next((c for c in self.all_controls() if c.focused and c.text.endswith(".txt")), None), "the chooser"
        )
        self.screen.type(str(target))
        self.screen.press("Return")
        self.program.wait_for(lambda: target.is_file() and target.read_text().endswith("977\t983\n"), "the file")
        self.control("PushButtonFichier")  # the commands are back: while a save runs the program takes no input
        self.press_button("BevelButtonListe")
        self.program.wait_for(
            lambda: not any(c.name == "Changer Fichier" for c in self.all_controls()), "the list to close"
        )
        self.focus("EditFieldNbre")
        self.screen.press("ctrl+q")
        self.assertEqual(self.program.wait_for_end(), 0)
        self.assertIn("primes.txt", self.preferences_file.read_text())
        self.start_program()
        self.press_button("BevelButtonListe")
        self.control("StaticTextNbNbre1ers")

"""Where there is no X display: Wayland's, or none at all."""

import re
import signal
import subprocess
import tempfile
import unittest
from pathlib import Path

from case import ProgramTestCase
from program import PROGRAM
from screen import OUTPUT, start, wait_until


class WithoutX(unittest.TestCase):
    def setUp(self):
        OUTPUT.mkdir(parents=True, exist_ok=True)
        self.folder = Path(self.enterContext(tempfile.TemporaryDirectory()))
        folders = {"HOME": str(self.folder), "XDG_RUNTIME_DIR": str(self.folder)}
        self.environment = {"PATH": "/usr/bin:/bin", "DISPLAY": ":nowhere", "WAYLAND_DEBUG": "client", **folders}

    def run_until(self, said, *command):
        log = OUTPUT / "displays.log"
        log.unlink(missing_ok=True)
        process = start(command, log, self.environment)
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        wait_until(lambda: re.search(said, log.read_text()), said)
        return process

    def test_without_a_display_the_program_ends_with_one_line(self):
        ended = subprocess.run([PROGRAM], env=self.environment, capture_output=True, text=True)
        self.assertEqual((ended.returncode, ended.stderr.count("\n")), (1, 1), ended.stderr)

    def test_under_wayland_dialogs_have_a_parent_the_kept_place_stays_and_signals_save(self):
        self.run_until("launching .*desktop-shell", "weston", "--backend=headless-backend.so", "--socket=wayland-0")
        self.run_until(r"set_parent\(xdg_toplevel", PROGRAM)
        preferences = self.folder / ".config" / "Tessarolyne Prefs.txt"
        place = "Fenetre WinMain :@: 30,40,550,594\n"
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(signal=number.name):
                preferences.write_text(ProgramTestCase.PREFERENCES + place + "Liste Nb1ers Visible :@: True\n")
                program = self.run_until(r'set_title\("Liste', "env", "--default-signal", PROGRAM)
                program.send_signal(number)
                self.assertEqual(program.wait(10), 0)
                self.assertIn("Langue", preferences.read_text())
                self.assertIn(place, preferences.read_text())

"""The program as Debian installed it finds what it brought along. Run by tests/package/run."""

import os
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "desktop"))

from case import ProgramTestCase  # noqa: E402

# Where it is installed: on this machine, or in a tree of its own.
TREE = Path(os.environ.get("TESSAROLYNE_TREE", "/"))


class Installed(ProgramTestCase):
    ENVIRONMENT = {"LANGUAGE": "en"}

    @classmethod
    def start_program(cls):
        # A player of sounds, which only notes what it should play.
        player = Path(cls._home) / "bin" / "pw-play"
        player.write_text('#!/bin/sh\necho "$1" >"$HOME/played"\n')
        player.chmod(0o755)
        super().start_program()

    def tearDown(self):
        self.assertEqual("", self.log())

    def test_a_number_is_worked_on_in_english_and_the_sound_found(self):
        played = Path(self._home) / "played"
        self.screen.type("255")
        self.find("text", text="1111 1111")
        self.find("text", text="two hundred and fifty five euros zero cent")
        self.screen.press("ctrl+2")
        self.wait_for(lambda: played.is_file() and played.read_text().endswith("\n"), "the sound")
        sound = played.read_text().strip()
        self.assertEqual("/usr/share/tessarolyne/sounds/Bip.wav", sound)
        self.assertTrue((TREE / sound[1:]).is_file())

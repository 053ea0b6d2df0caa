#!/usr/bin/env python3
"""Starts the real program with a design that it can't open: it ends with status 1 and says why."""

import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent))
from desk import PATIENCE, Desk  # noqa: E402

PROGRAM = sys.argv.pop(1)
sys.argv.pop(1)  # the samples, which the other tests of the desk open


def told(path):
    """What the program says on standard error of a file that it can't open."""
    return f"hullwright: cannot open the design '{path}'"


class FailedStartTest(unittest.TestCase):
    """The exit status and the words of a start that fails."""

    def setUp(self):
        holder = tempfile.TemporaryDirectory()
        self.addCleanup(holder.cleanup)
        self.folder = pathlib.Path(holder.name)
        self.environment = dict(os.environ, HOME=str(self.folder), QT_QPA_PLATFORM="offscreen",
                                XDG_CONFIG_HOME=str(self.folder / "config"), LC_ALL="C.UTF-8")

    def test_a_malformed_file_ends_the_start_at_once(self):
        for name, text in (("cut.xml", '<vessel>\n <units id="9001" />\n'), ("empty.xml", ""),
                           ("schiff \u00e4.xml", "no design")):
            with self.subTest(name):
                path = self.folder / name
                path.write_text(text, encoding="utf-8")
                # Nobody is there to close a window: one that opened would keep the program waiting.
                done = subprocess.run([PROGRAM, path], env=self.environment, check=False, capture_output=True,
                                      text=True, timeout=PATIENCE)
                self.assertEqual((done.returncode, done.stdout), (1, ""))
                self.assertEqual(done.stderr.splitlines()[-1], told(path))
                self.assertEqual(path.read_text(encoding="utf-8"), text)

    def test_a_missing_file_is_told_in_a_window_and_ends_the_start(self):
        desk = Desk()
        self.addCleanup(desk.close)
        path = desk.folder / "missing.xml"
        desk.launch(PROGRAM, path)
        desk.answer("Hullwright", "Return")
        self.assertEqual(desk.program.wait(PATIENCE), 1)
        self.assertEqual(desk.output().splitlines()[-1], told(path))
        self.assertFalse(path.exists())


if __name__ == "__main__":
    unittest.main()

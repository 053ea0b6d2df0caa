#!/usr/bin/env python3
"""Starts the real program with a design that it can't open: it ends with status 1 and says why."""

import os
import subprocess
import unittest

from case import PROGRAM, DeskTest
from desk import PATIENCE


def reported(path, reason):
    """What the program says on standard error of a file that it can't open."""
    return f"hullwright: cannot open the design '{path}': {reason}"


class FailedStartTest(DeskTest):
    """The exit status and the message of a start that fails."""

    def test_a_malformed_file_ends_the_start_at_once(self):
        environment = dict(os.environ, HOME=str(self.desk.folder), QT_QPA_PLATFORM="offscreen",
                           XDG_CONFIG_HOME=str(self.desk.folder / "config"), LC_ALL="C.UTF-8")
        for name, text, reason in (
                ("cut.xml", '<vessel>\n <units id="9001" />\n', "line 3, column 1: no element found"),
                ("empty.xml", "", "line 1, column 1: no element found"),
                ("schiff \u00e4.xml", "no design", "line 1, column 1: syntax error")):
            with self.subTest(name):
                path = self.desk.folder / name
                path.write_text(text, encoding="utf-8")
                # Nobody is there to close a window: one that opened would keep the program waiting.
                done = subprocess.run([PROGRAM, path], env=environment, check=False, capture_output=True,
                                      text=True, timeout=PATIENCE)
                self.assertEqual((done.returncode, done.stdout), (1, ""))
                self.assertEqual(done.stderr.splitlines()[-1], reported(path, reason))
                self.assertEqual(path.read_text(encoding="utf-8"), text)

    def test_a_missing_file_is_reported_in_a_window_and_ends_the_start(self):
        path = self.desk.folder / "missing.xml"
        self.desk.launch(PROGRAM, path)
        self.desk.answer("Hullwright", "Return")
        self.assertEqual(self.desk.wait_for_end(), 1)
        self.assertEqual(self.desk.output().splitlines()[-1], reported(path, "No such file or directory"))
        self.assertFalse(path.exists())


if __name__ == "__main__":
    unittest.main()

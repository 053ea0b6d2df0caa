#!/usr/bin/env python3
"""Starts the real program again and again with nothing warm: starts_test.py PROGRAM SAMPLES [HOW OFTEN]"""

import pathlib
import sys
import time
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent))
from case import DeskTest, SAMPLES  # noqa: E402
from desk import Desk  # noqa: E402

HOW_OFTEN = int(sys.argv.pop(1)) if sys.argv[1:] else 3


class StartsTest(DeskTest):
    """Each start has a new display, window manager, home and font cache."""

    @classmethod
    def setUpClass(cls):
        cls.desk = None

    def setUp(self):
        self.addCleanup(lambda: self.desk and self.desk.close())

    def test_every_cold_start_shows_the_design_and_the_program_ends_when_asked(self):
        for number in range(1, HOW_OFTEN + 1):
            self.desk = Desk(own_fonts=True)
            begin = time.monotonic()
            self.start(SAMPLES / "workboat.xml")
            print(f"start {number}: {time.monotonic() - begin:.1f} s", flush=True)
            self.assertEqual(self.desk.window_text(self.desk.window).split()[-3:],
                             ["'workboat.xml", "-", "Hullwright'"])
            self.desk.keys("alt+f", "x")
            self.assertEqual(self.desk.wait_for_end(), 0)
            self.desk.close()
            self.desk = None


if __name__ == "__main__":
    unittest.main()

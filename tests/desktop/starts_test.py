#!/usr/bin/env python3
"""Starts the real program again and again with nothing warm: starts_test.py PROGRAM SAMPLES [HOW OFTEN]"""

import os
import pathlib
import shutil
import socket
import sys
import tempfile
import time
import unittest
import unittest.mock

sys.path.insert(0, str(pathlib.Path(__file__).parent))
from case import DeskTest, SAMPLES  # noqa: E402
from desk import Desk  # noqa: E402

HOW_OFTEN = int(sys.argv.pop(1)) if sys.argv[1:] else 3


class SilentBusTest(DeskTest):
    """The session bus of a desktop may be there and never answer."""

    def test_a_silent_session_bus_holds_the_start_up_for_seconds_only(self):
        bus = socket.socket(socket.AF_UNIX)
        self.addCleanup(bus.close)
        bus.bind(str(self.desk.folder / "bus"))
        bus.listen()
        self.start(SAMPLES / "workboat.xml", DBUS_SESSION_BUS_ADDRESS=f"unix:path={bus.getsockname()}")
        self.assertEqual(self.desk.output(), "hullwright: the session bus does not answer; going on without it\n")


class StartsTest(DeskTest):
    """Each start has a new display, window manager, home and font cache."""

    @classmethod
    def setUpClass(cls):
        cls.desk = None

    def setUp(self):
        self.addCleanup(lambda: self.desk and self.desk.close())

    def start_and_leave(self):
        """Starts the program at a new desk and ends it as a surveyor would; the seconds that the start took."""
        self.desk = Desk(own_fonts=True)
        begin = time.monotonic()
        self.start(SAMPLES / "workboat.xml")
        taken = time.monotonic() - begin
        self.assertTrue(self.desk.window_text(self.desk.window).endswith("'workboat.xml - Hullwright'"))
        self.desk.keys("alt+f", "x")
        self.assertEqual(self.desk.wait_for_end(), 0)
        self.desk.close()
        self.desk = None
        return taken

    def test_every_cold_start_shows_the_design_and_the_program_ends_when_asked(self):
        for number in range(1, HOW_OFTEN + 1):
            print(f"start {number}: {self.start_and_leave():.1f} s", flush=True)

    def test_a_window_manager_that_is_late_is_waited_for(self):
        with tempfile.TemporaryDirectory() as folder:
            late = pathlib.Path(folder) / "openbox"
            late.write_text(f'#!/bin/sh\nsleep 2\nexec {shutil.which("openbox")} "$@"\n')
            late.chmod(0o755)
            with unittest.mock.patch.dict(os.environ, PATH=f"{folder}:{os.environ['PATH']}"):
                self.start_and_leave()


if __name__ == "__main__":
    unittest.main()

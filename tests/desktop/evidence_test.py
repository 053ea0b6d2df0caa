#!/usr/bin/env python3
"""Fails on purpose in front of the real program and looks at what that leaves behind."""

import pathlib
import re
import struct
import sys
import unittest
import zlib

sys.path.insert(0, str(pathlib.Path(__file__).parent))
from case import DeskTest, EVIDENCE, SAMPLES  # noqa: E402


class EvidenceTest(unittest.TestCase):
    """What a failure leaves behind."""

    class Failing(DeskTest):
        """Fails while the program's window is open."""

        def test_that_fails(self):
            self.start(SAMPLES / "workboat.xml")
            with open(self.desk.folder / "output", "a", encoding="utf-8") as output:
                output.write("the program's last words\n")
            self.fail("on purpose")

    @classmethod
    def setUpClass(cls):
        cls.result = unittest.TestResult()
        unittest.defaultTestLoader.loadTestsFromTestCase(cls.Failing).run(cls.result)
        cls.folder = EVIDENCE / "EvidenceTest.Failing.test_that_fails"

    def test_the_failure_is_reported_as_it_is(self):
        self.assertEqual(len(self.result.failures), 1)
        self.assertIn("on purpose", self.result.failures[0][1])
        self.assertEqual(self.result.errors, [])

    def test_the_picture_shows_the_design_view(self):
        picture = (self.folder / "screen.png").read_bytes()
        self.assertTrue(picture.startswith(b"\x89PNG\r\n\x1a\n"))
        self.assertEqual(struct.unpack(">II", picture[16:24]), (1400, 1000))
        size = struct.unpack(">I", picture[33:37])[0]
        self.assertEqual(picture[37:41], b"IDAT")
        lines = zlib.decompress(picture[41:41 + size])
        pixel = 300 * (1 + 1400 * 3) + 1 + 400 * 3  # of the design view; each line begins with a byte of its own
        self.assertEqual(tuple(lines[pixel:pixel + 3]), (255, 255, 224))

    def test_the_windows_are_listed_with_their_titles(self):
        self.assertRegex((self.folder / "windows.txt").read_text(),
                         r"(?m)^ *\d+ visible .* 1330x860 'workboat\.xml - Hullwright'$")

    def test_the_output_so_far_is_kept(self):
        self.assertIn("the program's last words\n", (self.folder / "output.txt").read_text())

    def test_each_thread_is_named_and_the_main_one_stands_in_main(self):
        text = (self.folder / "stacks.txt").read_text()
        for name in ("Xvfb", "openbox", "hullwright", "QXcbEventQueue"):
            self.assertRegex(text, rf"(?m)^  thread \d+: {name} \| [SR] \|")
        # Behind the threads stand the stacks. Some machines let nobody but a debugger's own children be
        # looked at, which the tool says then.
        stacks = re.sub(r"(?m)^  thread .*\n", "", text)
        self.assertRegex(stacks, r"(?m)^#\d+ .* main$|eu-stack: .*Operation not permitted")


if __name__ == "__main__":
    unittest.main()

#!/usr/bin/env python3
"""Runs the real hullwright-cli."""

import pathlib
import struct
import subprocess
import sys
import tempfile
import unittest

PROGRAM = sys.argv.pop(1)
SAMPLES = pathlib.Path(sys.argv.pop(1))
SIDES = ("top", "bottom", "right", "left", "front", "rear")


def run(*arguments):
    """Runs the program to its end."""
    return subprocess.run([PROGRAM, *map(str, arguments)], capture_output=True, text=True, check=False)


def size_of(png):
    """Width and height of a PNG file."""
    data = png.read_bytes()
    assert data[:8] == b"\x89PNG\r\n\x1a\n", png
    return struct.unpack(">II", data[16:24])


class RenderTest(unittest.TestCase):
    """hullwright-cli render"""

    def setUp(self):
        holder = tempfile.TemporaryDirectory()
        self.addCleanup(holder.cleanup)
        self.folder = pathlib.Path(holder.name)

    def test_draws_one_side_at_the_size_asked_for(self):
        out = self.folder / "right.png"
        done = run("render", SAMPLES / "workboat.xml", "--side", "right", "--size", "320x200", "-o", out)
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "", ""))
        self.assertEqual(size_of(out), (320, 200))

    def test_draws_all_sides_each_to_its_file(self):
        done = run("render", SAMPLES / "dredger.xml", "--side=all", "-z", "160x100", "-o",
                   self.folder / "boat.png")
        self.assertEqual(done.returncode, 0)
        self.assertEqual(sorted(p.name for p in self.folder.iterdir()),
                         sorted(f"boat-{side}.png" for side in SIDES))
        pictures = {p.read_bytes() for p in self.folder.iterdir()}
        self.assertEqual(len(pictures), len(SIDES))

    def test_names_with_blanks_umlauts_and_emoji(self):
        design = self.folder / "Schiff Ä 🚢.xml"
        design.write_bytes((SAMPLES / "catamaran.xml").read_bytes())
        out = self.folder / "Bild ö 🚢.png"
        self.assertEqual(run("render", design, "-o", out, "-z", "64x40").returncode, 0)
        self.assertEqual(size_of(out), (64, 40))

    def assert_fails(self, done, status, *words):
        self.assertEqual(done.returncode, status)
        self.assertEqual(done.stdout, "")
        for word in words:
            self.assertIn(word, done.stderr)
        self.assertFalse(list(self.folder.glob("*.png")))

    def test_a_missing_design_is_told_with_its_name(self):
        done = run("render", self.folder / "missing.xml", "-o", self.folder / "out.png")
        self.assert_fails(done, 1, "missing.xml", "No such file")

    def test_a_design_that_is_not_well_formed_is_told(self):
        design = self.folder / "bad.xml"
        design.write_text("<vessel>")
        self.assert_fails(run("render", design, "-o", self.folder / "out.png"), 1, "bad.xml",
                          "not a well-formed design file")

    def test_a_target_that_cannot_be_written_is_told(self):
        done = run("render", SAMPLES / "workboat.xml", "-o", self.folder / "none" / "out.png")
        self.assert_fails(done, 1, "out.png")

    def test_wrong_usage_is_status_two(self):
        sample = SAMPLES / "workboat.xml"
        out = self.folder / "out.png"
        for arguments in ((), ("draw",), ("render",), ("render", sample),
                          ("render", sample, sample, "-o", out),
                          ("render", sample, "--side", "above", "-o", out),
                          ("render", sample, "--size", "12", "-o", out),
                          ("render", sample, "--size", "0x5", "-o", out),
                          ("render", sample, "--size", "5x99999", "-o", out),
                          ("render", sample, "--size", "5x5x5", "-o", out),
                          ("render", sample, "--fast", "-o", out)):
            with self.subTest(arguments):
                self.assert_fails(run(*arguments), 2, "hullwright-cli")

    def test_help_and_version(self):
        self.assertIn("Usage: hullwright-cli render", run("--help").stdout)
        self.assertRegex(run("--version").stdout, r"^hullwright-cli \d+\.\d+\.\d+\n$")


if __name__ == "__main__":
    unittest.main()

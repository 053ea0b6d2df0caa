#!/usr/bin/env python3
"""Runs the real hullwright-cli."""

import json
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
        for verb in ("import", "render"):
            self.assertIn(verb, run("--help").stdout)
            self.assertIn(f"Usage: hullwright-cli {verb}", run(verb, "--help").stdout)
        self.assertRegex(run("--version").stdout, r"^hullwright-cli \d+\.\d+\.\d+\n$")


class ImportTest(unittest.TestCase):
    """hullwright-cli import"""

    def setUp(self):
        holder = tempfile.TemporaryDirectory()
        self.addCleanup(holder.cleanup)
        self.folder = pathlib.Path(holder.name)

    def drawing(self, name, *lines):
        """Writes a drawing."""
        path = self.folder / name
        path.write_bytes("\n".join(("0", "SECTION", "2", "ENTITIES", *lines, "0", "ENDSEC", "")).encode())
        return path

    def import_json(self, path):
        """The document that an import prints."""
        done = run("import", path, "--json")
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertTrue(done.stdout.endswith("}\n"))
        return json.loads(done.stdout)

    def test_prints_every_kind_of_shape(self):
        path = self.drawing(
            "Zeichnung Ä.dxf",
            "0", "LINE", "5", "1F", "8", "Hull", "62", "1", "10", "0.1", "20", "-0", "11", "1e300",
            "0", "POINT", "10", "1", "20", "2", "30", "3",
            "0", "SOLID", "10", "nan", "20", "inf", "30", "-inf",
            "0", "TEXT", "1", 'a "b" \\\\ \\U+D83D\\U+DEA2 \\U+D83D ^I Ä', "40", "2.5", "50", "90")
        result = self.import_json(path)
        style = {"line": 0, "fill": 0, "width": 1.0, "styleCode": 7}
        names = [["LAYER", ""], ["HANDLE", ""]]
        line, point, solid, text = result["shapes"]
        self.assertEqual(line, {"type": 2, "tag": 31, "style": {**style, "line": 255, "fill": 255},
                                "attrs": [["LAYER", "Hull"], ["HANDLE", "1F"]],
                                "vertices": [[0.1, 0.0, 0.0], [1e300, 0.0, 0.0]]})
        self.assertEqual(point, {"type": 1, "tag": 0, "style": style, "attrs": names,
                                 "vertices": [[1.0, 2.0, 3.0]]})
        self.assertEqual(solid, {"type": 3, "tag": 0, "style": style, "attrs": names, "vertices": [],
                                 "rings": [[["nan", "inf", "-inf"], [0.0] * 3, [0.0] * 3, [0.0] * 3]]})
        self.assertEqual((text["type"], text["angle"], text["height"]), (8, 270.0, 2.5))
        self.assertEqual(text["text"], 'a "b" \\\\ 🚢 \ud83d \t Ä')
        self.assertIn("-0.0", run("import", path, "--json").stdout)
        self.assertEqual(result["result"], 0)
        self.assertEqual(result["extents"][0], -1.0)

    def test_prints_the_log_without_the_path(self):
        result = self.import_json(self.drawing("a.dxf"))
        self.assertEqual(result["log"][0], [32, "Processing", "[DXF] Successfully opened file: [%ls]."])
        self.assertEqual(result["log"][-1][2], "Successfully loaded the selected AutoCAD DXF file: "
                         "[ %ls]. Please see the 'Processing' tab for details.")

    def test_a_failed_import_is_a_result_too(self):
        result = self.import_json(self.folder / "missing.dxf")
        self.assertEqual(result, {"result": -1, "extents": [0.0] * 4, "shapes": [], "log": [[
            1, "General", "[DXF] Failed to open AutoCAD DXF file. Either the file does not exist, or it "
            "is empty: [%ls]."]]})

    def test_blocks_that_multiply_stop_at_the_budget(self):
        blocks = ["0", "SECTION", "2", "BLOCKS", "0", "BLOCK", "2", "b0", "0", "POINT", "0", "ENDBLK"]
        for level in range(1, 40):
            blocks += ["0", "BLOCK", "2", f"b{level}", *["0", "INSERT", "2", f"b{level - 1}"] * 10,
                       "0", "ENDBLK"]
        path = self.folder / "many.dxf"
        path.write_text("\n".join([*blocks, "0", "ENDSEC", "0", "SECTION", "2", "ENTITIES", "0", "INSERT",
                                   "2", "b39", "0", "LINE", "0", "ENDSEC", ""]))
        result = self.import_json(path)
        self.assertEqual(len(result["shapes"]), 1)
        self.assertEqual([entry[0] for entry in result["log"] if entry[1] == "General"], [1, 32])

    def test_wrong_usage_is_status_two(self):
        path = self.drawing("a.dxf")
        for arguments in (("import",), ("import", path), ("import", path, path, "--json"),
                          ("import", path, "--xml")):
            with self.subTest(arguments):
                done = run(*arguments)
                self.assertEqual((done.returncode, done.stdout), (2, ""))
                self.assertIn("hullwright-cli", done.stderr)


if __name__ == "__main__":
    unittest.main()

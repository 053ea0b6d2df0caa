#!/usr/bin/env python3
"""What docs/FILE-FORMAT.md says of the design file, on hullwright-cli"""

import json
import re
import unittest

from cli import SAMPLES, CliTest, run

ROOT = SAMPLES.parent
PAGE = (ROOT / "docs" / "FILE-FORMAT.md").read_text(encoding="utf-8")


def table(*titles):
    """The rows of the table of the page with these titles."""
    head = f"| {' | '.join(titles)} |\n|{'---|' * len(titles)}\n"
    assert PAGE.count(head) == 1, head
    lines = PAGE.split(head)[1].split("\n\n")[0].splitlines()
    return [[cell.strip() for cell in line.strip("|").split(" | ")] for line in lines]


def code(cell):
    """What stands between the marks of code of a cell."""
    found = re.fullmatch("`(.*)`", cell)
    assert found, cell
    return found[1].replace("\u21b5", "\n")


class FileFormatTest(CliTest):
    """The example and the tables of the page."""

    def example(self):
        """The design of the page, byte for byte."""
        designs = re.findall(r"```xml\n(.*?)```\n", PAGE, re.DOTALL)
        self.assertEqual(len(designs), 1)
        return designs[0].encode("ascii")

    def saved(self, design, side="rear"):
        """What a save makes of the bytes of a design: an import of what is not saved, for which the side gets an
        empty group if it has none."""
        path = self.folder / "in.xml"
        path.write_bytes(design if isinstance(design, bytes) else design.encode())
        point = self.drawing("point.dxf", "0", "POINT")
        done = run("import", point, "--side", side, "--into", path, "-o", "-")
        self.assertEqual(done.returncode, 0, done.stderr)
        return done.stdout

    def test_the_example_is_what_the_program_writes(self):
        loose = ("<?xml version='1.0' encoding='ISO-8859-1'?><design><anchor><attachmentY>-2</attachmentY><id>1</id>"
                 "<name>Panam\u00e1 lead &amp; roller</name><attachmentX>11.25</attachmentX></anchor>"
                 "<piv y='10'/><txd z='-1.75' x='-10'/><gps z='8.3' x='10'/><shapes view='1'><polyline>"
                 "<vertex x='-12.5'/><vertex x='12.5' y='3.25' z='-0.0001'/></polyline><polyline/></shapes></design>")
        path = self.folder / "loose.xml"
        path.write_bytes(loose.encode("iso-8859-1"))
        line = self.drawing("front.dxf", "0", "LINE", "10", "-3.5", "20", "1.2", "11", "3.5", "21", "1.2")
        out = self.folder / "out.xml"
        self.succeed("import", line, "--side", "front", "--into", path, "-o", out)
        self.assertEqual(out.read_bytes(), self.example())

    def test_the_example_is_read_as_it_stands(self):
        self.assertEqual(self.saved(self.example(), "top"), self.example())
        path = self.folder / "in.xml"
        self.assertEqual(self.succeed("check", path), b"")
        self.assertEqual(json.loads(self.succeed("info", "--json", path)), {
            "file": str(path), "kind": "design", "unit": {"code": 9001, "name": "metre"},
            "offsets": {"gps": [10.0, 0.0, 8.3], "txd": [-10.0, 0.0, -1.75], "piv": [0.0, 10.0, 0.0]},
            "anchors": [{"id": 1, "name": "Panam\u00e1 lead & roller", "attachment": [11.25, -2.0]}],
            "groups": [{"view": 1, "side": "top", "polylines": 2, "vertices": 2, "extents": [-12.5, 0.0, 12.5, 3.25]},
                       {"view": 16, "side": "front", "polylines": 1, "vertices": 2, "extents": [-3.5, 1.2, 3.5, 1.2]}]})

    def test_numbers_are_saved_as_the_table_says(self):
        rows = table("read", "saved as", "why")
        self.assertGreater(len(rows), 10)
        for read, saved, _ in rows:
            elements = {"x": "<shapes view='1'><polyline><vertex {} /></polyline></shapes>", "view": "<shapes {} />",
                        "id": "<units {} />"}
            element = elements[code(read).split("=")[0]]
            with self.subTest(read):
                out = self.saved("<vessel>" + element.format(code(read)) + "</vessel>").decode()
                self.assertIn(f" {code(saved)} ", out[:out.index(" <gps")])

    def test_texts_of_anchors_are_saved_as_the_table_says(self):
        rows = table("read in `<anchor>`", "saved as", "why")
        self.assertGreater(len(rows), 10)
        for read, saved, _ in rows:
            with self.subTest(read):
                out = self.saved(f"<vessel><anchor>{code(read)}</anchor></vessel>").decode()
                self.assertIn(f"\n   {code(saved)}\n", out)

    def test_encodings_of_the_table_are_read_and_no_others(self):
        rows = dict(table("declared encoding", "bytes"))
        named = re.findall("`(.*?)`", next(cell for cell in rows if cell.startswith("`")))
        design = "<vessel><anchor><name>{}</name></anchor></vessel>"
        self.assertEqual(len(named), 7)
        for name in named:
            text = "~" if name == "US-ASCII" else "\u00fc"
            with self.subTest(name):
                data = f"<?xml version='1.0' encoding='{name}'?>".encode(name) + (
                    design.format(text).encode(name).removeprefix(b"\xff\xfe"))
                self.assertIn(text.encode("ascii", "xmlcharrefreplace").replace(b"&#252;", b"&#xFC;"), self.saved(data))
        for name in ("utf-8", "utf-8-sig", "utf-16", "utf-16-le", "utf-16-be"):
            with self.subTest(f"none, {name}"):
                self.assertIn(b"<name>&#xFC;</name>", self.saved(design.format("\u00fc").encode(name)))
        for name in ("cp1252", "ISO-8859-15", "latin1", "UTF-32"):
            other = self.write("other.xml", f"<?xml version='1.0' encoding='{name}'?><vessel />")
            self.fail_with(2, ("unknown encoding",), "check", other)

    def test_units_of_the_table_have_their_factors_and_no_others(self):
        rows = table(*("code", "metres") * 6)
        units = {int(row[i]): row[i + 1] for row in rows for i in range(0, len(row), 2)}
        source = (ROOT / "src" / "model" / "Units.cpp").read_text(encoding="utf-8")
        factors = {int(unit): factor for unit, factor in re.findall(r"(?:Same\(|UnitCode\{)(\d{4})\}?, ([\d.]+)", source)}
        self.assertEqual(units, {9001: "1", **factors})
        self.assertIn("(9003) has " + re.search(r"\{9003\}, [\d.]+, ([\d.]+)\}", source)[1] + ".", PAGE)
        designs = {}
        for unit in range(8999, 9110):
            designs[unit] = self.folder / f"{unit}.xml"
            designs[unit].write_bytes(self.example().replace(b"9001", str(unit).encode()))
        done = run("check", *designs.values())
        self.assertEqual(re.findall(r"unit code (\d+) .*; all lengths count as metres\n", done.stdout.decode()),
                         [str(unit) for unit in designs if unit not in units])

    def test_names_that_do_not_open_again(self):
        emoji = self.saved("<vessel><anchor><name>\U0001f6a2</name></anchor></vessel>")
        self.assertIn(b"<name>&#xD83D;&#xDEA2;</name>", emoji)
        for name in (emoji.split(b"name>")[1][:-2].decode(), "&#x1;", "&#xFFFE;", "&#xFFFF;"):
            path = self.write("name.xml", f"<vessel><anchor><name>{name}</name></anchor></vessel>")
            self.fail_with(2, ("invalid character",), "check", path)


if __name__ == "__main__":
    unittest.main()

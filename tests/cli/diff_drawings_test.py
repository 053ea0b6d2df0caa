#!/usr/bin/env python3
"""hullwright-cli diff on drawings: their units and their sides"""

import json
import re
import unittest

from cli import SAMPLES, SIDES, CliTest, run
from designs import random_design

PICTURES = b"without pictures" not in run("render", "--help").stdout
SMALL = ('<vessel><units id="{unit}"/><shapes view="01"><polyline><vertex x="0" y="0"/><vertex x="{x}" y="0"/></polyline>'
         '</shapes></vessel>')


class DiffDrawingsTest(CliTest):
    """Drawings with drawings, and with designs."""

    def line(self, name, insunits=None, length="5", layer="HULL"):
        """A drawing of a line, whose header states a unit or not."""
        unit = ("9", "$INSUNITS", "70", str(insunits)) if insunits is not None else ()
        return self.write(name, "\n".join(("0", "SECTION", "2", "HEADER", "9", "$ACADVER", "1", "AC1015", *unit, "0", "ENDSEC",
                                           "0", "SECTION", "2", "ENTITIES", "0", "LINE", "8", layer, "10", "0", "20", "0",
                                           "11", length, "21", "0", "0", "ENDSEC", "0", "EOF", "")))

    def small(self, unit=9001, x="5"):
        """A design of the same line."""
        return self.write("small.xml", SMALL.format(unit=unit, x=x))

    def differ(self, *arguments):
        """The lines on a difference, without the first, which names the files."""
        done = run("diff", *arguments)
        self.assertEqual((done.returncode, done.stderr), (1, b""), done.stdout)
        return done.stdout.decode().splitlines()[1:]

    def titles(self, *arguments):
        """What each difference is a difference of, without the lines on vertices."""
        return [line.split()[0] for line in self.differ(*arguments) if not line.startswith("   ")]

    def test_drawings_of_two_units_differ_though_their_numbers_are_the_same(self):
        files = self.line("a.dxf", 6), self.line("b.dxf", 2)
        self.assertEqual(self.differ(*files), ["  unit          metre ($INSUNITS 6) -> foot ($INSUNITS 2); all numbers are the "
                                               "same, so that every length changed"])
        found = json.loads(run("diff", "--json", *files).stdout)
        self.assertEqual(found["unit"], {"former": {"code": 9001, "name": "metre"}, "current": {"code": 9002, "name": "foot"},
                                         "sameNumbers": True, "converted": False})
        self.assertFalse(found["equal"])

    def test_numbers_of_drawings_are_compared_as_they_stand(self):
        lines = self.differ(self.line("a.dxf", 4, "5000"), self.line("b.dxf", 6))
        self.assertEqual(lines[0], "  unit          millimetre ($INSUNITS 4) -> metre ($INSUNITS 6); the numbers are compared as "
                                   "they stand")
        self.assertIn("5000.000", "\n".join(lines[1:]))
        found = json.loads(run("diff", "--json", self.line("a.dxf", 4), self.line("b.dxf", 5)).stdout)
        self.assertEqual((found["unit"]["former"], found["unit"]["sameNumbers"]), ({"code": None, "name": "millimetre"}, True))

    def test_a_drawing_that_states_no_unit_has_that_of_the_other_file(self):
        for unit in (None, 0, 99):
            self.succeed("diff", self.line("a.dxf", unit), self.line("b.dxf", 2))
            self.succeed("diff", self.small(9002), self.line("a.dxf", unit))
        self.succeed("diff", self.line("a.dxf", 4), self.line("b.dxf", 4))

    def test_a_drawing_of_another_unit_than_the_design_differs(self):
        self.succeed("diff", self.line("a.dxf", 6), self.small())
        self.assertEqual(self.differ(self.small(), self.line("a.dxf", 2)), [
            "  unit          metre (EPSG 9001) -> foot ($INSUNITS 2); all numbers are the same, so that every length changed"])
        # A unit that drawings lack is another one than any that they state.
        self.assertEqual(len(self.differ(self.small(9005), self.line("a.dxf", 2))), 1)
        # Behind a long header the unit is found as well.
        late = self.line("late.dxf", 2)
        late.write_text(late.read_text().replace("9\n$INSUNITS", "9\n$MENU\n1\n.\n" * 50 + "9\n$INSUNITS"))
        self.assertEqual(len(self.differ(self.small(), late)), 1)

    def test_a_design_does_not_differ_from_its_export(self):
        designs = [*sorted(SAMPLES.glob("*.xml")), *(self.write(f"{i}.xml", random_design(i)) for i in range(200, 212))]
        for design in designs:
            for options in (("-d", "R12"), ("-d", "R2000"), ("-s", "left")):
                out = self.folder / "out.dxf"
                self.succeed("export", design, *options, "-o", out)
                side = options if "-s" in options else ()
                for files in ((design, out), (out, design), (out, out)):
                    with self.subTest(design.name, options=options):
                        self.assertIn(b": no difference above 0\n", self.succeed("diff", *files, *side, "-t", "0"))

    def test_a_design_with_a_line_of_one_vertex_does_not_differ_from_its_export(self):
        text = SMALL.format(unit=9001, x=5).replace("<polyline>", '<polyline><vertex x="9"/></polyline><polyline>')
        design = self.write("a.xml", text)
        out = self.folder / "out.dxf"
        self.succeed("export", design, "-o", out, remarks=["a.xml: left out: 1 polyline of fewer than two vertices"])
        self.succeed("diff", design, out)

    def test_layers_of_sides_name_the_side_of_a_change(self):
        boat = SAMPLES / "workboat.xml"
        out = self.folder / "out.dxf"
        self.succeed("export", boat, "-o", out)
        text = boat.read_text()
        for code, side in zip(("01", "02", "04", "08", "10", "20"), SIDES):
            lost = self.write("lost.xml", re.sub(rf'<shapes view="{code}" >.*?</shapes>', "", text, flags=re.S))
            self.assertEqual(set(self.titles(out, lost)), {side})
            self.assertEqual(len(self.differ(out, lost, "-s", side)), len(self.differ(out, lost)))
        self.succeed("export", lost, "-o", self.folder / "lost.dxf")
        found = json.loads(run("diff", "-j", out, self.folder / "lost.dxf").stdout)
        self.assertEqual({shape["side"] for shape in found["shapes"]}, {"rear"})

    def test_a_drawing_with_a_line_on_another_layer_is_one_side(self):
        hull = self.line("hull.dxf")
        self.assertEqual(self.titles(hull, self.line("b.dxf", length="50")), ["drawing"])
        self.assertEqual(self.titles(hull, self.line("b.dxf", length="50", layer="left")), ["drawing"])
        self.succeed("diff", hull, self.line("b.dxf", layer="left"))
        self.assertEqual(self.titles(hull, self.small(x="50")), ["top"])
        self.succeed("diff", hull, self.small(), "-s", "top")
        self.assertEqual(self.titles(self.line("left.dxf", layer="Left"), self.small()), ["top", "left"])
        found = json.loads(run("diff", "-j", hull, self.line("b.dxf", length="50")).stdout)
        self.assertEqual([shape["side"] for shape in found["shapes"]], ["drawing"])

    @unittest.skipUnless(PICTURES, "built without pictures")
    def test_a_picture_of_drawings_names_their_sides_or_none(self):
        out = self.folder / "out.svg"
        for layer, name in (("HULL", "drawing"), ("rear", "rear")):
            self.assertEqual(run("diff", self.line("a.dxf", layer=layer), self.line("b.dxf", length="50", layer=layer),
                                 "-o", out).returncode, 1)
            self.assertEqual(re.findall(r">(\w+): the former grey", out.read_text()), [name])

    def test_exports_that_are_no_drawings_are_told_what_is_taken(self):
        design = self.small()
        for ending in ("csv", "geojson"):
            out = self.folder / f"out.{ending}"
            self.succeed("export", design, "-o", out)
            words = f"out.{ending}: not a drawing: it has no SECTION; diff takes designs and DXF drawings"
            self.fail_with(2, (words,), "diff", design, out)
            self.fail_with(2, (words,), "diff", out, design)


if __name__ == "__main__":
    unittest.main()

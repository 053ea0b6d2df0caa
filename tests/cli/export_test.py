#!/usr/bin/env python3
"""hullwright-cli export: what it writes, and that an import of it gives the same polylines."""

import csv
import io
import json
import os
import re
import shutil
import subprocess
import unittest
import xml.dom.minidom

from cli import PROGRAM, SAMPLES, SIDES, CliTest, run
from designs import Design, in_plane, random_design

BOAT = SAMPLES / "workboat.xml"
VESSELS = sorted(SAMPLES.glob("*.xml"))
FORMATS = ("dxf", "geojson", "csv", "svg")
VERSIONS = ("R12", "R2000")
PICTURES = b"without pictures" not in run("render", "--help").stdout
SMALL = ('<vessel>\n<units id="{unit}" />\n<shapes view="{view}" >\n<polyline>\n'
         '<vertex x="{x}" y="2" z="0" />\n<vertex x="3" y="4" z="0" />\n</polyline>\n</shapes>\n'
         '<anchors>\n<anchor>\n<id>1</id>\n<name>{name}</name>\n</anchor>\n</anchors>\n</vessel>\n')


def small(unit=9001, view="01", x="1", name="Bow"):
    """A design of one polyline and one anchor."""
    return SMALL.format(unit=unit, view=view, x=x, name=name)


class ExportTest(CliTest):
    """What designs become for other programs."""

    def export(self, design, *options, ending="dxf", remarks=()):
        """The bytes of an export."""
        out = self.folder / f"export.{ending}"
        self.assertEqual(self.succeed("export", design, *options, "-o", out, remarks=remarks), b"")
        data = out.read_bytes()
        out.unlink()
        return data

    def import_lines(self, drawing):
        """What an import gives of a drawing: layer and places of its polylines."""
        shapes = json.loads(self.succeed("import", "-", "--json", data=drawing))["shapes"]
        return [(dict(shape["attrs"])["LAYER"], [tuple(place) for place in shape["vertices"]])
                for shape in shapes if shape["type"] == 2]

    def assert_same_lines(self, text, path):
        """Both versions of a drawing give the polylines of the design, to the sign of each zero."""
        design = Design(text)
        for version in VERSIONS:
            expected = [(side, in_plane(places) if version == "R2000" else places) for side, _, places in design.lines]
            lines = self.import_lines(self.export(path, "--dxf-version", version))
            self.assertEqual(repr(lines), repr(expected), version)

    def test_a_sample_exported_and_imported_again_is_the_same(self):
        for path in VESSELS:
            with self.subTest(path.name):
                self.assert_same_lines(path.read_text(encoding="utf-8"), path)
                self.assertGreater(len(Design(path.read_text(encoding="utf-8")).lines), 100)

    def test_a_design_at_random_exported_and_imported_again_is_the_same(self):
        closed = in_space = 0
        for seed in range(60):
            with self.subTest(seed):
                text = random_design(seed)
                self.assert_same_lines(text, self.write("random.xml", text))
                lines = [places for _, _, places in Design(text).lines]
                closed += sum(places[0] == places[-1] for places in lines)
                in_space += sum(any(z != 0 for _, _, z in places) for places in lines)
        self.assertGreater(closed, 50)
        self.assertGreater(in_space, 50)

    def test_a_design_that_drawings_were_imported_into_is_the_same_again(self):
        drawings = [*sorted((SAMPLES / "dxf").glob("*.dxf")),
                    *sorted((SAMPLES.parent / "tests" / "picture" / "drawings").glob("*.dxf"))]
        self.assertGreaterEqual(len(drawings), 5)
        for drawing in drawings:
            with self.subTest(drawing.name):
                path = self.folder / "design.xml"
                run("import", drawing, "-s", "rear", "-o", path)
                self.assert_same_lines(path.read_text(encoding="utf-8"), path)

    def test_geojson_has_every_line_offset_and_anchor(self):
        for path in (*VESSELS, self.write("random.xml", random_design(7))):
            design = Design(path.read_text(encoding="utf-8"))
            collection = json.loads(self.export(path, ending="geojson"))
            self.assertEqual(collection["type"], "FeatureCollection")
            self.assertIn("not longitudes", collection["note"])
            features = collection["features"]
            lines = [(f["properties"]["side"], f["properties"]["number"], [tuple(p) for p in f["geometry"]["coordinates"]])
                     for f in features if f["geometry"]["type"] == "LineString"]
            self.assertEqual(repr(lines), repr(design.lines))
            points = [f["geometry"]["coordinates"] for f in features if f["geometry"]["type"] == "Point"]
            self.assertEqual(repr(points), repr([*map(list, design.offsets), *([x, y] for _, _, x, y in design.anchors)]))
            anchors = [(f["properties"]["number"], f["properties"]["name"]) for f in features
                       if f["properties"]["kind"] == "anchor"]
            self.assertEqual(anchors, [(number, name) for number, name, _, _ in design.anchors])
            for feature in features:
                self.assertEqual(set(feature["properties"]) - {"closed"},
                                 {"kind", "side", "number", "name", "unit", "colour", "width"})

    def test_a_table_has_a_row_for_every_vertex_offset_and_anchor(self):
        for path in (*VESSELS, self.write("random.xml", random_design(7))):
            design = Design(path.read_text(encoding="utf-8"))
            data = self.export(path, ending="csv").decode()
            self.assertEqual(data.count("\n"), data.count("\r\n"))
            rows = list(csv.DictReader(io.StringIO(data, newline="")))
            vertices = [(r["side"], int(r["number"]), int(r["vertex"]), float(r["x"]), float(r["y"]), float(r["z"]))
                        for r in rows if r["kind"] == "vertex"]
            expected = [(side, number, i, *place) for side, number, places in design.lines
                        for i, place in enumerate(places, 1)]
            self.assertEqual(repr(vertices), repr(expected))
            anchors = [(int(r["number"]), r["name"], float(r["x"]), float(r["y"])) for r in rows if r["kind"] == "anchor"]
            self.assertEqual(repr(anchors), repr(design.anchors))
            self.assertEqual(sum(r["kind"] == "offset" for r in rows), 3)
            self.assertEqual(len(rows), len(vertices) + len(anchors) + 3)

    def test_one_side_alone(self):
        design = Design(BOAT.read_text(encoding="utf-8"))
        for side in SIDES:
            data = self.export(BOAT, "--side", side)
            self.assertEqual(self.import_lines(data), [(name, places) for name, _, places in design.lines if name == side])
            self.assertEqual(b"\nPOINT\n" in data, side == "top")  # offsets and anchors
        self.assertEqual(self.export(BOAT), self.export(BOAT, "-s", "all"))

    def test_layers_stand_for_sides_or_kinds(self):
        layers = {layer for layer, _ in self.import_lines(self.export(BOAT, "--layer-by", "side"))}
        self.assertEqual(layers, set(SIDES))
        layers = {layer for layer, _ in self.import_lines(self.export(BOAT, "-l", "kind", "-d", "R12"))}
        self.assertEqual(layers, {"polylines"})

    def test_the_unit_is_that_of_the_design(self):
        for unit, number, name in ((9001, 6, "metre"), (9002, 2, "foot"), (9003, 21, "US survey foot"),
                                   (9005, 0, "Clarke's foot"), (4711, 0, "EPSG 4711")):
            path = self.write("a.xml", small(unit=unit))
            self.assertIn(f"$INSUNITS\n70\n{number}\n".encode(), self.export(path))
            collection = json.loads(self.export(path, ending="geojson"))
            self.assertEqual(collection["unit"], {"code": unit, "name": name})
            self.assertIn(f",{name},".encode(), self.export(path, ending="csv"))

    def test_names_come_through_every_format(self):
        for name in ("B\u00f6\u00f6t", "a,b", "\"q\"", "\\P", "%%d", "^J"):
            path = self.write("a.xml", small(name=name))
            shapes = json.loads(self.succeed("import", "-", "--json", data=self.export(path)))["shapes"]
            if name not in ("\\P", "%%d", "^J"):  # the reader of drawings takes these for codes
                self.assertIn(f"1 {name}", [shape.get("text") for shape in shapes])
            self.assertTrue(self.export(path).isascii())
            self.assertIn(name, [f["properties"]["name"] for f in json.loads(self.export(path, ending="geojson"))["features"]])
            table = io.StringIO(self.export(path, ending="csv").decode(), newline="")
            self.assertIn(name, [row["name"] for row in csv.DictReader(table)])

    def test_what_is_left_out_or_shortened_is_reported(self):
        point = small().replace('<vertex x="3" y="4" z="0" />\n', "")
        path = self.write("a.xml", point)
        remark = "a.xml: left out: 1 polyline of fewer than two vertices"
        for ending, line in (("dxf", b"POLYLINE"), ("geojson", b"LineString"), ("csv", b"\nvertex")):
            self.assertIn(line, self.export(self.write("b.xml", small()), ending=ending))
            self.assertNotIn(line, self.export(path, ending=ending, remarks=[remark]))
        path = self.write("a.xml", small(name="x" * 300))
        data = self.export(path, remarks=["a.xml: shortened: 1 name"])
        self.assertLessEqual(max(map(len, data.split(b"\n"))), 250)
        self.assertIn(b"x" * 300, self.export(path, ending="csv"))

    @unittest.skipUnless(PICTURES, "built without pictures")
    def test_a_picture_of_a_side_or_of_all(self):
        one = self.export(BOAT, "--side=left", ending="svg")
        sheet = self.export(BOAT, ending="SVG")
        for data in (one, sheet):
            xml.dom.minidom.parseString(data)
        self.assertNotIn(b"front", one)
        for side in SIDES:
            self.assertIn(side.encode(), sheet)
        self.assertEqual(one, self.succeed("export", "-", "-s", "left", "-f", "svg", "-o", "-", data=BOAT.read_bytes()))

    def test_standard_input_and_output(self):
        data = BOAT.read_bytes()
        for form in ("dxf", "geojson", "csv"):
            expected = self.export(BOAT, ending=form)
            self.assertEqual(self.succeed("export", "-", "-f", form, "-o", "-", data=data), expected)
            self.assertEqual(self.export(BOAT, "--format", form, ending="txt"), expected)
        self.assertEqual(self.succeed("export", BOAT, "-o", "-"), self.export(BOAT))

    def test_a_pipe_is_written_into(self):
        pipe = self.folder / "pipe.csv"
        os.mkfifo(pipe)
        reader = os.open(pipe, os.O_RDONLY | os.O_NONBLOCK)
        self.succeed("export", self.write("a.xml", small()), "-o", pipe)
        self.assertTrue(os.read(reader, 65536).startswith(b"kind,side,"))
        os.close(reader)
        self.assertTrue(pipe.is_fifo())

    def test_odd_names_of_files(self):
        expected = self.export(BOAT)
        for name in ("-o", "a\nb", "<boat>.DXF", "b\u00f6t & co.xml.bak"):
            design = shutil.copyfile(BOAT, self.folder / name)
            out = self.folder / f"{name}.Dxf"
            self.succeed("export", design, "-o", out)
            self.assertEqual(out.read_bytes(), expected)
        inside = os.fsencode(self.folder) + b"/b\xf6t.xml"
        outside = os.fsencode(self.folder) + b"/b\xf6t.dxf"
        shutil.copyfile(BOAT, inside)
        self.succeed("export", inside, "-o", outside)
        with open(outside, "rb") as drawing:
            self.assertEqual(drawing.read(), expected)

    def test_failures_write_nothing(self):
        endings = FORMATS if PICTURES else FORMATS[:3]
        bad = self.write("bad.xml", "<vessel>")
        letter = self.write("letter.xml", "Dear Sirs\n")
        plan = SAMPLES / "dxf" / "workboat-r12.dxf"
        (self.folder / "folder").mkdir()
        for ending in endings:
            out = self.write(f"out.{ending}", "precious")
            self.fail_with(1, ("missing.xml", "No such file"), "export", self.folder / "missing.xml", "-o", out)
            self.fail_with(1, ("bad.xml", "not a well-formed design file"), "export", bad, "-o", out)
            self.fail_with(1, ("letter.xml: not a design",), "export", letter, "-o", out)
            self.fail_with(1, ("workboat-r12.dxf: not a design",), "export", plan, "-o", out)
            self.fail_with(1, ("folder", "directory"), "export", self.folder / "folder", "-o", out)
            self.fail_with(1, (f"none.{ending}", "No such file"), "export", BOAT, "-o", self.folder / "no" / f"none.{ending}")
            self.fail_with(1, ("folder", "directory"), "export", BOAT, "-f", ending, "-o", self.folder / "folder")
            self.assertEqual(out.read_text(), "precious")
            self.fail_with(1, (f"out.{ending}",), "export", BOAT, "-o", self.read_only_folder() / f"out.{ending}")

    def test_a_number_that_is_not_finite_is_refused_with_its_place(self):
        endings = FORMATS if PICTURES else FORMATS[:3]
        for x in ("nan", "-inf", "1e999"):
            path = self.write("a.xml", small(view="20", x=x))
            for ending in endings:
                self.fail_with(1, ("a.xml: holds numbers that are not finite (1): polyline 1 (rear), point 1",),
                               "export", path, "-o", self.folder / f"out.{ending}")

    def test_a_lost_standard_output_is_reported(self):
        for form in ("dxf", "geojson", "csv"):
            with open("/dev/full", "wb") as full:
                done = subprocess.run([PROGRAM, "export", BOAT, "-f", form, "-o", "-"], stdout=full, stderr=subprocess.PIPE,
                                      check=False)
            self.assertEqual(done.returncode, 1)
            self.assertIn(b"standard output", done.stderr)

    def test_wrong_usage(self):
        out = self.folder / "out.dxf"
        design = self.write("a.xml", small())
        self.assert_usage_errors(
            ("export",), ("export", design), ("export", design, design, "-o", out), ("export", design, "-o"),
            ("export", design, "-o", "out"), ("export", design, "-o", "out.dwg"), ("export", design, "-o", ".dxf"),
            ("export", design, "-s", "above", "-o", out), ("export", design, "-f", "pdf", "-o", out),
            ("export", design, "-d", "R14", "-o", out), ("export", design, "--layer-by", "colour", "-o", out),
            ("export", design, "-d", "R12", "-o", "a.csv"), ("export", design, "-l", "side", "-f", "geojson", "-o", out),
            ("export", design, "--fast", "-o", out), ("export", design, "-f", "dxf", "-o", design))
        self.assertEqual(design.read_text(), small())
        self.assertTrue(re.search(r"\.dxf, \.geojson, \.csv or \.svg", run("export", design, "-o", "x.dwg").stderr.decode()))


if __name__ == "__main__":
    unittest.main()

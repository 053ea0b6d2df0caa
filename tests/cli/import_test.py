#!/usr/bin/env python3
"""hullwright-cli import"""

import json
import os
import pty
import re
import shutil
import subprocess
import unittest

from cli import PROGRAM, SAMPLES, CliTest, run


class ImportTest(CliTest):
    """Drawings into designs."""

    def import_json(self, path, remarks=()):
        """The document that an import prints."""
        text = self.succeed("import", path, "--json", remarks=remarks).decode()
        self.assertTrue(text.endswith("}\n"))
        return json.loads(text)

    def test_what_a_design_held_before_is_kept(self):
        state = self.folder / "state"
        drawing = self.drawing("a.dxf", "0", "LINE", "11", "1")
        design = self.write("boat.xml", "<vessel/>")
        self.succeed("import", drawing, "-o", design, XDG_STATE_HOME=str(state))
        self.assertEqual([copy.read_text() for copy in (state / "hullwright").iterdir()], ["<vessel/>"])
        self.assertIn("<polyline>", design.read_text())

    def test_numbers_that_are_not_finite_are_a_warning(self):
        drawing = self.drawing("a.dxf", "0", "LINE", "10", "nan", "11", "1")
        design = self.folder / "boat.xml"
        self.succeed("import", drawing, "-o", design, remarks=(
            "boat.xml: warning: holds numbers that are not finite (1): polyline 1 (top), point 1",))
        self.assertIn('x="nan"', design.read_text())

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
        self.assertIn("-0.0", self.succeed("import", path, "--json").decode())
        self.assertEqual(result["result"], 0)
        self.assertEqual(result["extents"][0], -1.0)

    def test_prints_the_log_without_the_path(self):
        result = self.import_json(self.drawing("a.dxf"), ["a.dxf: warning: nothing that can be drawn"])
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
        design = self.folder / "boat.xml"
        done = run("import", path, "-o", design)
        self.assertEqual(done.returncode, 3)
        self.assertRegex(done.stderr.decode(), r"^hullwright-cli: .*many\.dxf: left out: 1 insert for want of memory\n$")
        self.assertEqual(design.read_text().count("<polyline>"), 1)  # the line behind the insert

    # -- into a design

    def polylines(self, path):
        """Number of the polylines of each side of a design, by its view code."""
        text = path.read_text()
        return {view: body.count("<polyline>")
                for view, body in re.findall(r'<shapes view="(..)" >(.*?)</shapes>', text, re.S)}

    def test_several_drawings_make_a_new_design(self):
        out = self.folder / "new boat.xml"
        plan = SAMPLES / "dxf" / "workboat-r2018.dxf"
        self.succeed("import", plan, self.drawing("a.dxf", "0", "LINE", "11", "5"), "--side", "left", "-o", out,
                     remarks=[f"{plan}: left out: 2 on hidden layers"])
        self.assertEqual(self.polylines(out), {"08": 57})

    def test_adds_to_a_design(self):
        out = self.folder / "boat.xml"
        boat = SAMPLES / "workboat.xml"
        self.succeed("import", self.drawing("a.dxf", "0", "LINE", "11", "5"), "--into", boat, "-s", "rear", "-o", out)
        before, after = self.polylines(boat), self.polylines(out)
        self.assertEqual(after.pop("20"), before.pop("20") + 1)
        self.assertEqual(after, before)
        self.assertIn('<vertex x="5.000" y="0.000" z="0.000" />', out.read_text())
        self.assertIn("<name>Bow Port</name>", out.read_text())

    def test_a_design_may_be_added_to_in_place(self):
        boat = self.write("boat.xml", (SAMPLES / "catamaran.xml").read_text())
        self.succeed("import", self.drawing("a.dxf", "0", "LINE"), "-i", boat, "-o", boat)
        self.assertEqual(sum(self.polylines(boat).values()),
                         sum(self.polylines(SAMPLES / "catamaran.xml").values()) + 1)

    def test_a_drawing_may_come_from_standard_input_and_a_design_go_to_standard_output(self):
        data = self.drawing("a.dxf", "0", "LINE", "11", "7").read_bytes()
        self.assertIn(b'<vertex x="7.000"', self.succeed("import", "-", "-o", "-", data=data))
        self.assertEqual(json.loads(self.succeed("import", "-", "--json", data=data))["shapes"][0]["type"], 2)

    def test_a_folder_of_the_users_switches_the_log_on_and_leaves_the_units(self):
        logs = self.folder / "share" / "Sondaris" / "Tracing"
        logs.mkdir(parents=True)
        folders = {"XDG_DATA_HOME": str(logs.parent.parent), "XDG_DATA_DIRS": str(self.folder / "nothing")}
        out = self.folder / "out.xml"
        self.succeed("import", self.drawing("a.dxf", "0", "LINE", "11", "5"), "-o", out, **folders)
        self.assertIn(b"|32|", (logs / "Trace_General.txt").read_bytes())
        self.assertIn("metre (EPSG 9001)", self.succeed("info", out, **folders).decode())

    def test_in_a_pipe_no_progress_is_shown(self):
        lines = ["0", "LINE", "10", "1"] * 5000
        self.succeed("import", self.drawing("a.dxf", *lines), "-o", self.folder / "out.xml")

    def test_on_a_terminal_a_bar_grows(self):
        master, terminal = pty.openpty()
        lines = ["0", "LINE", "10", "1"] * 5000
        path = self.drawing("a.dxf", *lines)
        done = subprocess.run([PROGRAM, "import", path, "-o", self.folder / "out.xml"], stderr=terminal, check=True)
        os.close(terminal)
        shown = b""
        while b"100 %" not in shown:
            shown += os.read(master, 65536)
        os.close(master)
        self.assertEqual(done.returncode, 0)
        bars = re.findall(rb"importing \[(#*\.*)\]", shown)
        self.assertEqual({len(bar) for bar in bars}, {40})
        self.assertIn(b"#" * 20 + b"." * 20, bars)
        self.assertIn(b" 50 %", shown)

    def test_failures_are_reported_and_leave_nothing(self):
        out = self.folder / "out.xml"
        good = self.drawing("good.dxf", "0", "LINE")
        self.fail_with(1, ("missing.dxf", "No such file"), "import", good, self.folder / "missing.dxf", "-o", out)
        self.fail_with(1, ("empty.dxf", "empty"), "import", self.write("empty.dxf", ""), "-o", out)
        self.fail_with(1, ("missing.xml",), "import", good, "-i", self.folder / "missing.xml", "-o", out)
        bad = self.write("bad.xml", "<vessel>")
        self.fail_with(1, ("bad.xml", "not a well-formed"), "import", good, "-i", bad, "-o", out)
        self.fail_with(1, ("out.xml",), "import", good, "-o", self.folder / "none" / "out.xml")
        self.fail_with(1, ("out.xml",), "import", good, "-o", self.read_only_folder() / "out.xml")

    def test_a_failure_keeps_the_file_of_before(self):
        out = self.write("out.xml", "precious")
        self.fail_with(1, ("missing.dxf",), "import", self.folder / "missing.dxf", "-o", out)
        self.assertEqual(out.read_text(), "precious")

    def test_a_document_and_a_design_come_of_one_import(self):
        out = self.folder / "out.xml"
        text = self.succeed("import", self.drawing("a.dxf", "0", "LINE"), "--json", "-o", out).decode()
        self.assertEqual(json.loads(text)["result"], 0)
        self.assertEqual(self.polylines(out), {"01": 1})

    # -- what is passed over, and what is no drawing

    def test_what_an_import_ignores_is_reported(self):
        path = self.drawing("a.dxf", "0", "LINE", *["0", "HATCH", "2", "SOLID", "70", "0"] * 3, "0", "OTHER", "70", "0",
                            *["0", "SPLINE", "10", "1"] * 985)
        ignored = ["a.dxf: ignored: 985 SPLINE, 3 HATCH, 1 OTHER"]
        self.succeed("import", path, "-o", self.folder / "out.xml", remarks=ignored)
        self.assertEqual(self.polylines(self.folder / "out.xml"), {"01": 1})
        self.assertEqual(len(self.import_json(path, ignored)["shapes"]), 1)

    def test_what_an_import_leaves_out_is_reported(self):
        tables = ["0", "SECTION", "2", "TABLES", "0", "LAYER", "2", "off", "62", "-7", "0", "ENDSEC"]
        entities = ["0", "SECTION", "2", "ENTITIES", "0", "LINE", "8", "off", "0", "TEXT", "8", "off", "0", "LINE", "67",
                    "1", "0", "INSERT", "2", "none", "0", "LINE", "0", "ENDSEC", ""]
        path = self.write("a.dxf", "\n".join(tables + entities))
        self.succeed("import", path, "-o", self.folder / "out.xml", remarks=[
            "a.dxf: left out: 2 on hidden layers, 1 in paper space, 1 insert of an unknown block"])

    def test_remarks_of_each_drawing_come_once(self):
        first = self.drawing("a.dxf", "0", "LINE", "0", "SPLINE")
        second = self.drawing("b", "0", "LINE", "0", "HATCH")
        self.succeed("import", first, second, "--json", "-o", self.folder / "out.xml",
                     remarks=["a.dxf: ignored: 1 SPLINE", "b: ignored: 1 HATCH"])

    def test_a_drawing_without_shapes_is_a_warning(self):
        out = self.folder / "out.xml"
        self.succeed("import", self.drawing("a.dxf", "0", "SPLINE"), self.drawing("b.dxf"), "-o", out, remarks=[
            "a.dxf: ignored: 1 SPLINE", "a.dxf: warning: nothing that can be drawn",
            "b.dxf: warning: nothing that can be drawn"])
        self.assertEqual(self.polylines(out), {"01": 0})

    def test_a_drawing_without_polylines_is_a_warning_where_a_design_is_written(self):
        path = self.drawing("a.dxf", "0", "TEXT", "1", "Bow", "0", "POINT", "0", "SOLID", "0", "TEXT", "1", "Stern")
        self.succeed("import", path, "-o", self.folder / "out.xml", remarks=[
            "a.dxf: warning: no polylines, and a design keeps nothing else: 1 point, 1 area, 2 texts"])
        self.assertEqual(len(self.import_json(path)["shapes"]), 4)

    def test_a_binary_drawing_is_named_as_such(self):
        path = self.folder / "b.dxf"
        path.write_bytes(b"AutoCAD Binary DXF\r\n\x1a\0\0\0SECTION\0")
        self.fail_with(1, ("b.dxf: a binary drawing",), "import", path, "-o", self.folder / "out.xml")
        self.fail_with(1, ("standard input: a binary drawing",), "import", "-", "-o", self.folder / "out.xml",
                       data=path.read_bytes())
        reported = ["b.dxf: a binary drawing; only drawings in text form can be imported"]
        self.assertEqual(self.import_json(path, reported)["result"], 0)

    def test_what_is_no_drawing_makes_no_design(self):
        out = self.write("out.xml", "precious")
        good = self.drawing("good.dxf", "0", "LINE")
        for name, text in (("letter.dxf", "Dear Sirs,\nan INTERSECTION of hull and deck\n"), ("zeros", "\0" * 5000),
                           ("one line.dxf", "0")):
            path = self.write(name, text)
            self.fail_with(1, (f"{name}: not a drawing: it has no SECTION",), "import", good, path, "-o", out)
            self.assertEqual(self.import_json(path, [f"{name}: not a drawing: it has no SECTION"])["shapes"], [])
        self.fail_with(1, ("workboat.xml: a design, not a drawing",), "import", SAMPLES / "workboat.xml", "-o", out)
        self.fail_with(1, ("good.dxf: not a design",), "import", good, "-i", good, "-o", out)
        self.assertEqual(out.read_text(), "precious")

    def test_names_do_not_tell_what_a_file_is(self):
        out = self.folder / "out.xml"
        design = self.write("design.dxf", (SAMPLES / "catamaran.xml").read_text())
        for name in ("plan.xml", "plan", "-plan", "plan.DXF.bak", "a\nb"):
            plan = self.drawing(name, "0", "LINE")
            self.succeed("import", "-i", design, "-o", out, "--", plan)
            self.assertEqual(sum(self.polylines(out).values()),
                             sum(self.polylines(SAMPLES / "catamaran.xml").values()) + 1)

    def test_names_that_are_not_unicode_serve(self):
        inside = os.fsencode(self.folder) + b"/pl\xe4n.dxf"
        outside = os.fsencode(self.folder) + b"/b\xf6t.xml"
        shutil.copyfile(self.drawing("a.dxf", "0", "LINE", "0", "SPLINE"), inside)
        self.succeed("import", inside, "-o", outside, remarks=["pl\udce4n.dxf: ignored: 1 SPLINE"])
        with open(outside, encoding="ascii") as design:
            self.assertIn("<polyline>", design.read())

    def test_the_drawing_is_not_overwritten(self):
        path = self.drawing("a.dxf", "0", "LINE")
        self.assert_usage_errors(("import", path, "-o", path))

    def test_standard_input_is_read_once_and_standard_output_written_once(self):
        path = self.drawing("a.dxf", "0", "LINE")
        self.assert_usage_errors(("import", "-", "-", "-o", "x.xml"), ("import", "-", "-i", "-", "-o", "x.xml"),
                                 ("import", path, "--json", "-o", "-"),
                                 ("import", "-", "--json", "-o", "x.xml"))

    def test_wrong_usage_is_refused(self):
        path = self.drawing("a.dxf")
        self.assert_usage_errors(("import",), ("import", path), ("import", path, "--xml"),
                                 ("import", path, "-s", "all", "-o", "x.xml"), ("import", path, "-o"))


if __name__ == "__main__":
    unittest.main()

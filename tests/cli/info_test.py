#!/usr/bin/env python3
"""hullwright-cli info and check"""

import contextlib
import json
import os
import sqlite3
import unittest

from cli import SAMPLES, CliTest, run

HEAD = '<?xml version="1.0" encoding="UTF-8"?>\n<vessel>\n <units id="9001" />\n'
TAIL = (' <gps x="1.000" y="2.000" z="3.000" />\n <txd x="0.000" y="0.000" z="0.000" />\n'
        ' <piv x="0.000" y="0.000" z="0.000" />\n <anchors>\n </anchors>\n</vessel>\n')
GROUP = ' <shapes view="01" >\n  <polyline>\n   <vertex x="1.000" y="2.000" z="0.000" />\n  </polyline>\n </shapes>\n'


class InfoTest(CliTest):
    """What files hold."""

    def test_a_design_is_listed_with_unit_offsets_anchors_and_groups(self):
        text = self.succeed("info", SAMPLES / "workboat.xml").decode()
        for line in ("unit          metre (EPSG 9001)", "GNSS antenna  1.200, 0.000, 0.000",
                     "anchor 1      9.500, 2.126  Bow Port",
                     "bottom        38 polylines, 421 vertices, from -12.750, -3.500 to 12.000, 3.500"):
            self.assertIn(line, text)

    def test_the_json_of_a_design_is_all_that_is_listed(self):
        design = self.write("b\u00f6t.xml", HEAD + GROUP + ' <shapes view="03" >\n </shapes>\n' + TAIL)
        info = json.loads(self.succeed("info", design, "--json"))
        self.assertEqual(info, {
            "file": str(design), "kind": "design", "unit": {"code": 9001, "name": "metre"},
            "offsets": {"gps": [1.0, 2.0, 3.0], "txd": [0.0] * 3, "piv": [0.0] * 3}, "anchors": [],
            "groups": [
                {"view": 1, "side": "top", "polylines": 1, "vertices": 1, "extents": [1.0, 2.0, 1.0, 2.0]},
                {"view": 3, "side": "view 03", "polylines": 0, "vertices": 0, "extents": None}]})
        self.assertEqual([*info["groups"][0]], ["view", "side", "polylines", "vertices", "extents"])

    def test_a_side_whose_coordinates_of_one_axis_are_no_numbers_has_no_extents(self):
        for old, new in (('x="1.000"', 'x="nan"'), ('y="2.000"', 'y="nan"')):
            design = self.write("a.xml", HEAD + GROUP.replace(old, new) + TAIL)
            self.assertEqual(json.loads(self.succeed("info", design, "--json"))["groups"], [
                {"view": 1, "side": "top", "polylines": 1, "vertices": 1, "extents": None}])
            self.assertIn("  top           1 polylines, 1 vertices\n", self.succeed("info", design).decode())

    def test_a_drawing_whose_coordinates_of_one_axis_are_no_numbers_is_listed_without_extents(self):
        for x, y in (("nan", "2"), ("1", "nan")):
            drawing = self.drawing("a.dxf", "0", "LINE", "10", x, "20", y, "11", x, "21", y)
            self.assertIn("imported: 1 shapes\n", self.succeed("info", drawing).decode())

    def test_an_unknown_unit_is_listed_by_its_code(self):
        design = self.write("b.xml", HEAD.replace("9001", "4711") + TAIL)
        self.assertIn("unknown (EPSG 4711)", self.succeed("info", design).decode())

    def test_a_drawing_is_listed_with_layers_blocks_and_entities(self):
        text = self.succeed("info", SAMPLES / "dxf" / "workboat-r2000.dxf").decode()
        for line in ("layer CONSTRUCTION: colour -2, off", "layer DIMENSIONS: colour 6, frozen",
                     "blocks and their shapes: *Model_Space 0 *Paper_Space 0 BOLLARD 3", "LWPOLYLINE 4",
                     "ignored: none", "imported: 70 shapes, from -11.600, -5.200 to 12.000, 4.100"):
            self.assertIn(line, text)
        self.assertEqual([line.split(":")[0] for line in text.splitlines()[1:] if not line.startswith("  layer ")],
                         ["  blocks and their shapes", "  entities", "  ignored", "  imported"])

    def test_the_json_of_a_drawing_counts_what_is_ignored(self):
        drawing = self.drawing("a.dxf", "0", "LINE", "1", "HATCH", "0", "HATCH", "2", "SOLID", "0", "OTHER",
                               "0", "SPLINE", "0", "SPLINE")
        info = json.loads(self.succeed("info", "-j", drawing))
        self.assertEqual(info["entities"], {"HATCH": 1, "LINE": 1, "OTHER": 1, "SPLINE": 2})
        self.assertEqual(info["ignored"], {"HATCH": 1, "OTHER": 1, "SPLINE": 2})
        self.assertEqual([*info], ["file", "kind", "layers", "blocks", "entities", "ignored", "shapes", "extents"])
        self.assertEqual((info["kind"], info["shapes"], info["layers"]),
                         ("drawing", 1, {"": {"colour": 256, "off": False, "frozen": False}}))
        self.assertEqual([*info["layers"][""]], ["colour", "off", "frozen"])

    def test_keywords_beyond_the_first_forty_are_counted_together(self):
        kinds = [word for number in range(45) for word in ("0", f"K{number}")]
        entities = json.loads(self.succeed("info", "-j", self.drawing("a.dxf", *kinds)))["entities"]
        self.assertEqual((len(entities), entities["K39"], entities["~others"]), (41, 1, 5))

    def test_names_do_not_tell_what_a_file_is(self):
        design = (HEAD + GROUP + TAIL).encode()
        plain = HEAD[HEAD.index("\n") + 1:] + GROUP + TAIL
        for name, data in (("plan.dxf", design), ("plan", b"\xef\xbb\xbf" + design), ("-", design),
                           ("wide.dxf", plain.encode("utf-16")), ("blanks", b" \n" * 5000 + plain.encode())):
            (self.folder / name).write_bytes(data)
            self.assertIn("1 polylines, 1 vertices", self.succeed("info", self.folder / name).decode())
        for name in ("plan.xml", "plan.dxf.bak", "<vessel>"):
            self.assertIn("imported: 1 shapes", self.succeed("info", self.drawing(name, "0", "LINE")).decode())

    def test_what_is_neither_a_design_nor_a_drawing_is_refused(self):
        for name in ("letter.xml", "letter.dxf", "letter"):
            self.fail_with(1, (f"{name}: not a drawing: it has no SECTION",), "info", self.write(name, "Dear Sirs\n"))
        self.fail_with(1, ("empty.xml: the drawing can't be read, or it is empty",), "info", self.write("empty.xml", ""))
        self.fail_with(1, ("b.dxf: a binary drawing",), "info", self.write("b.dxf", "AutoCAD Binary DXF\n\x1a"))

    def test_several_files_are_listed_in_their_order_and_so_is_standard_input(self):
        plan = self.drawing("plan.dxf", "0", "LINE")
        out = self.succeed("info", "--json", "-", plan, SAMPLES / "dredger.xml", data=(HEAD + TAIL).encode())
        self.assertEqual([json.loads(line)["file"] for line in out.splitlines()],
                         ["standard input", str(plan), str(SAMPLES / "dredger.xml")])

    def test_a_failure_does_not_keep_the_others_back(self):
        done = run("info", self.folder / "missing.xml", SAMPLES / "dredger.xml")
        self.assertEqual(done.returncode, 1)
        self.assertIn(b"missing.xml: No such file or directory", done.stderr)
        self.assertIn(b"dredger.xml: design", done.stdout)

    def test_files_that_cannot_be_read_and_wrong_usage_are_refused(self):
        self.fail_with(1, ("bad.xml: not a well-formed design file (1:9: no element found)\n",), "info",
                       self.write("bad.xml", "<vessel>"))
        self.fail_with(1, ("empty.dxf",), "info", self.write("empty.dxf", ""))
        pipe = self.folder / "pipe"
        os.mkfifo(pipe)
        self.fail_with(1, ("pipe",), "info", pipe)
        self.assert_usage_errors(("info",), ("info", "--xml", "a"))


class CheckTest(CliTest):
    """What a save would lose."""

    def findings(self, text):
        """What is found in a design of this text."""
        done = run("check", self.write("boat \u00fc.xml", text))
        self.assertEqual(done.returncode, 1, done.stderr)
        prefix = f"{self.folder / 'boat ü.xml'}: "
        lines = done.stdout.decode().splitlines()
        self.assertTrue(all(line.startswith(prefix) for line in lines))
        return [line.removeprefix(prefix) for line in lines]

    def test_samples_and_saved_designs_lose_nothing(self):
        self.assertEqual(self.succeed("check", *sorted(SAMPLES.glob("*.xml"))), b"")
        self.assertEqual(self.succeed("check", self.write("a.xml", HEAD + GROUP + TAIL)), b"")
        self.assertEqual(self.succeed("check", "-", data=(HEAD + TAIL).encode()), b"")

    def test_decimals_past_the_third_are_found(self):
        self.assertEqual(self.findings(HEAD + GROUP.replace("1.000", "1.2345").replace("2.000", "0.0001") + TAIL),
                         ['decimals past the third are lost (2): x of <vertex>="1.2345", saved as 1.234'])

    def test_unknown_elements_and_attributes_are_found(self):
        found = self.findings(HEAD + GROUP.replace("<vertex ", '<vertex colour="1" ').replace(
            "</polyline>", "<arc r='1' /></polyline>") + ' <engine><power /></engine>\n' + TAIL)
        self.assertEqual(found, ["unknown attributes are lost (1): colour=\"1\" of <vertex>",
                                 "unknown elements are lost (3): <arc> in <polyline>"])

    def test_comments_and_text_after_a_line_break_are_found(self):
        design = HEAD + "<!-- after the refit\n of May -->\n<?mark x?>" + "\n lost " + GROUP + TAIL.replace(
            "<anchors>", f"<anchors><anchor><id>1</id><name>Bow{chr(10)}{'a' * 70}</name></anchor>")
        self.assertEqual(self.findings(design), [
            'comments and processing instructions are lost (2): "<!-- after the refit  of May -->"',
            'text that follows a line break is lost (2): "lost  " in <vessel>'])
        self.assertEqual(self.findings(HEAD + f"<!--{'b' * 70}-->" + TAIL), [
            f'comments and processing instructions are lost (1): "<!--{"b" * 56}\u2026"'])

    def test_groups_that_are_never_seen_are_found(self):
        found = self.findings(HEAD + GROUP + GROUP + GROUP.replace("01", "03") + GROUP.replace("01", "x") + TAIL)
        self.assertEqual(found, [
            'groups have a view code of no side, so they are never seen (1): view="03"',
            'groups without a view code become the top side (1): view="x"',
            'several groups have one view code; only the first is seen and edited (1): view="01"'])

    def test_a_group_of_all_sides_hides_those_behind_it(self):
        groups = "".join(GROUP.replace("01", view) for view in ("01", "3F", "20", "10"))
        self.assertEqual(self.findings(HEAD + groups + TAIL), [
            'a group of all sides hides groups behind it; they are never seen (2): view="20"'])

    def test_tabs_and_line_breaks_that_wipe_fields_of_anchors_are_found(self):
        anchor = ("<anchor><id>7</id>\t<name>Bow</name>\t<attachmentX>1.5</attachmentX>\n</anchor>"
                  "<anchor><id>8</id><name>&#10;</name></anchor>")
        self.assertEqual(self.findings(HEAD + TAIL.replace("<anchors>", "<anchors>" + anchor)), [
            "names that begin with a line break are lost (1): <name>",
            'tabs behind fields of anchors replace what they hold (2): <id>="7", saved as 0'])

    def test_fields_of_anchors_that_change_are_found(self):
        anchor = ("<anchor><id>x7</id><name>Bow</name><vessel>2</vessel><attachmentX>1.23456</attachmentX>"
                  "<attachmentY>2</attachmentY><easting>5</easting></anchor>")
        found = self.findings(HEAD + TAIL.replace("<anchors>", "<anchors>" + anchor))
        self.assertEqual(found, [
            'decimals past the third are lost (1): <attachmentX>="1.23456", saved as 1.235',
            "numbers of anchors change (1): <id> x7",
            "the vessel of an anchor is read but not written (1): <vessel> in <anchor>",
            "unknown elements are lost (1): <easting> in <anchor>"])

    def test_names_of_anchors_that_do_not_come_back_are_found(self):
        anchors = "".join(f"<anchor><id>{i}</id><name>{name}</name></anchor>"
                          for i, name in enumerate(("Bow \U0001f6a2", "  ", " Stern ", "", "B\u00fcg\n")))
        self.assertEqual(self.findings(HEAD + TAIL.replace("<anchors>", "<anchors>" + anchors)), [
            'characters beyond U+FFFF make the saved design unreadable (1): "Bow \U0001f6a2" in <name>',
            "names of blanks alone are lost (1): <name>"])

    def test_numbers_that_are_not_read_whole_are_found(self):
        found = self.findings(HEAD + GROUP.replace("1.000", "1a").replace("2.000", "1..5") + TAIL)
        self.assertEqual(found, ['coordinates are missing or are no numbers (2): x of <vertex>="1a", saved as 1.000'])

    def test_fields_of_anchors_that_are_missing_or_doubled_are_found(self):
        anchor = "<anchor><name>one</name><name>two</name></anchor>"
        found = self.findings(HEAD + TAIL.replace("<anchors>", "<anchors>" + anchor))
        self.assertEqual(found, ["anchors without a number get the number 0 (1): <anchor>",
                                 "fields of an anchor come again; the last one counts (1): <name>"])

    def test_what_is_missing_or_doubled_or_no_number_is_found(self):
        found = self.findings('<vessel>a text<units id="0x9" /><gps x="1" y="one" /><gps x="1" y="2" z="3" /></vessel>')
        self.assertEqual(found, [
            'a unit of code 0 is not saved; it opens as 9001 (1): <units>',
            'coordinates are missing or are no numbers (2): y of <gps>="one", saved as 0.000',
            "elements that should come once come again; the last one counts (1): <gps>",
            'text between elements is lost (1): "a text" in <vessel>',
            'unit codes change (1): id="0x9"',
            "there is no <txd>; a save writes one of its own",
            "there is no <piv>; a save writes one of its own"])

    def test_every_number_that_is_not_finite_is_reported_with_its_place(self):
        def group(view, *polylines):
            return f'<shapes view="{view}" >' + "".join(
                "<polyline>" + "".join(f'<vertex x="{x}" y="{y}" z="{z}" />' for x, y, z in vertices) + "</polyline>"
                for vertices in polylines) + "</shapes>\n"
        good = ("1.000", "2.000", "3.000")
        tail = TAIL.replace('gps x="1.000"', 'gps x="-1e999"').replace('piv x="0.000" y="0.000"', 'piv x="0.000" y="NaN"')
        for place in (('<id>4', "Infinity", "1.000"), ('<id>0', "2.000", "-nan"), ('<id>0', "1.000", "2.000")):
            tail = tail.replace("</anchors>", "<anchor>{}</id><name>a</name><attachmentX>{}</attachmentX>"
                                "<attachmentY>{}</attachmentY></anchor>\n </anchors>".format(*place))
        design = HEAD + group("20", [good], [good, ("nan", "2.000", "-inf"), good, ("1e400", "1e308", "1e-400")])
        design += group("01", [("inf", "inf", "1.000")]) + group("01", [("inf", "1.000", "1.000")])
        design += group("3F", [good], [], [good, good, ("1.000", "nan", "0x1p5000")]) + group("03", [("nan", "1", "1")])
        found = self.findings(design + tail)
        self.assertEqual([line for line in found if "finite" in line], [
            "rear, polyline 2, vertex 2: x is not finite (nan)", "rear, polyline 2, vertex 2: z is not finite (-inf)",
            "rear, polyline 2, vertex 4: x is not finite (inf)",
            "top, polyline 1, vertex 1: x is not finite (inf)", "top, polyline 1, vertex 1: y is not finite (inf)",
            "top (group 2), polyline 1, vertex 1: x is not finite (inf)",
            "all, polyline 3, vertex 3: y is not finite (nan)", "all, polyline 3, vertex 3: z is not finite (inf)",
            "view 03, polyline 1, vertex 1: x is not finite (nan)",
            "offset gps: x is not finite (-inf)", "offset piv: y is not finite (nan)",
            "anchor 4: attachmentX is not finite (inf)", "anchor 0: attachmentY is not finite (nan)"])

    def test_a_number_that_is_not_finite_is_found_where_nothing_else_is(self):
        self.assertEqual(self.findings(HEAD + GROUP.replace("2.000", "inf") + TAIL),
                         ["top, polyline 1, vertex 1: y is not finite (inf)"])

    def test_units_that_are_not_known_are_found(self):
        for code, remark in ((4711, "is unknown"), (9000, "is unknown"), (9004, "is unknown"), (-9001, "is unknown"),
                             (9101, "is an angle, not a length"), (9102, "is an angle, not a length"),
                             (9201, "is a ratio, not a length")):
            self.assertEqual(self.findings(HEAD.replace("9001", str(code)) + TAIL),
                             [f"the unit code {code} {remark}; all lengths count as metres"])
        for code in (9001, 9002, 9003, 9062, 9098):
            self.succeed("check", self.write("a.xml", HEAD.replace("9001", str(code)) + TAIL))

    def test_units_of_the_database_without_a_factor_are_found(self):
        data = self.folder / "Sondaris" / "Database"
        data.mkdir(parents=True)
        design = self.write("a.xml", HEAD.replace("9001", "9030") + TAIL)
        for rows, remark in (("(9030, 'nautical mile', 'NM', 1)", "(nautical mile) has no factor"),
                             ("(9001, 'metre', 'm', 1)", "is unknown")):
            with contextlib.closing(sqlite3.connect(data / "geo.db")) as base:
                base.executescript("DROP TABLE IF EXISTS tblUnits; CREATE TABLE tblUnits (numId INTEGER, strUnit TEXT, "
                                   f"strUnitShort TEXT, numDimension INTEGER); INSERT INTO tblUnits VALUES {rows};")
            done = run("check", design, XDG_DATA_HOME=str(self.folder))
            self.assertEqual((done.returncode, done.stdout.decode()),
                             (1, f"{design}: the unit code 9030 {remark}; all lengths count as metres\n"))

    def test_names_do_not_tell_what_a_file_is(self):
        self.assertEqual(self.succeed("check", self.write("boat.dxf", HEAD + GROUP + TAIL)), b"")
        inside = os.fsencode(self.folder) + b"/b\xf6t"
        with open(inside, "w", encoding="utf-8") as design:
            design.write(HEAD + GROUP.replace("2.000", "nan") + TAIL)
        done = run("check", inside)
        self.assertEqual((done.returncode, done.stdout), (1, inside + b": top, polyline 1, vertex 1: y is not finite (nan)\n"))

    def test_what_is_no_design_is_refused(self):
        for path in (self.drawing("a.xml", "0", "LINE"), self.write("letter.xml", "Dear Sirs"), self.write("empty.xml", "")):
            self.fail_with(2, (f"{path.name}: not a design: it does not begin as XML does",), "check", path)

    def test_designs_that_cannot_be_read_and_wrong_usage_are_refused(self):
        self.fail_with(2, ("bad.xml:2:3: mismatched tag\n", "hullwright-cli"), "check", self.write("bad.xml", "<vessel>\n</wessel>"))
        self.fail_with(2, ("missing.xml", "No such file"), "check", self.folder / "missing.xml")
        done = run("check", self.folder / "missing.xml", self.write("a.xml", HEAD + GROUP + GROUP + TAIL))
        self.assertEqual(done.returncode, 2)
        self.assertIn(b"several groups", done.stdout)
        self.assert_usage_errors(("check",), ("check", "--fix", "a.xml"))


if __name__ == "__main__":
    unittest.main()

#!/usr/bin/env python3
"""hullwright-cli diff"""

import json
import os
import re
import shutil
import subprocess
import unittest

from cli import FOLDERS, PROGRAM, SAMPLES, CliTest, run, size_of

BOAT = SAMPLES / "workboat.xml"
PLAN = SAMPLES / "dxf" / "workboat-r2000.dxf"
HEAD = '<?xml version="1.0" encoding="UTF-8" ?>\n<vessel>\n <units id="{unit}" />\n <shapes view="01" >\n'
TAIL = (' </shapes>\n <gps x="{gps}" y="0.000" z="0.000" />\n <txd x="0.000" y="0.000" z="0.000" />\n'
        ' <piv x="0.000" y="0.000" z="0.000" />\n <anchors>\n{anchors} </anchors>\n</vessel>\n')


def design(*lines, unit=9001, gps="1.000", anchors=()):
    """The text of a design: polylines of the top side as lists of places, anchors as number, name and place."""
    shapes = "".join("  <polyline>\n" + "".join(f'   <vertex x="{x}" y="{y}" z="0.000" />\n' for x, y in line)
                     + "  </polyline>\n" for line in lines)
    listed = "".join(f"  <anchor>\n   <id>{number}</id>\n   <name>{name}</name>\n   <attachmentX>{x}</attachmentX>\n"
                     f"   <attachmentY>{y}</attachmentY>\n  </anchor>\n" for number, name, x, y in anchors)
    return HEAD.format(unit=unit) + shapes + TAIL.format(gps=gps, anchors=listed)


SQUARE = ((0, 0), (4, 0), (4, 3), (0, 3))


class DiffTest(CliTest):
    """What changed between two files."""

    def differ(self, former, current, *options):
        """The lines on a difference, without the first, which names the files."""
        done = run("diff", former, current, *options)
        self.assertEqual((done.returncode, done.stderr), (1, b""), done.stdout)
        first, *lines = done.stdout.decode().splitlines()
        self.assertEqual(first, f"{former} -> {current}".replace("\n", "\\u000A"))
        return lines

    def pair(self, former, current):
        """Writes two designs."""
        return self.write("former.xml", former), self.write("new.xml", current)

    def test_every_sample_is_equal_to_itself(self):
        for sample in sorted([*SAMPLES.glob("*.xml"), *SAMPLES.glob("dxf/*.dxf")]):
            hidden = [f"{sample}: left out: 2 on hidden layers"] * 2 if sample.suffix == ".dxf" else ()
            self.assertEqual(self.succeed("diff", sample, sample, remarks=hidden).decode(),
                             f"{sample} -> {sample}: no difference above 0.001\n")

    def test_offsets_anchors_and_polylines_are_reported_with_old_and_new_numbers(self):
        files = self.pair(design(SQUARE, ((9, 9), (8, 8)), anchors=((1, "Bow", 1, 2), (2, "Stern", 3, 4))),
                          design(((0, 0), (4, 0.25), (4, 3), (0, 3)), gps="1.500",
                                 anchors=((1, "Bow", 1, 2.5), (3, "Stern", 3, 4))))
        self.assertEqual(self.differ(*files), [
            "  GNSS antenna  1.000, 0.000, 0.000 -> 1.500, 0.000, 0.000, moved by 0.500",
            '  anchor 1 "Bow"  1.000, 2.000 -> 1.000, 2.500, moved by 0.500',
            '  anchor 3 "Stern"  was anchor 2 "Stern"',
            "  top           polyline 1 changed: 1 vertex moved of 4",
            "                  vertex 2: 4.000, 0.000, 0.000 -> 4.000, 0.250, 0.000, moved by 0.250",
            "  top           polyline 2 removed: 2 vertices, from 8.000, 8.000 to 9.000, 9.000"])

    def test_json_has_every_difference(self):
        files = self.pair(design(SQUARE), design(tuple((x + 1, y) for x, y in SQUARE), anchors=((7, "a&#10;b", 1, 2),)))
        done = run("diff", *files, "--json")
        self.assertEqual(done.returncode, 1)
        self.assertEqual(json.loads(done.stdout), {
            "former": str(files[0]), "current": str(files[1]), "tolerance": 0.001, "equal": False, "unit": None, "offsets": [],
            "anchors": [{"change": "added", "former": None,
                         "current": {"id": 7, "name": "a\nb", "attachment": [1.0, 2.0]}}],
            "shapes": [{"side": "top", "type": "polyline", "change": "moved", "number": {"former": 1, "current": 1},
                        "vertices": {"former": 4, "current": 4}, "by": [1.0, 0.0, 0.0], "distance": 1.0,
                        "reversed": False, "changedVertices": []}]})
        equal = json.loads(self.succeed("diff", "-j", files[0], files[0]))
        self.assertEqual((equal["equal"], equal["shapes"]), (True, []))
        self.assertEqual([*equal], ["former", "current", "tolerance", "equal", "unit", "offsets", "anchors", "shapes"])
        files = self.pair(design(SQUARE), design(((0, 0.25), *SQUARE[1:], (9, 8))))
        self.assertEqual(json.loads(run("diff", "-j", *files).stdout)["shapes"][0]["changedVertices"],
                         [{"former": {"number": 1, "place": [0.0, 0.0, 0.0]},
                           "current": {"number": 1, "place": [0.0, 0.25, 0.0]}, "distance": 0.25},
                          {"former": None, "current": {"number": 5, "place": [9.0, 8.0, 0.0]}}])

    def test_a_polyline_of_one_design_has_no_look_or_form_in_json(self):
        for files in (self.pair(design(), design(SQUARE)), self.pair(design(SQUARE), design())):
            self.assertEqual([*json.loads(run("diff", "-j", *files).stdout)["shapes"][0]],
                             ["side", "type", "change", "number", "vertices", "reversed", "changedVertices"])

    def test_distances_in_json_have_the_decimals_of_the_text_and_places_all_digits(self):
        files = self.pair(design(SQUARE, gps="0.1"), design(tuple((x + 0.1, y + 0.2) for x, y in SQUARE), gps="0.40000001",
                                                            anchors=((1, "Bow", 1, 2),)))
        found = json.loads(run("diff", "-j", *files).stdout)
        self.assertEqual(found["offsets"], [{"name": "GNSS antenna", "former": [0.1, 0.0, 0.0],
                                             "current": [0.40000001, 0.0, 0.0], "distance": 0.3}])
        self.assertEqual((found["shapes"][0]["by"], found["shapes"][0]["distance"]), ([0.1, 0.2, 0.0], 0.224))
        found = json.loads(run("diff", "-j", "-t", "0.000001", *files).stdout)
        self.assertEqual((found["offsets"][0]["distance"], found["shapes"][0]["distance"]), (0.3, 0.223607))
        found = json.loads(run("diff", "-j", "-t", "0", *files).stdout)
        self.assertEqual(found["offsets"][0]["distance"], 0.40000001 - 0.1)

    def test_an_outline_that_was_measured_anew_is_changed(self):
        anew = ((0.02, 0.01), (3.97, -0.03), (4.01, 3.04), (-0.02, 2.96))
        lines = self.differ(*self.pair(design(((50, 50), (60, 60)), SQUARE), design(anew)))
        self.assertEqual(lines[:2], ["  top           polyline 1 (was 2) changed: 4 vertices moved of 4",
                                     "                  vertex 1: 0.000, 0.000, 0.000 -> 0.020, 0.010, 0.000, moved by 0.022"])
        self.assertEqual(lines[5:], ["  top           polyline 1 removed: 2 vertices, from 50.000, 50.000 to 60.000, 60.000"])

    def test_a_polyline_without_vertices_is_said_to_have_none(self):
        self.assertEqual(self.differ(*self.pair(design(), design(()))),
                         ["  top           polyline 1 added, without vertices"])

    def test_the_tolerance_decides_what_counts(self):
        files = self.pair(design(SQUARE), design(((0, 0), (4, 0.001), (4, 3), (0, 3))))
        self.succeed("diff", *files)
        self.assertIn("vertex 2: 4.0000, 0.0000, 0.0000 -> 4.0000, 0.0010, 0.0000, moved by 0.0010",
                      "\n".join(self.differ(*files, "--tolerance", "0.0005")))
        self.differ(*files, "-t", "0")
        self.assertIn(b"no difference above 0.5", self.succeed("diff", *files, "--tolerance=0.5"))

    def test_designs_of_two_units_are_compared_in_the_new_one(self):
        feet = design(tuple((f"{x / 0.3048:.3f}", f"{y / 0.3048:.3f}") for x, y in SQUARE), unit=9002, gps="1.000")
        lines = self.differ(*self.pair(design(SQUARE), feet))
        self.assertEqual(lines[0], "  unit          metre (EPSG 9001) -> foot (EPSG 9002); the former numbers are shown converted")
        self.assertEqual(lines[1:], ["  GNSS antenna  3.281, 0.000, 0.000 -> 1.000, 0.000, 0.000, moved by 2.281"])
        lines = self.differ(*self.pair(design(SQUARE), design(SQUARE, unit=9002)))
        self.assertEqual(len(lines), 1)
        self.assertIn("all numbers are the same, so that every length changed", lines[0])
        same = json.loads(run("diff", *self.pair(design(SQUARE), design(SQUARE, unit=4711)), "-j").stdout)
        self.assertEqual(same["unit"], {"former": {"code": 9001, "name": "metre"},
                                        "current": {"code": 4711, "name": "unknown"}, "sameNumbers": True, "converted": True})
        self.assertEqual([*same["unit"]], ["former", "current", "sameNumbers", "converted"])
        self.assertFalse(same["equal"])

    def test_a_drawing_is_compared_with_the_design_that_it_became(self):
        boat = self.folder / "boat.xml"
        run("import", PLAN, "-s", "left", "-o", boat)
        hidden = [f"{PLAN}: left out: 2 on hidden layers"]
        self.succeed("diff", PLAN, boat, "--side", "left", remarks=hidden)
        self.succeed("diff", boat, PLAN, "-s", "left", remarks=hidden)
        done = run("diff", PLAN, boat)  # the top side, which the design lacks
        self.assertEqual(done.returncode, 1)
        self.assertRegex(done.stdout.decode(), r"  top           polyline 1 removed: ")
        self.assertNotIn(b"GNSS", done.stdout)

    def test_drawings_are_compared_with_colours_and_texts(self):
        def drawing(name, colour, word):
            return self.drawing(name, "0", "LINE", "62", colour, "10", "0", "20", "0", "11", "5", "21", "0",
                                "0", "TEXT", "62", "1", "10", "1", "20", "1", "40", "2", "1", word)
        files = drawing("a.dxf", "1", "Winch"), drawing("b.dxf", "5", "Crane")
        self.assertEqual(self.differ(*files), [
            "  drawing       polyline 1 changed, colour #FF0000 -> #0000FF",
            '  drawing       text 1 "Crane" changed, was "Winch"'])
        self.assertEqual(json.loads(run("diff", "-j", *files).stdout)["shapes"][0]["look"],
                         {"former": {"line": 0x0000FF, "width": 1.0}, "current": {"line": 0xFF0000, "width": 1.0}})

    def test_one_side_alone(self):
        text = BOAT.read_text()
        self.assertIn(' <shapes view="08" >', text)
        changed = self.write("boat.xml", re.sub(r' <shapes view="08" >.*?</shapes>\n', "", text, flags=re.S)
                             .replace('<gps x="', '<gps x="9'))
        self.succeed("diff", BOAT, changed, "--side", "right")
        lines = self.differ(BOAT, changed, "--side", "left")
        self.assertTrue(all(line.startswith("  left          polyline ") for line in lines))
        self.assertEqual([line.split()[0] for line in self.differ(BOAT, changed, "-s", "top")], ["GNSS"])

    def test_many_vertices_are_compared_in_a_short_time(self):
        def line(begin, shift):
            return tuple((f"{begin + i * 0.25:.3f}", f"{shift + i % 7:.3f}") for i in range(100))
        former = design(*(line(number * 1000, 0) for number in range(500)))
        current = design(*(line(number * 1000, 0.5 if number % 5 == 0 else 0) for number in range(499, -1, -1)))
        moved = [x for x in self.differ(*self.pair(former, current)) if "moved by 0.500 (dX 0.000, dY +0.500, dZ 0.000)" in x]
        self.assertEqual(len(moved), 100)

    def test_a_name_can_not_turn_the_report_around(self):
        odd = "a&#x202E;b&#13;&#10;  anchor 9 &quot;x\\"
        lines = self.differ(*self.pair(design(anchors=((1, odd, 1, 2),)), design()))
        self.assertEqual(lines, ['  anchor 1 "a\\u202Eb\\u000D\\u000A  anchor 9 \\"x\\\\"  removed from 1.000, 2.000'])

    def test_odd_file_names(self):
        former, current = self.pair(design(SQUARE), design())
        for name in ("-t", "a\nb", "<new>", "ü \U0001f6a2.dxf"):
            other = shutil.copyfile(current, self.folder / name)
            self.assertIn("polyline 1 removed", self.differ(former, other)[0])
        done = subprocess.run([PROGRAM, "diff", "--", "-t", "-t"], capture_output=True, check=False, cwd=self.folder,
                              env={**os.environ, **FOLDERS})
        self.assertEqual((done.returncode, done.stderr), (0, b""))

    def test_a_pipe_is_read_and_written(self):
        former, current = self.pair(design(SQUARE), design())
        done = run("diff", "-", current, data=former.read_bytes())
        self.assertEqual((done.returncode, done.stdout.decode().splitlines()[0]), (1, f"standard input -> {current}"))
        self.fail_with(2, ("standard input can be read only once",), "diff", "-", "-")
        with open("/dev/full", "wb") as full:
            done = subprocess.run([PROGRAM, "diff", former, current], stdout=full, stderr=subprocess.PIPE, check=False)
        self.assertEqual((done.returncode, done.stderr), (2, b"hullwright-cli: standard output: it can't be written\n"))

    def test_files_that_can_not_be_read(self):
        good = self.write("good.xml", design())
        for name, text, words in (("bad.xml", "<vessel>", "not a well-formed design file (1:9: no element found)"),
                                  ("letter", "Dear Sirs\n", "not a drawing: it has no SECTION"),
                                  ("empty.dxf", "", "the drawing can't be read, or it is empty")):
            bad = self.write(name, text)
            self.fail_with(2, (f"{name}: {words}",), "diff", good, bad)
            self.fail_with(2, (f"{name}: {words}",), "diff", bad, good)
        self.fail_with(2, ("missing.xml: No such file or directory",), "diff", good, self.folder / "missing.xml")
        self.fail_with(2, ("Is a directory",), "diff", self.folder, good)

    def test_wrong_usage(self):
        self.assert_usage_errors(
            ("diff",), ("diff", BOAT), ("diff", BOAT, BOAT, BOAT), ("diff", BOAT, BOAT, "--fast"),
            ("diff", BOAT, BOAT, "-t"), ("diff", BOAT, BOAT, "-t", "wide"), ("diff", BOAT, BOAT, "-t", "-1"),
            ("diff", BOAT, BOAT, "-t", "nan"), ("diff", BOAT, BOAT, "-t", "inf"), ("diff", BOAT, BOAT, "-t", ""),
            ("diff", BOAT, BOAT, "-t", "1m"), ("diff", BOAT, BOAT, "-s", "above"), ("diff", BOAT, BOAT, "-s", "all"),
            ("diff", BOAT, BOAT, "-o", "a.gif"), ("diff", BOAT, BOAT, "-o", ""), ("diff", BOAT, BOAT, "-j", "-o", "-"))


BLUE, RED, GREY = "#0040e0", "#d00020", "#b4b4b4"


class DiffPictureTest(CliTest):
    """Pictures of what changed."""

    def setUp(self):
        super().setUp()
        self.former = self.write("former.xml", design(SQUARE))
        self.current = self.write("new.xml", design(((0, 0), (4, 0.5), (4, 3), (0, 3))))

    def draw(self, *arguments, status=1):
        """Runs with a picture; what stands on standard output."""
        done = run("diff", *arguments)
        self.assertEqual((done.returncode, done.stderr), (status, b""))
        return done.stdout

    def colours(self, former, current, status):
        """Which of the three colours a picture has."""
        out = self.folder / "out.svg"
        self.draw(former, current, "-o", out, status=status)
        text = out.read_text(encoding="utf-8")
        return {colour for colour in (BLUE, RED, GREY) if f'stroke="{colour}"' in text}

    def test_the_former_is_grey_the_new_blue_and_changes_are_ringed(self):
        out = self.folder / "out.png"
        self.assertIn(b"polyline 1 changed", self.draw(self.former, self.current, "-o", out))
        self.assertEqual(size_of(out.read_bytes()), (1648, 1088))
        self.assertEqual(self.colours(self.former, self.current, 1), {BLUE, RED, GREY})

    def test_equal_designs_have_a_picture_without_blue_and_rings(self):
        self.assertEqual(self.colours(self.former, self.former, 0), {GREY})

    def test_what_was_removed_is_grey(self):
        self.assertEqual(self.colours(self.former, self.write("empty.xml", design()), 1), {GREY})

    def strokes(self, former, current, colour):
        """What a picture has of a colour, as SVG."""
        out = self.folder / "out.svg"
        self.draw(former, current, "-o", out)
        return "".join(re.findall(rf'<g [^>]*stroke="{colour}"[^>]*>(.*?)</g>', out.read_text(encoding="utf-8"), re.S))

    def lines(self, former, current, colour):
        """The ends of the lines of a colour in a picture."""
        return re.findall(r'[M"]([\d.]+,[\d.]+) L?([\d.]+,[\d.]+)', self.strokes(former, current, colour))

    def test_rings_around_offsets_and_anchors_are_wider_than_around_vertices(self):
        current = self.write("changed.xml", design(((0, 0), (4, 0.5), (4, 3), (0, 3)), gps="2.000", anchors=((1, "Bow", 1, 2),)))
        self.assertEqual(re.findall(r' r="(\d+)"', self.strokes(self.former, current, RED)), ["7", "20", "20"])

    def test_there_is_no_grid_behind_what_changed(self):
        out = self.folder / "out.svg"
        self.draw(self.former, self.current, "-o", out)
        shown = {colour.lower() for colour in re.findall(r'stroke="(#\w+)"', out.read_text(encoding="utf-8"))}
        self.assertEqual(shown, {"#000000", GREY, BLUE, RED, "#ff0000", "#0000ff", "#008000"})  # with those of the offsets

    def test_an_anchor_of_the_new_design_is_shown_above_a_caption_of_half_its_line(self):
        out = self.folder / "out.svg"
        self.draw(self.former, self.write("anchored.xml", design(SQUARE, anchors=((7, "Bow", 1, 2),))), "-o", out)
        texts = re.findall(r'<text [^>]*font-size="(\d+)"[^>]*>([^<]+)<', out.read_text(encoding="utf-8"))
        self.assertEqual([(size, text.split(":")[0]) for size, text in texts],
                         [("14", "GPS"), ("14", "TXD"), ("14", "PIV"), ("16", "7"), ("20", "top")])

    def test_a_side_stands_in_the_middle_with_a_margin_and_a_cross_where_an_offset_stood(self):
        # The margins are a sixth of the width of 4, so that the height of 3 takes 9 parts in 13 of 1000 pixels.
        self.assertEqual(self.lines(self.former, self.current, GREY)[0], ("338.462,846.154", "1261.54,846.154"))
        moved = self.write("moved.xml", design(SQUARE, gps="2.000"))
        self.assertEqual(self.lines(self.former, moved, "#969696"),
                         [("557.231,834.154", "581.231,858.154"), ("557.231,858.154", "581.231,834.154")])

    def test_a_former_design_of_another_unit_is_drawn_in_the_new_one(self):
        metres = self.write("metres.xml", design(tuple((x * 0.3048, y * 0.3048) for x, y in SQUARE), gps="0.3048"))
        feet = self.write("feet.xml", design(SQUARE, unit=9002))
        self.assertEqual(self.lines(metres, feet, GREY), self.lines(self.former, self.current, GREY))

    def test_svg_and_pdf_show_the_sides_that_differ(self):
        changed = self.write("boat.xml", re.sub(r' <shapes view="(08|20)" >.*?</shapes>\n', "", BOAT.read_text(), flags=re.S))
        out = self.folder / "out.svg"
        self.draw(BOAT, changed, "-o", out)
        captions = re.findall(r">(\w+): the former grey", out.read_text())
        self.assertEqual(captions, ["left", "rear"])
        # Side by side, 1600 wide, with gaps of 24.
        corners = set(re.findall(rf'stroke="{GREY}"[^>]* transform="matrix\(1,0,0,1,(\d+,\d+)\)"', out.read_text()))
        self.assertEqual(corners, {"24,24", "1648,24"})
        self.draw(BOAT, changed, "-s", "left", "-o", out)
        self.assertEqual(re.findall(r">(\w+): the former grey", out.read_text()), ["left"])
        self.draw(BOAT, changed, "--output", self.folder / "out.PDF")
        self.assertTrue((self.folder / "out.PDF").read_bytes().startswith(b"%PDF-"))

    def test_a_picture_in_a_pipe_takes_the_place_of_the_report(self):
        self.assertEqual(size_of(self.draw(self.former, self.current, "-o", "-")), (1648, 1088))

    def test_pictures_of_what_is_hard_to_draw(self):
        empty = self.write("empty.xml", design())
        odd = self.write("odd.xml", design((("nan", 1), ("1e300", "-inf")), anchors=((1, "", "1e308", "nan"),)))
        far = self.write("far.xml", design(((500000, 6e6),)))
        for files in ((empty, odd), (odd, empty), (far, empty), (odd, far)):
            self.draw(*files, "-o", self.folder / "out.png")
        for plan in ((PLAN, self.former), (self.former, PLAN)):
            self.assertEqual(run("diff", *plan, "-o", self.folder / "out.png").returncode, 1)

    def test_pictures_that_can_not_be_written(self):
        self.fail_with(2, ("Not a directory" if os.geteuid() == 0 else "Permission denied",), "diff", self.former, self.current,
                       "-o", self.read_only_folder() / "out.png")
        copy = shutil.copyfile(self.former, self.folder / "copy.png")
        self.fail_with(2, ("the picture would overwrite what is compared",), "diff", copy, self.current, "-o", copy)
        self.assertEqual(copy.read_bytes(), self.former.read_bytes())


if __name__ == "__main__":
    if b"built without pictures" in run("render", "--help").stdout:
        del DiffPictureTest
    unittest.main()

#!/usr/bin/env python3
"""hullwright-cli render"""

import os
import re
import shutil
import subprocess
import unittest
import xml.dom.minidom
import zlib

from cli import PROGRAM, SAMPLES, SIDES, VERBS, CliTest, run, size_of

BOAT = SAMPLES / "workboat.xml"
PLAN = SAMPLES / "dxf" / "workboat-r2010.dxf"


class RenderTest(CliTest):
    """Pictures of designs and drawings."""

    def test_one_side_at_the_size_asked_for(self):
        out = self.folder / "right side.png"
        self.assertEqual(self.succeed("render", BOAT, "--side", "right", "--size", "320x200", "-o", out), b"")
        data = out.read_bytes()
        self.assertEqual(size_of(data), (320, 200))
        self.assertEqual(data[data.index(b"IDAT") + 5] >> 6, 0)  # packed by the fastest method

    def test_all_sides_each_to_its_file(self):
        self.succeed("render", SAMPLES / "dredger.xml", "--side=all", "-z", "160x100", "-o", self.folder / "b.png")
        self.assertEqual(sorted(p.name for p in self.folder.iterdir()), sorted(f"b-{side}.png" for side in SIDES))
        self.assertEqual(len({p.read_bytes() for p in self.folder.iterdir()}), len(SIDES))

    def test_a_drawing_is_imported_into_the_side(self):
        self.succeed("render", PLAN, "-s", "left", "-z", "300x200", "-o", self.folder / "plan.png")
        self.succeed("render", self.drawing("none.dxf"), "-s", "left", "-z", "300x200", "-o", self.folder / "none.png",
                     remarks=["none.dxf: warning: nothing that can be drawn"])
        self.assertNotEqual((self.folder / "plan.png").read_bytes(), (self.folder / "none.png").read_bytes())

    def picture(self, *arguments):
        """The bytes of a small picture."""
        return self.succeed("render", *arguments, "-z", "200x120", "-o", "-")

    def test_a_drawing_has_no_offsets_and_anchors(self):
        plan = self.drawing("a.dxf", "0", "LINE", "10", "3", "20", "1", "11", "4", "21", "2")
        top = self.picture(plan)
        self.assertEqual(top, self.picture(plan, "-s", "left"))
        self.assertEqual(top, self.picture(plan, "--symbols=on"))
        self.succeed("render", plan, "-o", self.folder / "a.svg")
        self.assertNotIn("<text", (self.folder / "a.svg").read_text())

    def test_the_symbols_of_a_design_are_drawn_or_not(self):
        text = BOAT.read_text()
        group = re.search(r' <shapes view="01" >.*?</shapes>\n', text, re.S)
        self.assertIsNotNone(group)
        text = re.sub(r' <shapes view="08" >.*?</shapes>\n', "", text, flags=re.S)
        design = self.write("a.xml", text.replace(group[0], group[0] + group[0].replace('"01"', '"08"')))
        on, off = self.picture(design), self.picture(design, "--symbols", "off")
        self.assertEqual(on, self.picture(design, "-y", "on"))
        self.assertNotEqual(on, off)
        self.assertEqual(off, self.picture(design, "-s", "left"))  # a side that never has symbols
        far = self.write("far.xml", design.read_text().replace('<gps x="', '<gps x="9'))
        self.assertEqual(off, self.picture(far, "-s", "left"))  # nor room for them
        for choice, labels in (("on", ["1", "2", "GPS", "PIV", "TXD"]), ("off", [])):
            self.succeed("render", design, "--symbols", choice, "-o", self.folder / "a.svg")
            shown = {node.firstChild.data.strip() for node in
                     xml.dom.minidom.parse(str(self.folder / "a.svg")).getElementsByTagName("text")}
            self.assertEqual(sorted(shown & {"1", "2", "GPS", "PIV", "TXD"}), labels)
        self.succeed("render", design, "--symbols=off", "--sheet", "-z", "64x40", "-o", self.folder / "a.pdf")

    def test_names_do_not_tell_what_a_file_is(self):
        plan = self.drawing("plan.xml", "0", "LINE", "11", "5", "21", "5")
        expected = self.picture(plan)
        for name in ("plan.dxf", "plan", "plan.png", "-o", "a\nb"):
            self.assertEqual(self.picture(shutil.copyfile(plan, self.folder / name)), expected)
        expected = self.picture(BOAT)
        for name in ("boat.dxf", "boat", "<boat>.DXF"):
            self.assertEqual(self.picture(shutil.copyfile(BOAT, self.folder / name)), expected)

    def test_what_is_neither_a_design_nor_a_drawing(self):
        out = self.folder / "out.png"
        for name in ("letter.xml", "letter.dxf", "letter"):
            self.fail_with(1, (f"{name}: not a drawing: it has no SECTION",), "render", self.write(name, "Dear Sirs\n"), "-o", out)
        self.fail_with(1, ("b: a binary drawing",), "render", self.write("b", "AutoCAD Binary DXF\n\x1a"), "-o", out)

    def test_the_limits_of_a_size_are_reported(self):
        out = self.folder / "out.png"
        for size in ("20001x5", "5x99999", "0x5", "5x99999999999", "-1x5", "5x5x5", "12", "ax5", "5x"):
            self.fail_with(2, ("two lengths from 1 to 20000 pixels", f"'{size}'", "Try 'hullwright-cli render --help'"),
                           "render", BOAT, "--size", size, "-o", out)
        self.fail_with(1, ("the sheet would have 33096x320 pixels, more than 32767 one way", "--size"),
                       "render", BOAT, "--sheet", "--size", "11000x40", "-o", out)
        self.fail_with(1, ("the sheet would have 288x40240 pixels",), "render", BOAT, "-c", "-z", "64x20000", "-o", out)
        self.succeed("render", BOAT, "-s", "rear", "-z", "20000x1", "-o", out)
        self.assertEqual(size_of(out.read_bytes()), (20000, 1))

    def test_svg_has_vectors_and_texts(self):
        out = self.folder / "plan.svg"
        self.succeed("render", PLAN, "-z", "400x250", "-o", out)
        text = out.read_text(encoding="utf-8")
        self.assertRegex(text, r'viewBox="0 0 400 250"')
        self.assertGreater(len(re.findall(r"<(?:path|polyline|line)\b", text)), 100)
        self.assertIn("Schlepphaken", text)
        self.assertNotIn("<image", text)

    def test_pdf_is_one_page_of_the_size(self):
        out = self.folder / "boat.pdf"
        self.succeed("render", BOAT, "-z", "400x300", "-o", out)
        data = out.read_bytes()
        self.assertTrue(data.startswith(b"%PDF-") and data.rstrip().endswith(b"%%EOF"))
        self.assertRegex(data, rb"/MediaBox \[0 0 300(\.0*)? 225(\.0*)?\]")
        self.assertNotIn(b"/Subtype /Image", data)

    def test_a_polyline_of_width_zero_is_one_pixel_wide(self):
        def drawn(width, ending):
            vertices = (("0", "VERTEX", "10", x, "20", y) for x, y in (("0", "0"), ("40", "10"), ("50", "-20")))
            line = ("0", "POLYLINE", "66", "1", "40", width, *(group for v in vertices for group in v), "0", "SEQEND")
            out = self.folder / f"out.{ending}"
            self.succeed("render", self.drawing("line.dxf", *line), "-z", "200x120", "--grid=off", "-o", out)
            if ending != "pdf":
                return out.read_bytes()
            streams = re.findall(rb"stream\r?\n(.*?)\r?\nendstream", out.read_bytes(), re.DOTALL)
            return [zlib.decompress(stream) for stream in streams if stream.startswith(b"\x78")]

        for ending in ("png", "svg", "pdf"):
            self.assertEqual(drawn("0", ending), drawn("0.5", ending), ending)  # a width is read as its double
            self.assertNotEqual(drawn("0", ending), drawn("-0.5", ending), ending)

    def test_a_sheet_has_all_sides(self):
        for ending in ("png", "svg", "pdf"):
            out = self.folder / f"sheet.{ending}"
            self.succeed("render", BOAT, "--sheet", "-z", "160x100", "-o", out)
            self.assertEqual([p.name for p in self.folder.iterdir()], [out.name])
            data = out.read_bytes()
            if ending == "png":
                self.assertEqual(size_of(data), (3 * (160 + 24) + 24, 24 + 40 + 2 * (100 + 88) + 10 * 16 + 24))
            if ending == "svg":
                for side in SIDES:
                    self.assertIn(side.encode(), data)
            out.unlink()

    def sheet_texts(self, *arguments):
        """The texts of a sheet, in the order in which they are drawn."""
        out = self.folder / "sheet.svg"
        self.succeed("render", *arguments, "--sheet", "-o", out)
        nodes = xml.dom.minidom.parse(str(out)).getElementsByTagName("text")
        texts = [node.firstChild.data.strip() for node in nodes]
        out.unlink()
        return texts

    def test_a_sheet_tells_file_unit_scale_offsets_and_anchors(self):
        text = BOAT.read_text()
        texts = self.sheet_texts(shutil.copyfile(BOAT, self.folder / "my boat.xml"), "-z", "500x320")
        self.assertEqual(texts[:2], ["my boat.xml", "Unit: metre"])
        head = texts.index("Offsets and anchors")
        self.assertEqual(texts[head + 1:head + 4], ["X (m)", "Y (m)", "Z (m)"])
        rows = texts[head + 1:]
        for name, tag in (("GNSS antenna", "gpsOffset"), ("Echo sounder", "transducerOffset"), ("Pivot", "pivotOffset")):
            self.assertIn(name, rows)
            at = rows.index(name)
            for shown in rows[at + 1:at + 4]:
                self.assertRegex(shown, r"^-?\d+\.\d{3}$")
        self.assertEqual(sum(row.startswith("Anchor ") for row in rows), text.count("<anchor>"))
        self.assertIn("Anchor 1 (Bow Port)", rows)
        bars = [shown for shown in texts if re.fullmatch(r"[125]0* m", shown)]
        self.assertEqual(len(bars), len(SIDES))

    def test_a_sheet_has_two_rows_of_sides_and_a_line_below_the_head_of_its_table(self):
        out = self.folder / "sheet.svg"
        self.succeed("render", BOAT, "--sheet", "-z", "500x320", "-o", out)
        nodes = xml.dom.minidom.parse(str(out)).getElementsByTagName("text")
        heights = {node.firstChild.data.strip(): float(node.getAttribute("y")) for node in nodes}
        self.assertAlmostEqual(heights["left"] - heights["top"], 320 + 40 + 24 + 24, delta=0.01)  # with caption, bar and gap
        # The table begins at 880 with a head of 24; its first column has 762 pixels from 24 on.
        self.assertRegex(out.read_text(), r'M24,903 L785,903\b|points="24,903 785,903\b')

    def test_each_coordinate_in_the_table_of_a_sheet_takes_a_fifth_of_its_row(self):
        out = self.folder / "sheet.svg"
        self.succeed("render", BOAT, "--sheet", "-z", "500x320", "-o", out)
        nodes = xml.dom.minidom.parse(str(out)).getElementsByTagName("text")
        row = [node.firstChild.data.strip() for node in nodes].index("GNSS antenna")
        y, z = nodes[row + 2:row + 4]
        self.assertEqual((y.firstChild.data.strip(), z.firstChild.data.strip()), ("0.000", "0.000"))
        # Equal texts at the right of their cells; the two columns of the sheet have 762 pixels each.
        self.assertAlmostEqual(float(z.getAttribute("x")) - float(y.getAttribute("x")), 762 // 5, delta=0.01)

    def test_the_last_coordinate_stands_at_the_right_of_its_row(self):
        out = self.folder / "sheet.pdf"
        self.succeed("render", BOAT, "--sheet", "-z", "500x320", "-o", out)
        listed = subprocess.run(["pdftotext", "-bbox", out, "-"], check=True, capture_output=True, text=True).stdout
        edges = [float(edge) for edge in re.findall(r'xMax="(\S+)" yMax="\S+">0\.000</word>', listed)]
        # The first column has five parts of 152 pixels from 24 on, each pixel three quarters of a point.
        self.assertAlmostEqual(max(edge for edge in edges if edge < 786 * 0.75), (24 + 5 * 152) * 0.75, delta=1)

    def test_the_unit_stands_at_the_right_edge_of_a_sheet(self):
        out = self.folder / "sheet.pdf"
        self.succeed("render", BOAT, "--sheet", "-z", "500x320", "-o", out)
        listed = subprocess.run(["pdftotext", "-bbox", out, "-"], check=True, capture_output=True, text=True).stdout
        edge = re.search(r'xMax="(\S+)" yMax="\S+">metre</word>', listed)
        self.assertIsNotNone(edge)
        # Three pictures and four gaps of 24 are 1596 pixels, each three quarters of a point.
        self.assertAlmostEqual(float(edge[1]), (1596 - 24) * 0.75, delta=1)

    def test_a_scale_bar_of_a_huge_design_is_labelled_without_an_exponent(self):
        huge = self.write("huge.xml", '<vessel><units id="9001"/><shapes view="04"><polyline><vertex x="0"/>'
                                      '<vertex x="9e9"/></polyline></shapes></vessel>')
        texts = self.sheet_texts(huge, "-z", "300x200")
        self.assertIn("2000000000 m", texts)

    def test_a_sheet_without_symbols_has_no_table(self):
        for arguments in ((PLAN,), (BOAT, "--symbols=off")):
            self.assertNotIn("Offsets and anchors", self.sheet_texts(*arguments, "-z", "300x200"))

    def test_a_scale_bar_is_as_long_as_it_says(self):
        out = self.folder / "sheet.svg"
        self.succeed("render", BOAT, "--sheet", "-z", "500x320", "--view=-15,-10,15,9.2", "-o", out)
        # 30 m on 500 pixels: a third is 10 m, which takes 166.7 pixels, in the middle of the 24 from 424 on.
        self.assertRegex(out.read_text(), r'M24\.5,435\.5 L191\.167,|points="24\.5,435\.5 191\.167,')

    def test_a_stretch_of_the_world_fills_the_picture(self):
        plan = self.drawing("a.dxf", "0", "LINE", "10", "-8", "20", "-4", "11", "8", "21", "4")
        out = self.folder / "a.svg"
        self.succeed("render", plan, "-z", "256x128", "--view=-16,-8,16,8", "--grid=off", "-o", out)
        # 8 pixels a unit, from the left and from above.
        self.assertRegex(out.read_text(), r'M64,96 L192,32\b|points="64,96 192,32\b')

    def test_the_stretch_of_the_world_and_the_grid(self):
        pictures = set()
        for i, options in enumerate(((), ("--view=-5,-5,5,5",), ("-v", "-5,-5,5,5", "--fit"), ("--grid=on",),
                                     ("--grid", "off"))):
            out = self.folder / f"{i}.png"
            self.succeed("render", BOAT, "-z", "200x120", *options, "-o", out)
            pictures.add(out.read_bytes())
        self.assertEqual(len(pictures), 3)  # everything, the stretch, everything without the grid

    def test_designs_and_drawings_may_come_from_standard_input_and_pictures_go_to_standard_output(self):
        for path in (BOAT, PLAN):
            data = self.succeed("render", "-", "-z", "64x40", "-o", "-", data=path.read_bytes())
            self.assertEqual(size_of(data), (64, 40))

    def test_an_existing_picture_is_replaced_and_a_link_followed(self):
        out = self.write("old.png", "old")
        link = self.folder / "link.png"
        link.symlink_to(out)
        self.succeed("render", BOAT, "-z", "64x40", "-o", link)
        self.assertTrue(link.is_symlink())
        self.assertEqual(size_of(out.read_bytes()), (64, 40))
        mask = os.umask(0)
        os.umask(mask)
        self.assertEqual(out.stat().st_mode & 0o777, 0o666 & ~mask)

    def test_failures_are_reported_with_the_files_name(self):
        out = self.folder / "out.png"
        self.fail_with(1, ("missing.xml", "No such file"), "render", self.folder / "missing.xml", "-o", out)
        self.fail_with(1, (self.folder.name, "directory"), "render", self.folder, "-o", out)
        bad = self.write("bad.xml", "<vessel>")
        self.fail_with(1, ("bad.xml", "not a well-formed design file"), "render", bad, "-o", out)
        empty = self.write("empty.dxf", "")
        self.fail_with(1, ("empty.dxf", "empty"), "render", empty, "-o", out)
        self.fail_with(1, ("out.png", "No such file"), "render", BOAT, "-o", self.folder / "none" / "out.png")
        locked = self.read_only_folder()
        self.fail_with(1, ("out.png",), "render", BOAT, "-o", locked / "out.png")
        folder = self.folder / "folder.png"
        folder.mkdir()
        self.fail_with(1, ("folder.png", "directory"), "render", BOAT, "-o", folder)

    def test_of_all_sides_every_file_is_written_or_none(self):
        (self.folder / "a-rear.png").mkdir()
        self.fail_with(1, ("a-rear.png", "directory"), "render", BOAT, "-s", "all", "-o", self.folder / "a.png")

    def test_names_that_are_not_unicode_serve(self):
        inside = os.fsencode(self.folder) + b"/b\xf6t.xml"
        shutil.copyfile(BOAT, inside)
        outside = os.fsencode(self.folder) + b"/b\xf6t.svg"
        done = subprocess.run([PROGRAM, "render", inside, "-o", outside], capture_output=True, check=False)
        self.assertEqual((done.returncode, done.stderr), (0, b""))
        with open(outside, "rb") as picture:
            self.assertIn(b"<svg", picture.read())

    def test_the_mode_of_a_file_stays(self):
        out = self.write("private.png", "")
        out.chmod(0o600)
        self.succeed("render", BOAT, "-z", "64x40", "-o", out)
        self.assertEqual(out.stat().st_mode & 0o777, 0o600)

    def test_a_pipe_is_written_into(self):
        pipe = self.folder / "pipe.png"
        os.mkfifo(pipe)
        reader = os.open(pipe, os.O_RDONLY | os.O_NONBLOCK)
        self.succeed("render", BOAT, "-z", "64x40", "-o", pipe)
        self.assertEqual(size_of(os.read(reader, 65536)), (64, 40))
        os.close(reader)
        self.assertTrue(pipe.is_fifo())

    def test_texts_with_control_characters_make_a_good_svg(self):
        drawing = self.drawing("a.dxf", "0", "TEXT", "1", "a\\U+0001b\\U+D83Dc", "40", "5")
        out = self.folder / "out.SVG"
        self.succeed("render", drawing, "-z", "400x250", "-o", out)
        xml.dom.minidom.parse(str(out))

    def test_a_lost_standard_output_is_reported(self):
        for arguments in (("--help",), ("info", BOAT), ("render", BOAT, "-o", "-")):
            with open("/dev/full", "wb") as full:
                done = subprocess.run([PROGRAM, *arguments], stdout=full, stderr=subprocess.PIPE, check=False)
            self.assertEqual(done.returncode, 1)
            self.assertIn(b"standard output", done.stderr)

    def test_a_picture_needs_no_folder_for_temporary_files(self):
        environment = dict(os.environ, TMPDIR="/nonexistent")
        done = subprocess.run([PROGRAM, "render", BOAT, "-z", "64x40", "-o", "-"], capture_output=True,
                              env=environment, check=True)
        self.assertEqual(size_of(done.stdout), (64, 40))

    def test_a_pipe_is_no_design(self):
        pipe = self.folder / "pipe.xml"
        os.mkfifo(pipe)
        self.fail_with(1, ("pipe.xml", "not a file"), "render", pipe, "-o", self.folder / "out.png")

    def test_wrong_usage_is_refused(self):
        out = self.folder / "out.png"
        self.assert_usage_errors(
            ("render",), ("render", BOAT), ("render", BOAT, BOAT, "-o", out), ("render", BOAT, "-o", "out.gif"),
            ("render", BOAT, "--side", "above", "-o", out), ("render", BOAT, "--size", "12", "-o", out),
            ("render", BOAT, "--size", "0x5", "-o", out), ("render", BOAT, "--size", "5x99999", "-o", out),
            ("render", BOAT, "--size", "5x5x5", "-o", out), ("render", BOAT, "--fast", "-o", out),
            ("render", BOAT, "--view", "1,2,3", "-o", out), ("render", BOAT, "--view", "1,2,3,4,5", "-o", out),
            ("render", BOAT, "--view", "5,0,1,4", "-o", out), ("render", BOAT, "--view", "a,0,1,4", "-o", out),
            ("render", BOAT, "--view", "1,0,1,4", "-o", out), ("render", BOAT, "--view", "0,4,1,4", "-o", out),
            ("render", BOAT, "--grid", "maybe", "-o", out), ("render", BOAT, "-s", "all", "-o", "-"), ("render", BOAT, "-o"),
            ("render", BOAT, "--symbols", "maybe", "-o", out), ("render", BOAT, "--symbols", "-o", out))

    def test_help_names_verbs_and_options_as_the_man_page_does(self):
        for verb in VERBS:
            self.assertIn(verb.encode(), self.succeed("--help"))
            self.assertIn(f"Usage: hullwright-cli {verb}".encode(), self.succeed(verb, "--help"))
        self.assertRegex(self.succeed("--version").decode(), r"^hullwright-cli \d+\.\d+\.\d+\n$")
        self.assert_usage_errors((), ("draw",), ("--wrong",))
        page = (SAMPLES.parent / "packaging" / "hullwright-cli.1").read_text().replace("\\-", "-")
        for verb in VERBS:
            text = self.succeed(verb, "--help").decode()
            self.assertIn("Exit status: 0", text)
            for option in re.findall(r"--[a-z]+", text):
                self.assertIn(option, page)
        self.assertEqual(run("-h").returncode, 0)


if __name__ == "__main__":
    unittest.main()

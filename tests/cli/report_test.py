#!/usr/bin/env python3
"""hullwright-cli report"""

import datetime
import hashlib
import os
import re
import shutil
import subprocess
import unittest
import zlib

from cli import FOLDERS, PROGRAM, SAMPLES, CliTest

BOAT = SAMPLES / "workboat.xml"
EMPTY = "<vessel><units id='9002'/></vessel>"


def anchors_of(names):
    """The text of a design with anchors of these names, which stand for XML."""
    listed = "".join(f"<anchor><id>{number}</id>\n<name>{name}</name>\n<attachmentX>{number}.5</attachmentX>\n"
                     "<attachmentY>-1.25</attachmentY>\n</anchor>\n" for number, name in enumerate(names, 1))
    return f"<vessel><anchors>{listed}</anchors></vessel>"


class ReportTest(CliTest):
    """The document of a design."""

    def report(self, design, **environment):
        """The bytes of the document of a design."""
        out = self.folder / "report.pdf"
        self.assertEqual(self.succeed("report", design, "-o", out, **environment), b"")
        return out.read_bytes()

    def pages(self, design, **environment):
        """The text of each page, as poppler finds it, line by line."""
        self.report(design, **environment)
        text = subprocess.run(["pdftotext", "-layout", self.folder / "report.pdf", "-"], check=True, capture_output=True,
                              text=True).stdout
        return text.split("\f")[:-1]

    def boxes(self, page):
        """The words of a page of the last document, each with its left, upper, right and lower edge in tenths of a millimetre."""
        listed = subprocess.run(["pdftotext", "-bbox", "-f", str(page), "-l", str(page), self.folder / "report.pdf", "-"],
                                check=True, capture_output=True, text=True).stdout
        found = re.findall(r'xMin="(\S+)" yMin="(\S+)" xMax="(\S+)" yMax="(\S+)">(\S+)</word>', listed)
        return [(word, *(float(edge) / 72 * 254 for edge in edges)) for *edges, word in found]

    def grey_page(self, page):
        """The width of a page of the last document, and its pixels, each a tenth of a millimetre."""
        subprocess.run(["pdftoppm", "-gray", "-r", "254", "-f", str(page), "-l", str(page), "-singlefile",
                        self.folder / "report.pdf", self.folder / "page"], check=True)
        _, size, _, pixels = (self.folder / "page.pgm").read_bytes().split(b"\n", 3)
        return int(size.split()[0]), pixels

    def test_the_text_can_be_searched(self):
        first, *others = self.pages(BOAT)
        words = " ".join(first.split())
        for text in ("workboat", "File workboat.xml", f"SHA-256 {hashlib.sha256(BOAT.read_bytes()).hexdigest()}",
                     "Unit metre (EPSG 9001)", "Offsets", "GNSS antenna 1.200 0.000 0.000", "echo sounder", "pivot",
                     "1 Bow Port 9.500 2.126", "page 1 of 4"):
            self.assertIn(text, words)
        sides = "\n".join(others)
        self.assertEqual(re.findall(r"^ *(\w+) +scale 1:(\d+)$", sides, re.MULTILINE),
                         [("top", "200"), ("bottom", "200"), ("right", "200"), ("left", "200"), ("front", "200"),
                          ("rear", "200")])
        self.assertIn("38 polylines, 421 vertices, from -12.750, -3.500 to 12.000, 3.500", sides)
        self.assertIn("GPS", sides)

    def test_numbers_stand_at_the_right_edge_of_their_columns(self):
        self.report(BOAT)
        titles = sorted((round(upper), right) for word, _, upper, right, _ in self.boxes(1) if word in ("X", "Y", "Z"))
        edges = (1088, 1488, 1888, 1538, 1888)  # of the offsets, then of the anchors
        self.assertEqual(len(titles), len(edges))
        for (_, right), edge in zip(titles, edges):
            self.assertAlmostEqual(right, edge, delta=3)

    def test_a_side_s_scale_ends_where_the_frame_below_it_does(self):
        self.report(BOAT)
        for page in (2, 3):
            boxes = self.boxes(page)
            left = min(left for _, left, *_ in boxes)
            rights = [right for word, _, _, right, _ in boxes if word == "1:200"]
            self.assertEqual(len(rights), 2)
            for right in rights:
                self.assertAlmostEqual(right - left, 1700, delta=0.5)

    def test_pages_are_a4_and_their_fonts_are_embedded(self):
        self.report(BOAT)
        facts = subprocess.run(["pdfinfo", self.folder / "report.pdf"], check=True, capture_output=True, text=True).stdout
        self.assertRegex(facts, r"Title: +workboat.xml\n")
        self.assertRegex(facts, r"Page size: +59[45][.\d]* x 84[12][.\d]* pts \(A4\)")
        fonts = subprocess.run(["pdffonts", self.folder / "report.pdf"], check=True, capture_output=True,
                               text=True).stdout.splitlines()[2:]
        self.assertTrue(fonts)
        for font in fonts:
            self.assertRegex(font, r"yes +(yes|no) +yes +\d+ +\d+$")  # embedded, known as Unicode

    def test_the_lines_of_a_table_run_from_edge_to_edge(self):
        data = self.report(self.write("nothing.xml", EMPTY))
        streams = re.findall(rb"stream\r?\n(.*?)\r?\nendstream", data, re.DOTALL)
        pages = b"\n".join(zlib.decompress(stream) for stream in streams if stream.startswith(b"\x78"))
        # Below the titles and below each of the three offsets, over the 170 mm between the margins.
        self.assertEqual(len(re.findall(rb"(?m)^0 (\S+) m\n1700 \1 l\nS$", pages)), 4)

    def test_the_same_time_gives_the_same_bytes(self):
        fixed = {"SOURCE_DATE_EPOCH": "1000000000"}
        first = self.report(BOAT, **fixed)
        self.assertEqual(first, self.report(BOAT, **fixed))
        self.assertNotEqual(first, self.report(BOAT, SOURCE_DATE_EPOCH="1000000060"))
        self.assertIn("Report made 2001-09-09 01:46 UTC", " ".join(self.pages(BOAT, **fixed)[0].split()))
        self.assertIn("Saved 2001-09-09 01:46 UTC", " ".join(self.pages(BOAT, **fixed)[0].split()))
        self.assertIn(b"/CreationDate (D:20010909014640Z", first)

    def test_the_date_is_that_of_the_clock(self):
        design = self.write("a.xml", EMPTY)
        os.utime(design, (86400, 86400))
        words = " ".join(self.pages(design)[0].split())
        self.assertIn("Saved 1970-01-02 00:00 UTC", words)
        made = datetime.datetime.fromisoformat(re.search(r"Report made (\S+ \S+) UTC", words)[1] + "+00:00")
        self.assertLess(abs((datetime.datetime.now(datetime.timezone.utc) - made).total_seconds()), 600)

    def test_many_anchors_go_on_on_the_next_pages(self):
        pages = self.pages(self.write("many.xml", anchors_of(f"Anchor No. {i}" for i in range(1, 201))))
        tables = [page for page in pages if re.search(r"number +name +X +Y", page)]
        self.assertGreater(len(tables), 3)
        found = re.findall(r"^ *(\d+) +Anchor No. (\d+) +([\d.]+) +-1.250$", "\n".join(tables), re.MULTILINE)
        self.assertEqual(found, [(str(i), str(i), f"{i}.500") for i in range(1, 201)])
        for number, page in enumerate(pages, 1):
            self.assertIn(f"page {number} of {len(pages)}", page)

    def test_titles_never_stand_alone_at_the_foot_of_a_page(self):
        for words in (20, 40, 60):
            pages = self.pages(self.write("high.xml", anchors_of(["Poller " * words] * 60)))
            tables = [page.split() for page in pages if "Poller" in page]
            self.assertGreater(len(tables), 2)
            for page in tables:
                titles = len(page) - 1 - page[::-1].index("Y")
                self.assertIn("Poller", page[titles:])

    def test_long_and_odd_names(self):
        long = "Poller " * 40
        pages = self.pages(self.write("odd.xml", anchors_of([long, "a&#x202E;b", "x" * 5000, "\u00c4\u03a9\u0416"])))
        words = "".join(pages[0].split()).replace("1.500-1.250", "").replace("3.500-1.250", "")
        self.assertIn(long.replace(" ", ""), words)
        self.assertIn(r"a\u202Eb", words)
        self.assertIn("x" * 300 + "\u2026", words)
        self.assertIn("\u00c4\u03a9\u0416", words)

    def test_a_design_without_anything(self):
        text = "\n".join(self.pages(self.write("nothing.xml", EMPTY)))
        self.assertIn("foot (EPSG 9002)", text)
        self.assertIn("The design has no anchors.", text)
        self.assertEqual(re.findall(r"(\w+)\n+Nothing is drawn on this side\.", text),
                         ["bottom", "right", "left", "front", "rear"])  # on the top there are offsets
        # A line follows its heading at once, the titles of a table stand 6 lower.
        tops = {word: upper for word, _, upper, _, _ in self.boxes(1)}
        self.assertAlmostEqual(tops["offset"] - tops["Offsets"] - (tops["The"] - tops["Anchors"]), 6, delta=0.4)

    def test_numbers_that_are_hard_to_draw(self):
        def side(view, *places):
            vertices = "".join(f'<vertex x="{x}" y="{y}"/>' for x, y in places)
            return f'<shapes view="{view}"><polyline>{vertices}</polyline></shapes>'
        text = "\n".join(self.pages(self.write("hard.xml", "<vessel><units id='4711'/>"
                                               + side("02", ("1e308", 0), ("-1e308", 0)) + side("04", (5, 5))
                                               + side("08", ("inf", 1)) + side("10", (0, 0), (1e9, 1))
                                               + side("20", (0, 0), (0.002, 0.001)) + "</vessel>")))
        self.assertIn("unknown (EPSG 4711)", text)
        self.assertIn("The unit has no factor: lengths count as metres.", text)
        self.assertEqual(text.count("A number of this side is not finite."), 2)
        scales = re.findall(r"^ *(\w+) +scale 1:(\S+)$", text, re.MULTILINE)
        self.assertIn(("right", "100"), scales)
        self.assertEqual([name for name, _ in scales], ["top", "right", "front", "rear"])

    def test_units_set_the_scale(self):
        line = '<shapes view="04"><polyline><vertex x="0"/><vertex x="100"/></polyline></shapes>'
        for unit, scale, field in (("9001", "1000", 20), ("9002", "200", 10), ("9036", "1000000", 20)):
            text = "\n".join(self.pages(self.write("a.xml", f"<vessel><units id='{unit}'/>{line}</vessel>")))
            self.assertRegex(text, rf"right +scale 1:{scale}\n")
            self.assertRegex(text, r"\b" + " +".join(str(field * i) for i in range(5)) + r"\b")  # the numbers of its bar

    def test_a_bar_has_black_and_white_fields_and_small_numbers(self):
        self.report(BOAT)
        width, pixels = self.grey_page(2)
        # Behind the margin of 200 the bar begins at 1000, with fields of 2 m at 1:200.
        row = 1206 * width
        self.assertEqual([pixels[row + 200 + x] < 128 for x in (50, 150, 250, 350)], [True, False, True, False])
        heights = {word: lower - upper for word, _, upper, _, lower in self.boxes(2)}
        self.assertAlmostEqual(heights["metre"] / heights["scale"], 26 / 34, delta=0.01)

    def test_the_frame_of_a_side_begins_below_its_caption(self):
        self.report(BOAT)
        width, pixels = self.grey_page(2)
        # Behind the margin of 200 and the caption of 60, with a line of 2 around its edge.
        self.assertEqual([pixels[y * width + 1000] < 200 for y in range(258, 263)], [False, False, True, True, False])
        self.assertEqual([pixels[300 * width + x] < 200 for x in range(198, 203)], [False, False, True, True, False])

    def test_a_side_stands_in_the_middle_of_its_frame_with_symbols_of_one_size(self):
        offsets = "".join(f'<{name} x="{x}" y="5" z="0"/>' for name, x in (("gps", 0), ("txd", 20), ("piv", 10)))
        self.report(self.write("offsets.xml", f"<vessel><units id='9001'/>{offsets}</vessel>"))
        places = {word: edges for word, *edges in self.boxes(2)}
        left, upper, right, lower = places["PIV"]
        # The frame's middle is at 1050, 720. A label's is 25 pixels of 2.5 above that of its symbol.
        self.assertAlmostEqual((left + right) / 2, 1050, delta=10)
        self.assertAlmostEqual((upper + lower) / 2, 720 - 25 * 2.5, delta=10)
        # The others lie 10 m to its left and right, which are 500 at 1:200.
        for word, middle in (("GPS", 550), ("TXD", 1550)):
            self.assertAlmostEqual((places[word][0] + places[word][2]) / 2, middle, delta=10)

    def test_the_foot_is_smaller_than_the_text(self):
        self.report(BOAT)
        heights = {word: lower - upper for word, _, upper, _, lower in self.boxes(1)}
        self.assertAlmostEqual(heights["page"] / heights["metre"], 28 / 34, delta=0.01)

    def test_a_long_name_in_the_foot_ends_five_millimetres_before_the_page(self):
        self.report(shutil.copyfile(BOAT, self.folder / ("i" * 240)))
        lefts, rights = ([box[side] for box in self.boxes(1) if box[4] > 2650] for side in (1, 3))
        lefts, rights = sorted(lefts), sorted(rights)
        self.assertGreater(lefts[1] - rights[0], 50)
        self.assertLess(lefts[1] - rights[0], 80)  # a letter more would not fit

    def test_a_pipe_and_an_odd_name(self):
        done = self.succeed("report", "-", "-o", "-", data=BOAT.read_bytes())
        self.assertTrue(done.startswith(b"%PDF-") and done.rstrip().endswith(b"%%EOF"))
        odd = shutil.copyfile(BOAT, self.folder / "<b>\n\U0001f6a2")
        self.assertIn("<b>\\u000A", self.pages(odd)[0])
        shutil.copyfile(BOAT, self.folder / "-o")
        subprocess.run([PROGRAM, "report", "-o", "out.pdf", "--", "-o"], check=True, cwd=self.folder,
                       env={**os.environ, **FOLDERS})

    def test_failures(self):
        out = self.folder / "out.pdf"
        self.fail_with(1, ("missing.xml: No such file or directory",), "report", self.folder / "missing.xml", "-o", out)
        self.fail_with(1, ("bad.xml: not a well-formed design file",), "report", self.write("bad.xml", "<vessel>"), "-o", out)
        self.fail_with(1, ("plan.dxf: not a design",), "report", self.drawing("plan.dxf", "0", "LINE"), "-o", out)
        self.fail_with(1, ("out.pdf",), "report", BOAT, "-o", self.read_only_folder() / "out.pdf")

    def test_wrong_usage(self):
        copy = shutil.copyfile(BOAT, self.folder / "boat.pdf")
        self.assert_usage_errors(("report",), ("report", BOAT), ("report", BOAT, "-o", "a.png"), ("report", BOAT, "-o"),
                                 ("report", BOAT, BOAT, "-o", "a.pdf"), ("report", BOAT, "--all", "-o", "a.pdf"),
                                 ("report", copy, "-o", copy))
        self.assertEqual(copy.read_bytes(), BOAT.read_bytes())


if __name__ == "__main__":
    unittest.main()

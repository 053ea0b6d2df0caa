#!/usr/bin/env python3
"""Edits a design in the real program by menus, dialogs, mouse and tree, and checks the file it saves."""

import math
import pathlib
import re
import shutil
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent))
from case import DeskTest, SAMPLES  # noqa: E402

FOOT = 0.3048

# Menus of the bar by how often the left key is pressed from "File", and their entries from below.
MODIFY = (4, ("Offsets", "Move", "Scale", "Rotate Left", "Rotate Right", "Mirror Horizontally",
              "Mirror Vertically"))
OPTIONS = (3, ("Units", "Grid"))


class Design:
    """The numbers of a saved design."""

    def __init__(self, path):
        text = path.read_text()
        self.unit = int(re.search(r'<units id="(\d+)"', text)[1])
        self.sides = {int(view, 16): [self._vertices(line) for line in re.findall(
            r"<polyline>(.*?)</polyline>", body, re.S)]
                      for view, body in re.findall(r'<shapes view="(..)" >(.*?)</shapes>', text, re.S)}
        self.offsets = {name: self._vertices(text, name)[0] for name in ("gps", "txd", "piv")}
        self.anchors = [tuple(map(float, place)) for place in re.findall(
            r"<attachmentX>(.*?)</attachmentX>\s*<attachmentY>(.*?)</attachmentY>", text)]

    @staticmethod
    def _vertices(text, name="vertex"):
        return [tuple(map(float, v)) for v in re.findall(
            rf'<{name} x="(.*?)" y="(.*?)" z="(.*?)" />', text)]


class EditingTest(DeskTest):
    """Each test edits one small design."""

    def setUp(self):
        super().setUp()
        self.path = self.desk.folder / "boat.xml"
        shutil.copy(SAMPLES / "workboat.xml", self.path)
        self.before = Design(self.path)
        self.start(self.path)

    def choose(self, menu, entry):
        """Runs a menu's entry by the keyboard."""
        lefts, entries = menu
        self.desk.keys("alt+f", *["Left"] * lefts, *["Up"] * (entries.index(entry) + 1), "Return")
        self.desk.settle()

    def type(self, *fields):
        """Types over the fields of a dialog one after the other, then confirms it."""
        for i, text in enumerate(fields):
            if i:
                self.desk.keys("Tab")
            self.desk.type(text)
        self.desk.keys("Return")
        self.desk.settle()

    def saved(self):
        """Saves and reads the design back."""
        self.desk.settle()
        self.path.unlink()
        self.desk.keys("ctrl+s")
        self.desk.wait_until(lambda: self.path.exists() and self.path.read_text().endswith("</vessel>\n"))
        return Design(self.path)

    def assert_mapped(self, after, mapping):
        """The top side is mapped vertex by vertex; everything else is as it was."""
        for old, new in zip(self.before.sides[1], after.sides[1], strict=True):
            for (x, y, z), vertex in zip(old, new, strict=True):
                for wanted, got in zip(mapping(x, y, z), vertex, strict=True):
                    self.assertAlmostEqual(wanted, got, delta=0.00051)
        for side in (2, 4, 8, 16, 32):
            self.assertEqual(self.before.sides[side], after.sides[side])
        self.assertEqual(self.before.anchors, after.anchors)

    def test_mirror_both_ways(self):
        self.choose(MODIFY, "Mirror Vertically")
        self.assert_mapped(self.saved(), lambda x, y, z: (x, -y, z))
        self.choose(MODIFY, "Mirror Horizontally")
        after = self.saved()
        self.assert_mapped(after, lambda x, y, z: (-x, -y, z))
        self.assertEqual(self.before.offsets, after.offsets)

    def test_rotate_right_scale_and_move(self):
        self.choose(MODIFY, "Rotate Right")
        self.desk.keys("Return")
        self.assert_mapped(self.saved(), lambda x, y, z: (y, -x, z))
        self.choose(MODIFY, "Scale")
        self.type("2")
        self.assert_mapped(self.saved(), lambda x, y, z: (2 * y, -2 * x, 2 * z))
        self.choose(MODIFY, "Move")
        self.type("1.5", "-2")
        self.assert_mapped(self.saved(), lambda x, y, z: (2 * y + 1.5, -2 * x - 2, 2 * z))

    def test_offsets(self):
        self.choose(MODIFY, "Offsets")
        self.type("1", "2", "3", "4", "5", "6", "7")
        self.assertEqual(self.saved().offsets,
                         {"gps": (1, 2, 0), "txd": (3, 4, 0), "piv": (5, 6, 7)})

    def test_change_the_unit_with_and_without_conversion(self):
        self.choose(OPTIONS, "Units")
        self.desk.dialog("Switch Units")
        self.desk.keys("Home", "Down", "Return")
        self.desk.answer("Hullwright", "alt+y")
        after = self.saved()
        self.assertEqual(after.unit, 9002)
        self.assert_mapped(after, lambda x, y, z: (x / FOOT, y / FOOT, z / FOOT))
        self.assertAlmostEqual(after.offsets["gps"][0], self.before.offsets["gps"][0] / FOOT, delta=0.001)
        self.assertEqual(after.offsets["piv"], self.before.offsets["piv"])
        self.choose(OPTIONS, "Units")
        self.desk.dialog("Switch Units")
        self.desk.keys("Home", "Return")
        self.desk.answer("Hullwright", "alt+n")
        kept = self.saved()
        self.assertEqual(kept.unit, 9001)
        self.assertEqual(kept.sides, after.sides)

    def drag(self, start, end):
        """Drags with the left button from one point of the world to another."""
        self.desk.move(*self.pixel(*start))
        self.desk.press()
        for step in (0.3, 0.6, 1.0):
            self.desk.move(*self.pixel(start[0] + (end[0] - start[0]) * step,
                                       start[1] + (end[1] - start[1]) * step))
        self.desk.release()
        self.desk.settle()

    def draw(self, *vertices):
        """Draws a polyline with the mouse."""
        self.desk.keys("alt+f", "Left", "Left", "Up", "Return")
        for x, y in vertices:
            self.desk.click(*self.pixel(x, y))
        self.desk.click(*self.pixel(90, 60), button=3)
        self.desk.settle()

    def test_drag_a_vertex_with_snap_on_and_off(self):
        self.draw((-50, 40), (50, 40))
        self.drag((-50, 40), (-38, 29))
        self.assertEqual(self.saved().sides[1][-1][0], (-37.5, 30.0, 0.0))
        self.choose(OPTIONS, "Grid")
        for _ in range(3):
            self.desk.keys("Tab")
        self.desk.keys("space", "Return")
        self.desk.settle()
        self.drag((50, 40), (51.3, 33.3))
        x, y, _ = self.saved().sides[1][-1][1]
        self.assertLess(math.dist((x, y), (51.3, 33.3)), 0.5)
        self.assertNotEqual((x % 2.5, y % 2.5), (0.0, 0.0))

    def test_vertices_and_anchors_by_the_context_menu(self):
        self.draw((-50, 40), (0, 40), (50, 40))
        self.desk.click(*self.pixel(0, 40), button=3)
        self.desk.keys("r")  # Remove Vertex
        self.desk.settle()
        self.assertEqual([v[:2] for v in self.saved().sides[1][-1]], [(-50, 40), (50, 40)])
        self.desk.click(*self.pixel(-60, -40), button=3)
        self.desk.settle()
        self.desk.keys("Up", "Return")  # Add Anchor is the last entry
        self.assertEqual(self.saved().anchors, self.before.anchors + [(-60.0, -40.0)])
        self.desk.click(*self.pixel(-60, -40), button=3)
        self.desk.keys("r")  # Remove Anchor
        self.assertEqual(self.saved().anchors, self.before.anchors)

    def test_a_point_for_the_polyline_that_is_marked_in_the_tree(self):
        self.desk.click(*self.pixel(-95, 0))
        # A press of the return key marks the first polyline of the top side, as a click does.
        self.desk.keys("F6", "Home", "Down", "Right", "Down", "Return")
        self.desk.settle()
        self.desk.click(*self.pixel(-60, -40), button=3)
        self.desk.keys("a", "Return")  # Add Vertex, the first of two entries with this key
        self.desk.settle()
        self.desk.keys("Return")
        self.desk.settle()
        after = self.saved()
        self.assertEqual(after.sides[1][0], self.before.sides[1][0] + [(-60.0, -40.0, 0.0)])
        self.assertEqual(after.sides[1][1:], self.before.sides[1][1:])

    def test_the_object_tree(self):
        # The pane's focus begins at "Vessel Design"; the first side is "TOP".
        self.desk.click(*self.pixel(-95, 0))
        self.desk.keys("F6", "Home", "Down", "Menu")
        self.desk.settle()
        self.desk.keys("a")  # Add Polyline
        self.desk.settle()
        after = self.saved()
        self.assertEqual(len(after.sides[1]), len(self.before.sides[1]) + 1)
        self.assertEqual(after.sides[1][-1], [])
        for answer, left in (("alt+n", len(after.sides[1])), ("alt+y", 0)):
            self.desk.keys("Home", "Down", "Menu")
            self.desk.settle()
            self.desk.keys("r")  # Remove All Polylines
            self.desk.answer("Hullwright", answer)
            self.assertEqual(len(self.saved().sides[1]), left)


if __name__ == "__main__":
    unittest.main()

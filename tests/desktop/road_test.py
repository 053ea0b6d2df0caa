#!/usr/bin/env python3
"""Drives the real program in a real window, as a surveyor would."""

import pathlib
import shutil
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent))
from case import DeskTest, SAMPLES  # noqa: E402


class RoadTest(DeskTest):
    """From opening a design to its saved file."""

    def setUp(self):
        super().setUp()
        self.design = self.desk.folder / "workboat.xml"
        shutil.copy(SAMPLES / "workboat.xml", self.design)

    def choose_side(self, name):
        """Chooses a side in the drop-down of the toolbar, which the tab key reaches from the view behind
        the tree and the buttons new, open, save and import."""
        down = ("Top", "Bottom", "Front", "Rear", "Right", "Left").index(name) + 1
        self.desk.click(*self.pixel(-95, 0))
        self.desk.keys(*["Tab"] * 6, "space")
        self.desk.settle()
        self.desk.keys(*["Down"] * down, "Return")
        self.desk.settle()

    def test_draw_a_polyline_on_the_right_side_and_save_it(self):
        before = self.design.read_text()
        self.start(self.design)

        self.choose_side("Right")

        # "Draw Polyline" is the last entry of the last menu but one.
        self.desk.keys("alt+f", "Left", "Left", "Up", "Return")
        vertices = [(-50.0, 25.0), (0.0, 47.5), (62.5, -32.5)]
        for x, y in vertices:
            self.desk.click(*self.pixel(x + 0.6, y - 0.6))  # beside the grid point; it snaps
        self.desk.click(*self.pixel(70, 40), button=3)
        self.desk.settle()
        self.desk.keys("ctrl+s")
        self.desk.wait_until(lambda: self.design.read_text() != before)
        self.desk.keys("alt+f", "x")
        self.assertEqual(self.desk.wait_for_end(), 0)

        drawn = "  <polyline>\n" + "".join(
            f'   <vertex x="{x:.3f}" y="{y:.3f}" z="0.000" />\n' for x, y in vertices) + "  </polyline>\n"
        head, tail = before.split(' <shapes view="04" >\n')
        group, rest = tail.split(" </shapes>\n", 1)
        expected = f'{head} <shapes view="04" >\n{group}{drawn} </shapes>\n{rest}'
        self.assertEqual(self.design.read_text(), expected)

    def test_a_question_is_asked_before_a_modified_design_is_left(self):
        before = self.design.read_text()
        self.start(self.design)
        # Drag the GNSS antenna, which stands at (1.2, 0), to a grid point.
        self.desk.move(*self.pixel(1.2, 0))
        self.desk.press()
        for x in (5, 15, 25, 30):
            self.desk.move(*self.pixel(x, x))
        self.desk.release()
        self.desk.settle()
        self.desk.keys("alt+F4")
        self.desk.settle()
        self.desk.keys("Escape")
        self.desk.settle()
        self.assertIsNone(self.desk.program.poll())
        self.desk.keys("alt+F4")
        self.desk.settle()
        self.desk.keys("Return")  # yes
        self.assertEqual(self.desk.wait_for_end(), 0)
        expected = before.replace('<gps x="1.200" y="0.000"', '<gps x="30.000" y="30.000"')
        self.assertEqual(self.design.read_text(), expected)


if __name__ == "__main__":
    unittest.main()

#!/usr/bin/env python3
"""Zooms in the real program until numbers end, and looks whether it goes on answering and finds its way back."""

import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent))
from case import PROGRAM, SAMPLES, QuickDeskTest  # noqa: E402
from hands import WHEEL_DOWN, WHEEL_UP  # noqa: E402

ASIDE = (1099, 799)
NOTCHES = 500    # each way: a view of 200 units gets to 10^-60 and, the other way, to 10^64
LIMIT = 0.2      # seconds of processor time that an event may take
SLOWER = 20      # times that, in a program with the sanitizers
INK = (0, 0, 0)  # of the shapes of a design
FAR = """<vessel>
 <units id="9001" />
 <shapes view="01" >
  <polyline>
   <vertex x="0" y="0" /><vertex x="1e300" y="1e300" /><vertex x="-1e300" y="1e299" /><vertex x="40" y="20" />
  </polyline>
  <polyline>
   <vertex x="-1e300" y="-1e300" /><vertex x="1e300" y="-1e300" />
  </polyline>
 </shapes>
 <gps x="1e300" y="-1e300" z="0" />
</vessel>
"""
# Hundredths of a unit, as the settings hold them: the smallest, and the largest, which is 42 million units.
SPACINGS = (1, -1)


def sanitized():
    """Whether the program looks after itself at every step."""
    return b"__asan_init" in PROGRAM.read_bytes()


class EndlessZoomTest(QuickDeskTest):
    """Each design with each spacing of the grid."""

    def start_with(self, design, spacing):
        """Starts the program on a design, and finds the button "Show All"."""
        settings = self.desk.folder / "config" / "Quillmere" / "Hullwright.ini"
        settings.parent.mkdir(parents=True)
        settings.write_text("[Grid]\n" + "".join(
            f"Spacing{which}{axis}={spacing}\n" for which in ("Show", "Snap") for axis in "XY"))
        self.start(design)
        self.desk.settle()
        self.paper = self.desk.screen().paper()
        self.aim(0.25, 0.4)
        self.do(self.desk.hands.click)
        # Behind the tree, new, open, save, import, the sides, and the tools that zoom.
        for _ in range(9):
            self.do(self.desk.hands.key, "Tab")

    def aim(self, across, down):
        """Moves the mouse to a part of the view."""
        left, top, width, height = self.paper
        return self.do(self.desk.hands.move, round(left + across * width), round(top + down * height))

    def show_all(self):
        """Presses the button "Show All", which has the keys; what the view shows then, without the mouse."""
        self.do(self.desk.hands.key, "space")
        self.do(self.desk.hands.move, *ASIDE)
        self.desk.settle()
        return self.desk.screen().pixels(self.paper)

    def zoom(self, button):
        """Turns the wheel on and on; the longest that one notch took."""
        return max(self.do(self.desk.hands.click, button) for _ in range(NOTCHES))

    def zoom_and_come_back(self, design, spacing):
        """From all shapes into the depths, far out, and back."""
        self.start_with(design, spacing)
        fitted = self.show_all()
        self.assertGreater(self.desk.screen().near(self.paper, INK), 200)
        for across, down in ((0.5, 0.5), (0.25, 0.4)):
            slowest = self.aim(across, down)
            for button in (WHEEL_UP, WHEEL_DOWN, WHEEL_DOWN, WHEEL_UP):
                slowest = max(slowest, self.zoom(button), self.aim(across, down))
            print(f"{design.name}, {spacing}: at most {1000 * slowest:.1f} ms", flush=True)
            self.assertLess(slowest, LIMIT * (SLOWER if sanitized() else 1))
            self.assertEqual(self.show_all(), fitted)

    def test_around_a_design_with_the_finest_grid(self):
        self.zoom_and_come_back(SAMPLES / "workboat.xml", 1)

    def test_around_endless_coordinates(self):
        for spacing in SPACINGS:
            with self.subTest(spacing):
                self.desk.clear()
                path = self.desk.folder / "far.xml"
                path.write_text(FAR)
                self.zoom_and_come_back(path, spacing)


if __name__ == "__main__":
    unittest.main()

#!/usr/bin/env python3
"""Imports a drawing in the real program through its dialog, saves the design and opens it again."""

import pathlib
import re
import shutil
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent))
from case import DeskTest, SAMPLES  # noqa: E402

# Colours of the drawing's layers as (red, green, blue). Some of the devices' symbols have them too.
HULL = (0, 0, 255)
DECKHOUSE = (255, 0, 0)


class ImportTest(DeskTest):
    """From an empty design to the saved outline."""

    def setUp(self):
        super().setUp()
        self.drawing = self.desk.folder / "Plan \u00e4.dxf"
        shutil.copy(SAMPLES / "dxf" / "workboat-r2018.dxf", self.drawing)
        self.design = self.desk.folder / "boat.xml"

    def start(self, *arguments):
        """Starts the program at a scale where no line of the drawing falls between two rows of pixels."""
        super().start(*arguments)
        self.desk.resize(1280, 860)
        self.paper = self.desk.screen().paper()

    def ink(self, colour):
        """Number of the view's pixels near a colour; thin slanting lines have no pure ones."""
        screen = self.desk.screen()
        return screen.near(screen.paper(), colour)

    def import_drawing(self):
        """Runs "Import DXF File...", the fifth entry of the first menu, and names the drawing."""
        self.desk.keys("alt+f", *["Down"] * 4, "Return")
        self.desk.open_file("Import DXF File", self.drawing)

    def test_an_imported_outline_is_seen_saved_and_opened_again(self):
        self.start()
        before = self.ink(HULL), self.ink(DECKHOUSE)
        self.import_drawing()
        after = self.ink(HULL), self.ink(DECKHOUSE)
        self.assertGreater(after[0], before[0] + 100)
        self.assertGreater(after[1], before[1] + 50)

        self.desk.keys("ctrl+s")
        self.desk.dialog("Save Design As")
        self.desk.keys("ctrl+a")
        self.desk.type(str(self.design))
        self.desk.keys("Return")
        self.desk.wait_until(self.design.exists)
        self.desk.settle()
        self.desk.keys("alt+f", "x")
        self.assertEqual(self.desk.wait_for_end(), 0)

        # Polylines alone are saved: 56 of the drawing's 70 shapes, black when they come back.
        text = self.design.read_text()
        self.assertEqual(text.count("<polyline>"), 56)
        self.assertEqual(re.findall(r'<shapes view="(..)"', text), ["01"])
        self.start(self.design)
        self.assertLess(self.ink(HULL), before[0] + 50)  # black lines over a symbol darken it
        self.assertLess(self.ink(DECKHOUSE), before[1] + 25)
        self.assertGreater(self.ink((0, 0, 0)), 200)

    def test_giving_up_the_dialog_leaves_the_design_unmodified(self):
        self.start()
        self.desk.keys("alt+f", *["Down"] * 4, "Return")
        self.desk.dialog("Import DXF File")
        self.desk.keys("Escape")
        self.desk.settle()
        self.desk.keys("alt+f", "x")  # no question
        self.assertEqual(self.desk.wait_for_end(), 0)


if __name__ == "__main__":
    unittest.main()

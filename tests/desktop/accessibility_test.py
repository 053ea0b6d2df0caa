#!/usr/bin/env python3
"""What assistive technology learns of the real program over the accessibility bus: roles, names, labels and states, and
what it can press. Needs that bus and the modules of Debian's Python."""

import importlib.util
import os
import pathlib
import shutil
import sys
import unittest

MISSING = [package for package, is_there in (
    ("python3-gi", importlib.util.find_spec("gi")),
    ("at-spi2-core", pathlib.Path("/usr/share/dbus-1/services/org.a11y.Bus.service").exists()),
    ("dbus-daemon", shutil.which("dbus-daemon"))) if not is_there]
if MISSING:
    print(f"left out, for this is not installed: {', '.join(MISSING)}")
    sys.exit(1 if "HULLWRIGHT_ALL_TESTS" in os.environ else 77)

sys.path.insert(0, str(pathlib.Path(__file__).parent))
from accessible import Bus  # noqa: E402
from case import DeskTest, SAMPLES  # noqa: E402

# Roles of what a user works with.
WORKED_WITH = {"button menu", "check box", "combo box", "list", "push button", "radio button", "text"}

MENUS = """
File: New Design, Open Design..., Save Design, Save Design As..., Import DXF File..., Recent File, Exit
View: Toolbars and Docking Windows, Status Bar, Application Look
Edit: Undo, Redo
Modify: Mirror Vertically, Mirror Horizontally, Rotate Right..., Rotate Left..., Scale..., Move..., Offsets...
Options: Grid..., Units...
Cursor: Zoom In, Zoom Out, Move, Draw Polyline
Help: About Sondaris..., Help
"""

# A check box is a button that stays down.
TOOLBAR = """
push button: New Design (Begin a new, empty design)
push button: Open Design (Open a design file)
push button: Save Design (Save the design)
push button: Import DXF (Import shape(s) from an AutoCAD DXF file)
button menu: Select View (Top)
check box: Zoom In (Cursor zooms in)
check box: Zoom Out (Cursor zooms out)
push button: Show All (Show all shapes)
check box: Move Design (Cursor moves vessel)
push button: Undo (Undo the last action)
push button: Redo (Redo the last action undone)
push button: Scale Design (Scale design)
push button: Move Design (Move design in a specified direction)
push button: Mirror Vert (Mirror design vertical)
push button: Mirror Horz (Mirror design horizontal)
push button: Rotate Left (Rotate left)
push button: Rotate Right (Rotate right)
push button: Modify Offsets (Modify offsets for devices)
check box: Toggle Grid (Toggle grid)
check box: Toggle Snap (Toggle snap to grid)
check box: Draw Shape (Draw new shape)
push button: Customize... (Choose the buttons of the toolbars)
"""

# Dialogs by the menu entry that opens them: title, then what is worked with before the buttons. A field's name ends
# with its label, and its unit describes it. The one field behind a radio button is labelled by its group.
GROUP = "Angle"
DIALOGS = {
    "Offsets...": """Modify Offsets
        text: GNSS Antenna Offset X: (m)
        text: GNSS Antenna Offset Y: (m)
        text: Echo Sounder Transducer Offset X: (m)
        text: Echo Sounder Transducer Offset Y: (m)
        text: Pivot Point Offset (Dredging Only) X: (m)
        text: Pivot Point Offset (Dredging Only) Y: (m)
        text: Pivot Point Offset (Dredging Only) Z: (m)""",
    "Move...": """Move Design
        text: X-Direction: (m)
        text: Y-Direction: (m)""",
    "Scale...": """Scale Design
        text: Scale Factor: (unity)""",
    "Rotate Left...": """Rotate Design
        radio button: Rotate 90 degrees
        radio button: Rotate 180 degrees
        radio button: Rotate 270 degrees
        radio button: Rotate
        text: Rotate by (degrees)
        radio button: Rotate Right (Clockwise)
        radio button: Rotate Left (Counter Clockwise)""",
    "Grid...": """Grid
        check box: Show Grid
        text: Display X-Spacing: (m)
        text: Display Y-Spacing: (m)
        check box: Snap to grid
        text: Snap X-Spacing: (m)
        text: Snap Y-Spacing: (m)""",
    "Units...": """Switch Units
        list: Length units""",
    "About Sondaris...": "About Sondaris",
}


def lines(text):
    """The lines of a table."""
    return [line.strip() for line in text.strip().splitlines()]


class AccessibilityTest(DeskTest):
    """Each test finds a design in the window."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.bus = Bus(cls.desk)

    def setUp(self):
        super().setUp()
        design = self.desk.folder / "boat.xml"
        shutil.copy(SAMPLES / "workboat.xml", design)
        self.start(design, **self.bus.environment)
        self.program = self.bus.program(self.desk.program)
        self.window = self.program.children[0]

    def find(self, role, name=None):
        """An object in the window."""
        return self.window.find(role, name)

    def opened(self, title):
        """The dialog that opens with a title."""
        self.desk.dialog(title)
        return next(window for window in self.program.children if window.name == title)

    def close(self):
        """Closes the dialog that has the keys."""
        self.desk.keys("Escape")
        self.desk.settle()

    def assert_works_with(self, parent, expected):
        """What there is to work with is this, and each field has its label."""
        found = [item for item in parent.below() if item.role in WORKED_WITH and "showing" in item.states]
        self.assertEqual([str(item) for item in found], expected)
        for field in found:
            if field.role == "text" and field.label != GROUP:
                self.assertTrue(field.label and field.name.endswith(field.label), field.name)

    def test_the_window_and_its_parts(self):
        self.assertEqual(str(self.window), "frame: boat.xml - Hullwright")
        self.assertEqual([part.role for part in self.window.children],
                         ["canvas", "menu bar", "status bar", "frame", "tool bar"])
        view = self.find("canvas")
        self.assertEqual(str(view), "canvas: Design view (Outline of the vessel, seen from the selected side)")
        self.assertIn("focused", view.states)
        self.assertEqual(str(self.find("frame")), "frame: Object View")
        self.assertEqual(str(self.find("tool bar")), "tool bar: Standard")

    def test_the_menus_and_their_entries(self):
        menus = [f"{menu.name}: " + ", ".join(entry.name.partition("\t")[0] for entry in menu.children[0].children
                                              if entry.role == "menu item") for menu in self.find("menu bar").children]
        self.assertEqual(menus, lines(MENUS))
        self.assertIn("checked", self.find("menu item", "Status Bar").states)
        self.assertNotIn("enabled", self.find("menu item", "Undo").states)

    def test_the_buttons_of_the_toolbar_and_whether_they_are_down(self):
        bar = self.find("tool bar")
        self.assert_works_with(bar, lines(TOOLBAR))
        draw, snap = bar.find("check box", "Draw Shape"), bar.find("check box", "Toggle Snap")
        self.assertIn("checked", snap.states)
        self.assertNotIn("checked", draw.states)
        snap.act()
        draw.act()
        self.desk.wait_until(lambda: "checked" not in snap.states and "checked" in draw.states)

    def test_the_rows_of_the_tree(self):
        tree = self.find("tree")
        self.assertEqual(str(tree), "tree: Object tree (The design by side, with its polylines, points and anchors)")
        self.assertEqual([row.name for row in tree.below("tree item")],
                         ["Vessel Design", "TOP", "BOTTOM", "RIGHT", "LEFT", "FRONT", "REAR", "3D", "Anchors",
                          *(f"Anchor #{i}" for i in range(1, 7))])
        self.desk.keys("F6", "Home", "Down", "Right", "Down", "Right")
        self.desk.settle()
        rows = list(tree.below("tree item"))
        self.assertEqual(str(rows[2]), "tree item: Polyline (21 points, width 1, colour #000000)")
        self.assertEqual(rows[2].states, {"enabled", "expanded", "focused", "selected", "showing"})
        self.assertEqual(rows[3].name, "-12.000,+3.120,+0.000")

    def test_the_panes_of_the_status_bar(self):
        bar = self.find("status bar")
        unit = bar.find("push button", "Units: metre")
        self.assertEqual(str(unit), "push button: Units: metre (Click to change the unit of the design)")
        self.desk.move(*self.pixel(10, -20))
        self.desk.settle()
        self.assertEqual([label.name for label in bar.below("label") if "showing" in label.states],
                         ["Ready", "X: +10.00 Y: -20.00"])
        unit.act()
        self.opened("Switch Units")

    def test_the_fields_of_every_dialog_with_their_labels(self):
        for entry, text in DIALOGS.items():
            with self.subTest(entry):
                title, *fields = lines(text)
                self.find("menu item", entry).act()
                dialog = self.opened(title)
                buttons = ["push button: OK"] + ["push button: Cancel"] * (title != "About Sondaris")
                self.assert_works_with(dialog, fields + buttons)
                self.assertEqual(dialog.role, "dialog")
                self.close()

    def test_the_dialog_of_a_vertex(self):
        self.desk.keys("F6", "Home", "Down", "Right", "Down", "Right", "Down", "Menu")
        self.desk.settle()
        self.desk.keys("e")  # Edit Point...
        self.assert_works_with(self.opened("Edit Vertex Coordinates"), [
            "text: Coordinate-X: (m)", "text: Coordinate-Y: (m)", "text: Coordinate-Z: (m)",
            "push button: OK", "push button: Cancel"])

    def test_the_units_and_the_question_about_them(self):
        self.find("push button", "Units: metre").act()
        units = self.opened("Switch Units").find("list", "Length units").children
        self.assertEqual([unit.name for unit in units[:3]], ["metre", "foot", "US survey foot"])
        self.assertIn("selected", units[0].states)
        self.desk.keys("Down", "Return")
        question = self.opened("Hullwright")
        self.assertEqual(question.role, "alert message")
        self.assertIn("Do you want to convert all coordinates to the new units ?",
                      next(question.below("label")).name)
        self.assert_works_with(question, ["push button: Yes", "push button: No"])

    def test_the_dialogs_about_toolbars(self):
        self.find("push button", "Customize...").act()
        dialog = self.opened("Customize Toolbars")
        self.assert_works_with(dialog, [
            "combo box: Standard", "list: Commands", "list: Buttons", *(f"push button: {name}" for name in (
                "New...", "Delete", "Add", "Remove", "Move Up", "Move Down", "Reset", "OK", "Cancel"))])
        self.assertEqual(dialog.find("combo box", "Standard").label, "Toolbar:")
        self.assertIn("Separator", [row.name for row in dialog.find("list", "Commands").children])
        self.assertEqual(dialog.find("list", "Buttons").children[0].name, "New Design \u2013 Begin a new, empty design")
        dialog.find("push button", "New...").act()
        self.assert_works_with(self.opened("New Toolbar"), ["text: Name:", "push button: OK", "push button: Cancel"])

    def test_the_guide(self):
        self.desk.keys("F1")
        guide = self.opened("Guide")
        self.assertEqual(guide.role, "frame")
        self.assert_works_with(guide, ["push button: Back (Alt+Left)", "push button: Forward (Alt+Right)",
                                       "push button: Contents (Alt+Home)"])


if __name__ == "__main__":
    unittest.main()

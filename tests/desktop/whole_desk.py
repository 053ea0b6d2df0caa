"""A working day in a few seconds: a design is opened, moved, saved and left, and a copy of it saved elsewhere."""

import pathlib
import shutil

from case import QuickDeskTest, SAMPLES

# The ways through the menus, by keys that no language changes.
MOVE = ("alt+f", "Left", "Left", "Left", "Left", "Up", "Up", "Return")
SAVE_AS = ("alt+f", "Down", "Down", "Down", "Return")
IMPORT = ("alt+f", "Down", "Down", "Down", "Down", "Return")


class WholeDeskTest(QuickDeskTest):
    """What the tests of surroundings and of faults do with the program."""

    usual_bytes = None

    def keys(self, *names):
        """Presses keys one after the other. Menus and dialogs take a while to open and to give the keys back."""
        for name in names:
            self.do(self.desk.hands.key, name)
            self.desk.rest()

    def type(self, text):
        """Types a text over what a field holds."""
        self.keys("ctrl+a", *text)

    def title(self):
        """The title of the window with the keys."""
        return self.desk.hands.title(self.desk.hands.active())

    def open(self, name="workboat.xml", **environment):
        """Starts the program on a copy of the sample in a folder of its own; the copy."""
        path = self.desk.folder / "designs" / name
        path.parent.mkdir(exist_ok=True)
        shutil.copy(SAMPLES / "workboat.xml", path)
        self.desk.work = path.parent
        self.start(path, **environment)
        self.assertEqual(self.title(), f"{name} - Hullwright")
        return path

    def move_design(self):
        """Moves the side in view by numbers that are typed."""
        self.keys(*MOVE)
        self.assertEqual(self.title(), "Move Design")
        self.type("1.5")
        self.keys("Tab")
        self.type("-2.25")
        self.keys("Return")

    def save(self, path):
        """Saves the design; the bytes of its file."""
        path.unlink(missing_ok=True)
        self.keys("ctrl+s")
        return path.read_bytes()

    def save_as(self, name):
        """Saves the design under another name of its folder; the bytes of the file."""
        self.keys(*SAVE_AS)
        self.desk.rest()
        self.assertEqual(self.title(), "Save Design As")
        self.type(name)
        self.desk.rest()
        self.keys("Return")
        return (pathlib.Path(self.desk.work) / name).read_bytes()

    def leave(self):
        """Asks the window to close, without changes; the program ends with success."""
        self.desk.hands.ask_to_close(self.desk.window)
        self.desk.hands.flush()
        self.assertEqual(self.desk.wait_for_end(), 0)

    def usual(self):
        """The bytes of the design after a day without anything unusual; the desk is clear again then."""
        if WholeDeskTest.usual_bytes is None:
            WholeDeskTest.usual_bytes = self.work()
            self.desk.clear()
        return WholeDeskTest.usual_bytes

    def work(self, name="workboat.xml", **environment):
        """The whole day; the bytes of the design in the end."""
        path = self.open(name, **environment)
        self.move_design()
        saved = self.save(path)
        self.assertNotEqual(saved, (SAMPLES / "workboat.xml").read_bytes())
        self.leave()
        return saved

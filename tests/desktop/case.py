"""What the tests at a desk have in common: the program, the samples, and what a failure leaves behind."""

import functools
import pathlib
import shutil
import sys
import unittest

import evidence
from desk import Desk
from quick import QuickDesk

PROGRAM = pathlib.Path(sys.argv.pop(1))
SAMPLES = pathlib.Path(sys.argv.pop(1))
EVIDENCE = PROGRAM.resolve().parents[1] / "Testing" / "desktop"  # in the build tree

VIEW_WIDTH = 200.0  # the view is 200 units wide at the start, around the origin


class DeskTest(unittest.TestCase):
    """The tests of a class share one display; each has its own home and program."""

    def __init__(self, method="runTest"):
        super().__init__(method)
        for name in ("setUp", method):
            setattr(self, name, self._telling(getattr(self, name)))

    @classmethod
    def setUpClass(cls):
        cls.desk = Desk()
        cls.addClassCleanup(cls.desk.close)

    def setUp(self):
        self.desk.clear()

    def _telling(self, step):
        """A step that leaves evidence where it fails, while the program still stands there."""
        @functools.wraps(step)
        def reported():
            folder = EVIDENCE / self.id().removeprefix("__main__.")
            shutil.rmtree(folder, ignore_errors=True)
            try:
                step()
            except BaseException:
                if self.desk is not None:
                    evidence.leave(self.desk, folder)
                    print(f"{self.desk.output()}{evidence.windows(folder)}The screen, the windows, the output "
                          f"and the stacks of {self.id()} are in {folder}", file=sys.stderr)
                raise
        return reported

    def start(self, *arguments, **environment):
        """Starts the program; the design view's place is known from then on."""
        self.desk.start(PROGRAM, *arguments, **environment)
        self.paper = self.desk.screen().paper()

    def pixel(self, x, y):
        """Position on the screen of a point of the world, before any zoom."""
        left, top, width, height = self.paper
        scale = width / VIEW_WIDTH
        return round(left + width / 2 + x * scale), round(top + height / 2 - y * scale)


class QuickDeskTest(DeskTest):
    """The tests of a class share a quick desk."""

    @classmethod
    def setUpClass(cls):
        cls.desk = QuickDesk()
        cls.addClassCleanup(cls.desk.close)

    def start(self, *arguments, **environment):
        """Starts the program."""
        self.desk.start(PROGRAM, *arguments, **environment)

    def do(self, act, *arguments):
        """Has the hands do something and waits for the program; the processor time that it took."""
        before = self.desk.processor_time()
        act(*arguments)
        self.desk.answered()
        return self.desk.processor_time() - before

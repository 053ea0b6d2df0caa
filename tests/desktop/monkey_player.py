"""Plays the steps of a monkey on the real program, keeps them in a log, and looks after the program."""

import hashlib
import json
import os
import pathlib
import re
import shutil
import time

from hands import LEFT, NoAnswer
from quick import QuickDesk

WIDTH, HEIGHT = 1100, 800  # of the screen
TITLE = " - Hullwright"    # of the main window
LONGEST_BOX = 300          # pixels in height up to which a dialog is a question or a message
SUPPRESSIONS = pathlib.Path(__file__).resolve().parents[1] / "support" / "lsan.supp"
CHECKPOINT = "checkpoint.xml"


class Finding(Exception):
    """What must not happen has happened."""


class Player:
    """Steps are lists with a name and its arguments, as the methods that are called `do_NAME` take them."""

    def __init__(self, program, samples, log):
        self._program, self._log = program.resolve(), log
        self.events = 0
        self.designs = 0  # that were saved
        self.slowest = (0.0, None)  # seconds of processor time, and the step that took them
        self._sanitizers = {}
        self._seen = None
        self.ended = True
        self.desk = QuickDesk(f"{WIDTH}x{HEIGHT}")
        self.folder = self.desk.folder / "designs"
        self.folder.mkdir()
        self.desk.work = self.folder  # where the dialogs begin
        for path in (*samples.glob("*.xml"), *samples.glob("dxf/*.dxf")):
            shutil.copy(path, self.folder)
        for name, text in FILES.items():
            (self.folder / name).write_text(text)
        self._watch_sanitizers()

    def _watch_sanitizers(self):
        place = f"log_path={self.desk.folder}/sanitizer"
        self._sanitizers = {
            "ASAN_OPTIONS": f"{place}:quarantine_size_mb=16:detect_leaks=1",
            "UBSAN_OPTIONS": f"{place}:print_stacktrace=1",
            "LSAN_OPTIONS": f"suppressions={SUPPRESSIONS}:print_suppressions=0"}

    def close(self):
        """Ends the program and the display."""
        self.desk.close()

    # The log.

    def play(self, step):
        """Plays a step and waits until it has been dealt with."""
        print(json.dumps(step), file=self._log)
        self._log.flush()
        name, *arguments = step
        before = self._time()
        try:
            getattr(self, "do_" + name)(*arguments)
            if not self.ended:
                self.desk.answered()
        except NoAnswer as problem:
            self._explain(problem)
        if not self.ended and name != "start":
            self.slowest = max(self.slowest, (self._time() - before, step), key=lambda taken: taken[0])
        self.look_for_findings()

    def _time(self):
        """Processor time of the program so far; none where it has just gone, which the next answer shows."""
        try:
            return 0.0 if self.ended else self.desk.processor_time()
        except OSError:
            return 0.0

    def _explain(self, problem):
        """The program may end, but only with success."""
        status = self.desk.program.poll()
        if status != 0:
            self.look_for_findings()
            raise Finding(f"{problem}: status {status}\n{self.desk.output()}")
        self.ended = True

    def look_for_findings(self):
        """Whether a sanitizer has written anything."""
        for report in self.desk.folder.glob("sanitizer.*"):
            raise Finding(report.read_text(errors="replace"))

    def scene(self):
        """What can be seen, as (title, whether it is a small box, whether a menu is open); an empty title without a
        program. It is kept in the log where it has changed."""
        seen = ["", False, False] if self.ended else self._look()
        if seen != self._seen:
            self._seen = seen
            print(json.dumps(["sees", *seen]), file=self._log)
        return tuple(seen)

    def _look(self):
        hands = self.desk.hands
        window = hands.active()
        title = hands.title(window)
        if title.endswith(TITLE):
            return ["main", False, bool(hands.menus())]
        place = hands.place(window)
        return [title, place is not None and place[3] <= LONGEST_BOX, bool(hands.menus())]

    def see(self, *expected):
        """Fails where something else is seen than in the run that is played again."""
        if self.scene() != expected:
            raise Finding(f"after {self.events} events, {self.scene()} is seen in place of {expected}")

    # Steps.

    def do_start(self, *files):
        """Starts the program, with a file of the folder if one is named."""
        self.desk.start(self._program, *files, **self._sanitizers)
        self.ended = False

    def do_move(self, x, y):
        """Moves the mouse to a position of the screen."""
        self.events += 1
        self.desk.hands.move(x, y)

    def do_click(self, button):
        """Clicks, or turns the wheel by a notch."""
        self.events += 1
        self.desk.hands.click(button)

    def do_double(self):
        """Clicks twice with the left button."""
        self.do_click(LEFT)
        self.do_click(LEFT)

    def do_press(self, button):
        """Presses a button of the mouse."""
        self.events += 1
        self.desk.hands.press(button)

    def do_release(self, button):
        """Releases a button of the mouse."""
        self.events += 1
        self.desk.hands.release(button)

    def do_key(self, name):
        """Presses a key."""
        self.events += 1
        self.desk.hands.key(name)

    def do_type(self, text):
        """Types a text, no faster than the program takes it: lists of files come and go beside a name."""
        self.events += len(text)
        for character in text:
            self.desk.hands.key(character)
            self.desk.answered()

    def do_resize(self, width, height):
        """Gives the main window a size."""
        self.events += 1
        self.desk.hands.resize(self.desk.window, width, height)

    def do_close(self):
        """Asks the window with the keys to close."""
        self.events += 1
        self.desk.hands.ask_to_close(self.desk.hands.active())

    def do_focus(self):
        """Gives the main window the keys."""
        self.desk.hands.focus(self.desk.window)

    def do_pause(self, seconds):
        """Waits for a timer of the program."""
        self.desk.answered()
        time.sleep(seconds)

    # Checks.

    def do_forget(self):
        """Removes the file of the checkpoint, so that no question is asked when it is written."""
        (self.folder / CHECKPOINT).unlink(missing_ok=True)

    def saved(self, *expected):
        """Keeps the sum of the design that was just saved in the log; fails where it is not as expected."""
        path = self.folder / CHECKPOINT
        found = hashlib.sha256(path.read_bytes()).hexdigest() if path.exists() else "nothing"
        self.designs += path.exists()
        print(json.dumps(["saved", found]), file=self._log)
        if expected and expected != (found,):
            if path.exists():
                shutil.copy(path, f"{self._log.name}.{CHECKPOINT}")
            raise Finding(f"after {self.events} events, the design is another one")
        return found

    def memory(self, *_):
        """Megabytes that the program has in memory, kept in the log."""
        status = pathlib.Path(f"/proc/{self.desk.program.pid}/status").read_text()
        size = int(re.search(r"VmRSS:\s+(\d+) kB", status)[1]) / 1024
        print(json.dumps(["memory", round(size, 1)]), file=self._log)
        return size

    def remarks(self):
        """What the program has printed."""
        return self.desk.output()


FILES = {
    "far.xml": "<vessel><units id='9002'/><shapes view='01'><polyline><vertex x='1e300' y='-1e300'/><vertex x='1'/>"
               "<vertex x='-1e300' y='1e299'/></polyline></shapes><gps x='1e300'/></vessel>",
    "cut.xml": "<vessel><units id='9002'/><shapes view='02'><polyline><vertex x='1'/></polyline></shapes><gps x='3'",
    "empty.xml": "",
    "none.dxf": "no drawing\n",
    "arc.dxf": "\n".join(("0", "SECTION", "2", "ENTITIES", "0", "ARC", "8", "0", "10", "5", "20", "5", "40", "30", "50",
                          "0", "51", "1e300", "0", "TEXT", "8", "0", "10", "1", "20", "2", "40", "3", "1", "%%d\u00e4",
                          "0", "ENDSEC", "0", "EOF", "")),
}

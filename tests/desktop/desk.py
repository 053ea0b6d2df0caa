"""A desk for the real program: a display of its own, a window manager, the mouse and the keys."""

import os
import pathlib
import signal
import struct
import subprocess
import sys
import tempfile
import time

PAPER = (255, 255, 224)  # the design view's background
PATIENCE = 60            # seconds that anything may take on a slow machine


class Desk:
    """Runs one program in a real window under Xvfb. Settings and home lie in a folder of its own."""

    def __init__(self, size="1400x1000"):
        self._folder = tempfile.TemporaryDirectory()
        self.folder = pathlib.Path(self._folder.name)
        self._processes = []
        self.environment = dict(os.environ, HOME=str(self.folder), QT_QPA_PLATFORM="xcb",
                                XDG_CONFIG_HOME=str(self.folder / "config"),
                                XDG_RUNTIME_DIR=str(self.folder))
        read, write = os.pipe()
        self._start(["Xvfb", "-displayfd", str(write), "-screen", "0", f"{size}x24", "-nolisten", "tcp",
                     "-noreset"], pass_fds=[write])
        os.close(write)
        with os.fdopen(read) as answer:
            self.environment["DISPLAY"] = ":" + answer.readline().strip()
        # A keyboard with umlauts: a key that has to be bound first reaches a busy program too late.
        subprocess.run(["setxkbmap", "de"], env=self.environment, check=True, timeout=PATIENCE)
        self._start(["openbox", "--sm-disable"])
        self.window = None
        self.program = None

    def close(self):
        """Ends everything that was started."""
        for process in reversed(self._processes):
            if process.poll() is None:
                process.send_signal(signal.SIGTERM)
            process.wait(PATIENCE)
        self._folder.cleanup()

    def _start(self, command, **options):
        options.setdefault("stderr", subprocess.DEVNULL)
        process = subprocess.Popen(command, env=self.environment, stdout=subprocess.DEVNULL, **options)
        self._processes.append(process)
        return process

    def launch(self, program, *arguments):
        """Starts the program and waits for nothing."""
        with open(self.folder / "complaints", "wb") as complaints:
            self.program = self._start([program, *map(str, arguments)], stderr=complaints)

    def complaints(self):
        """What the program has written on standard error so far."""
        return (self.folder / "complaints").read_text(errors="replace")

    def start(self, program, *arguments):
        """Starts the program and waits for its window."""
        self.launch(program, *arguments)
        found = self._xdotool("search", "--sync", "--onlyvisible", "--name", "Hullwright")
        self.window = found.split()[-1]
        self.activate()
        self.wait_until(lambda: self.paper() is not None)
        self.settle()

    def activate(self):
        """Gives the program's window the keys: where two dialogs close at once, the window manager may leave
        them with nobody."""
        self._xdotool("windowactivate", "--sync", self.window)

    def _xdotool(self, *words):
        return subprocess.run(["xdotool", *map(str, words)], env=self.environment, check=True,
                              capture_output=True, text=True, timeout=PATIENCE).stdout

    def wait_until(self, happened):
        """Waits until something has happened; fails when it takes too long."""
        deadline = time.monotonic() + PATIENCE
        while not happened():
            if time.monotonic() > deadline:
                raise AssertionError("nothing happened in time")
            time.sleep(0.1)

    def _activity(self):
        """How often each thread on this desk has run so far; None while one of them runs or wants to."""
        runs = {}
        for process in self._processes:
            for status in pathlib.Path(f"/proc/{process.pid}/task").glob("*/status"):
                try:
                    fields = dict(line.split(":\t", 1) for line in status.read_text().splitlines())
                except (FileNotFoundError, ProcessLookupError):
                    return None  # a thread that just ended
                if fields["State"][0] in "RD":
                    return None
                runs[status] = [value for name, value in fields.items() if name.endswith("ctxt_switches")]
        return runs

    def _rest(self):
        """Waits until what was sent has been dealt with: the display, the window manager and the program
        all sleep. Unlike a pause this holds on a machine under load as well."""
        time.sleep(0.05)
        before, same, deadline = None, 0, time.monotonic() + PATIENCE
        while same < 3 and time.monotonic() < deadline:
            now = self._activity()
            same = same + 1 if now is not None and now == before else 0
            before = now
            time.sleep(0.02)

    def settle(self):
        """Waits until the screen has not changed for a while."""
        seen = [self.screen()]
        deadline = time.monotonic() + PATIENCE
        while len(seen) < 3 and time.monotonic() < deadline:
            time.sleep(0.1)
            self._rest()
            now = self.screen()
            seen = seen + [now] if now == seen[-1] else [now]

    def dialog(self, title):
        """Waits for a dialog of exactly this title."""
        found = self._xdotool("search", "--sync", "--onlyvisible", "--name", f"^{title}$").split()
        self._xdotool("windowactivate", "--sync", found[-1])
        self.settle()

    def _is_open(self, title):
        """Whether a window of exactly this title can be seen."""
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{title}$"], check=False,
                               env=self.environment, capture_output=True, timeout=PATIENCE)
        return bool(found.stdout.split())

    def answer(self, title, key):
        """Waits for a dialog and presses the key that closes it; again where the key came too early."""
        self.dialog(title)
        for _ in range(PATIENCE // 3):
            self.keys(key)
            deadline = time.monotonic() + 3
            while time.monotonic() < deadline:
                if not self._is_open(title):
                    self.settle()
                    return
                time.sleep(0.1)
        raise AssertionError(f"the dialog {title!r} stays open")

    def screen(self):
        """The screen as (bytes a pixel, rows of pixels in the order blue, green, red)."""
        dump = subprocess.run(["xwd", "-root", "-silent"], env=self.environment, check=True,
                              capture_output=True, timeout=PATIENCE).stdout
        header = struct.unpack(">25I", dump[:100])
        width, height, depth, stride = header[4], header[5], header[11] // 8, header[12]
        start = header[0] + header[19] * 12
        return depth, [dump[start + y * stride:][:width * depth] for y in range(height)]

    def paper(self):
        """The design view on the screen as (left, top, width, height); None if it can't be seen."""
        depth, rows = self.screen()
        ink = bytes((PAPER[2], PAPER[1], PAPER[0]))
        found = [(y, row) for y, row in enumerate(rows) if row.count(ink) > 50]
        if not found:
            return None
        spans = [self._span(row, ink, depth) for _, row in found]
        lefts, rights = [left for left, _ in spans], [right for _, right in spans]
        return (min(lefts), found[0][0], max(rights) - min(lefts) + 1, found[-1][0] - found[0][0] + 1)

    @staticmethod
    def _span(row, ink, depth):
        """The first and the last pixel of a row in a colour; what only spans two pixels is none."""
        first = row.find(ink)
        while first % depth:
            first = row.find(ink, first + 1)
        last = row.rfind(ink)
        while last % depth:
            last = row.rfind(ink, 0, last + len(ink) - 1)
        return first // depth, last // depth

    def keys(self, *names):
        """Presses keys one after the other."""
        for name in names:
            self._xdotool("key", "--clearmodifiers", name)
            self._rest()

    def move(self, x, y):
        """Moves the mouse to a position of the screen."""
        self._xdotool("mousemove", "--sync", x, y)
        self._rest()

    def click(self, x, y, button=1):
        """Moves there and clicks."""
        self.move(x, y)
        self._xdotool("click", button)
        self._rest()

    def type(self, text):
        """Types a text."""
        self._xdotool("type", "--clearmodifiers", "--delay", 40, "--", text)
        self._rest()

    def press(self):
        """Presses the left button."""
        self._xdotool("mousedown", 1)
        self._rest()

    def release(self):
        """Releases the left button."""
        self._xdotool("mouseup", 1)
        self._rest()

    def wait_for_end(self):
        """Waits until the program has ended by itself; its exit status. Tells what it complained of."""
        status = self.program.wait(PATIENCE)
        if status:
            print(self.complaints(), file=sys.stderr)
        return status

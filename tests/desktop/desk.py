"""A desk for the real program: a display of its own, a window manager, the mouse and the keys."""

import itertools
import os
import pathlib
import re
import select
import signal
import subprocess
import tempfile
import time

from screen import Screen

PATIENCE = 60        # seconds that anything may take on a slow machine
TICK = 0.008         # seconds between two looks at what the desk does
REST = 0.024         # seconds without any activity that make a rest; a repaint may wait for 5 ms
NAPS = (0.0001, 0.002)  # seconds, least and most, between two looks at whether the desk sleeps
DOUBLE_CLICK = 0.45  # seconds after which a second click is one of its own

# Of what the system tells of a thread: its state, and how often it has left the processor.
STATUS = re.compile(rb"^(?:State|(?:non)?voluntary_ctxt_switches):\t(\w+)", re.M)
AWAKE = (b"R", b"D")  # states of a thread that runs, wants to, or waits for a disk

# Fonts as the system has them, with a cache of the desk's own.
FONTS = """<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig>
  <dir>/usr/share/fonts</dir>
  <include ignore_missing="yes">/etc/fonts/conf.d</include>
  <cachedir prefix="xdg">fontconfig</cachedir>
</fontconfig>
"""


class Desk:
    """A display under Xvfb for one program at a time, which runs in a real window. Settings, caches and home
    lie in a folder of its own. There is no session bus but one that a test serves: without an address the toolkit
    would try to launch one at each start, and whatever bus the person at the machine has is none of the tests'
    business."""

    def __init__(self, size="1400x1000", own_fonts=False, managed=True):
        self._own_fonts = own_fonts
        self._managed = managed
        self._top = tempfile.TemporaryDirectory(prefix="desk-")
        self._homes = 0
        self._display = []  # the processes that are there as long as the desk is
        self.display = None
        self.folder = None
        self.work = None  # the folder that programs start in; the tests' own if there is none
        self.window = None
        self.program = None
        self._last_click = (0.0, None)
        self._environment = {name: value for name, value in os.environ.items()
                             if not name.startswith(("XDG_", "QT_", "DBUS_", "FONTCONFIG_"))}
        self._environment.update(QT_QPA_PLATFORM="xcb", DBUS_SESSION_BUS_ADDRESS="disabled:")
        self._move_house()
        try:
            self._open_display(size)
            self.clear()
        except BaseException:
            self.close()
            raise

    def _open_display(self, size):
        read, write = os.pipe()
        # Its scheduler for many clients has a timer of 5 ms that at times goes on when there is nothing to do:
        # such a display never rests. Keys do not repeat: a busy machine may release them late.
        server = self._spawn(["Xvfb", "-displayfd", str(write), "-screen", "0", f"{size}x24", "-nolisten",
                              "tcp", "-noreset", "-dumbSched", "-r", "-fbdir", self._top.name], pass_fds=[write],
                             stdout=subprocess.DEVNULL)
        self._display.append(server)
        os.close(write)
        with os.fdopen(read) as answer:
            self.display = ":" + self._line(answer, "the display")
            self._environment["DISPLAY"] = self.display
        # A keyboard with umlauts: a key that has to be bound first reaches a busy program too late.
        self._run("setxkbmap", "de")
        if self._managed:
            self._open_manager()

    def _open_manager(self):
        # The window manager drops what windows ask of it until it listens, and then runs this command.
        # A program that shows its window before that may stay without one for ever.
        manager = self._spawn(["openbox", "--sm-disable", "--startup", "echo ready"], stdout=subprocess.PIPE)
        self._display.append(manager)
        self._line(manager.stdout, "the window manager")

    @staticmethod
    def _line(stream, who):
        """The line that reports that something is ready."""
        if not select.select([stream], [], [], PATIENCE)[0]:
            raise AssertionError(f"{who} does not get ready")
        line = stream.readline().strip()
        if not line:
            raise AssertionError(f"{who} has ended")
        return line

    def clear(self):
        """Ends the program; the next one finds an empty home and the mouse in the middle."""
        self._end(self.program)
        self.program = self.window = None
        self._move_house()
        self.move(700, 500)

    def _move_house(self):
        """Makes a new home for what starts from now on."""
        self._homes += 1
        self.folder = pathlib.Path(self._top.name) / str(self._homes)
        self.folder.mkdir(mode=0o700)
        self._environment.update(HOME=str(self.folder), XDG_CONFIG_HOME=str(self.folder / "config"),
                                 XDG_CACHE_HOME=str(self.folder / "cache"),
                                 XDG_DATA_HOME=str(self.folder / "data"), XDG_RUNTIME_DIR=str(self.folder))
        if self._own_fonts:
            (self.folder / "fonts.conf").write_text(FONTS)
            self._environment["FONTCONFIG_FILE"] = str(self.folder / "fonts.conf")

    def close(self):
        """Ends everything that was started."""
        for process in [self.program, *reversed(self._display)]:
            self._end(process)
        self._top.cleanup()

    @staticmethod
    def _end(process):
        if process is None:
            return
        if process.poll() is None:
            process.send_signal(signal.SIGTERM)
            process.send_signal(signal.SIGCONT)
        try:
            process.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()
        if process.stdout:
            process.stdout.close()

    def _spawn(self, command, environment=(), **options):
        options.setdefault("stderr", subprocess.DEVNULL)
        return subprocess.Popen(command, env=self._environment | dict(environment), text=True, **options)

    def _run(self, *words, check=True):
        """Runs a tool to its end; what it printed."""
        reported = subprocess.run([*map(str, words)], env=self._environment, check=False, capture_output=True,
                              text=True, timeout=PATIENCE)
        if check and reported.returncode != 0:
            raise AssertionError(f"{' '.join(reported.args)}: {reported.stderr.strip() or reported.returncode}")
        return reported.stdout

    def run(self, *words):
        """Runs a tool on this display; what it printed."""
        return self._run(*words)

    def serve(self, *command):
        """Starts a server that is there as long as the desk; the line that it prints when it is ready."""
        server = self._spawn(command, stdout=subprocess.PIPE)
        self._display.append(server)
        return self._line(server.stdout, command[0])

    # The program.

    def launch(self, program, *arguments, **environment):
        """Starts the program and waits for nothing."""
        with open(self.folder / "output", "wb") as output:
            self.program = self._spawn([program, *map(str, arguments)], environment, stdout=output,
                                       stderr=output, cwd=self.work)

    def start(self, program, *arguments, **environment):
        """Starts the program and waits until its window shows the design view and has the keys."""
        self.launch(program, *arguments, **environment)
        self.window = self._wait_for_window("Hullwright")
        self.activate()
        self.wait_until(lambda: self.screen().paper() is not None)
        self.settle()

    def output(self):
        """What the program has printed so far."""
        path = self.folder / "output"
        return path.read_text(errors="replace") if path.exists() else ""

    def wait_for_end(self):
        """Waits until the program has ended by itself; its exit status."""
        return self.program.wait(PATIENCE)

    def processes(self):
        """What runs on this desk: display, window manager, servers and program."""
        return [process for process in [*self._display, self.program] if process is not None]

    # Waiting.

    def wait_until(self, happened):
        """Waits until something has happened; fails when it takes too long or the program ends."""
        deadline = time.monotonic() + PATIENCE
        while not happened():
            if self.program.poll() is not None and not happened():
                raise AssertionError(f"the program has ended with {self.program.returncode}:\n{self.output()}")
            if time.monotonic() > deadline:
                raise AssertionError("nothing happened in time")
            time.sleep(2 * TICK)

    def _activity(self):
        """How often each thread on this desk has run so far; None while one of them runs or wants to."""
        runs = {}
        for process in self.processes():
            if process.poll() is not None:
                continue
            threads = f"/proc/{process.pid}/task"
            try:
                for thread in os.listdir(threads):
                    with open(f"{threads}/{thread}/status", "rb") as status:
                        state, *switches = STATUS.findall(status.read())
                    if state in AWAKE:
                        return None
                    runs[thread] = switches
            except (FileNotFoundError, ProcessLookupError):
                return None  # a thread that just ended
        return runs

    def sleep(self):
        """Waits until the display and the program sleep at one moment: each thread does so at two looks, and has
        not run from one to the other. Whoever sleeps wakes nobody, so nothing happens from then on until
        something is sent or a timer ends."""
        deadline, nap = time.monotonic() + PATIENCE, NAPS[0]
        while time.monotonic() < deadline:
            before = self._activity()
            if before is not None and before == self._activity():
                return
            time.sleep(nap)
            nap = min(2 * nap, NAPS[1])
        raise AssertionError("the desk does not come to sleep")

    def rest(self, length=REST):
        """Waits until what was sent has been dealt with: the display, the window manager and the program
        all sleep, and none has run since an earlier look. Unlike a pause this holds on a machine under load
        as well. That two looks are enough for it lets it end between two blinks of a text cursor."""
        deadline = time.monotonic() + PATIENCE
        before, since = self._activity(), time.monotonic()
        while time.monotonic() < deadline:
            time.sleep(TICK)
            begin, now = time.monotonic(), self._activity()
            if now is None or now != before:
                before, since = now, time.monotonic()
            elif begin - since >= length:
                return
        raise AssertionError("the desk does not come to rest")

    def settle(self):
        """Waits until the screen stays as it is, but for a blinking text cursor."""
        self.rest()
        last, last_but_one, deadline = self.screen(), None, time.monotonic() + PATIENCE
        while time.monotonic() < deadline:
            self.rest(2 * REST)
            now = self.screen()
            if now in (last, last_but_one):
                return
            last, last_but_one = now, last
        raise AssertionError("the screen does not settle")

    # Windows.

    def find(self, title, only_visible=False):
        """The windows whose titles hold a pattern."""
        options = ["--onlyvisible"] if only_visible else []
        return self._run("xdotool", "search", *options, "--name", title, check=False).split()

    def window_text(self, window):
        """A window's place, size and title."""
        place = self._run("xdotool", "getwindowgeometry", window, check=False).split()[2:]
        return " ".join([*place, repr(self._run("xdotool", "getwindowname", window, check=False).strip())])

    def _wait_for_window(self, title):
        """Waits until a window of this title can be seen; the window."""
        found = []

        def happened():
            found[:] = self.find(title, only_visible=True)
            return found

        self.wait_until(happened)
        return found[-1]

    def activate(self):
        """Gives the program's window the keys."""
        self._run("xdotool", "windowactivate", "--sync", self.window)

    def resize(self, width, height):
        """Gives the program's window a size."""
        self._run("xdotool", "windowsize", "--sync", self.window, width, height)
        self.settle()

    def dialog(self, title):
        """Waits for a dialog of exactly this title and gives it the keys."""
        self._run("xdotool", "windowactivate", "--sync", self._wait_for_window(f"^{title}$"))
        self.settle()

    def answer(self, title, key):
        """Waits for a dialog and presses the key that closes it; again where the key came too early."""
        self.dialog(title)
        self._close(title, lambda: self.keys(key))

    def open_file(self, title, path):
        """Waits for a dialog that opens a file, types the name and accepts it. The list of names that match takes the
        first key for itself, so it is pressed again. A file that the toolkit has not listed yet leads to its folder
        instead, and a letter that got lost to a box of the same title; then the whole name is typed again."""
        self.dialog(title)

        def name():
            if len(self._shown(title)) > 1:
                self.keys("Return")
            self.keys("ctrl+a")
            self.type(str(path))
            self.keys("Return")

        steps = itertools.cycle([name, lambda: self.keys("Return")])
        self._close(title, lambda: next(steps)())

    def _shown(self, title):
        """The windows of exactly this title that can be seen."""
        return self.find(f"^{title}$", only_visible=True)

    def _close(self, title, act):
        """Does what closes a dialog, again after three seconds each, until the dialog is gone."""
        for _ in range(PATIENCE // 3):
            act()
            deadline = time.monotonic() + 3
            while time.monotonic() < deadline:
                if not self._shown(title):
                    self.settle()
                    return
                time.sleep(2 * TICK)
        raise AssertionError(f"the dialog {title!r} stays open")

    def screen(self):
        """A picture of the screen. The display keeps it in a file, which asks nobody for anything."""
        return Screen((pathlib.Path(self._top.name) / "Xvfb_screen0").read_bytes())

    # Keys and mouse.

    def _send(self, *words):
        self._run("xdotool", *words)
        self.rest()

    def keys(self, *names):
        """Presses keys one after the other."""
        for name in names:
            self._send("key", "--clearmodifiers", name)

    def type(self, text):
        """Types a text."""
        self._send("type", "--clearmodifiers", "--delay", 40, "--", text)

    def move(self, x, y):
        """Moves the mouse to a position of the screen."""
        self._send("mousemove", x, y)

    def click(self, x, y, button=1):
        """Moves there and clicks: once, even where the last click was at the same place."""
        self.move(x, y)
        when, where = self._last_click
        if where == (x, y, button):
            time.sleep(max(0.0, when + DOUBLE_CLICK - time.monotonic()))
        self._send("click", button)
        self._last_click = (time.monotonic(), (x, y, button))

    def press(self):
        """Presses the left button."""
        self._send("mousedown", 1)

    def release(self):
        """Releases the left button."""
        self._send("mouseup", 1)

"""Measures what programs cost until their first frame, on a display of their own."""

import contextlib
import os
import pathlib
import subprocess
import tempfile
import time

from measure import Measurement, WrongResult, surroundings

PATIENCE = 600.0  # seconds that anything may take on a busy machine
TICK = 0.01  # seconds between two looks
REST = 0.3  # seconds without any work that count as rest
KINDS = ("start", "rest", "peak")  # CPU until the first frame and until rest, and memory at the first frame
PAPER = 100_000  # pixels of the design view's paper that a first frame must show at least


@contextlib.contextmanager
def display():
    """A display without a window manager; gives its name."""
    read, write = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "1600x1000x24", "-nolisten", "tcp"],
                              pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(write)
    try:
        with os.fdopen(read) as answer:
            yield ":" + answer.readline().strip()
    finally:
        server.terminate()
        server.wait()


def of_threads(process, name):
    """What the kernel reports of each thread of a process under a name; one that ends meanwhile is left out."""
    for path in pathlib.Path("/proc", str(process.pid), "task").glob(f"*/{name}"):
        with contextlib.suppress(OSError):
            yield path.read_text(encoding="ascii")


def cpu_of(process):
    """Milliseconds of CPU of all threads of a process."""
    return sum(int(text.split()[0]) for text in of_threads(process, "schedstat")) / 1e6


def is_asleep(process):
    """Whether no thread of a process runs or waits for a processor."""
    return all(text.rpartition(")")[2].split()[0] == "S" for text in of_threads(process, "stat"))


def cpu_at_rest(process):
    """Milliseconds of CPU of a process when it has nothing to do any more."""
    spent, since, end = cpu_of(process), time.monotonic(), time.monotonic() + PATIENCE
    while time.monotonic() - since < REST and time.monotonic() < end:
        time.sleep(TICK)
        now = cpu_of(process)
        if now != spent or not is_asleep(process):
            spent, since = now, time.monotonic()
    return spent


def start(command, library, environment, report):
    """One start: the numbers of the first frame, and the CPU time when the program has come to rest."""
    report.unlink(missing_ok=True)
    variables = {**environment, "LD_PRELOAD": str(library), "HULLWRIGHT_FIRST_FRAME": str(report)}
    process = subprocess.Popen([str(word) for word in command], env=variables, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL)
    try:
        end = time.monotonic() + PATIENCE
        while not report.exists() or not report.read_text(encoding="ascii").endswith("\n"):
            if process.poll() is not None or time.monotonic() > end:
                raise WrongResult(f"{command[0]} shows no frame")
            time.sleep(TICK)
        return [int(word) for word in report.read_text(encoding="ascii").split()], cpu_at_rest(process)
    finally:
        process.kill()
        process.wait()


def measure_starts(programs, sample, repetitions):
    """Starts both programs in turn. CPU in milliseconds, memory in megabytes."""
    commands = {"ours": [programs / "hullwright", sample], "minimal": [programs / "minimal_window"]}
    measured = {f"{kind}/{who}": Measurement([], {}) for kind in KINDS for who in commands}
    with tempfile.TemporaryDirectory() as home, display() as name:
        environment = {**surroundings(home), "QT_QPA_PLATFORM": "xcb", "DISPLAY": name,
                       "DBUS_SESSION_BUS_ADDRESS": "disabled:"}
        for repetition in range(repetitions + 1):
            for who, command in commands.items():
                (cpu, peak, paper), rest = start(command, programs / "libfirst_frame.so", environment,
                                                 pathlib.Path(home, "report"))
                if who == "ours" and paper < PAPER:
                    raise WrongResult(f"the first frame shows {paper} pixels of the design view")
                if repetition == 0:
                    continue  # it fills the caches of fonts
                for kind, value in zip(KINDS, (cpu / 1e3, rest, peak * 1024 / 1e6)):
                    measured[f"{kind}/{who}"].values.append(value)
    return measured

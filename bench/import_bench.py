#!/usr/bin/env python3
"""Times the import of drawings of several sizes:  bench/import_bench.py [MEGABYTES...]

Makes drawings as a CAD program saves a harbour plan (lines, polylines, texts, a few arcs), imports each into a design
with hullwright-cli, and prints seconds and memory, also for each megabyte of the drawing.
"""

import os
import pathlib
import random
import sys
import tempfile
import time

TOP = pathlib.Path(__file__).resolve().parent.parent
PROGRAM = TOP / "build/release/bin/hullwright-cli"
MEGABYTE = 1_000_000


class Plan:
    """Writes entities until a drawing has its size."""

    def __init__(self, stream):
        self.random = random.Random(5)
        self.stream = stream
        self.handle = 0x100

    def head(self, kind, subclass):
        """What each entity begins with."""
        self.handle += 1
        layer = self.random.randrange(3)
        return f"0\n{kind}\n5\n{self.handle:X}\n330\n1F\n100\nAcDbEntity\n8\nL{layer}\n100\n{subclass}\n"

    def entity(self):
        """One entity somewhere on the plan."""
        x, y = self.random.uniform(-500, 500), self.random.uniform(-500, 500)
        place = f"10\n{x:.6f}\n20\n{y:.6f}\n30\n0.0\n"
        kind = self.random.random()
        if kind < 0.55:
            return self.head("LINE", "AcDbLine") + place + f"11\n{x + 1:.6f}\n21\n{y + 2:.6f}\n31\n0.0\n"
        if kind < 0.93:
            count = self.random.randrange(8, 60)
            vertices = (f"10\n{x + i * 0.37:.6f}\n20\n{y + i * i % 7 * 0.21:.6f}\n" for i in range(count))
            return self.head("LWPOLYLINE", "AcDbPolyline") + f"90\n{count}\n70\n1\n43\n0.0\n" + "".join(vertices)
        if kind < 0.985:
            return self.head("TEXT", "AcDbText") + place + f"40\n2.5\n1\nDepth {int(x)} m %%p0.1\n100\nAcDbText\n"
        return self.head("ARC", "AcDbCircle") + place + "40\n3.5\n100\nAcDbArc\n50\n10.0\n51\n120.0\n"

    def write(self, size):
        """The whole drawing."""
        written = self.stream.write("0\nSECTION\n2\nENTITIES\n")
        while written < size:
            written += self.stream.write(self.entity())
        self.stream.write("0\nENDSEC\n0\nEOF\n")


def measure(path, out):
    """Seconds and bytes of memory that one import takes."""
    start = time.monotonic()
    child = os.spawnv(os.P_NOWAIT, PROGRAM, [str(PROGRAM), "import", str(path), "-o", str(out)])
    _, status, used = os.wait4(child, 0)
    if status:
        sys.exit("the import failed")
    return time.monotonic() - start, used.ru_maxrss * 1024  # it counts kilobytes


def main():
    """Prints a line for each size."""
    sizes = [float(word) for word in sys.argv[1:]] or [20.0, 100.0]
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder, "plan.dxf")
        for size in sizes:
            with path.open("w", encoding="ascii") as stream:
                Plan(stream).write(size * MEGABYTE)
            runs = [measure(path, pathlib.Path(folder, "plan.xml")) for _ in range(3)]
            seconds, memory = min(run[0] for run in runs), max(run[1] for run in runs)
            print(f"{size:6.0f} MB: {seconds:6.2f} s, {1000 * seconds / size:5.1f} ms a megabyte; "
                  f"{memory / MEGABYTE:6.0f} MB of memory, {memory / MEGABYTE / size:4.1f} times the drawing")


if __name__ == "__main__":
    main()

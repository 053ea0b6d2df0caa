#!/usr/bin/env python3
"""Files that ask for too much, small ones as a test and large ones for the table of docs/RELIABILITY.md:

    tests/cli/bombs.py PROGRAM             each bomb a hundred times smaller
    tests/cli/bombs.py PROGRAM --table     each bomb in its size, with its time and memory; takes minutes
"""

import os
import pathlib
import sys
import tempfile

# Nobody's own units and logs.
FOLDERS = {"XDG_STATE_HOME": "/dev/null", "XDG_DATA_HOME": "/dev/null", "XDG_DATA_DIRS": "/dev/null"}


def records(*words):
    """Words as the lines of a drawing."""
    return "\n".join(words) + "\n"


def drawing(entities, blocks="", tables=""):
    """The sections of a drawing."""
    named = (("TABLES", tables), ("BLOCKS", blocks), ("ENTITIES", entities))
    return "".join(f"0\nSECTION\n2\n{name}\n{content}0\nENDSEC\n" for name, content in named if content)


def block(name, content):
    """A block of a drawing."""
    return f"0\nBLOCK\n2\n{name}\n{content}0\nENDBLK\n"


def insert(name):
    """The insertion of a block."""
    return f"0\nINSERT\n2\n{name}\n"


LINE = records("0", "LINE", "11", "1")


def multiplying(_):
    """Each block inserts the one before it ten times."""
    blocks = block("b0", LINE) + "".join(block(f"b{i}", insert(f"b{i - 1}") * 10) for i in range(1, 13))
    return drawing(insert("b12"), blocks)


def chain(scale):
    """Each block inserts the one before it."""
    count = 400_000 // scale
    return drawing(insert(f"b{count - 1}"),
                   block("b0", LINE) + "".join(block(f"b{i}", insert(f"b{i - 1}")) for i in range(1, count)))


def arcs(end, count):
    """Arcs with an end angle."""
    return lambda scale: drawing(records("0", "ARC", "10", "1", "20", "2", "40", "3", "50", "0", "51", end)
                                 * (count // scale))


def bulges(scale):
    """One polyline of arcs."""
    return drawing("0\nLWPOLYLINE\n" + "".join(f"10\n{i}\n20\n0\n42\n1\n" for i in range(1_000_000 // scale)))


def gathered(scale):
    """Vertices without a polyline."""
    return drawing(records("0", "VERTEX", "10", "1") * (30_000_000 // scale))


def text(scale):
    """One text in many pieces, full of codes."""
    piece = r"\C1;{\fArial|b0;a}\P%%c\U+0041" * 8
    return drawing("0\nMTEXT\n" + f"3\n{piece[:250]}\n" * (200_000 // scale))


def layers(scale):
    """A table of layers."""
    return drawing(LINE, tables="".join(f"0\nLAYER\n2\nlayer {i}\n70\n0\n62\n1\n" for i in range(1_000_000 // scale)))


def nested(scale):
    """Elements in one another."""
    return "<vessel>" + "<a>" * (100_000 // scale) + "</a>" * (100_000 // scale) + "</vessel>"


def groups(scale):
    """Groups without polylines."""
    return "<vessel>" + "<shapes view='01'></shapes>" * (1_000_000 // scale) + "</vessel>"


def name(scale):
    """One long name."""
    return f"<vessel><anchor><name>{'n' * (10_000_000 // scale)}</name></anchor></vessel>"


def attribute(scale):
    """One long number."""
    return f"<vessel><units id='{'9' * (10_000_000 // scale)}'/></vessel>"


# What it is, the file, and the status and the words of the end, in full size and a hundred times smaller.
BOMBS = (
    ("blocks in blocks, 10^12 shapes", multiplying, (3, "insert for want of memory"), (3, "insert for want of memory")),
    ("a chain of 400,000 blocks, each inserting the one before, the last one inserted", chain, (0, ""), (0, "")),
    ("300,000 arcs up to the angle 1e300", arcs("1e300", 300_000), (3, "beyond the limit"), (0, "")),
    ("300,000 arcs up to the angle inf", arcs("inf", 300_000), (0, ""), (0, "")),
    ("300,000 arcs up to the angle nan", arcs("nan", 300_000), (0, ""), (0, "")),
    ("a polyline of 1,000,000 bulges", bulges, (3, "1 record beyond the limit"), (0, "")),
    ("30,000,000 vertices without a polyline", gathered, (0, ""), (0, "")),
    ("3,300,000 points", lambda scale: drawing("0\nPOINT\n" * (3_300_000 // scale)), (3, "beyond the limit"), (0, "")),
    ("a text of 50 MB, full of codes", text, (0, ""), (0, "")),
    ("a line of 100 MB", lambda scale: drawing("0\nTEXT\n1\n" + "x" * (100_000_000 // scale) + "\n"), (0, ""), (0, "")),
    ("1,000,000 layers", layers, (0, ""), (0, "")),
    ("a sparse file of 1 GB", lambda scale: 1_000_000_000 // scale, (1, "not a drawing"), (1, "not a drawing")),
    ("a design of 1,000,000 groups", groups, (0, ""), (0, "")),
    ("a design with a name of 10 MB", name, (0, ""), (0, "")),
    ("a design with a number of 10 MB", attribute, (0, ""), (0, "")),
    ("a design of 100,000 elements in one another", nested, (0, ""), (0, "")),
)


def write(path, content):
    """Writes a text, or a hole of so many bytes."""
    if isinstance(content, int):
        with path.open("wb") as file:
            file.truncate(content)
    else:
        path.write_text(content, encoding="utf-8")


# What no file may take, small or large: seconds of processor time, and megabytes. The sanitizers take a multiple.
LONGEST, MOST = 60, 3000


def run(program, path, folder):
    """Status, report, processor time in seconds and peak memory in MB of a look at a file."""
    report = folder / "report"
    with report.open("wb") as errors, open(os.devnull, "wb") as nothing:
        child = os.fork()
        if child == 0:
            os.dup2(nothing.fileno(), 1)
            os.dup2(errors.fileno(), 2)
            os.execve(program, [program, "info", str(path)], {**os.environ, **FOLDERS})
        _, status, usage = os.wait4(child, 0)
    return (os.waitstatus_to_exitcode(status), report.read_text(errors="replace"),
            usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1000)


def main():
    """Tries every bomb; the exit status states whether all ended as they must."""
    program, *options = sys.argv[1:]
    full = "--table" in options
    wrong = 0
    if full:
        print("| file | size | ends with | processor time | peak memory |\n|---|---|---|---|---|")
    with tempfile.TemporaryDirectory() as holder:
        folder = pathlib.Path(holder)
        for what, make, ends_full, ends_small in BOMBS:
            path = folder / "bomb"
            write(path, make(1 if full else 100))
            wanted, words = ends_full if full else ends_small
            status, report, seconds, megabytes = run(program, path, folder)
            if full:
                size = f"{path.stat().st_size / 1e6:.1f} MB"
                shown = f"status {status}" + (f", \"{words}\"" if words else "")
                print(f"| {what} | {size} | {shown} | {seconds:.1f} s | {megabytes:.0f} MB |", flush=True)
            if status != wanted or words not in report:
                print(f"{what}: status {status} in place of {wanted}, {report!r}", file=sys.stderr)
                wrong += 1
            if seconds > LONGEST or megabytes > MOST:
                print(f"{what}: {seconds:.1f} s, {megabytes:.0f} MB", file=sys.stderr)
                wrong += 1
            path.unlink()
    sys.exit(1 if wrong else 0)


if __name__ == "__main__":
    main()

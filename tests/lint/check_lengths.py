#!/usr/bin/env python3
"""Checks that no source is longer than can be read in one go: 400 lines, and 150 of a header."""

import sys

import checking

FOLDERS = ("src", "tests", "fuzz", "bench", "tools", "samples", ".ci")
MOST = 400
MOST_OF_HEADER = 150

# Each draws the samples by itself, without a module beside it.
ALONE = {"samples/draw_samples.py", "samples/draw_drawings.py"}


def is_source(path):
    """Whether a file is a source: by its ending, or as a script by its first bytes."""
    if not path.is_file():
        return False
    if path.suffix in (".h", ".cpp", ".py"):
        return True
    with path.open("rb") as file:
        return not path.suffix and file.read(2) == b"#!"


def problems(project):
    """Yields the sources of a project that are too long, a line each."""
    for folder in FOLDERS:
        for path in sorted((project / folder).rglob("*")):
            name = path.relative_to(project).as_posix()
            if name in ALONE or not is_source(path):
                continue
            most = MOST_OF_HEADER if path.suffix == ".h" else MOST
            lines = path.read_bytes().count(b"\n")
            if lines > most:
                yield f"{name}: {lines} lines, {most} are allowed"


def self_test(_):
    """The check must find what is too long, or it checks nothing."""
    for name, first, most in (("src/a/A.h", "", MOST_OF_HEADER), ("src/a/A.cpp", "", MOST), ("tests/a.py", "", MOST),
                              ("bench/compare", "#!", MOST)):
        for lines in (most, most + 1):
            found = checking.found_with(problems, {name: ""}, name, first + "\n" * lines)
            if len(found) != lines - most:
                sys.exit(f"the check of the lengths takes a {name} of {lines} lines wrongly")


if __name__ == "__main__":
    checking.run(problems, self_test, "No source is too long.")

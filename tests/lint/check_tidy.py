#!/usr/bin/env python3
"""Runs clang-tidy over a folder of the project's sources, as many at a time as there are processors:

check_tidy.py CLANG-TIDY BUILD FOLDER...

What the build does not know is left out.
"""

import concurrent.futures
import json
import os
import pathlib
import subprocess
import sys


def check(job):
    """What clang-tidy says of one file; empty when it is content."""
    tool, build, source = job
    done = subprocess.run([tool, "-p", build, "--quiet", source], capture_output=True, text=True, check=False)
    return done.stdout if done.returncode != 0 else ""


def sources_of(build, folder):
    """The sources of a folder that are checked."""
    with open(build / "compile_commands.json", encoding="utf-8") as database:
        return {entry["file"] for entry in json.load(database) if folder in pathlib.Path(entry["file"]).parents}


def main():
    tool, build, *folders = sys.argv[1:]
    sources = set()
    for folder in folders:
        found = sources_of(pathlib.Path(build), pathlib.Path(folder).resolve())
        if not found:
            sys.exit(f"no sources to check in {folder}")
        sources |= found
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        said = [text for text in pool.map(check, [(tool, build, source) for source in sorted(sources)]) if text]
    print("".join(said) or f"clang-tidy is content with {len(sources)} files.")
    sys.exit(1 if said else 0)


if __name__ == "__main__":
    main()

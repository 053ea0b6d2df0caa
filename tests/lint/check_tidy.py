#!/usr/bin/env python3
"""Runs clang-tidy over the project's own sources, as many at a time as there are processors."""

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


def main():
    tool, build, root = sys.argv[1:]
    own = str(pathlib.Path(root, "src")) + os.sep
    with open(pathlib.Path(build, "compile_commands.json"), encoding="utf-8") as database:
        sources = sorted({entry["file"] for entry in json.load(database) if entry["file"].startswith(own)})
    if not sources:
        sys.exit("no sources to check")
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        said = [text for text in pool.map(check, [(tool, build, source) for source in sources]) if text]
    print("".join(said) or f"clang-tidy is content with {len(sources)} files.")
    sys.exit(1 if said else 0)


if __name__ == "__main__":
    main()

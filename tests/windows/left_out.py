"""Which tests are left out, and why: on Windows those that its table names."""

import fnmatch
import os
import pathlib

TABLE = pathlib.Path(__file__).with_name("left-out.txt")


def reason_to_leave_out(name):
    """The reason why the test of a name is left out; None for one that runs."""
    if "HULLWRIGHT_WINDOWS" not in os.environ:
        return None
    for line in TABLE.read_text(encoding="utf-8").splitlines():
        pattern, _, reason = line.partition(" ")
        if pattern and not line.startswith("#") and fnmatch.fnmatchcase(name, pattern):
            return reason.strip()
    return None

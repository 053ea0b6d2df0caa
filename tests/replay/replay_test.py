#!/usr/bin/env python3
"""Plays every script below this folder and compares what it does with what stands in it.

A script is a file of JSON lines, as hullwright-replay takes them. A line that begins with "#=" states what the
step before it must report: each member that it names, and whatever it leaves out is left open. Lists count as a
whole, "*" stands for any value, and numbers may differ in their last digits. Other lines with "#" are remarks.
README.md beside this file has the language.
"""

import collections
import json
import pathlib
import re
import subprocess
import sys
import tempfile

sys.path.append(str(pathlib.Path(__file__).parent.parent / "windows"))
from left_out import reason_to_leave_out

FEWEST = 150  # scripts; fewer, and somebody has lost some

# The places of an expectation where names may stand in place of numbers: as values, and as members of an object.
VALUES = (
    (r"/menu/\d+/0", "command"),
    (r"/state/shell/(viewButton|look|settings/ApplicationLook)", "command"),
    (r"/dialogs/\d+/focus", "control"),
    (r"/state/design/(activeView|groups/\d+/view)", "side"),
    (r"/state/design/groups/\d+/shapes/\d+/type", "type of shape"),
    (r"/state/design/unitCode", "unit"),
)
MEMBERS = (
    (r"/dialogs/\d+/(fields|checks|enabled|enabledEnd)", "control"),
    (r"/state/shell/checks", "command"),
)
ANYTHING = "*"


def read_names(text):
    """What each sort of name stands for, as hullwright-replay --names prints it."""
    names = collections.defaultdict(dict)
    for line in text.splitlines():
        what, number, name = line.split("\t")
        names[what][name] = int(number)
    return names


def number_of(name, place, places, names):
    """The number that a name stands for, if names may stand at that place; otherwise the text as it is."""
    what = next((what for pattern, what in places if re.fullmatch(pattern, place)), None)
    if what is None or name == ANYTHING:
        return name
    if name not in names[what]:
        raise ValueError(f'no {what} is called "{name}"')
    return names[what][name]


def numbered(stated, names, place=""):
    """An expectation with numbers for all names."""
    if isinstance(stated, dict):
        return {name if re.fullmatch(r"-?\d+", name) else str(number_of(name, place, MEMBERS, names)):
                numbered(value, names, f"{place}/{name}") for name, value in stated.items()}
    if isinstance(stated, list):
        return [numbered(value, names, f"{place}/{i}") for i, value in enumerate(stated)]
    return number_of(stated, place, VALUES, names) if isinstance(stated, str) else stated


def difference(expected, found, place=""):
    """Where the found value is not the expected one; None where it is."""
    if expected == ANYTHING:
        return None
    if isinstance(expected, dict) and isinstance(found, dict):
        for name, value in expected.items():
            if name not in found:
                return f"{place}/{name} is missing"
            stated = difference(value, found[name], f"{place}/{name}")
            if stated:
                return stated
        return None
    if isinstance(expected, list) and isinstance(found, list):
        if len(expected) != len(found):
            return f"{place} has {len(found)} entries instead of {len(expected)}: {json.dumps(found)[:400]}"
        reasons = (difference(e, f, f"{place}/{i}") for i, (e, f) in enumerate(zip(expected, found)))
        return next(filter(None, reasons), None)
    numbers = all(isinstance(value, (int, float)) and not isinstance(value, bool) for value in (expected, found))
    if numbers and abs(expected - found) <= 1e-9 * max(1.0, abs(expected), abs(found)):
        return None
    if type(expected) is type(found) and expected == found:
        return None
    return f"{place} is {json.dumps(found)[:400]} instead of {json.dumps(expected)[:400]}"


def whole_lines(text):
    """The steps and expectations of a script: (line, text). One that ends in a backslash goes on in the next
    line without the blanks that it begins with, and in an expectation without the "#" before them."""
    begin, whole = 0, ""
    for number, line in enumerate(text.removesuffix("\n").split("\n"), 1):
        line = line.strip()
        if begin and whole.startswith("#"):
            if not line.startswith("#"):
                raise ValueError(f"{number}: the expectation of line {begin} does not go on")
            line = line[1:].lstrip()
        elif not begin and (not line or line.startswith("#") and not line.startswith("#=")):
            continue
        begin = begin or number
        whole += line.removesuffix("\\")
        if not line.endswith("\\"):
            yield begin, whole
            begin, whole = 0, ""
    if begin:
        raise ValueError(f"{begin}: goes on beyond the last line")


def expectations(path, names):
    """What a script states that its steps must report: (line, step, expected), with numbers for names."""
    step = -1
    for number, line in whole_lines(path.read_text(encoding="utf-8")):
        try:
            stated = json.loads(line.removeprefix("#="))
            expected = numbered(stated, names) if line.startswith("#=") else None
        except ValueError as problem:
            raise ValueError(f"{number}: {problem}") from problem
        if expected is not None:
            yield number, step, expected
        elif "do" in stated:
            step += 1


def play(program, path, names):
    """What is wrong with a script, a line each."""
    with tempfile.TemporaryDirectory() as work:
        done = subprocess.run([program, path, "--work", work, "--full"], capture_output=True, check=False,
                              timeout=60)
    if done.returncode or done.stderr:
        return [f"{path}: {done.stderr.decode(errors='replace') or done.returncode}"]
    reports = [json.loads(line) for line in done.stdout.decode("utf-8", "surrogatepass").splitlines()]
    try:
        expected_of_steps = list(expectations(path, names))
    except ValueError as problem:
        return [f"{path}:{problem}"]
    wrong = []
    for number, step, expected in expected_of_steps:
        problem = difference(expected, reports[step]) if 0 <= step < len(reports) else "no step before it"
        if problem:
            wrong.append(f"{path}:{number}: {problem}")
    return wrong if expected_of_steps else [f"{path}: states nothing that is expected"]


def main():
    """Plays the scripts of the folder, or those that are named."""
    program, scripts = sys.argv[1], [pathlib.Path(name) for name in sys.argv[2:]]
    everything = not scripts
    if everything:
        scripts = sorted(pathlib.Path(__file__).parent.glob("*/*.replay"))
    left_out = [path for path in scripts if reason_to_leave_out(f"replay/{path.parent.name}/{path.stem}")]
    scripts = [path for path in scripts if path not in left_out]
    names = read_names(subprocess.run([program, "--names"], capture_output=True, check=True, text=True).stdout)
    wrong = [problem for path in scripts for problem in play(program, path, names)]
    if everything and len(scripts) + len(left_out) < FEWEST:
        wrong.append(f"only {len(scripts)} scripts are here")
    print("\n".join(wrong) or f"{len(scripts)} scripts do what they state, {len(left_out)} are left out.")
    sys.exit(1 if wrong else 0)


if __name__ == "__main__":
    main()

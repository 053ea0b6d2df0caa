#!/usr/bin/env python3
"""Checks that includes run one way: a room may include itself and the rooms that its row names, and
only the rooms at the desk and the pictures may include the toolkit."""

import re
import sys

import checking

# room: the rooms that it may include beside itself
ROOMS = {
    "base": "",
    "platform": "model resources",
    "system": "base model platform",
    "headless": "platform resources",
    "model": "base",
    "render": "base model platform",
    "resources": "base model",
    "file": "base model platform",
    "compare": "base model",
    "dxf": "base model platform file",
    "exchange": "base model resources dxf",
    "view": "base model platform render resources",
    "app": "base model platform render resources file dxf view",
    "paint": "platform render",
    "qt": "base model platform system resources file view app paint",
    "cli": "base model system headless render resources file dxf compare exchange app paint",
}

# where the programs start, which alone give the rooms what the system has for them
START = ("cli/", "qt/Hullwright.cpp", "qt/Shell.", "system/")

# rooms, and single files, that may include the toolkit's headers
TOOLKIT = ("paint/", "qt/", "cli/DiffPicture.cpp", "cli/Picture", "cli/Report", "cli/Sheet.")

INCLUDE = re.compile(r'^\s*#\s*include\s*(?:"([^"]+)"|<(Q[A-Za-z0-9/]+)>)')


def problems(source):
    """Yields what is wrong in the sources below a folder, a line each."""
    for path in sorted(source.rglob("*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        name = path.relative_to(source).as_posix()
        room = name.split("/")[0]
        if room not in ROOMS:
            yield f"{name}: no rule for the room '{room}'"
            continue
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            found = INCLUDE.match(line)
            if not found:
                continue
            target, toolkit = found.groups()
            if toolkit and not name.startswith(TOOLKIT):
                yield f"{name}:{number}: {room} may not include the toolkit's <{toolkit}>"
            if target and target.split("/")[0] not in [room, *ROOMS[room].split()]:
                yield f"{name}:{number}: {room} may not include \"{target}\""
            elif target and target.startswith("system/") and not name.startswith(START):
                yield f"{name}:{number}: only the start of a program includes \"{target}\""


def self_test(_):
    """The check must find a wrong include, or it checks nothing."""
    wrong = {
        "model/Up.h": '#include "render/Canvas.h"\n',
        "view/Toolkit.cpp": "#include <QWidget>\n",
        "qt/Window.cpp": '#include "system/SessionBus.h"\n',
        "attic/Old.h": "",
    }
    if len(checking.found_with(problems, wrong)) != len(wrong):
        sys.exit("the include check does not find wrong includes")


if __name__ == "__main__":
    checking.run(problems, self_test, "Includes run one way.")

#!/usr/bin/env python3
"""Checks that the drawing and the table of rooms in docs/ARCHITECTURE.md and the link lines of the build follow
the table of rooms in check_includes.py.

    check_rooms.py --print      prints the drawing, to be pasted after a change of the table
    check_rooms.py PROJECT      checks the project in that folder
"""

import re
import sys

import check_includes
import checking
from check_includes import ROOMS, START, TOOLKIT

# The drawing of a shape is declared in the model and implemented in the render room, so that the two libraries
# need each other; no include says so.
LINKED_BACK = {("model", "render")}

LINK_FILES = ("src/CMakeLists.txt", "src/qt/CMakeLists.txt")


def layers(rooms):
    """The rooms from the bottom up: each as low as the rooms that it may include allow."""
    height = {}

    def height_of(room, path=()):
        if room in path:
            sys.exit(f"the rooms {' '.join(path)} may include each other in a circle")
        if room not in height:
            height[room] = 1 + max((height_of(below, (*path, room)) for below in rooms[room].split()), default=-1)
        return height[room]

    for room in rooms:
        height_of(room)
    return [[room for room in rooms if height[room] == level] for level in range(1 + max(height.values()))]


def drawing(rooms):
    """A row for each room, the highest first, with the rooms that it may include, each in a column of its own."""
    levels = layers(rooms)
    included = {below for row in rooms.values() for below in row.split()}
    columns = [room for level in levels for room in level if room in included]
    width = max(map(len, rooms))
    lines = ["room".ljust(width) + "   may include"]
    for level in reversed(levels):
        lines.append("-" * (width + 3 + len(" ".join(columns))))
        for room in level:
            marks = [below if below in rooms[room].split() else " " * len(below) for below in columns]
            lines.append(f"{room.ljust(width)}   {' '.join(marks)}".rstrip())
    lines += ["", f"Only these may include Qt:     {'  '.join(TOOLKIT)}",
              f"Only these may include system: {'  '.join(START)}"]
    return "\n".join(lines) + "\n"


def drawing_problems(project):
    text = (project / "docs/ARCHITECTURE.md").read_text(encoding="utf-8")
    if f"```\n{drawing(ROOMS)}```\n" not in text:
        yield "docs/ARCHITECTURE.md: the drawing is not what tests/lint/check_rooms.py --print prints"
    named = re.findall(r"^\| `(\w+)` \|", text, re.MULTILINE)
    if sorted(named) != sorted(ROOMS):
        yield f"docs/ARCHITECTURE.md: the table has the rooms {' '.join(named)}, not {' '.join(ROOMS)}"


def links(project):
    """The rooms that each room's library links."""
    linked = {}
    for file in LINK_FILES:
        text = re.sub(r"#.*", "", (project / file).read_text(encoding="utf-8"))
        for room, rest in re.findall(r"\badd_room\((\w+)([^)]*)\)", text):
            rooms = re.search(r"\bROOMS\b([a-z\s]*)", rest)
            linked.setdefault(room, set()).update(rooms.group(1).split() if rooms else [])
        for room, rest in re.findall(r"\btarget_link_libraries\(hullwright_(\w+)([^)]*)\)", text):
            linked.setdefault(room, set()).update(re.findall(r"\bhullwright_(\w+)", rest))
    return linked


def includes(source):
    """The rooms that each room's sources include."""
    found = {room: set() for room in ROOMS}
    for path in source.rglob("*"):
        room = path.relative_to(source).parts[0]
        if path.suffix not in (".h", ".cpp") or room not in found:
            continue
        for line in path.read_text(encoding="utf-8").splitlines():
            match = check_includes.INCLUDE.match(line)
            if match and match.group(1):
                found[room].add(match.group(1).split("/")[0])
        found[room].discard(room)
    return found


def link_problems(project):
    linked = links(project)
    included = includes(project / "src")
    for room, allowed in ROOMS.items():
        if room not in linked:
            yield f"{LINK_FILES[0]}: no library for the room '{room}'"
            continue
        may = set(allowed.split()) | {below for above, below in LINKED_BACK if above == room}
        for other in sorted(linked[room] - may):
            yield f"{LINK_FILES[0]}: {room} may not link {other}"
        for other in sorted(included[room] - linked[room]):
            yield f"{LINK_FILES[0]}: {room} includes {other}, but does not link it"
        for other in sorted((linked[room] & may) - included[room]):
            if (room, other) not in LINKED_BACK:
                yield f"{LINK_FILES[0]}: {room} links {other}, but includes nothing of it"
        for other in sorted(set(allowed.split()) - included[room] - linked[room]):
            yield f"tests/lint/check_includes.py: {room} may include {other}, but does not"


def problems(project):
    """Yields what is wrong in a project, a line each."""
    yield from drawing_problems(project)
    yield from link_problems(project)


def sound_files():
    """The files of a small project that follows the table: every room includes and links all that it may."""
    links_of = {room: below.split() + [low for high, low in LINKED_BACK if high == room] for room, below in ROOMS.items()}
    files = {
        "docs/ARCHITECTURE.md": f"```\n{drawing(ROOMS)}```\n\n" + "".join(f"| `{room}` | x |\n" for room in ROOMS),
        "src/CMakeLists.txt": "".join(f"add_room({room} ROOMS {' '.join(links_of[room])} SOURCES A.cpp)\n"
                                      for room in ROOMS if room != "qt"),
        "src/qt/CMakeLists.txt": "target_link_libraries(hullwright_qt PUBLIC "
                                 + " ".join(f"hullwright_{room}" for room in links_of["qt"]) + " Qt6::Widgets)\n",
    }
    for room, below in ROOMS.items():
        files[f"src/{room}/A.cpp"] = "".join(f'#include "{other}/A.h"\n' for other in below.split())
    return files


# Changes of the small project that must not pass: file, what is replaced there, and by what.
WRONG = (
    ("docs/ARCHITECTURE.md", "dxf     ", "dxf view"),                     # the drawing alone changes
    ("docs/ARCHITECTURE.md", "| `view` | x |\n", ""),                     # a room is not in the table
    ("src/CMakeLists.txt", "add_room(model ROOMS base", "add_room(model ROOMS base view"),  # more than allowed
    ("src/CMakeLists.txt", "add_room(dxf ROOMS base", "add_room(dxf ROOMS"),                # less than included
    ("src/CMakeLists.txt", "add_room(file ", "add_attic(file "),          # no library
    ("src/dxf/A.cpp", '#include "file/A.h"\n', ""),                       # more than included
    ("src/qt/CMakeLists.txt", " hullwright_paint", ""),
)


def self_test(_):
    """The check must pass what follows the table and find what does not, or it checks nothing."""
    sound = sound_files()
    if checking.found_with(problems, sound):
        sys.exit("the check of the rooms finds fault with what follows the table")
    for name, old, new in WRONG:
        changed = sound[name].replace(old, new, 1)
        if changed == sound[name] or len(checking.found_with(problems, sound, name, changed)) != 1:
            sys.exit(f"the check of the rooms does not find a wrong {name}: {old!r} as {new!r}")
    # The table allows what is neither included nor linked.
    unused = {**sound, "src/dxf/A.cpp": sound["src/dxf/A.cpp"].replace('#include "file/A.h"\n', "")}
    line = "add_room(dxf ROOMS base model platform"
    links_less = sound["src/CMakeLists.txt"].replace(f"{line} file", line)
    found = checking.found_with(problems, unused, "src/CMakeLists.txt", links_less)
    if found != ["tests/lint/check_includes.py: dxf may include file, but does not"]:
        sys.exit("the check of the rooms does not find what is allowed and not used")
    # The table alone changes.
    for room, below in ROOMS.items():
        if below and drawing({**ROOMS, room: " ".join(below.split()[1:])}) == drawing(ROOMS):
            sys.exit(f"the drawing does not show what {room} may include")


def main():
    if sys.argv[1:] == ["--print"]:
        print(drawing(ROOMS), end="")
    else:
        checking.run(problems, self_test, "Drawing, table and link lines follow the rooms.")


if __name__ == "__main__":
    main()

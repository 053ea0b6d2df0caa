"""Designs for the tests of exports: at random, and what stands in one."""

import random
import struct
import xml.etree.ElementTree as ET
from xml.sax.saxutils import escape

VIEWS = {1: "top", 2: "bottom", 4: "right", 8: "left", 16: "front", 32: "rear", 63: "all", 3: "view-03"}
NAMES = ("Bow", "Bug \u00e4\u00f6", "a, \"b\" & <c>", "\\Pback\\U+0041", "^Jcaret", "50%%d", "LINE", "", "\u20ac \u4e2d")


def number(chance):
    """A coordinate as a design could hold it: of few digits, of all digits, tiny, huge, or a zero."""
    kind = chance.randrange(8)
    if kind < 4:
        return f"{chance.uniform(-60, 60):.3f}"
    if kind == 4:
        return chance.choice(("0", "-0.0", "1e-7", "-123456789.25", "1e21"))
    if kind == 5:  # any bits that are a finite number
        value = struct.unpack("<d", chance.randbytes(8))[0]
        return repr(value) if abs(value) < 1e150 else "1e150"
    return repr(chance.uniform(-1e6, 1e6))


def polyline(chance):
    """The places of a polyline: flat or in space, open or closed, with places twice."""
    flat = chance.random() < 0.7
    places = [(number(chance), number(chance), "0" if flat else number(chance)) for _ in range(chance.randrange(2, 9))]
    if chance.random() < 0.2:
        places.insert(chance.randrange(len(places)), chance.choice(places))
    if chance.random() < 0.4:
        places.append(places[0])
    return places


def random_design(seed):
    """The text of a design that a seed gives."""
    chance = random.Random(seed)
    lines = ["<vessel>", f'<units id="{chance.choice((9001, 9002, 9003, 9005))}" />']
    for _ in range(chance.randrange(1, 7)):
        lines.append(f'<shapes view="{chance.choice(list(VIEWS)):02X}" >')
        for _ in range(chance.randrange(5)):
            lines.append("<polyline>")
            lines += [f'<vertex x="{x}" y="{y}" z="{z}" />' for x, y, z in polyline(chance)]
            lines.append("</polyline>")
        lines.append("</shapes>")
    for offset in ("gps", "txd", "piv"):
        lines.append(f'<{offset} x="{number(chance)}" y="{number(chance)}" z="{number(chance)}" />')
    lines.append("<anchors>")
    for i in range(chance.randrange(4)):
        lines += ["<anchor>", f"<id>{i + 1}</id>", f"<name>{escape(chance.choice(NAMES))}</name>",
                  f"<attachmentX>{number(chance)}</attachmentX>", f"<attachmentY>{number(chance)}</attachmentY>", "</anchor>"]
    return "\n".join([*lines, "</anchors>", "</vessel>", ""])


class Design:
    """What the text of a design says, read by another reader than the program's."""

    def __init__(self, text):
        root = ET.fromstring(text)
        self.unit = int(root.find("units").get("id"))
        self.lines = []  # (side, number in its group, places)
        for group in root.iter("shapes"):
            for i, line in enumerate(group.iter("polyline"), 1):
                places = [tuple(float(vertex.get(axis)) for axis in "xyz") for vertex in line.iter("vertex")]
                self.lines.append((VIEWS[int(group.get("view"), 16)], i, places))
        self.offsets = [tuple(float(root.find(name).get(axis)) for axis in "xyz") for name in ("gps", "txd", "piv")]
        self.anchors = [(int(a.findtext("id")), a.findtext("name") or "", float(a.findtext("attachmentX")),
                         float(a.findtext("attachmentY"))) for a in root.iter("anchor")]

    def box(self):
        """The lowest and the highest coordinates of all that is exported."""
        every = [*self.places(), *(place for _, _, places in self.lines for place in places)]
        return tuple(map(min, zip(*every))), tuple(map(max, zip(*every)))

    def places(self):
        """All points of a drawing, offsets first."""
        return [*self.offsets, *((x, y, 0.0) for _, _, x, y in self.anchors)]

    def labels(self):
        """All texts of a drawing, offsets first."""
        return ["GNSS antenna", "echo sounder", "pivot", *(f"{number} {name}".strip() for number, name, _, _ in self.anchors)]


def in_plane(places):
    """What a drawing keeps of a polyline: a Z that is zero everywhere has no sign."""
    return [(x, y, 0.0) for x, y, _ in places] if all(z == 0 for _, _, z in places) else places

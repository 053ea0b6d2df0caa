#!/usr/bin/env python3
"""Draws the sample drawings in dxf/: the deck plan of one workboat, as CAD programs of four ages save it.

The plan is described once, in metres, x forward and y to port. R12 has no lightweight polylines, no
paragraph texts and no ellipses, so what needs them is drawn there as older programs drew it.
"""

import math
import sys
from pathlib import Path

FOLDER = Path(__file__).resolve().parent / "dxf"

# --------------------------------------------------------------------------
# The plan
# --------------------------------------------------------------------------

# name, colour (negative: off), flags (1: frozen, 4: locked)
LAYERS = (
    ("0", 7, 0),
    ("HULL", 5, 0),
    ("DECKHOUSE", 1, 0),
    ("FITTINGS", 3, 4),
    ("TEXT", 8, 0),
    ("CONSTRUCTION", -2, 0),
    ("DIMENSIONS", 6, 1),
)

# Half of the deck's edge from the transom to the stem: x, y, bulge of the segment that leaves.
HULL_HALF = (
    (-11.0, 3.1, 0.0),
    (2.0, 3.1, -0.06),
    (8.0, 2.2, -0.14),
    (11.4, 0.0, 0.0),
)


def hull():
    """The closed deck edge, counter-clockwise from the transom's starboard corner."""
    port = HULL_HALF
    starboard = [(x, -y) for x, y, _ in port]
    edge = [(*corner, -port[i][2]) for i, corner in enumerate(starboard[:-1])]
    edge.append((*starboard[-1], -port[-2][2]))
    edge += [(x, y, -port[i - 1][2] if i else 0.0) for i, (x, y, _) in reversed(list(enumerate(port[:-1])))]
    return edge


def rounded(x0, y0, x1, y1, radius):
    """A rectangle with round corners."""
    bulge = math.tan(math.pi / 8)
    return [(x0 + radius, y0, 0.0), (x1 - radius, y0, bulge), (x1, y0 + radius, 0.0),
            (x1, y1 - radius, bulge), (x1 - radius, y1, 0.0), (x0 + radius, y1, bulge),
            (x0, y1 - radius, 0.0), (x0, y0 + radius, bulge)]


BOLLARDS = [(x, side * y, 0.0 if side > 0 else 180.0, f"B{number}")
            for number, (x, side, y) in enumerate(
                ((x, side, y) for x, y in ((-10.2, 2.7), (-4.0, 2.7), (3.0, 2.55)) for side in (1, -1)), 1)]


class Plan:
    """Puts the plan into a drawing."""

    def __init__(self, dxf):
        self.dxf = dxf

    def blocks(self):
        """A bollard with its number, and a pair of them on a plate."""
        dxf = self.dxf
        with dxf.block("BOLLARD"):
            dxf.circle("FITTINGS", 0.0, 0.0, 0.12)
            dxf.line("FITTINGS", (-0.2, 0.0), (0.2, 0.0))
            dxf.line("FITTINGS", (0.0, -0.2), (0.0, 0.2))
        with dxf.block("BOLLARD_PAIR"):
            dxf.polyline("FITTINGS", rounded(-0.6, -0.25, 0.6, 0.25, 0.1), closed=True)
            dxf.insert("FITTINGS", "BOLLARD", -0.3, 0.0)
            dxf.insert("FITTINGS", "BOLLARD", 0.3, 0.0)
        with dxf.block("WINCH"):
            dxf.solid("FITTINGS", (-0.5, -0.3), (0.5, -0.3), (-0.5, 0.3), (0.5, 0.3))
            dxf.arc("FITTINGS", 0.0, 0.0, 0.7, 30.0, 150.0)

    def entities(self):
        """Everything on deck."""
        dxf = self.dxf
        dxf.polyline("HULL", hull(), closed=True, width=0.05)
        dxf.polyline("HULL", [(x * 0.97, y * 0.94, b) for x, y, b in hull()], closed=True)
        dxf.polyline("DECKHOUSE", rounded(1.2, -1.7, 5.6, 1.7, 0.4), closed=True)
        dxf.polyline("DECKHOUSE", [(1.9, -1.2, 0.0), (4.6, -1.2, 0.35), (4.6, 1.2, 0.0), (1.9, 1.2, 0.0)],
                     closed=True)
        for y in (-1.2, -0.4, 0.4, 1.2):
            dxf.line("DECKHOUSE", (4.6, y), (5.5, y * 1.25))
        dxf.face("DECKHOUSE", (1.9, -0.3), (2.5, -0.3), (2.5, 0.3), (1.9, 0.3))
        dxf.circle("FITTINGS", 2.8, 0.0, 0.25, colour=1)
        dxf.arc("FITTINGS", -7.0, 0.0, 1.6, 90.0, 270.0)
        dxf.ellipse("FITTINGS", -1.6, 0.0, 1.1, 0.5)
        for x, y, angle, number in BOLLARDS:
            dxf.insert("FITTINGS", "BOLLARD_PAIR", x, y, angle=angle, attribute=("NUMBER", number))
        dxf.insert("FITTINGS", "WINCH", -7.0, 0.0, scale=1.5)
        dxf.insert("FITTINGS", "WINCH", 8.4, 0.0, scale=-1.0)
        for x, y in ((11.0, 0.0), (-10.6, 2.9), (-10.6, -2.9)):
            dxf.point("FITTINGS", x, y)
        dxf.line("CONSTRUCTION", (-13.0, 0.0), (13.0, 0.0))
        dxf.line("DIMENSIONS", (-11.0, -4.5), (11.4, -4.5))
        dxf.text("TEXT", -5.6, -4.2, 0.5, "WORKBOAT  L = 22.4 m  (deck plan)")
        dxf.text("TEXT", -9.5, -2.55, 0.25, "Schlepphaken f\u00fcr 5 t, schwenkbar %%p30%%d", angle=90.0)
        dxf.paragraph("TEXT", 6.2, 1.0, 0.3, r"{\fArial|b0|i0|c0|p34;Wheel house}\P\C1;eye level 5.2 m")


# --------------------------------------------------------------------------
# The file
# --------------------------------------------------------------------------

OLD, R2000, R2010, R2018 = "AC1009", "AC1015", "AC1024", "AC1032"


class Drawing:
    """Writes the groups of one drawing."""

    def __init__(self, version):
        self.version = version
        self.modern = version != OLD
        self.utf8 = version in (R2010, R2018)
        self.lines = []
        self.handles = 0x20
        self.owner = ""
        self.layout = {}

    def put(self, *pairs):
        """Writes groups, a code and its value each."""
        for code, value in pairs:
            if isinstance(value, float):
                value = f"{value:.6f}".rstrip("0")
                value += "0" if value.endswith(".") else ""
            self.lines += [f"{code:3d}", self.spell(str(value))]

    def spell(self, text):
        """Characters beyond ASCII as this version writes them."""
        if self.utf8:
            return text
        return "".join(c if ord(c) < 128 else f"\\U+{ord(c):04X}" for c in text)

    def handle(self):
        """The next free handle."""
        self.handles += 1
        return f"{self.handles:X}"

    def bytes(self):
        """The file, with the line ends of the system that it pretends to come from."""
        return ("\r\n".join(self.lines) + "\r\n").encode("utf-8" if self.utf8 else "ascii")

    # -- sections and tables

    def section(self, name, body):
        """A section around what `body` writes."""
        self.put((0, "SECTION"), (2, name))
        body()
        self.put((0, "ENDSEC"))

    def table(self, name, records):
        """A table of records, each a list of groups that begins with its name."""
        own = self.handle()
        self.put((0, "TABLE"), (2, name))
        if self.modern:
            self.put((5, own), (330, "0"), (100, "AcDbSymbolTable"))
        self.put((70, len(records)))
        if name == "DIMSTYLE" and self.modern:
            self.put((100, "AcDbDimStyleTable"))
        for record in records:
            self.put((0, name))
            if self.modern:
                handle = self.layout.get(record[0][1]) if name == "BLOCK_RECORD" else None
                self.put((105 if name == "DIMSTYLE" else 5, handle or self.handle()), (330, own),
                         (100, "AcDbSymbolTableRecord"), (100, SUBCLASSES[name]))
            self.put(*record)
        self.put((0, "ENDTAB"))

    def tables(self):
        """All tables; a modern reader misses any that is missing."""
        ltype = [[(2, "CONTINUOUS"), (70, 0), (3, "Solid line"), (72, 65), (73, 0), (40, 0.0)]]
        if self.modern:
            ltype = [[(2, name), (70, 0), (3, ""), (72, 65), (73, 0), (40, 0.0)]
                     for name in ("ByBlock", "ByLayer")] + ltype
        style = [[(2, "STANDARD"), (70, 0), (40, 0.0), (41, 1.0), (50, 0.0), (71, 0), (42, 2.5),
                  (3, "txt"), (4, "")]]
        layers = [[(2, name), (70, flags), (62, colour), (6, "CONTINUOUS")] for name, colour, flags in LAYERS]
        if self.modern:
            self.table("VPORT", [])
        self.table("LTYPE", ltype)
        self.table("LAYER", layers)
        self.table("STYLE", style)
        if self.modern:
            self.table("VIEW", [])
            self.table("UCS", [])
            self.table("APPID", [[(2, "ACAD"), (70, 0)]])
            self.table("DIMSTYLE", [[(2, "STANDARD"), (70, 0)]])
            self.table("BLOCK_RECORD", [[(2, name)] for name in self.layout])

    # -- blocks

    def block(self, name):
        """The block that the entities of a `with` go to."""
        return Block(self, name)

    # -- entities

    def entity(self, kind, layer, subclass, colour=None):
        """Begins an entity."""
        self.put((0, kind), (5, self.handle()))
        if self.modern:
            self.put((330, self.owner), (100, "AcDbEntity"))
        self.put((8, layer))
        if colour is not None:
            self.put((62, colour))
        if self.modern and subclass:
            self.put((100, subclass))

    def place(self, x, y, first=10):
        """A point in the plane."""
        self.put((first, float(x)), (first + 10, float(y)), (first + 20, 0.0))

    def line(self, layer, start, end):
        """A straight line."""
        self.entity("LINE", layer, "AcDbLine")
        self.place(*start)
        self.place(*end, first=11)

    def point(self, layer, x, y):
        """A point."""
        self.entity("POINT", layer, "AcDbPoint")
        self.place(x, y)

    def circle(self, layer, x, y, radius, colour=None):
        """A circle."""
        self.entity("CIRCLE", layer, "AcDbCircle", colour)
        self.place(x, y)
        self.put((40, radius))

    def arc(self, layer, x, y, radius, start, end):
        """An arc, counter-clockwise."""
        self.entity("ARC", layer, "AcDbCircle")
        self.place(x, y)
        self.put((40, radius))
        if self.modern:
            self.put((100, "AcDbArc"))
        self.put((50, start), (51, end))

    def ellipse(self, layer, x, y, major, minor):
        """A whole ellipse along the axes; of straight pieces where there is none."""
        if not self.modern:
            turn = [2 * math.pi * i / 36 for i in range(36)]
            self.polyline(layer, [(x + major * math.cos(t), y + minor * math.sin(t), 0.0) for t in turn],
                          closed=True)
            return
        self.entity("ELLIPSE", layer, "AcDbEllipse")
        self.place(x, y)
        self.place(major, 0.0, first=11)
        self.put((40, minor / major), (41, 0.0), (42, f"{2 * math.pi:.15f}"))

    def polyline(self, layer, vertices, closed=False, width=0.0):
        """A line of segments and arcs, light where the version knows that."""
        if self.modern:
            self.entity("LWPOLYLINE", layer, "AcDbPolyline")
            self.put((90, len(vertices)), (70, int(closed)), (43, width))
            for x, y, bulge in vertices:
                self.put((10, float(x)), (20, float(y)))
                if bulge:
                    self.put((42, float(bulge)))
            return
        self.entity("POLYLINE", layer, None)
        self.put((66, 1))
        self.place(0.0, 0.0)
        self.put((70, int(closed)))
        if width:
            self.put((40, width), (41, width))
        for x, y, bulge in vertices:
            self.entity("VERTEX", layer, None)
            self.place(x, y)
            if bulge:
                self.put((42, float(bulge)))
        self.entity("SEQEND", layer, None)

    def solid(self, layer, *corners):
        """A filled area; its third and fourth corner stand crosswise."""
        self.entity("SOLID", layer, "AcDbTrace")
        for i, corner in enumerate(corners):
            self.place(*corner, first=10 + i)

    def face(self, layer, *corners):
        """A face with four corners in their order."""
        self.entity("3DFACE", layer, "AcDbFace")
        for i, corner in enumerate(corners):
            self.place(*corner, first=10 + i)

    def text(self, layer, x, y, height, text, angle=0.0):
        """A text of one line."""
        self.entity("TEXT", layer, "AcDbText")
        self.place(x, y)
        self.put((40, height), (1, text))
        if angle:
            self.put((50, angle))
        if self.modern:
            self.put((100, "AcDbText"))

    def paragraph(self, layer, x, y, height, text):
        """A text with formatting codes; one text a line where there is no such thing."""
        if not self.modern:
            self.text(layer, x, y, height, "Wheel house")
            self.text(layer, x, y - 1.6 * height, height, "eye level 5.2 m")
            return
        self.entity("MTEXT", layer, "AcDbMText")
        self.place(x, y)
        self.put((40, height), (41, 5.0), (71, 1), (72, 1), (1, text))

    def insert(self, layer, name, x, y, scale=1.0, angle=0.0, attribute=None):
        """A block at a place, with an attribute beside it."""
        self.entity("INSERT", layer, "AcDbBlockReference")
        if attribute:
            self.put((66, 1))
        self.put((2, name))
        self.place(x, y)
        if scale != 1.0:
            self.put((41, scale), (42, abs(scale)), (43, abs(scale)))
        if angle:
            self.put((50, angle))
        if not attribute:
            return
        tag, value = attribute
        self.entity("ATTRIB", "TEXT", "AcDbText")
        self.place(x - 0.3, y + (0.4 if y > 0 else -0.7))
        self.put((40, 0.25), (1, value))
        if self.modern:
            self.put((100, "AcDbAttribute"))
        self.put((2, tag), (70, 0))
        self.entity("SEQEND", layer, None)


SUBCLASSES = {"LTYPE": "AcDbLinetypeTableRecord", "LAYER": "AcDbLayerTableRecord",
              "STYLE": "AcDbTextStyleTableRecord", "APPID": "AcDbRegAppTableRecord",
              "DIMSTYLE": "AcDbDimStyleTableRecord", "BLOCK_RECORD": "AcDbBlockTableRecord"}


class Block:
    """A block definition around what is drawn inside a `with`."""

    def __init__(self, dxf, name):
        self.dxf = dxf
        self.name = name

    def __enter__(self):
        dxf = self.dxf
        dxf.owner = dxf.layout.get(self.name, "")
        dxf.entity("BLOCK", "0", "AcDbBlockBegin")
        dxf.put((2, self.name), (70, 0))
        dxf.place(0.0, 0.0)
        dxf.put((3, self.name), (1, ""))

    def __exit__(self, *_):
        self.dxf.entity("ENDBLK", "0", "AcDbBlockEnd")


def draw(version):
    """The bytes of one drawing."""
    dxf = Drawing(version)
    plan = Plan(dxf)
    names = ("*Model_Space", "*Paper_Space", "BOLLARD", "BOLLARD_PAIR", "WINCH")
    dxf.layout = {name: f"{0x10 + i:X}" for i, name in enumerate(names)} if dxf.modern else {}

    def header():
        dxf.put((9, "$ACADVER"), (1, version), (9, "$DWGCODEPAGE"), (3, "ANSI_1252"))
        dxf.put((9, "$INSUNITS"), (70, 6))
        if dxf.modern:
            dxf.put((9, "$HANDSEED"), (5, "FFFF"))

    def blocks():
        for name in list(dxf.layout)[:2]:
            with dxf.block(name):
                pass
        plan.blocks()

    def entities():
        dxf.owner = dxf.layout.get("*Model_Space", "")
        plan.entities()

    def objects():
        dxf.put((0, "DICTIONARY"), (5, "C"), (330, "0"), (100, "AcDbDictionary"), (281, 1),
                (3, "ACAD_GROUP"), (350, "D"), (0, "DICTIONARY"), (5, "D"), (330, "C"),
                (100, "AcDbDictionary"), (281, 1))

    dxf.put((999, "Deck plan of a workboat"))
    dxf.section("HEADER", header)
    if dxf.modern:
        dxf.section("CLASSES", lambda: None)
    dxf.section("TABLES", dxf.tables)
    dxf.section("BLOCKS", blocks)
    dxf.section("ENTITIES", entities)
    if dxf.modern:
        dxf.section("OBJECTS", objects)
    dxf.put((0, "EOF"))
    return dxf.bytes()


def main():
    """Writes the drawings, or with --check reports whether they are what this script draws."""
    versions = {"r12": OLD, "r2000": R2000, "r2010": R2010, "r2018": R2018}
    drawings = {FOLDER / f"workboat-{name}.dxf": draw(version) for name, version in versions.items()}
    if sys.argv[1:] == ["--check"]:
        stale = [path.name for path, data in drawings.items()
                 if not path.exists() or path.read_bytes() != data]
        print("\n".join(f"{name} is not what the script draws" for name in stale) or "The drawings are up to date.")
        sys.exit(1 if stale else 0)
    FOLDER.mkdir(exist_ok=True)
    for path, data in drawings.items():
        path.write_bytes(data)


if __name__ == "__main__":
    main()

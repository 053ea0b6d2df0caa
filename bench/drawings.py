#!/usr/bin/env python3
"""Makes the drawings and designs that the benchmarks read:  bench/drawings.py FOLDER [--scale PART]

All come from seeded random numbers, so that two folders hold the same bytes. PART makes all of them smaller.
"""

import argparse
import pathlib
import random

import designs

MEGABYTE = 1_000_000
REACH = 500.0  # half the width of a drawing, in its units

HEAD = "\n".join([
    "  0", "SECTION", "  2", "HEADER", "  9", "$ACADVER", "  1", "AC1015", "  0", "ENDSEC",
    "  0", "SECTION", "  2", "TABLES", "  0", "TABLE", "  2", "LAYER", "  5", "2", "100", "AcDbSymbolTable", " 70", "     4",
    *(line for layer in range(4) for line in
      ("  0", "LAYER", "  5", f"{0x10 + layer:X}", "100", "AcDbSymbolTableRecord", "100", "AcDbLayerTableRecord",
       "  2", f"HULL_{layer}", " 70", "     0", " 62", f"     {layer + 1}", "  6", "CONTINUOUS")),
    "  0", "ENDTAB", "  0", "ENDSEC",
    "  0", "SECTION", "  2", "BLOCKS",
    "  0", "BLOCK", "  8", "0", "  2", "BOLLARD", " 70", "     0", " 10", "0.0", " 20", "0.0", " 30", "0.0",
    *(line for side in range(4) for line in
      ("  0", "LINE", "  8", "0", " 10", f"{side % 2}.0", " 20", f"{side // 2}.0", " 30", "0.0",
       " 11", f"{(side + 1) % 2}.5", " 21", f"{side // 2}.5", " 31", "0.0")),
    "  0", "ENDBLK", "  8", "0", "  0", "ENDSEC",
    "  0", "SECTION", "  2", "ENTITIES", ""])
TAIL = "  0\nENDSEC\n  0\nEOF\n"

SENTENCES = ("Main deck at {\\fArial|b1|i0;frame} #", "\\A1;clearance {\\H0.7x;\\S+0.5^-0.25;} m to the bollard",
             "\\C1;not surveyed\\C256; before the dry dock", "{\\LHull plating\\l} of 12 mm\\~steel, see sheet #",
             "Draught %%p0.05 m at 20 %%d", "Fender \\U+00D8 300 with rubber, bolts M#",
             "Bulwark as built; the measurements of drawing # count", "Hatch coaming removed on the port side",
             "Soundings reduced to chart datum by the tide of berth #", "To be checked by the surveyor before mobilisation")


class Drawing:
    """Composes the entities of one drawing."""

    def __init__(self, seed, bulged=0.0):
        self.random = random.Random(seed)
        self.bulged = bulged  # part of the segments of a polyline that are arcs
        self.handle = 0x100

    def head(self, kind, subclass):
        """What each entity begins with."""
        self.handle += 1
        layer = self.random.randrange(4)
        return (f"  0\n{kind}\n  5\n{self.handle:X}\n330\n1F\n100\nAcDbEntity\n  8\nHULL_{layer}\n"
                f"100\n{subclass}\n")

    def place(self):
        """A place somewhere on the drawing."""
        return self.random.uniform(-REACH, REACH), self.random.uniform(-REACH, REACH)

    def point(self, x, y, first=10):
        """The three groups of a point."""
        return f"{first:3d}\n{x:.6f}\n{first + 10:3d}\n{y:.6f}\n{first + 20:3d}\n0.0\n"

    def polyline(self):
        """A polyline of 20 vertices that wanders about."""
        count, (x, y) = 20, self.place()
        lines = [self.head("LWPOLYLINE", "AcDbPolyline"), f" 90\n{count:9d}\n 70\n     0\n 43\n0.0\n"]
        for _ in range(count):
            x += self.random.uniform(-2.0, 2.0)
            y += self.random.uniform(-2.0, 2.0)
            lines.append(f" 10\n{x:.6f}\n 20\n{y:.6f}\n")
            if self.bulged and self.random.random() < self.bulged:
                lines.append(f" 42\n{self.random.uniform(-1.0, 1.0):.6f}\n")
        return "".join(lines)

    def line(self):
        """A line."""
        x, y = self.place()
        return self.head("LINE", "AcDbLine") + self.point(x, y) + self.point(x + 3.0, y + 2.0, 11)

    def circle(self):
        """A circle."""
        return (self.head("CIRCLE", "AcDbCircle") + self.point(*self.place()) +
                f" 40\n{self.random.uniform(0.5, 9.0):.6f}\n")

    def arc(self):
        """An arc of any length."""
        start, end = self.random.uniform(0.0, 360.0), self.random.uniform(0.0, 360.0)
        return (self.head("ARC", "AcDbCircle") + self.point(*self.place()) +
                f" 40\n{self.random.uniform(0.5, 9.0):.6f}\n100\nAcDbArc\n 50\n{start:.6f}\n 51\n{end:.6f}\n")

    def full_arc(self):
        """A rounded corner with all the groups and digits that a CAD program writes."""
        (x, y), start, sweep = self.place(), self.random.uniform(0.0, 360.0), self.random.uniform(10.0, 120.0)
        return (self.head("ARC", "AcDbCircle").replace("100\nAcDbC", "  6\nCONTINUOUS\n 62\n     3\n370\n    25\n100\nAcDbC") +
                f" 10\n{x!r}\n 20\n{y!r}\n 30\n0.0\n 40\n{self.random.uniform(0.5, 9.0)!r}\n"
                f"210\n0.0\n220\n0.0\n230\n1.0\n100\nAcDbArc\n 50\n{start!r}\n 51\n{(start + sweep) % 360.0!r}\n")

    def text(self):
        """A text of one line."""
        return (self.head("TEXT", "AcDbText") + self.point(*self.place()) +
                f" 40\n2.5\n  1\nDepth {self.random.randrange(90)} m %%p0.1\n100\nAcDbText\n")

    def mtext(self):
        """A text of several paragraphs with formatting codes, in the pieces of 250 characters that the format allows."""
        written = "\\P".join(self.sentence() for _ in range(self.random.randrange(2, 12)))
        pieces = [written[at:at + 250] for at in range(0, len(written), 250)]
        return (self.head("MTEXT", "AcDbMText") + self.point(*self.place()) + " 40\n2.5\n 41\n100.0\n 71\n     1\n" +
                "".join(f"  3\n{piece}\n" for piece in pieces[:-1]) + f"  1\n{pieces[-1]}\n  7\nSTANDARD\n")

    def sentence(self):
        """One paragraph of a text."""
        return self.random.choice(SENTENCES).replace("#", str(self.random.randrange(200)))

    def insert(self):
        """A block that is inserted."""
        return (self.head("INSERT", "AcDbBlockReference") + "  2\nBOLLARD\n" + self.point(*self.place()) +
                f" 41\n2.0\n 42\n2.0\n 50\n{self.random.uniform(0.0, 360.0):.6f}\n")

    def mixed(self):
        """An entity of the mix: 60 % polylines, 20 % lines, 10 % arcs and circles, 5 % texts, 5 % blocks."""
        kind = self.random.random()
        if kind < 0.60:
            return self.polyline()
        if kind < 0.80:
            return self.line()
        if kind < 0.90:
            return self.arc() if kind < 0.85 else self.circle()
        return self.text() if kind < 0.95 else self.insert()


def write(path, entity, size):
    """A drawing of so many bytes, made of what `entity` gives."""
    with path.open("w", encoding="ascii", newline="\n") as stream:
        written = stream.write(HEAD)
        while written < size:
            written += stream.write(entity())
        stream.write(TAIL)


def make_all(folder, scale=1.0):
    """Every input of the benchmarks."""
    folder.mkdir(parents=True, exist_ok=True)
    for part, name in ((1.0, ""), (0.1, "-10th"), (0.01, "-100th")):
        write(folder / f"mix{name}.dxf", Drawing(5).mixed, 20 * MEGABYTE * scale * part)
        designs.write(folder / f"design{name}.xml", 20 * MEGABYTE * scale * part)
    write(folder / "bulges.dxf", Drawing(6, bulged=0.1).mixed, 20 * MEGABYTE * scale)
    write(folder / "arcs.dxf", Drawing(7).full_arc, MEGABYTE * scale)
    write(folder / "mtext.dxf", Drawing(8).mtext, 10 * MEGABYTE * scale)


def main():
    """Makes the folder that the command line names."""
    reader = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    reader.add_argument("folder", type=pathlib.Path)
    reader.add_argument("--scale", type=float, default=1.0, help="part of the full size (1)")
    chosen = reader.parse_args()
    make_all(chosen.folder, chosen.scale)


if __name__ == "__main__":
    main()

#!/usr/bin/env python3
"""What other programs read of an export: ezdxf, which audits drawings, and GDAL. Needs the modules of Debian's Python."""

import importlib.util
import os
import subprocess
import sys
import unittest

MISSING = [name for name in ("ezdxf", "osgeo") if importlib.util.find_spec(name) is None]
if MISSING:
    print(f"left out, for this is not installed: {', '.join(MISSING)}")
    sys.exit(1 if "HULLWRIGHT_ALL_TESTS" in os.environ else 77)
COLOURED_EXPORT = sys.argv.pop(3)

import ezdxf
from ezdxf.lldxf.encoding import decode_dxf_unicode
from ezdxf.tools.text import caret_decode
from osgeo import gdal, ogr

from cli import PROGRAM, SAMPLES, CliTest
from designs import Design, in_plane, random_design

VERSIONS = {"R12": "AC1009", "R2000": "AC1015"}
INSUNITS = {9001: 6, 9002: 2, 9003: 21, 9005: 0}
UNIT_NAMES = {9001: "metre", 9002: "foot", 9003: "US survey foot", 9005: "Clarke's foot"}
# Colour, width and side of the lines of the coloured design.
COLOURED = [("#FF0000", 3.0, "top"), ("#563412", 1.0, "left"), ("#00FF00", 2.5, "rear"), ("#000000", 7.0, "rear")]


def ezdxf_line(entity):
    """The places of a polyline, one that is closed with its first place once more."""
    if entity.dxftype() == "LWPOLYLINE":
        places = [(x, y, 0.0) for x, y in entity.get_points("xy")]
        closed = entity.closed
    else:
        places = [tuple(vertex.dxf.location) for vertex in entity.vertices]
        closed = entity.is_closed
    return [*places, places[0]] if closed else places


def ezdxf_width(entity):
    """The width of a polyline."""
    if entity.dxftype() == "LWPOLYLINE":
        return entity.dxf.const_width
    return entity.dxf.get("default_start_width", 0.0)


def gdal_line(geometry):
    """The places of a geometry."""
    return [geometry.GetPoint(i) for i in range(geometry.GetPointCount())]


def once_each(places):
    """Places without those that repeat the one before: GDAL drops some of these from drawings."""
    return [place for i, place in enumerate(places) if i == 0 or place != places[i - 1]]


class PeersTest(CliTest):
    """Samples, and designs at random."""

    def designs(self):
        """Each design with its text."""
        for path in sorted(SAMPLES.glob("*.xml")):
            yield path, path.read_text(encoding="utf-8")
        for seed in range(100, 130):
            text = random_design(seed)
            yield self.write(f"random-{seed}.xml", text), text

    def drawings(self):
        """Each design as a drawing of each version: its path, the version, and what the design holds."""
        for path, text in self.designs():
            for version in VERSIONS:
                out = self.folder / f"{path.stem}-{version}.dxf"
                self.succeed("export", path, "--dxf-version", version, "-o", out)
                yield out, version, Design(text)

    def coloured(self, form, ending):
        """The path of an export of the coloured design."""
        path = self.folder / f"coloured.{ending}"
        path.write_bytes(subprocess.run([COLOURED_EXPORT, form], check=True, capture_output=True).stdout)
        return path

    def test_ezdxf_finds_no_error_and_reads_the_same(self):
        for path, version, design in self.drawings():
            drawing = ezdxf.readfile(path)
            self.assertEqual(drawing.dxfversion, VERSIONS[version])
            audit = drawing.audit()
            self.assertEqual([entry.message for entry in [*audit.errors, *audit.fixes]], [])
            entities = list(drawing.modelspace())
            lines = [(entity.dxf.layer, ezdxf_line(entity)) for entity in entities if "POLYLINE" in entity.dxftype()]
            expected = [(side, in_plane(places) if version == "R2000" else places) for side, _, places in design.lines]
            self.assertEqual(lines, expected)
            self.assertEqual([tuple(e.dxf.location) for e in entities if e.dxftype() == "POINT"], design.places())
            texts = [caret_decode(decode_dxf_unicode(entity.dxf.text)) for entity in entities if entity.dxftype() == "TEXT"]
            self.assertEqual(texts, design.labels())
            layers = {layer.dxf.name for layer in drawing.layers}
            self.assertLessEqual({entity.dxf.layer for entity in entities}, layers)
            self.assertEqual(len(entities), len(lines) + 2 * len(texts))
            for entity in entities:
                if "POLYLINE" in entity.dxftype():  # black and thin, as a design file has no other
                    self.assertEqual((entity.dxf.color, entity.rgb, ezdxf_width(entity)), (7, None, 0))
            self.check_header(drawing.header, version, design)

    def check_header(self, header, version, design):
        """Unit, extents and limits are those of the design."""
        if version == "R2000":
            self.assertEqual(header["$INSUNITS"], INSUNITS[design.unit])
        low, high = design.box()
        self.assertEqual((tuple(header["$EXTMIN"]), tuple(header["$EXTMAX"])), (low, high))
        self.assertEqual((tuple(header["$LIMMIN"])[:2], tuple(header["$LIMMAX"])[:2]), (low[:2], high[:2]))

    def test_ezdxf_reads_the_layers_of_kinds(self):
        for path, text in [*self.designs()][::6]:
            out = self.folder / "kind.dxf"
            for version in VERSIONS:
                self.succeed("export", path, "--layer-by", "kind", "-d", version, "-o", out)
                drawing = ezdxf.readfile(out)
                layers = {(e.dxftype() in ("LWPOLYLINE", "POLYLINE"), e.dxf.layer) for e in drawing.modelspace()}
                design = Design(text)
                expected = {(True, "polylines")} if design.lines else set()
                expected |= {(False, "offsets")} | ({(False, "anchors")} if design.anchors else set())
                self.assertEqual(layers, expected)
                self.assertEqual([e.message for e in drawing.audit().errors], [])

    def test_ezdxf_reads_colours_and_widths(self):
        for version in VERSIONS:
            drawing = ezdxf.readfile(self.coloured(version, "dxf"))
            self.assertEqual([entry.message for entry in drawing.audit().errors], [])
            lines = list(drawing.modelspace())
            self.assertEqual([e.dxf.color for e in lines][::2], [1, 3])
            self.assertEqual(lines[3].dxf.color, 7)
            exact = [None if e.rgb is None else "#%02X%02X%02X" % tuple(e.rgb) for e in lines]
            self.assertEqual(exact, [None] * 4 if version == "R12" else ["#FF0000", "#563412", "#00FF00", None])
            # A width in the drawing is half of that in pixels, and 0 is the thinnest line.
            self.assertEqual([ezdxf_width(e) for e in lines], [1.5, 0.0, 1.25, 3.5])

    def test_gdal_reads_the_same_colours_in_a_drawing(self):
        source = ogr.Open(str(self.coloured("R2000", "dxf")))  # features live as long as this
        styles = [f.GetStyleString() for f in source.GetLayer(0)]
        self.assertEqual([style[:13].upper() for style in styles][:3], [f"PEN(C:{colour}" for colour, _, _ in COLOURED[:3]])

    def test_gdal_reads_colours_and_widths_of_geojson_and_tables(self):
        source = ogr.Open(str(self.coloured("geojson", "geojson")))
        values = [(f.GetField("colour"), f.GetField("width"), f.GetField("side"), f.GetField("closed"))
                  for f in source.GetLayer(0)]
        self.assertEqual(values, [(*line, closed) for line, closed in zip(COLOURED, (1, 0, 0, 0))])
        source = gdal.OpenEx(str(self.coloured("csv", "csv")), gdal.OF_VECTOR, allowed_drivers=["CSV"])
        values = {(f.GetField("colour"), float(f.GetField("width")), f.GetField("side")) for f in source.GetLayer(0)}
        self.assertEqual(values, set(COLOURED))

    def test_gdal_reads_the_same_drawing(self):
        for path, _, design in self.drawings():
            source = ogr.Open(str(path))
            lines, points = [], []
            for feature in source.GetLayer(0):
                geometry = feature.GetGeometryRef()
                if geometry.GetGeometryName() == "LINESTRING":
                    lines.append((feature.GetField("Layer"), gdal_line(geometry)))
                elif feature.GetField("Text") is None:
                    points.append(geometry.GetPoint())
            flat = [(side, [place if len(place) == 3 else (*place, 0.0) for place in places]) for side, places in lines]
            flat = [(side, once_each(places)) for side, places in flat]
            self.assertEqual(flat, [(side, once_each(places)) for side, _, places in design.lines])
            self.assertEqual(points, design.places())

    def test_gdal_reads_the_same_geojson(self):
        for path, text in self.designs():
            design = Design(text)
            out = self.folder / "export.geojson"
            self.succeed("export", path, "-o", out)
            source = ogr.Open(str(out))
            layer = source.GetLayer(0)
            features = [(f.GetField("kind"), f.GetField("side"), gdal_line(f.GetGeometryRef())) for f in layer]
            expected = [("polyline", side, places) for side, _, places in design.lines]
            expected += [("offset", "top", [place]) for place in design.offsets]
            expected += [("anchor", "top", [(x, y, 0.0)]) for _, _, x, y in design.anchors]
            self.assertEqual([(kind, side, [(*p, 0.0)[:3] for p in places]) for kind, side, places in features], expected)
            layer.ResetReading()
            names = ("unit", "number", "name", "colour", "width", *(("closed",) if design.lines else ()))
            values = [tuple(f.GetField(name) for name in names) for f in layer]
            self.assertEqual(values, [row[:len(names)] for row in self.properties(design)])

    @staticmethod
    def properties(design):
        """Unit, number, name, colour, width and closed of each feature."""
        unit = UNIT_NAMES[design.unit]
        values = [(unit, number, None, "#000000", 1.0, int(len(places) > 2 and repr(places[0]) == repr(places[-1])))
                  for _, number, places in design.lines]
        values += [(unit, None, name, None, None, None) for name in ("GNSS antenna", "echo sounder", "pivot")]
        return values + [(unit, number, name, None, None, None) for number, name, _, _ in design.anchors]

    def test_gdal_reads_the_same_table(self):
        for path, text in self.designs():
            design = Design(text)
            out = self.folder / "export.csv"
            self.succeed("export", path, "-o", out)
            source = gdal.OpenEx(str(out), gdal.OF_VECTOR, allowed_drivers=["CSV"],
                                 open_options=["X_POSSIBLE_NAMES=x", "Y_POSSIBLE_NAMES=y", "Z_POSSIBLE_NAMES=z"])
            rows = [(f.GetField("kind"), f.GetField("name"), f.GetGeometryRef().GetPoint()) for f in source.GetLayer(0)]
            expected = [("vertex", "", place) for _, _, places in design.lines for place in places]
            expected += [("offset", name, place) for name, place in zip(design.labels(), design.offsets)]
            expected += [("anchor", name, (x, y, 0.0)) for _, name, x, y in design.anchors]
            self.assertEqual([(kind, name, (*place, 0.0)[:3]) for kind, name, place in rows], expected)
            layer = source.GetLayer(0)
            layer.ResetReading()
            values = [tuple(f.GetField(name) for name in ("unit", "side", "number", "vertex", "colour", "width")) for f in layer]
            unit = UNIT_NAMES[design.unit]
            expected = [(unit, side, str(number), str(i), "#000000", "1") for side, number, places in design.lines
                        for i in range(1, len(places) + 1)]
            expected += [(unit, "top", "", "", "", "")] * 3
            expected += [(unit, "top", str(number), "", "", "") for number, _, _, _ in design.anchors]
            self.assertEqual(values, expected)

    def test_without_the_modules_the_test_is_left_out_or_fails(self):
        everything = {name: value for name, value in os.environ.items() if name != "HULLWRIGHT_ALL_TESTS"}
        for variables, status in (({}, 77), ({"HULLWRIGHT_ALL_TESTS": "1"}, 1)):
            done = subprocess.run([sys.executable, "-S", __file__, PROGRAM, SAMPLES, COLOURED_EXPORT], capture_output=True,
                                  check=False, env={**everything, **variables})
            self.assertEqual((done.returncode, done.stdout, done.stderr),
                             (status, b"left out, for this is not installed: ezdxf, osgeo\n", b""))


if __name__ == "__main__":
    gdal.UseExceptions()
    ogr.UseExceptions()
    unittest.main()

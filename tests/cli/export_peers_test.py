#!/usr/bin/env python3
"""What other programs read of an export: ezdxf, which audits drawings, and GDAL. Needs the modules of Debian's Python."""

import importlib.util
import sys
import unittest

MISSING = [name for name in ("ezdxf", "osgeo") if importlib.util.find_spec(name) is None]
if MISSING:
    print(f"left out, for this is not installed: {', '.join(MISSING)}")
    sys.exit(77)

import ezdxf
from ezdxf.lldxf.encoding import decode_dxf_unicode
from ezdxf.tools.text import caret_decode
from osgeo import gdal, ogr

from cli import SAMPLES, CliTest
from designs import Design, in_plane, random_design

VERSIONS = {"R12": "AC1009", "R2000": "AC1015"}


def ezdxf_line(entity):
    """The places of a polyline, one that is closed with its first place once more."""
    if entity.dxftype() == "LWPOLYLINE":
        places = [(x, y, 0.0) for x, y in entity.get_points("xy")]
        closed = entity.closed
    else:
        places = [tuple(vertex.dxf.location) for vertex in entity.vertices]
        closed = entity.is_closed
    return [*places, places[0]] if closed else places


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


if __name__ == "__main__":
    gdal.UseExceptions()
    ogr.UseExceptions()
    unittest.main()

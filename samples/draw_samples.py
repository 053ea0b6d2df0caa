#!/usr/bin/env python3
"""Draws the sample vessels workboat.xml, catamaran.xml and dredger.xml.

Every vessel is described once, in space: x forward, y to port, z up from the
waterline, metres. The six sides are projections of that one description, so
lengths, breadths and heights agree from side to side. A side is painted from
far to near; whatever a nearer face covers is cut away from the lines below.
"""

import math
import sys
from dataclasses import dataclass
from pathlib import Path

# --------------------------------------------------------------------------
# Sides: number, axis to the right, axis up, axis towards the observer
# --------------------------------------------------------------------------

TOP, BOTTOM, RIGHT, LEFT, FRONT, REAR = "01", "02", "04", "08", "10", "20"

SIDES = {
    TOP: ((1, 0, 0), (0, 1, 0), (0, 0, 1)),
    BOTTOM: ((1, 0, 0), (0, -1, 0), (0, 0, -1)),
    RIGHT: ((1, 0, 0), (0, 0, 1), (0, -1, 0)),
    LEFT: ((-1, 0, 0), (0, 0, 1), (0, 1, 0)),
    FRONT: ((0, 1, 0), (0, 0, 1), (1, 0, 0)),
    REAR: ((0, -1, 0), (0, 0, 1), (-1, 0, 0)),
}
ALL = tuple(SIDES)
PROFILES = (RIGHT, LEFT)
ENDS = (FRONT, REAR)
UPRIGHT = PROFILES + ENDS
PLANS = (TOP, BOTTOM)

UNIT_METRE = "9001"
TOUCH = 0.0015      # points closer than this lie on one another
SHORTEST = 0.02     # shorter left-overs of a cut line are dropped


# --------------------------------------------------------------------------
# Plane geometry
# --------------------------------------------------------------------------

def dot(a, b):
    """Scalar product."""
    return sum(p * q for p, q in zip(a, b))


def spread(start, stop, count):
    """`count` evenly spaced numbers from start to stop."""
    return [start + (stop - start) * i / (count - 1) for i in range(count)]


def closed(points):
    """The points with the first one repeated at the end."""
    return list(points) + [points[0]]


def rectangle(x0, x1, y0, y1):
    """Corners of an upright rectangle, counter-clockwise."""
    return [(x0, y0), (x1, y0), (x1, y1), (x0, y1)]


def circle(x, y, radius, count=24):
    """Corners of a regular polygon that stands for a circle."""
    turns = [2 * math.pi * i / count for i in range(count)]
    return [(x + radius * math.cos(t), y + radius * math.sin(t)) for t in turns]


def rounded(points, radius, count=8):
    """A polygon with every corner replaced by a smooth bend."""
    if radius == 0:
        return list(points)
    result = []
    for i, corner in enumerate(points):
        arms = []
        for other in (points[i - 1], points[(i + 1) % len(points)]):
            share = min(radius / math.dist(corner, other), 0.5)
            arms.append(tuple(c + (o - c) * share for c, o in zip(corner, other)))
        for t in spread(0, 1, count):
            weights = ((1 - t) ** 2, 2 * t * (1 - t), t ** 2)
            bend = (arms[0], corner, arms[1])
            result.append(tuple(dot(weights, axis) for axis in zip(*bend)))
    return result


def signed_area(points):
    """Area of a polygon, positive when it runs counter-clockwise."""
    pairs = zip(points, points[1:] + points[:1])
    return sum(a[0] * b[1] - b[0] * a[1] for a, b in pairs) / 2


def off_line(p, a, b):
    """Distance of p from the segment a-b and the place of its foot on it."""
    length = math.dist(a, b)
    if length == 0:
        return math.dist(p, a), 0.0
    foot = ((p[0] - a[0]) * (b[0] - a[0]) + (p[1] - a[1]) * (b[1] - a[1])) / length ** 2
    foot = min(max(foot, 0.0), 1.0)
    return math.hypot(p[0] - a[0] - foot * (b[0] - a[0]),
                      p[1] - a[1] - foot * (b[1] - a[1])), foot


def tidy(points):
    """The line without repeated vertices and vertices on a straight run."""
    result = []
    for p in points:
        if result and math.dist(result[-1], p) < 1e-6:
            continue
        while len(result) > 1 and off_line(result[-1], result[-2], p)[0] < 1e-6:
            result.pop()
        result.append(p)
    return result


def inside(p, polygon):
    """Whether p lies within the polygon, by the even-odd rule."""
    odd = False
    for a, b in zip(polygon, polygon[1:] + polygon[:1]):
        if (a[1] > p[1]) != (b[1] > p[1]):
            odd ^= p[0] < a[0] + (p[1] - a[1]) * (b[0] - a[0]) / (b[1] - a[1])
    return odd


def crossing(a, b, c, d):
    """Place on a-b where it meets c-d, or None."""
    ux, uy, vx, vy = b[0] - a[0], b[1] - a[1], d[0] - c[0], d[1] - c[1]
    cross = ux * vy - uy * vx
    if abs(cross) < 1e-12:
        return None
    wx, wy = c[0] - a[0], c[1] - a[1]
    here, there = (wx * vy - wy * vx) / cross, (wx * uy - wy * ux) / cross
    return here if 0 <= here <= 1 and 0 <= there <= 1 else None


def split(a, b, polygon):
    """The segment a-b divided wherever it meets the polygon's border."""
    places = {0.0, 1.0}
    for c, d in zip(polygon, polygon[1:] + polygon[:1]):
        place = crossing(a, b, c, d)
        if place is not None:
            places.add(place)
        distance, foot = off_line(c, a, b)
        if distance < TOUCH:
            places.add(foot)
    marks = [(a[0] + t * (b[0] - a[0]), a[1] + t * (b[1] - a[1])) for t in sorted(places)]
    marks[0], marks[-1] = a, b
    return [(p, q) for p, q in zip(marks, marks[1:]) if math.dist(p, q) > 1e-9]


def covered(p, polygon, with_border):
    """Whether p is hidden by the polygon; its border counts on request."""
    edges = zip(polygon, polygon[1:] + polygon[:1])
    if any(off_line(p, a, b)[0] < TOUCH for a, b in edges):
        return with_border
    return inside(p, polygon)


def apart(line, polygon):
    """Whether the boxes around line and polygon do not meet."""
    for one, two in zip(zip(*line), zip(*polygon)):
        if max(one) < min(two) - TOUCH or min(one) > max(two) + TOUCH:
            return True
    return False


def cut(line, polygon, with_border):
    """The parts of the line that the polygon leaves visible."""
    if apart(line, polygon):
        return [line]
    parts = [[]]
    for a, b in zip(line, line[1:]):
        for p, q in split(a, b, polygon):
            middle = ((p[0] + q[0]) / 2, (p[1] + q[1]) / 2)
            if covered(middle, polygon, with_border):
                parts.append([])
            else:
                parts[-1] += [q] if parts[-1] else [p, q]
    if len(parts) > 1 and line[0] == line[-1] and parts[0] and parts[-1]:
        parts[0] = parts.pop() + parts[0][1:]
    parts = [tidy(part) for part in parts if part]
    return [part for part in parts if path_length(part) > SHORTEST]


def path_length(line):
    """Length along a line."""
    return sum(math.dist(a, b) for a, b in zip(line, line[1:]))


def facing_runs(shape, direction):
    """Stretches of the shape's border that look towards `direction`.

    A stretch ends where the border turns away and at every sharp corner.
    """
    if signed_area(shape) < 0:
        shape = shape[::-1]
    edges = list(zip(shape, shape[1:] + shape[:1]))
    headings = [math.atan2(b[1] - a[1], b[0] - a[0]) for a, b in edges]
    seen = [math.sin(h) * direction[0] - math.cos(h) * direction[1] > 1e-6 for h in headings]
    start = seen.index(False)
    runs, before = [], None
    for i in list(range(start, len(edges))) + list(range(start)):
        if seen[i]:
            turn = 0 if before is None else abs(math.remainder(headings[i] - before, 2 * math.pi))
            if before is None or turn > math.radians(30):
                runs.append([edges[i][0]])
            runs[-1].append(edges[i][1])
        before = headings[i] if seen[i] else None
    return runs


# --------------------------------------------------------------------------
# Painting a vessel
# --------------------------------------------------------------------------

@dataclass
class Item:
    """Lines to draw at a depth and the area they hide, if any."""
    depth: float
    lines: list
    mask: list
    outlined: bool


class Drawing:
    """Collects the parts of a vessel and paints its six sides."""

    def __init__(self):
        self.items = {side: [] for side in SIDES}

    @staticmethod
    def project(side, points):
        """Points in space as points on a side, and their depths."""
        right, up, near = SIDES[side]
        flat = [(dot(p, right), dot(p, up)) for p in points]
        return flat, [dot(p, near) for p in points]

    def face(self, side, points, depth=None):
        """An opaque polygon in space, seen on one side at its middle depth."""
        flat, depths = self.project(side, points)
        flat = tidy(flat)
        middle = (min(depths) + max(depths)) / 2
        self.items[side].append(
            Item(middle if depth is None else depth, [closed(flat)], flat, True))

    def hide(self, side, points, depth):
        """An opaque polygon in space whose border is not drawn."""
        flat, _ = self.project(side, points)
        self.items[side].append(Item(depth, [], tidy(flat), False))

    def wire(self, points, sides=ALL, depth=None):
        """A line in space, seen on the sides given at its nearest depth."""
        for side in sides:
            flat, depths = self.project(side, points)
            flat = tidy(flat)
            if path_length(flat) > SHORTEST:
                self.items[side].append(
                    Item(max(depths) if depth is None else depth, [flat], [], False))

    def prism(self, axis, shape, low, high):
        """A solid: the shape in the plane across `axis`, drawn out along it."""
        k = "xyz".index(axis)
        for side, (_, _, near) in SIDES.items():
            if near[k]:
                self.face(side, lift(shape, k, high if near[k] > 0 else low))
                continue
            for run in facing_runs(shape, near[:k] + near[k + 1:]):
                self.face(side, lift(run, k, low) + lift(run[::-1], k, high))

    def box(self, x0, x1, y0, y1, z0, z1, radius=0.0):
        """A block with corners rounded in plan."""
        self.prism("z", rounded(rectangle(x0, x1, y0, y1), radius), z0, z1)

    def post(self, x, y, z0, z1, radius):
        """An upright cylinder."""
        self.prism("z", circle(x, y, radius, 16), z0, z1)

    def tube(self, a, b, radius):
        """A round bar between two points."""
        for side in SIDES:
            (p, q), depths = self.project(side, [a, b])
            length = math.dist(p, q)
            if length < radius:
                shape = circle(*p, radius, 16)
            else:
                nx, ny = -(q[1] - p[1]) * radius / length, (q[0] - p[0]) * radius / length
                shape = [(p[0] + nx, p[1] + ny), (p[0] - nx, p[1] - ny),
                         (q[0] - nx, q[1] - ny), (q[0] + nx, q[1] + ny)]
            self.items[side].append(Item(sum(depths) / 2, [closed(shape)], shape, True))

    def paint(self, side):
        """The visible lines of a side, far to near."""
        lines = []
        for item in sorted(self.items[side], key=lambda item: item.depth):
            if item.mask:
                lines = [part for line in lines for part in cut(line, item.mask, item.outlined)]
            lines += item.lines
        return lines


def lift(shape, k, place):
    """Plane points as points in space: coordinate `k` becomes `place`."""
    return [p[:k] + (place,) + p[k:] for p in map(tuple, shape)]


# --------------------------------------------------------------------------
# Parts that several vessels share
# --------------------------------------------------------------------------

def panes(drawing, table):
    """Rows of rounded panes and doors on upright walls.

    Row: sides, wall distance from the origin towards the observer, first edge,
    width, gap, count, lower edge, upper edge. Edges run along x on the
    profiles and along y on the ends.
    """
    for sides, wall, first, width, gap, count, low, high in table:
        for side in sides:
            k = 1 if side in PROFILES else 0
            place = wall * SIDES[side][2][k]
            for i in range(count):
                start = first + i * (width + gap)
                shape = rounded(rectangle(start, start + width, low, high), 0.12, 4)
                drawing.wire(lift(closed(shape), k, place), (side,))


def boxes(drawing, table):
    """Blocks. Row: name, x0, x1, y0, y1, z0, z1, plan radius, both sides."""
    for _, x0, x1, y0, y1, z0, z1, radius, paired in table:
        drawing.box(x0, x1, y0, y1, z0, z1, radius)
        if paired:
            drawing.box(x0, x1, -y1, -y0, z0, z1, radius)


def posts(drawing, table):
    """Upright cylinders. Row: name, x, y, z0, z1, radius, both sides."""
    for _, x, y, z0, z1, radius, paired in table:
        drawing.post(x, y, z0, z1, radius)
        if paired:
            drawing.post(x, -y, z0, z1, radius)


def tubes(drawing, table):
    """Bars. Row: name, one end, other end, radius, both sides."""
    for _, a, b, radius, paired in table:
        drawing.tube(a, b, radius)
        if paired:
            drawing.tube((a[0], -a[1], a[2]), (b[0], -b[1], b[2]), radius)


def guard_rail(drawing, path, height, sides, every=1, depth=None):
    """A hand rail, a middle rail and stanchions on every n-th path point."""
    for share in (0.5, 1.0):
        drawing.wire([(x, y, z + height * share) for x, y, z in path], sides, depth)
    for x, y, z in path[::every]:
        drawing.wire([(x, y, z), (x, y, z + height)], sides, depth)


def straight(a, b, count):
    """Evenly spaced points between two points in space."""
    return [tuple(p + (q - p) * t for p, q in zip(a, b)) for t in spread(0, 1, count)]


def side_rails(drawing, table):
    """Straight rails along both sides. Row: x0, x1, y, z, height, stanchions."""
    for x0, x1, y, z, height, count in table:
        for side, sign in ((LEFT, 1), (RIGHT, -1)):
            path = straight((x0, sign * y, z), (x1, sign * y, z), count)
            guard_rail(drawing, path, height, (side,))
            for end, (x, y, z) in ((REAR, path[0]), (FRONT, path[-1])):
                drawing.wire([(x, y, z), (x, y, z + height)], (end,))


def cross_rails(drawing, table):
    """Straight rails athwartships. Row: x, half length, z, height, stanchions."""
    for x, half, z, height, count in table:
        path = straight((x, -half, z), (x, half, z), count)
        guard_rail(drawing, path, height, ENDS)


def antenna(drawing, x, y, z):
    """A GNSS antenna: a stub and a dome with its foot at z."""
    drawing.post(x, y, z, z + 0.18, 0.05)
    outline = [(0.18 * math.cos(t), 0.20 + 0.145 * math.sin(t)) for t in spread(0, math.pi, 17)]
    outline += [(-0.17, 0.18), (0.17, 0.18)]
    for side in UPRIGHT:
        k = 1 if side in PROFILES else 0
        centre = x if k else y
        shape = [(centre + r, z + h) for r, h in outline]
        drawing.face(side, lift(shape, k, y if k else x))
    drawing.face(TOP, lift(circle(x, y, 0.18, 16), 2, z + 0.345))


def propeller(drawing, x, y, z, radius):
    """A four-bladed screw with its boss."""
    turns = spread(0, 2 * math.pi, 49)[:-1]
    blades = [(y + radius * (0.2 + 0.8 * math.sin(2 * t) ** 2) * math.cos(t),
               z + radius * (0.2 + 0.8 * math.sin(2 * t) ** 2) * math.sin(t)) for t in turns]
    for side in ENDS:
        drawing.face(side, lift(blades, 0, x))
        drawing.face(side, lift(circle(y, z, 0.2 * radius, 12), 0, x), SIDES[side][2][0] * x + 0.01)
    for side, k, centre in ((RIGHT, 1, z), (LEFT, 1, z), (BOTTOM, 2, y)):
        disc = rounded(rectangle(x - 0.13 * radius, x + 0.13 * radius,
                                 centre - radius, centre + radius), 0.2 * radius)
        drawing.face(side, lift(disc, k, y if k == 1 else z))
    drawing.prism("x", circle(y, z, 0.12 * radius, 12), x + 0.13 * radius, x + 0.5 * radius)


def rudder(drawing, x, y, z0, z1, chord):
    """A spade rudder with its stock axis at x."""
    blade = [(x - 0.68 * chord, z0), (x + 0.24 * chord, z0), (x + 0.32 * chord, z1),
             (x - 0.68 * chord, z1)]
    drawing.prism("y", blade, y - 0.05, y + 0.05)


def cross_mark(drawing, x, y, z, radius):
    """A transducer seen from below: a disc with a cross in it."""
    drawing.face(BOTTOM, lift(circle(x, y, radius), 2, z))
    for dx, dy in ((radius, 0), (0, radius)):
        drawing.wire([(x - dx, y - dy, z), (x + dx, y + dy, z)], (BOTTOM,), -z + 0.01)


def waterline(drawing, x0, x1, half):
    """The waterline over the vessel's whole length and breadth, before all else."""
    drawing.wire([(x0, 0, 0), (x1, 0, 0)], PROFILES, 100.0)
    drawing.wire([(0, -half, 0), (0, half, 0)], ENDS, 100.0)


# --------------------------------------------------------------------------
# Hard-chine hulls
# --------------------------------------------------------------------------

@dataclass
class Edge:
    """A longitudinal line of a hull as smooth functions of x.

    Breadth keeps `b_mid` forward to `entry`, then closes on the stem as
    (1 - t^n)^m; aft it narrows to `b_aft`. Height is `z_mid` from `run` to
    `rise`, then climbs to `z_fore` with power p; aft it goes to `z_aft`.
    """
    aft: float
    fore: float
    b_aft: float
    b_mid: float
    entry: float
    n: float
    m: float
    z_aft: float
    z_mid: float
    z_fore: float
    run: float
    rise: float
    p: float

    def breadth(self, x):
        """Half breadth at x."""
        if x > self.entry:
            t = min((x - self.entry) / (self.fore - self.entry), 1.0)
            return self.b_mid * (1 - t ** self.n) ** self.m
        t = (self.entry - x) / (self.entry - self.aft)
        return self.b_mid + (self.b_aft - self.b_mid) * t ** 2.5

    def height(self, x):
        """Height over the waterline at x."""
        if x > self.rise:
            t = (x - self.rise) / (self.fore - self.rise)
            return self.z_mid + (self.z_fore - self.z_mid) * t ** self.p
        if x < self.run:
            t = (self.run - x) / (self.run - self.aft)
            return self.z_mid + (self.z_aft - self.z_mid) * t ** 2
        return self.z_mid

    def stations(self, start):
        """x from start to the fore end, closer together towards the stem."""
        bend = max(start, self.entry)
        body = spread(start, bend, 13)[:-1] if start < bend else []
        turns = spread(0, math.pi / 2, 24)
        return body + [bend + (self.fore - bend) * math.sin(t) for t in turns]

    def curve(self, start=None):
        """Points (x, breadth, height) from start, else all, to the fore end."""
        xs = self.stations(self.aft if start is None else start)
        return [(x, self.breadth(x), self.height(x)) for x in xs]


@dataclass
class Hull:
    """Keel, chine, deck edge and rail, about a centre plane at y = centre."""
    keel: Edge
    chine: Edge
    deck: Edge
    rail: Edge
    strake: float       # breadth and half height of the rubbing strake
    centre: float

    def place(self, points, sign):
        """Hull points on the side `sign` as points in space."""
        return [(x, self.centre + sign * b, z) for x, b, z in points]

    def loop(self, half):
        """Closed outline from a half curve that runs from stern to stem."""
        return self.place(half, 1) + self.place(half[::-1], -1)

    def section(self, x):
        """Half section at x, keel to rail, as (x, breadth, height)."""
        points = [(x, 0.0, self.keel.height(x))]
        edges = [edge for edge in (self.chine, self.deck, self.rail) if edge.fore > x]
        for edge in edges:
            end = (x, edge.breadth(x), edge.height(x))
            points += self.flare(points[-1], end) if edge is self.deck else [end]
        return points

    @staticmethod
    def flare(low, high):
        """A hollow topside curve from chine to deck edge."""
        knee = (low[0], low[1] + 0.3 * (high[1] - low[1]), low[2] + 0.55 * (high[2] - low[2]))
        weights = [((1 - t) ** 2, 2 * t * (1 - t), t * t) for t in spread(0, 1, 9)[1:]]
        return [tuple(dot(w, axis) for axis in zip(low, knee, high)) for w in weights]

    def inset(self, edge, distance):
        """The edge's half curve moved inboard (outboard when negative)."""
        curve = edge.curve()
        moved = []
        for i, (x, b, z) in enumerate(curve):
            before, after = curve[max(i - 1, 0)], curve[min(i + 1, len(curve) - 1)]
            dx, db = after[0] - before[0], after[1] - before[1]
            length = math.hypot(dx, db)
            moved.append((x + db * distance / length, b - dx * distance / length, z))
        moved = [p for p in moved if p[1] > 0]
        moved[0] = (edge.aft + max(distance, 0), moved[0][1], moved[0][2])
        (xa, ba, _), (xb, bb, z) = moved[-2:]
        nose = min(xb + bb * (xb - xa) / (ba - bb), xb + max(bb, 0.02)) if ba > bb else xb
        return moved + [(nose, 0.0, z)]


def hull_profile(drawing, hull):
    """Both profiles: shell, strake, chine."""
    shell = hull.rail.curve() + hull.keel.curve()[::-1]
    strip = hull.strake
    for side in PROFILES:
        sign = SIDES[side][2][1]
        outside = hull.centre * sign + hull.rail.b_mid
        drawing.face(side, [(x, 0, z) for x, _, z in shell], outside)
        for edge, shift in ((hull.chine, 0), (hull.deck, -strip), (hull.deck, strip)):
            drawing.wire([(x, 0, z + shift) for x, _, z in edge.curve()], (side,), outside + 0.01)


def hull_ends(drawing, hull, fore_stations, aft_stations):
    """Front and rear: shell seen from ahead, body sections, transom."""
    middle = min(hull.rail.entry, hull.deck.entry)
    strip = hull.strake
    knuckle = hull.section(middle)
    b, z = hull.deck.breadth(middle), hull.deck.height(middle)
    knuckle[-1:-1] = [(middle, b, z - strip), (middle, b + strip, z - strip),
                      (middle, b + strip, z + strip), (middle, b, z + strip)]
    outline = knuckle + hull.rail.curve(middle)
    drawing.face(FRONT, hull.loop(outline), hull.rail.fore)
    drawing.face(REAR, hull.loop(outline), -middle)
    for sign in (1, -1):
        drawing.wire(hull.place(hull.chine.curve(middle), sign), (FRONT,), hull.rail.fore + 0.01)
        for shift in (-strip, strip):
            curve = [(x, b, z + shift) for x, b, z in hull.inset(hull.deck, -strip) if x >= middle]
            drawing.wire(hull.place(curve, sign), (FRONT,), hull.rail.fore + 0.01)
        for x in fore_stations:
            drawing.wire(hull.place(hull.section(x), sign), (FRONT,), hull.rail.fore + 0.01)
    for x in aft_stations:
        section = hull.section(x)
        drawing.hide(REAR, hull.loop(section), -x)
        for sign in (1, -1):
            drawing.wire(hull.place(section, sign), (REAR,), -x)
    drawing.face(REAR, hull.loop(hull.section(hull.rail.aft)))


def hull_bottom(drawing, hull):
    """The shell from below: outline, chine and keel line."""
    depth = -0.5
    for half in (hull.rail.curve(), hull.inset(hull.deck, -hull.strake)):
        drawing.face(BOTTOM, hull.loop(half), depth)
    drawing.wire(closed(hull.loop(hull.chine.curve())), (BOTTOM,), depth + 0.01)
    keel = [(hull.keel.aft, hull.centre, 0), (hull.rail.fore, hull.centre, 0)]
    drawing.wire(keel, (BOTTOM,), depth + 0.01)


# --------------------------------------------------------------------------
# Survey workboat, 24 m
# --------------------------------------------------------------------------

WORKBOAT_HULL = Hull(
    #           aft   fore  b_aft b_mid entry n    m     z_aft  z_mid  z_fore run   rise  p
    keel=Edge(-12.0, 12.0, 0.00, 0.00, 4.5, 1.0, 1.00, -0.80, -1.50, 3.300, -1.0, 4.5, 3.0),
    chine=Edge(-12.0, 10.6, 2.85, 3.10, 1.0, 1.8, 0.85, -0.30, -0.35, 1.082, -2.0, 0.0, 2.2),
    deck=Edge(-12.0, 11.5, 3.12, 3.40, 2.0, 2.1, 0.66, 1.10, 1.10, 2.403, -2.0, -1.0, 2.2),
    rail=Edge(-12.0, 12.0, 3.12, 3.40, 2.0, 2.2, 0.62, 2.00, 2.00, 3.300, -2.0, -1.0, 2.2),
    strake=0.10, centre=0.0)

WORKBOAT_BOXES = (
    # name             x0     x1     y0     y1    z0    z1    radius paired
    ("moon pool lid", -4.05, -2.75, -0.65, 0.65, 1.10, 1.25, 0.10, False),
    ("deck hatch", -6.90, -5.50, -0.80, 0.80, 1.10, 1.50, 0.15, False),
    ("winch bed", -9.60, -8.20, -0.90, 0.90, 1.10, 1.30, 0.00, False),
    ("winch cheek", -9.40, -8.40, 0.65, 0.80, 1.30, 2.35, 0.00, True),
    ("deck house", -1.60, 6.60, -2.30, 2.30, 1.10, 3.40, 0.70, False),
    ("house top", -1.80, 6.75, -2.45, 2.45, 3.40, 3.50, 0.75, False),
    ("roof", -0.30, 5.95, -2.20, 2.20, 5.70, 5.85, 0.45, False),
    ("funnel", -1.45, -0.55, 1.35, 2.05, 3.50, 4.70, 0.18, True),
    ("search light", 4.90, 5.20, -0.15, 0.15, 5.85, 6.20, 0.08, False),
    ("radar scanner", 1.45, 1.75, -0.75, 0.75, 7.55, 7.75, 0.10, False),
    ("windlass", 8.30, 9.00, -0.65, 0.65, 1.45, 2.10, 0.15, False),
    ("fore hatch", 7.10, 7.80, -0.40, 0.40, 1.25, 1.55, 0.10, False),
    ("bitt plate", -11.35, -10.35, 2.45, 2.80, 1.10, 1.18, 0.10, True),
    ("bitt plate", -2.85, -1.85, 2.62, 2.94, 1.10, 1.18, 0.10, True),
    ("bitt plate", 8.70, 9.60, 1.05, 1.37, 1.60, 1.68, 0.10, True),
)

WORKBOAT_POSTS = (
    # name          x      y     z0    z1    radius paired
    ("bollard", -11.10, 2.62, 1.18, 2.35, 0.13, True),
    ("bollard", -10.60, 2.62, 1.18, 2.35, 0.13, True),
    ("bollard", -2.60, 2.78, 1.18, 2.35, 0.11, True),
    ("bollard", -2.10, 2.78, 1.18, 2.35, 0.11, True),
    ("bollard", 8.95, 1.21, 1.68, 2.95, 0.12, True),
    ("bollard", 9.38, 1.21, 1.68, 2.95, 0.12, True),
    ("crane foot", -7.60, -2.30, 1.10, 2.90, 0.32, False),
    ("capstan", -7.60, 2.30, 1.10, 2.10, 0.25, False),
    ("radar foot", 1.60, 0.00, 7.40, 7.55, 0.12, False),
    ("whip aerial", 0.30, 1.85, 5.85, 9.20, 0.03, True),
)

WORKBOAT_TUBES = (
    # name            one end               other end             radius paired
    ("A-frame foot", (-11.20, 2.00, 1.10), (-11.20, 2.00, 2.30), 0.24, True),
    ("A-frame leg", (-11.20, 2.00, 2.25), (-12.55, 1.70, 6.20), 0.17, True),
    ("A-frame beam", (-12.55, -1.88, 6.20), (-12.55, 1.88, 6.20), 0.20, False),
    ("A-frame ram", (-9.70, 2.00, 1.30), (-11.85, 1.86, 4.10), 0.09, True),
    ("A-frame block", (-12.55, 0.00, 6.00), (-12.55, 0.00, 5.35), 0.16, False),
    ("winch drum", (-8.90, -0.65, 1.85), (-8.90, 0.65, 1.85), 0.40, False),
    ("crane boom", (-7.60, -2.30, 3.10), (-3.00, -2.30, 3.75), 0.17, False),
    ("crane jib", (-3.10, -2.30, 3.55), (-6.60, -2.30, 2.85), 0.12, False),
    ("mast", (1.20, 0.00, 5.85), (1.20, 0.00, 9.90), 0.13, False),
    ("mast strut", (-0.05, 0.75, 5.85), (1.15, 0.08, 8.00), 0.06, True),
    ("radar bracket", (1.20, 0.00, 7.32), (1.75, 0.00, 7.32), 0.08, False),
    ("yard", (1.20, -1.20, 8.80), (1.20, 1.20, 8.80), 0.06, False),
    ("propeller shaft", (-7.00, 1.45, -0.93), (-10.20, 1.45, -1.00), 0.07, True),
    ("shaft bracket", (-9.80, 1.45, -1.00), (-9.80, 1.45, -0.52), 0.06, True),
)

WORKBOAT_ANTENNAS = ((1.20, 0.00, 9.90), (1.20, 1.05, 8.86), (1.20, -1.05, 8.86))

WORKBOAT_PANES = (
    # sides     wall  first  width gap  count low  high
    (PROFILES, 2.30, -0.90, 0.75, 0.00, 1, 1.25, 3.10),
    (PROFILES, 2.30, 0.80, 0.80, 0.70, 3, 2.50, 3.12),
    (PROFILES, 2.00, 0.95, 0.90, 0.15, 4, 4.45, 5.40),
    ((FRONT,), 6.60, -1.15, 0.65, 0.40, 2, 2.60, 3.15),
    ((FRONT,), 5.75, -1.80, 0.63, 0.12, 5, 4.45, 5.45),
    ((REAR,), 1.60, -0.45, 0.90, 0.00, 1, 1.25, 3.10),
    ((REAR,), 1.60, -1.80, 0.80, 2.00, 2, 2.20, 2.90),
    ((REAR,), -0.10, -1.10, 0.95, 0.30, 2, 4.45, 5.40),
)

WORKBOAT_SIDE_RAILS = (
    # x0    x1     y     z     height stanchions
    (-1.70, 0.05, 2.35, 3.50, 1.00, 3),
    (-0.15, 4.30, 2.10, 5.85, 0.80, 6),
)

WORKBOAT_CROSS_RAILS = (
    # x      half  z     height stanchions
    (-1.70, 2.35, 3.50, 1.00, 5),
    (-0.15, 2.10, 5.85, 0.80, 5),
)

WORKBOAT_ANCHORS = (
    # name               x      side
    ("Bow Port", 9.50, 1),
    ("Bow Starboard", 9.50, -1),
    ("Breast Port", -2.35, 1),
    ("Breast Starboard", -2.35, -1),
    ("Stern Port", -11.30, 1),
    ("Stern Starboard", -11.30, -1),
)


def workboat_deck(drawing):
    """Top view of the hull: fender line, deck edge, bulwark, moon pool."""
    hull = WORKBOAT_HULL
    for half in (hull.inset(hull.deck, -hull.strake), hull.rail.curve()):
        drawing.face(TOP, hull.loop(half), 0.0)
    drawing.wire(closed(hull.loop(hull.inset(hull.rail, 0.22))), (TOP,), 0.01)
    for shape in (circle(-3.4, 0, 0.42), circle(-3.4, 0, 0.12, 12)):
        drawing.wire(lift(closed(shape), 2, 1.26), (TOP,))
    for x in (5.9, -5.0, -7.9):
        half = hull.rail.breadth(x) - 0.22
        drawing.wire([(x, -half, 1.1), (x, half, 1.1)], (TOP,), 0.02)


def workboat_underwater(drawing):
    """Skeg, screws, rudders, thruster tunnel and transducer."""
    skeg = [(-8.2, -1.05), (-7.6, -1.80), (-5.2, -1.80), (-4.6, -1.35)]
    bar_keel = [(-2.2, -1.45), (-1.6, -1.80), (5.2, -1.80), (6.0, -1.45)]
    for shape in (skeg, bar_keel):
        drawing.prism("y", shape, -0.12, 0.12)
    for sign in (1, -1):
        propeller(drawing, -10.35, sign * 1.45, -1.0, 0.52)
        rudder(drawing, -11.25, sign * 1.45, -1.65, -0.62, 0.95)
    for y in (-0.75, 0.75):
        opening = rectangle(7.65, 8.15, y - 0.12, y + 0.12)
        drawing.wire(closed(lift(opening, 2, 0.9)), (BOTTOM,), 1.5)
    for side in PROFILES:
        for radius in (0.30, 0.24):
            drawing.wire(lift(closed(circle(7.9, -0.55, radius)), 1, 0), (side,), 4.0)
    drawing.wire(lift(closed(rectangle(-3.9, -2.9, -0.5, 0.5)), 2, 1.3), (BOTTOM,), 2.0)
    cross_mark(drawing, -3.4, 0.0, -2.05, 0.3)
    drawing.post(-3.4, 0.0, -2.05, -1.4, 0.16)


def workboat_bow_rail(drawing):
    """The guard rail on the bow bulwark."""
    curve = WORKBOAT_HULL.inset(WORKBOAT_HULL.rail, 0.11)
    curve = [point for point in curve if point[0] > 6.8]
    for sign, side in ((1, LEFT), (-1, RIGHT)):
        path = [(x, sign * b, WORKBOAT_HULL.rail.height(x)) for x, b, _ in curve]
        guard_rail(drawing, path, 0.6, (side,), 3)
        guard_rail(drawing, path, 0.6, ENDS, 3)


def draw_workboat():
    """The workboat's drawing."""
    drawing = Drawing()
    hull_profile(drawing, WORKBOAT_HULL)
    hull_ends(drawing, WORKBOAT_HULL, (4.5, 6.5, 8.3, 9.7, 10.8), (-6.0,))
    hull_bottom(drawing, WORKBOAT_HULL)
    workboat_deck(drawing)
    workboat_underwater(drawing)
    workboat_bow_rail(drawing)
    wheelhouse = [(0.1, 3.5), (4.9, 3.5), (5.3, 4.3), (5.75, 5.7), (0.1, 5.7)]
    drawing.prism("y", wheelhouse, -2.0, 2.0)
    boxes(drawing, WORKBOAT_BOXES)
    tubes(drawing, WORKBOAT_TUBES)
    posts(drawing, WORKBOAT_POSTS)
    for foot in WORKBOAT_ANTENNAS:
        antenna(drawing, *foot)
    panes(drawing, WORKBOAT_PANES)
    side_rails(drawing, WORKBOAT_SIDE_RAILS)
    cross_rails(drawing, WORKBOAT_CROSS_RAILS)
    waterline(drawing, -12.75, 12.0, 3.5)
    return drawing


def workboat_anchors():
    """Anchor points on the deck edge."""
    breadth = WORKBOAT_HULL.rail.breadth
    return [(name, x, sign * breadth(x)) for name, x, sign in WORKBOAT_ANCHORS]


# --------------------------------------------------------------------------
# Survey catamaran, 18 m
# --------------------------------------------------------------------------

def demihull(centre):
    """One of the catamaran's two hulls."""
    return Hull(
        #          aft   fore b_aft b_mid entry n    m     z_aft  z_mid  z_fore run   rise  p
        keel=Edge(-9.0, 9.00, 0.00, 0.00, 4.5, 1.0, 1.00, -0.45, -0.95, 2.100, -1.0, 4.5, 4.0),
        chine=Edge(-9.0, 8.30, 0.78, 0.82, 0.5, 1.9, 0.80, -0.12, -0.12, 0.718, -2.0, 0.0, 2.2),
        deck=Edge(-9.0, 8.85, 0.92, 0.95, -1.5, 2.0, 0.72, 1.55, 1.55, 1.752, -2.0, 0.0, 2.0),
        rail=Edge(-9.0, 9.00, 0.92, 0.95, 0.5, 2.3, 0.68, 1.75, 1.75, 2.100, -2.0, 0.0, 2.0),
        strake=0.05, centre=centre)


DEMIHULLS = (demihull(3.0), demihull(-3.0))

CATAMARAN_BOXES = (
    # name             x0     x1     y0     y1    z0    z1    radius paired
    ("stern hatch", -8.00, -7.10, 2.65, 3.35, 1.75, 1.90, 0.12, True),
    ("fore hatch", 5.10, 5.80, 2.65, 3.35, 1.75, 1.90, 0.12, True),
    ("pool coaming", -5.60, -4.40, -0.60, 0.60, 1.75, 2.00, 0.10, False),
    ("life raft", -3.60, -3.25, 1.35, 2.35, 1.75, 2.30, 0.12, True),
    ("cabin roof", -3.15, 3.45, -2.55, 2.55, 4.10, 4.22, 0.50, False),
    ("roof hatch", 0.80, 1.50, -0.35, 0.35, 4.22, 4.34, 0.10, False),
    ("radar scanner", -1.05, -0.80, -0.60, 0.60, 5.95, 6.12, 0.10, False),
    ("winch bed", -7.80, -6.90, -0.55, 0.55, 1.75, 1.90, 0.00, False),
    ("winch cheek", -7.65, -7.05, 0.40, 0.50, 1.90, 2.55, 0.00, True),
    ("air draught box", -2.70, -1.90, -0.50, 0.50, 4.22, 4.62, 0.15, False),
)

CATAMARAN_POSTS = (
    # name          x      y     z0    z1    radius paired
    ("bollard", -8.55, 3.55, 1.75, 2.10, 0.09, True),
    ("bollard", -8.20, 3.55, 1.75, 2.10, 0.09, True),
    ("bollard", 0.10, 3.68, 1.75, 2.10, 0.08, True),
    ("bollard", 0.45, 3.68, 1.75, 2.10, 0.08, True),
    ("bollard", 7.05, 3.00, 1.85, 2.25, 0.09, True),
    ("bollard", 7.40, 3.00, 1.85, 2.25, 0.09, True),
    ("sonar pole", -5.00, 0.00, -1.30, 4.00, 0.12, False),
    ("pole collar", -5.00, 0.00, 2.00, 2.45, 0.24, False),
    ("whip aerial", -2.60, 2.10, 4.22, 7.20, 0.03, True),
)

CATAMARAN_TUBES = (
    # name            one end              other end            radius paired
    ("gantry foot", (-8.10, 1.75, 1.75), (-8.10, 1.75, 2.35), 0.20, True),
    ("gantry leg", (-8.10, 1.75, 2.35), (-9.15, 1.45, 5.30), 0.13, True),
    ("gantry beam", (-9.15, -1.60, 5.30), (-9.15, 1.60, 5.30), 0.15, False),
    ("gantry ram", (-6.60, 1.75, 1.90), (-8.55, 1.62, 3.65), 0.07, True),
    ("gantry block", (-9.15, 0.00, 5.15), (-9.15, 0.00, 4.70), 0.12, False),
    ("winch drum", (-7.35, -0.40, 2.22), (-7.35, 0.40, 2.22), 0.27, False),
    ("pole hoist", (-4.20, 0.00, 2.00), (-5.00, 0.00, 3.40), 0.06, False),
    ("mast", (-1.40, 0.00, 4.22), (-1.40, 0.00, 7.40), 0.10, False),
    ("mast strut", (-0.35, 0.55, 4.22), (-1.35, 0.06, 6.20), 0.05, True),
    ("radar bracket", (-1.40, 0.00, 5.88), (-0.75, 0.00, 5.88), 0.07, False),
    ("yard", (-1.40, -1.00, 6.70), (-1.40, 1.00, 6.70), 0.05, False),
    ("propeller shaft", (-5.60, 3.00, -0.72), (-7.90, 3.00, -0.80), 0.05, True),
    ("shaft bracket", (-7.60, 3.00, -0.80), (-7.60, 3.00, -0.52), 0.05, True),
)

CATAMARAN_ANTENNAS = ((-1.40, 0.00, 7.40), (-1.40, 0.88, 6.75), (-1.40, -0.88, 6.75))

CATAMARAN_PANES = (
    # sides     wall  first  width gap   count low  high
    (PROFILES, 2.35, -2.55, 0.80, 0.00, 1, 1.90, 3.85),
    (PROFILES, 2.35, -1.40, 1.15, 0.18, 3, 2.85, 3.75),
    ((FRONT,), 4.20, -2.07, 0.90, 0.18, 4, 2.95, 3.85),
    ((REAR,), 3.00, -0.42, 0.84, 0.00, 1, 1.90, 3.85),
    ((REAR,), 3.00, -1.95, 1.15, 1.60, 2, 2.85, 3.70),
)

CATAMARAN_SIDE_RAILS = (
    # x0    x1     y     z     height stanchions
    (-8.70, -6.10, 3.80, 1.75, 0.97, 4),
    (-5.10, 2.45, 3.85, 1.75, 0.97, 8),
)

CATAMARAN_ANCHORS = (
    # name              x      y
    ("Bow Port", 7.225, 3.0),
    ("Bow Starboard", 7.225, -3.0),
    ("Stern Port", -8.375, 3.55),
    ("Stern Starboard", -8.375, -3.55),
)


def catamaran_deck_half():
    """Half the deck outline (x, y) on the port side, stern to fore arch."""
    rail = DEMIHULLS[0].rail
    stern = [(-8.4, 0.0), (-8.4, 2.02), (-9.0, 2.02)]
    outer = [(x, 3.0 + b) for x, b, _ in rail.curve()]
    inner = [(x, 3.0 - b) for x, b, _ in rail.curve(5.6)][::-1]
    reach = inner[-1][1]
    arch = [(5.6 - 0.7 * math.cos(t) ** 0.5, reach * math.cos(math.pi / 2 - t))
            for t in spread(math.pi / 2, 0, 15)[1:-1]]
    return stern + outer + inner + arch + [(4.9, 0.0)]


def catamaran_deck(drawing):
    """Deck plan, toe rail lines and the bridge between the hulls."""
    half = catamaran_deck_half()
    outline = half + [(x, -y) for x, y in half[-2:0:-1]]
    for hull in DEMIHULLS:
        drawing.face(TOP, hull.loop(hull.inset(hull.deck, -hull.strake)), 1.75)
    drawing.face(TOP, lift(outline, 2, 1.76))
    drawing.face(BOTTOM, lift(outline, 2, 1.75))
    for hull in DEMIHULLS:
        sign = math.copysign(1, hull.centre)
        curve = hull.inset(hull.rail, 0.12)
        curve[0] = (hull.rail.aft, curve[0][1], 0)
        inner = [point for point in curve if point[0] > 5.6]
        inner.insert(0, (inner[0][0], hull.rail.breadth(inner[0][0]), 0))
        toe_rail = hull.place(curve, sign) + hull.place(inner[::-1], -sign)
        drawing.wire(toe_rail, (TOP,), 1.77)
    arch = [(2.3 * math.cos(t), 0.70 + 0.30 * math.sin(t)) for t in spread(0, math.pi, 25)]
    drawing.prism("x", [(-2.6, 0.70), (-2.6, 1.75), (2.6, 1.75), (2.6, 0.70)] + arch, -8.4, 4.9)
    pool = rounded(rectangle(-5.5, -4.5, -0.5, 0.5), 0.1)
    drawing.wire(lift(closed(pool), 2, 0.0), (BOTTOM,), -0.6)
    drawing.wire([(-6.2, -3.8, 0), (-6.2, 3.8, 0)], (TOP,), 1.77)


def catamaran_bow_rails(drawing):
    """Guard rails around the two bows."""
    for hull in DEMIHULLS:
        sign = math.copysign(1, hull.centre)
        curve = hull.inset(hull.rail, 0.1)
        for turn, start in ((sign, 2.4), (-sign, 5.8)):
            path = [(x, hull.centre + turn * b, z) for x, b, z in curve if x > start]
            outer = (LEFT if sign > 0 else RIGHT,) if turn == sign else ()
            guard_rail(drawing, path, 0.95, ENDS + outer, 5)


def catamaran_sonar(drawing):
    """The multibeam head under the pole."""
    drawing.box(-5.35, -4.65, -0.32, 0.32, -1.60, -1.30, 0.10)
    cross_mark(drawing, -5.0, 0.0, -1.62, 0.22)


def draw_catamaran():
    """The catamaran's drawing."""
    drawing = Drawing()
    for hull in DEMIHULLS:
        hull_profile(drawing, hull)
        hull_ends(drawing, hull, (3.5, 5.5, 7.2), (-4.0,))
        hull_bottom(drawing, hull)
        propeller(drawing, -8.0, hull.centre, -0.80, 0.33)
        rudder(drawing, -8.55, hull.centre, -1.15, -0.42, 0.60)
    catamaran_deck(drawing)
    catamaran_bow_rails(drawing)
    cabin = [(-3.0, 1.75), (4.2, 1.75), (4.2, 2.75), (3.2, 4.1), (-3.0, 4.1)]
    drawing.prism("y", cabin, -2.35, 2.35)
    boxes(drawing, CATAMARAN_BOXES)
    tubes(drawing, CATAMARAN_TUBES)
    posts(drawing, CATAMARAN_POSTS)
    catamaran_sonar(drawing)
    for foot in CATAMARAN_ANTENNAS:
        antenna(drawing, *foot)
    panes(drawing, CATAMARAN_PANES)
    side_rails(drawing, CATAMARAN_SIDE_RAILS)
    waterline(drawing, -9.3, 9.0, 4.0)
    return drawing


# --------------------------------------------------------------------------
# Cutter suction dredger, 60 m
# --------------------------------------------------------------------------

PONTOON_AFT, PONTOON_FORE = -29.5, 18.5
PONTOON_HALF, DECK, DRAUGHT = 7.0, 1.2, -2.4
FORE_SLOT_END, FORE_SLOT_HALF = -0.8, 2.3
AFT_SLOT_END, AFT_SLOT_HALF = -19.0, 1.3
RAKE = 2.2                          # length of the raked ends below water
TRUNNION = (0.5, 0.0, 0.2)
LADDER_ANGLE = math.radians(20)
LADDER_LENGTH = 28.1
CUTTER_LENGTH = 2.7

DREDGER_BOXES = (
    # name              x0      x1     y0     y1    z0    z1     radius paired
    ("engine house", -17.50, -7.60, -4.80, 4.80, 1.20, 4.60, 0.30, False),
    ("engine house top", -17.70, -7.40, -5.00, 5.00, 4.60, 4.75, 0.30, False),
    ("accommodation", -16.80, -9.40, -4.00, 4.00, 4.75, 7.20, 0.30, False),
    ("accommodation top", -17.00, -9.20, -4.20, 4.20, 7.20, 7.32, 0.30, False),
    ("skylight", -15.60, -13.80, -0.90, 0.90, 7.32, 7.70, 0.15, False),
    ("funnel", -16.20, -14.90, 1.80, 3.00, 7.32, 10.20, 0.40, True),
    ("pump room", -6.60, -1.40, -3.00, 3.00, 1.20, 3.00, 0.25, False),
    ("pump room hatch", -3.40, -2.00, -0.90, 0.90, 3.00, 3.25, 0.15, False),
    ("cabin column", -5.90, -4.10, -0.90, 0.90, 3.00, 7.60, 0.20, False),
    ("cabin floor", -7.40, -1.90, -2.50, 2.50, 7.60, 7.80, 0.30, False),
    ("cabin roof", -7.60, -1.50, -2.70, 2.70, 10.30, 10.48, 0.35, False),
    ("radar scanner", -6.65, -6.35, -0.90, 0.90, 12.30, 12.52, 0.10, False),
    ("swing winch", 1.60, 4.00, 3.40, 5.60, 1.20, 1.50, 0.00, True),
    ("ladder winch", 5.00, 7.40, 3.40, 5.60, 1.20, 1.50, 0.00, True),
    ("gantry foot", 15.90, 17.50, 3.00, 4.60, 1.20, 1.70, 0.10, True),
    ("gantry head", 16.05, 17.35, -3.40, 3.40, 13.60, 14.60, 0.15, False),
    ("boom foot", 14.10, 15.30, 5.60, 6.80, 1.20, 2.40, 0.20, True),
    ("spud carriage", -27.00, -21.80, -1.80, 1.80, 1.45, 2.60, 0.10, False),
    ("carriage rail", -29.00, -19.40, 1.45, 1.75, 1.20, 1.45, 0.00, True),
    ("carriage ram bed", -21.80, -18.60, -0.35, 0.35, 1.50, 1.95, 0.05, False),
    ("spud guide", -25.20, -23.20, -1.00, 1.00, 2.60, 4.60, 0.10, False),
    ("auxiliary guide", -28.90, -26.90, 3.30, 5.10, 1.20, 4.60, 0.10, False),
    ("deck store", -28.60, -25.60, -5.90, -3.20, 1.20, 3.30, 0.15, False),
    ("bitt plate", -22.90, -21.30, 6.15, 6.75, 1.20, 1.32, 0.15, True),
    ("bitt plate", -3.30, -1.70, 6.15, 6.75, 1.20, 1.32, 0.15, True),
)

DREDGER_POSTS = (
    # name            x       y     z0     z1     radius paired
    ("working spud", -24.20, 0.00, -9.20, 13.80, 0.48, False),
    ("auxiliary spud", -27.90, 4.20, -2.00, 20.60, 0.45, False),
    ("spud point", -24.20, 0.00, -10.00, -9.20, 0.25, False),
    ("spud point", -27.90, 4.20, -2.70, -2.00, 0.24, False),
    ("bollard", -22.50, 6.45, 1.32, 2.15, 0.22, True),
    ("bollard", -21.70, 6.45, 1.32, 2.15, 0.22, True),
    ("bollard", -2.90, 6.45, 1.32, 2.15, 0.22, True),
    ("bollard", -2.10, 6.45, 1.32, 2.15, 0.22, True),
    ("boom king post", 14.70, 6.20, 2.40, 7.60, 0.22, True),
    ("echo sounder well", -13.00, -5.90, 1.20, 1.35, 0.40, False),
    ("radar foot", -6.50, 0.00, 12.05, 12.30, 0.14, False),
)

DREDGER_TUBES = (
    # name             one end                other end              radius paired
    ("swing drum", (2.80, 3.60, 2.30), (2.80, 5.40, 2.30), 0.75, True),
    ("ladder drum", (6.20, 3.60, 2.30), (6.20, 5.40, 2.30), 0.75, True),
    ("gantry leg", (16.70, 3.80, 1.70), (16.70, 2.90, 13.60), 0.45, True),
    ("gantry back leg", (8.40, 6.10, 1.20), (16.40, 3.05, 13.20), 0.28, True),
    ("gantry tie", (16.70, -3.20, 8.80), (16.70, 3.20, 8.80), 0.25, False),
    ("anchor boom", (14.70, 6.20, 2.60), (21.80, 13.30, 6.20), 0.26, True),
    ("trunnion", (0.50, 1.60, 0.20), (0.50, 2.90, 0.20), 0.35, True),
    ("mast", (-7.00, 0.00, 10.48), (-7.00, 0.00, 14.60), 0.16, False),
    ("radar bracket", (-7.00, 0.00, 11.97), (-6.30, 0.00, 11.97), 0.10, False),
    ("yard", (-7.00, -1.60, 13.60), (-7.00, 1.60, 13.60), 0.08, False),
    ("cabin stay", (-2.20, 2.20, 3.00), (-2.60, 2.30, 7.60), 0.12, True),
    ("discharge pipe", (-6.00, 2.40, 1.75), (-6.00, 5.50, 1.75), 0.30, False),
    ("discharge pipe", (-5.70, 5.50, 1.75), (-29.00, 5.50, 1.75), 0.30, False),
    ("discharge bend", (-29.00, 5.50, 1.75), (-29.82, 5.50, 1.10), 0.30, False),
)

DREDGER_WIRES = (
    # ladder hoist, boom topping lift, boom guy
    ((16.70, 1.20, 13.60), (24.30, 1.20, -7.10)),
    ((14.70, 6.20, 7.60), (21.80, 13.30, 6.20)),
    ((16.70, 3.20, 14.60), (14.70, 6.20, 7.60)),
)

DREDGER_ANTENNAS = ((-7.00, 0.00, 14.60), (-7.00, 1.45, 13.68), (-7.00, -1.45, 13.68))

DREDGER_PANES = (
    # sides     wall  first   width gap  count low  high
    (PROFILES, 4.80, -16.90, 1.00, 0.00, 1, 1.40, 3.50),
    (PROFILES, 4.80, -15.20, 1.10, 0.55, 4, 2.70, 3.60),
    (PROFILES, 4.00, -16.30, 0.95, 0.00, 1, 4.90, 6.90),
    (PROFILES, 4.00, -14.70, 0.95, 0.55, 3, 5.60, 6.50),
    (PROFILES, 2.30, -6.50, 0.90, 0.20, 3, 8.60, 9.90),
    (PROFILES, 3.00, -5.90, 0.90, 0.00, 1, 1.40, 2.80),
    ((FRONT,), -1.80, -2.05, 0.90, 0.17, 4, 8.60, 9.90),
    ((FRONT,), -9.40, -3.40, 0.95, 4.90, 2, 5.60, 6.50),
    ((REAR,), 17.50, -0.50, 1.00, 0.00, 1, 1.40, 3.50),
    ((REAR,), 17.50, -4.10, 1.00, 0.50, 2, 2.70, 3.60),
    ((REAR,), 17.50, 1.60, 1.00, 0.50, 2, 2.70, 3.60),
    ((REAR,), 16.80, -3.20, 0.95, 0.60, 2, 5.60, 6.50),
    ((REAR,), 16.80, 0.70, 0.95, 0.60, 2, 5.60, 6.50),
    ((REAR,), 7.20, -1.85, 1.10, 0.20, 3, 8.60, 9.90),
)

DREDGER_SIDE_RAILS = (
    # x0      x1     y     z     height stanchions
    (-29.20, -23.40, 6.90, 1.20, 1.05, 5),
    (-20.80, -3.60, 6.90, 1.20, 1.05, 12),
    (-1.40, 13.60, 6.90, 1.20, 1.05, 11),
    (-17.40, -7.70, 4.85, 4.75, 1.00, 8),
    (-16.80, -9.40, 4.05, 7.32, 1.00, 6),
)

DREDGER_CROSS_RAILS = (
    # x       half  z     height stanchions
    (-17.50, 4.85, 4.75, 1.00, 8),
    (-16.90, 4.05, 7.32, 1.00, 7),
    (-7.60, 4.85, 4.75, 1.00, 8),
    (-9.30, 4.05, 7.32, 1.00, 7),
)

DREDGER_ANCHORS = (
    # name                                          x      y
    ("Seitenanker Backbord vorn (F\u00fchrung)", 21.6, 13.1),
    ("Side Wire Starboard", 21.6, -13.1),
    ("Spud Carriage", -24.2, 0.0),
    ("Auxiliary Spud", -27.9, 4.2),
)


def pontoon_plan():
    """Deck outline with the ladder slot forward and the spud slot aft."""
    half = [(AFT_SLOT_END, 0), (AFT_SLOT_END, AFT_SLOT_HALF), (PONTOON_AFT, AFT_SLOT_HALF),
            (PONTOON_AFT, PONTOON_HALF - 0.8), (PONTOON_AFT + 0.8, PONTOON_HALF),
            (PONTOON_FORE - 0.8, PONTOON_HALF), (PONTOON_FORE, PONTOON_HALF - 0.8),
            (PONTOON_FORE, FORE_SLOT_HALF), (FORE_SLOT_END, FORE_SLOT_HALF), (FORE_SLOT_END, 0)]
    return half + [(x, -y) for x, y in half[-2:0:-1]]


def pontoon(drawing):
    """The pontoon on all six sides."""
    plan = pontoon_plan()
    drawing.face(TOP, lift(plan, 2, DECK))
    drawing.face(BOTTOM, lift(plan, 2, DRAUGHT))
    for sign in (1, -1):
        for x, slot in ((PONTOON_AFT + RAKE, AFT_SLOT_HALF), (PONTOON_FORE - RAKE, FORE_SLOT_HALF)):
            drawing.wire([(x, sign * slot, DRAUGHT), (x, sign * PONTOON_HALF, DRAUGHT)], (BOTTOM,))
        waterway = [(x, sign * 6.85, DECK) for x in (PONTOON_AFT + 0.8, PONTOON_FORE - 0.8)]
        drawing.wire(waterway, (TOP,))
    pontoon_profile(drawing)
    for side, tip, slot, end in ((FRONT, PONTOON_FORE, FORE_SLOT_HALF, FORE_SLOT_END),
                                 (REAR, PONTOON_AFT, AFT_SLOT_HALF, AFT_SLOT_END)):
        drawing.face(side, lift(rectangle(-slot, slot, DRAUGHT, DECK), 0, end))
        for sign in (1, -1):
            pontoon_end(drawing, side, tip, sign, slot)


def pontoon_profile(drawing):
    """Shell, strakes and rake knuckles as seen from the sides."""
    knuckle = 0.2
    shell = [(PONTOON_AFT, DECK), (PONTOON_AFT, -knuckle), (PONTOON_AFT + RAKE, DRAUGHT),
             (PONTOON_FORE - RAKE, DRAUGHT), (PONTOON_FORE, -knuckle), (PONTOON_FORE, DECK)]
    for side in PROFILES:
        place = PONTOON_HALF * SIDES[side][2][1]
        drawing.face(side, lift(shell, 1, place))
        for z in (DECK - 0.15, DECK - 0.40):
            drawing.wire([(PONTOON_AFT, place, z), (PONTOON_FORE, place, z)], (side,))
        for x in spread(-24.0, 13.0, 6):
            fender = rectangle(x - 0.2, x + 0.2, -0.30, DECK - 0.40)
            drawing.wire(lift(closed(fender), 1, place), (side,))


def pontoon_end(drawing, side, tip, sign, slot):
    """One leg of the pontoon seen from ahead or astern."""
    inner, outer = sign * slot, sign * PONTOON_HALF
    drawing.face(side, lift(rectangle(inner, outer, DRAUGHT, DECK), 0, tip))
    corner = sign * (PONTOON_HALF - 0.8)
    drawing.wire([(tip, corner, -0.2), (tip, corner, DECK)], (side,))
    for z in (DECK - 0.15, DECK - 0.40, -0.2):
        drawing.wire([(tip, inner, z), (tip, outer, z)], (side,))


def along_ladder(distance, offset=0.0, y=0.0):
    """A point given by its distance from the trunnion and height over the axis."""
    c, s = math.cos(LADDER_ANGLE), math.sin(LADDER_ANGLE)
    return (TRUNNION[0] + distance * c + offset * s, y, TRUNNION[2] - distance * s + offset * c)


def ladder(drawing):
    """The ladder with its bracing, suction pipe, cutter motor and bearing."""
    def shape(table):
        """Side shape from (distance, offset) pairs, as (x, z)."""
        return [along_ladder(*row)[::2] for row in table]

    beam = ((-0.6, -0.55), (0.0, -0.8), (25.6, -0.75), (27.0, -0.60), (27.0, 0.60), (25.6, 0.75),
            (12.0, 1.05), (0.0, 0.8), (-0.6, 0.55))
    drawing.prism("y", shape(beam), -1.6, 1.6)
    underside = [along_ladder(d, offset, y) for d, offset, y in
                 ((-0.6, -0.55, 1.6), (27.0, -0.60, 1.6), (27.0, -0.60, -1.6), (-0.6, -0.55, -1.6))]
    drawing.face(BOTTOM, underside, 11.5)
    motor = ((22.3, 0.80), (26.0, 0.75), (26.0, 1.75), (22.3, 1.80))
    drawing.prism("y", shape(motor), -0.8, 0.8)
    sheave = shape([(24.6 + 0.55 * math.cos(t), 0.55 * math.sin(t))
                    for t in spread(0, 2 * math.pi, 21)[:-1]])
    for sign in (1, -1):
        drawing.prism("y", sheave, *sorted((sign * 1.6, sign * 1.9)))
    drawing.tube(along_ladder(27.0), along_ladder(LADDER_LENGTH + 0.1), 0.75)
    pipe = along_ladder(5.0, 1.25)
    drawing.tube(pipe, along_ladder(22.3, 1.25), 0.33)
    drawing.tube((FORE_SLOT_END, 0.0, 0.4), pipe, 0.33)
    ladder_bracing(drawing)


def ladder_bracing(drawing):
    """Zigzag of the lattice on the ladder's flanks, deck and bottom."""
    marks = spread(1.0, 23.4, 17)
    for side, sign in ((LEFT, 1), (RIGHT, -1)):
        flank = [along_ladder(d, (-0.65, 0.7)[i % 2], sign * 1.6) for i, d in enumerate(marks)]
        drawing.wire(flank, (side,), 1.61)
    cross = [along_ladder(d, 0.0, (-1.5, 1.5)[i % 2]) for i, d in enumerate(marks)]
    drawing.wire(cross, (BOTTOM,), 12.0)


def cutter_point(distance, radius, turn):
    """A point on the cutter head's surface."""
    return along_ladder(LADDER_LENGTH + distance, radius * math.cos(turn), radius * math.sin(turn))


def cutter_radius(distance):
    """Radius of the cutter head: a slightly narrowed rear ring and a round crown."""
    if distance < 0.8:
        return 1.36 * (1 - 0.25 * ((0.8 - distance) / 0.8) ** 2)
    return 1.36 * math.sqrt(1 - ((distance - 0.8) / 1.95) ** 2)


def cutter_contour(distance, side, half):
    """One of the two points where a ring of the cutter meets its outline on a side."""
    radius = cutter_radius(distance)
    if side in PROFILES:
        return cutter_point(distance, radius, half * math.pi)
    slope = (cutter_radius(distance + 0.001) - cutter_radius(distance - 0.001)) / 0.002
    turn = math.acos(min(max(-slope * math.tan(LADDER_ANGLE), -1.0), 1.0))
    return cutter_point(distance, radius, -turn if half else turn)


def cutter(drawing):
    """The cutter head: silhouette and the visible part of its spiral blades."""
    marks = spread(0.0, CUTTER_LENGTH, 21)
    c, s = math.cos(LADDER_ANGLE), math.sin(LADDER_ANGLE)
    for side in PROFILES + PLANS:
        rim = [cutter_contour(d, side, 0) for d in marks]
        rim += [cutter_contour(d, side, 1) for d in marks[::-1]]
        drawing.face(side, rim, {TOP: -8.0, BOTTOM: 12.0}.get(side, 1.7))
    for side in ENDS:
        middle = along_ladder(LADDER_LENGTH + 0.8)
        drawing.face(side, lift(circle(0.0, middle[2], 1.36, 32), 0, middle[0]))
    for blade in range(6):
        spiral = [(d, blade * math.pi / 3 + 0.55 * d) for d in marks]
        for side in PROFILES + PLANS + (FRONT,):
            cutter_blade(drawing, side, spiral, c, s)


def cutter_blade(drawing, side, spiral, c, s):
    """The stretch of one blade that looks towards the observer."""
    near = SIDES[side][2]
    seen = []
    for distance, turn in spiral:
        normal = (s * math.cos(turn) + 0.5 * c * (distance - 0.8), math.sin(turn),
                  c * math.cos(turn) - 0.5 * s * (distance - 0.8))
        if dot(normal, near) > (0.3 if side == FRONT else 0.15):
            seen.append(cutter_point(distance, cutter_radius(distance), turn))
    if len(seen) > 2:
        depth = {TOP: -7.9, BOTTOM: 12.1, FRONT: 40.0}.get(side, 1.8)
        drawing.wire(seen, (side,), depth)


def draw_dredger():
    """The dredger's drawing."""
    drawing = Drawing()
    pontoon(drawing)
    ladder(drawing)
    cutter(drawing)
    cabin = [(-7.2, 7.8), (-2.4, 7.8), (-2.1, 8.5), (-1.8, 10.3), (-7.2, 10.3)]
    drawing.prism("y", cabin, -2.3, 2.3)
    boxes(drawing, DREDGER_BOXES)
    tubes(drawing, DREDGER_TUBES)
    posts(drawing, DREDGER_POSTS)
    for foot in DREDGER_ANTENNAS:
        antenna(drawing, *foot)
    for a, b in DREDGER_WIRES:
        for sign, side in ((1, LEFT), (-1, RIGHT)):
            drawing.wire([(x, sign * y, z) for x, y, z in (a, b)], (TOP, side) + ENDS)
    panes(drawing, DREDGER_PANES)
    side_rails(drawing, DREDGER_SIDE_RAILS)
    cross_rails(drawing, DREDGER_CROSS_RAILS)
    cross_mark(drawing, -13.0, -5.9, DRAUGHT - 0.02, 0.5)
    waterline(drawing, -30.0, 30.0, PONTOON_HALF)
    return drawing


# --------------------------------------------------------------------------
# Writing
# --------------------------------------------------------------------------

def number(value):
    """Three decimals, never a negative zero."""
    text = f"{value:.3f}"
    return "0.000" if text == "-0.000" else text


def escaped(text):
    """Text for XML in plain ASCII."""
    names = {"&": "&amp;", "<": "&lt;", ">": "&gt;", '"': "&quot;", "'": "&apos;"}
    return "".join(names.get(c, c if ord(c) < 128 else f"&#x{ord(c):X};") for c in text)


def point_tag(name, x, y):
    """An empty element with the three coordinates."""
    return f'<{name} x="{number(x)}" y="{number(y)}" z="0.000" />'


def written_lines(lines):
    """Lines in written form: no vertex and no line twice."""
    result, known = [], set()
    for line in lines:
        tags = []
        for x, y in line:
            tag = point_tag("vertex", x, y)
            if not tags or tags[-1] != tag:
                tags.append(tag)
        if len(tags) > 1 and not known & {tuple(tags), tuple(tags[::-1])}:
            known.add(tuple(tags))
            result.append(tags)
    return result


def shapes_text(side, lines):
    """The rows of one side."""
    rows = [f' <shapes view="{side}" >']
    for tags in written_lines(lines):
        rows += ["  <polyline>"] + [f"   {tag}" for tag in tags] + ["  </polyline>"]
    return rows + [" </shapes>"]


def anchors_text(anchors):
    """The rows of the anchor list."""
    rows = [" <anchors>"]
    for i, (name, x, y) in enumerate(anchors, 1):
        rows += ["  <anchor>",
                 f"   <id>{i}</id>",
                 f"   <name>{escaped(name)}</name>",
                 f"   <attachmentX>{number(x)}</attachmentX>",
                 f"   <attachmentY>{number(y)}</attachmentY>",
                 "  </anchor>"]
    return rows + [" </anchors>"]


def vessel_text(drawing, offsets, anchors):
    """The whole design file."""
    rows = ['<?xml version="1.0" encoding="UTF-8" ?>', "<vessel>", f' <units id="{UNIT_METRE}" />']
    for side in SIDES:
        rows += shapes_text(side, drawing.paint(side))
    rows += [" " + point_tag(name, x, y) for name, x, y in offsets]
    rows += anchors_text(anchors) + ["</vessel>"]
    return "\n".join(rows) + "\n"


def main():
    """Writes the three samples beside this file; with --check only reports whether they are up to date."""
    check = "--check" in sys.argv[1:]
    vessels = (
        # file, drawing, antenna, transducer and pivot offsets, anchors
        ("workboat.xml", draw_workboat(),
         (("gps", 1.2, 0.0), ("txd", -3.4, 0.0), ("piv", 5.5, 0.0)), workboat_anchors()),
        ("catamaran.xml", draw_catamaran(),
         (("gps", -1.4, 0.0), ("txd", -5.0, 0.0), ("piv", 2.0, 0.0)), CATAMARAN_ANCHORS),
        ("dredger.xml", draw_dredger(),
         (("gps", -7.0, 0.0), ("txd", -13.0, -5.9), ("piv", *TRUNNION[:2])), DREDGER_ANCHORS),
    )
    for name, drawing, offsets, anchors in vessels:
        text = vessel_text(drawing, offsets, anchors)
        file = Path(__file__).with_name(name)
        if not check:
            file.write_bytes(text.encode("ascii"))
        elif file.read_bytes() != text.encode("ascii"):
            sys.exit(f"{name} is not what this script draws")


if __name__ == "__main__":
    main()

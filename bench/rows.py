"""The rows of the table: what is measured, against what, and the figure that it must reach."""

import dataclasses
import statistics

FASTER = "times as fast"  # the peer's time over ours: at least the figure
SLOWER = "times its time"  # our time over the peer's: at most the figure
ALIKE_COUNTERS = {"ink", "shapes"}  # what shows that both sides did the same work
ALIKE = 1.4  # how far it may differ: inserted blocks are one shape or several, hairlines have several ways to be painted
SIZE = "size"  # our value alone: at most the figure


class WrongResult(Exception):
    """A program has not done its work."""


@dataclasses.dataclass(frozen=True)
class Row:
    """Work of ours against that of a peer; `ours` and `theirs` name measurements."""

    work: str
    ours: str
    theirs: str
    peer: str
    kind: str
    wanted: float | None
    unit: str = "ms"
    counter: str = ""  # what the program counted, in the place of the time


ROWS = [
    Row("import 20 MB mix", "import/mix/ours", "import/mix/gdal", "GDAL", FASTER, 5.0),
    Row("import 20 MB mix", "import/mix/ours", "import/mix/dxflib", "dxflib", FASTER, 10.0),
    Row("import 20 MB mix, 10 % bulges", "import/bulges/ours", "import/bulges/gdal", "GDAL", FASTER, 2.2),
    Row("import the ten largest drawings", "import/largest/ours", "import/largest/gdal", "GDAL", FASTER, 5.0),
    Row("import 1 MB of arcs", "import/arcs/ours", "import/arcs/gdal", "GDAL", FASTER, 1.2),
    Row("import 10 MB of MTEXT", "import/mtext/ours", "import/mtext/gdal", "GDAL", FASTER, 3.0),
    Row("open a 20 MB design", "open/design/ours", "open/design/expat", "Expat", SLOWER, 1.3),
    Row("open a 20 MB design", "open/design/ours", "open/design/pugixml", "pugixml (a tree)", SLOWER, None),
    Row("save it", "save/design/ours", "save/design/fprintf", "fprintf", FASTER, 12.0),
    *(Row(f"frame of {what}, width {width}", f"frame/{name}-{width}/ours", f"frame/{name}-{width}/qpainter", "drawPolyline",
          FASTER, figure)
      for name, what, figures in (("window", "100,000 vertices", (2.0, 10.0)),
                                  ("outside", "1 million vertices, 99 % outside", (3.0, 50.0)),
                                  ("zoomed-out", "1 million vertices, zoomed out", (2.5, 15.0)))
      for width, figure in zip((1, 2), figures)),
    Row("drag a vertex of 100,000", "drag/window-1/ours", "frame/window-1/qpainter", "a drawPolyline frame", FASTER, 2.0),
    Row("wheel, a notch out and in", "wheel/window-1/ours", "wheel/window-1/qpainter", "two drawPolyline frames", FASTER,
        2.0),
    Row("hover over 1 million vertices", "hover/outside/ours", "hover/outside/pass", "one pass over them", SLOWER, 1.5),
    Row("tree of 50,000 polylines", "tree/polylines/ours", "tree/polylines/qtreewidget", "QTreeWidget", FASTER, 200.0),
    Row("start to the first frame", "start/ours", "start/minimal", "a minimal Qt window", SLOWER, 1.5),
    Row("start until nothing is left to do", "rest/ours", "rest/minimal", "a minimal Qt window", SLOWER, None),
    Row("peak memory at the first frame", "peak/ours", "peak/minimal", "a minimal Qt window", SIZE, 45.0, "MB"),
    Row("memory of a vertex of a loaded design", "memory/vertex/ours", "", "", SIZE, 68.0, "bytes", counter="bytes_a_vertex"),
    Row("peak memory of hullwright-cli import, 20 MB mix", "memory/import/ours", "", "size of the drawing", SIZE, 5.0,
        "times"),
    Row("hullwright-cli render, 20 MB mix", "render/mix/ours", "render/mix/gdal", "gdal_rasterize", FASTER, 1.0),
]


@dataclasses.dataclass(frozen=True)
class Growth:
    """The same work at 1, 10 and 100 times the size; `amount` is the counter that states how much it was."""

    work: str
    names: tuple
    amount: str


GROWTH = [
    Growth("import", ("import/mix-100th/ours", "import/mix-10th/ours", "import/mix/ours"), "bytes"),
    Growth("open", ("open/design-100th/ours", "open/design-10th/ours", "open/design/ours"), "bytes"),
    Growth("save", ("save/design-100th/ours", "save/design-10th/ours", "save/design/ours"), "bytes"),
    Growth("frame", ("frame/few-1/ours", "frame/window-1/ours", "frame/crowd-1/ours"), "polylines"),
    Growth("tree", ("tree/polylines-100th/ours", "tree/polylines-10th/ours", "tree/polylines/ours"), "polylines"),
]

LINEAR = 1.2  # cost for each unit of work, at most so many times that of the smaller sizes


@dataclasses.dataclass
class Measurement:
    """The values of all repetitions, and what the program counted."""

    values: list
    counters: dict

    def median(self):
        """The value that stands in the table."""
        return statistics.median(self.values)

    def noise(self):
        """Half the range between the quartiles, as part of the median."""
        if len(self.values) < 3:
            return 0.0
        low, _, high = statistics.quantiles(self.values, n=4)
        return (high - low) / 2.0 / self.median()


def cells(row, measured):
    """The cells of a row; None where it was not measured. The last one states whether the figure is reached."""
    ours, theirs = measured.get(row.ours), measured.get(row.theirs)
    if ours is None or (theirs is None and row.kind != SIZE):
        return None
    if row.counter:
        ours = Measurement([ours.counters[row.counter]], {})
    check_alike(row, ours, theirs)
    noise = max(side.noise() for side in (ours, theirs) if side is not None)
    if row.kind == SIZE:
        value, shown = ours.median(), "%.1f"
        met = row.wanted is None or value <= row.wanted
    else:
        quotient = ours.median() / theirs.median()
        value = 1.0 / quotient if row.kind == FASTER else quotient
        met = row.wanted is None or (value >= row.wanted if row.kind == FASTER else value <= row.wanted)
        shown = "%.2fx" if row.kind == FASTER else "%.2fx its time"
    wanted = "" if row.wanted is None else ("at least " if row.kind == FASTER else "at most ") + f"{row.wanted:g}"
    return [row.work, row.peer, number(ours, row.unit), number(theirs, row.unit), shown % value,
            f"{100.0 * noise:.0f} %", wanted, "" if not wanted else "yes" if met else "no"]


def check_alike(row, ours, theirs):
    """Both sides must have done about the same work where they tell."""
    if theirs is None:
        return
    for counter in ALIKE_COUNTERS & ours.counters.keys() & theirs.counters.keys():
        quotient = ours.counters[counter] / theirs.counters[counter]
        if not 1.0 / ALIKE <= quotient <= ALIKE:
            raise WrongResult(f"{row.work}: {counter} is {quotient:.2f} times that of {row.peer}")


def number(measurement, unit):
    """A median with its unit."""
    return "" if measurement is None else f"{measurement.median():.4g} {unit}"


def growth_cells(growth, measured):
    """The cells of a row of growth: the cost for each unit of work at 10 and at 100 times the size, over the costs before."""
    if any(name not in measured for name in growth.names):
        return None
    costs = [measured[name].median() / measured[name].counters[growth.amount] for name in growth.names]
    ten, hundred = costs[1] / costs[0], costs[2] / min(costs[:2])
    noise = max(measured[name].noise() for name in growth.names)
    return [growth.work, *(f"{measured[name].median():.4g} ms" for name in growth.names), f"{ten:.2f}", f"{hundred:.2f}",
            f"{100.0 * noise:.0f} %", "yes" if max(ten, hundred) <= LINEAR else "no"]

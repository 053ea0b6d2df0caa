"""Measures whole processes that need no display."""

import pathlib
import shutil
import tempfile

from measure import Measurement, WrongResult, process_cost, surroundings


def measure_render(programs, inputs, repetitions):
    """Pictures of a drawing, by our command line and by gdal_rasterize, in turn. Milliseconds of CPU."""
    measured = {name: Measurement([], {}) for name in ("render/mix/ours", "render/mix/gdal")}
    with tempfile.TemporaryDirectory() as home:
        pictures = {name: pathlib.Path(home, name.replace("/", "-") + ending)
                    for name, ending in zip(measured, (".png", ".tif"))}
        drawing = inputs / "mix.dxf"
        commands = {
            "render/mix/ours": [programs / "hullwright-cli", "render", drawing, "--grid", "off", "-o"],
            "render/mix/gdal": ["gdal_rasterize", "-q", "-burn", "0", "-init", "255", "-ot", "Byte", "-ts", "1600", "1000",
                                "-l", "entities", drawing],
        }
        if not shutil.which("gdal_rasterize"):
            del commands["render/mix/gdal"], measured["render/mix/gdal"]
        first = {}
        for _ in range(repetitions):
            for name, command in commands.items():
                pictures[name].unlink(missing_ok=True)  # gdal_rasterize would draw on the old one
                measured[name].values.append(process_cost([*command, pictures[name]], surroundings(home))[0])
                if first.setdefault(name, pictures[name].read_bytes()) != pictures[name].read_bytes():
                    raise WrongResult(f"{name}: another picture than at first")
    return measured


def measure_import_memory(programs, inputs, repetitions):
    """Peak memory of an import by the command line, in sizes of the drawing."""
    drawing = inputs / "mix.dxf"
    values = []
    with tempfile.TemporaryDirectory() as home:
        out = pathlib.Path(home, "out.xml")
        for _ in range(repetitions):
            _, peak = process_cost([programs / "hullwright-cli", "import", drawing, "-o", out], surroundings(home))
            values.append(peak / drawing.stat().st_size)
            if out.stat().st_size == 0:
                raise WrongResult("the import wrote nothing")
    return {"memory/import/ours": Measurement(values, {})}

"""Pictures of the real program in a real window, which the scripts that take them drive by mouse and keys."""

import pathlib
import shutil

TOP = pathlib.Path(__file__).resolve().parents[2]
TITLE_BAR, FRAME = 20, 1  # what the window manager adds to a window, in pixels

# Menus of the bar by how often the left key is pressed from "File", and their entries from below.
MODIFY = (4, ("Offsets", "Move", "Scale", "Rotate Left", "Rotate Right", "Mirror Horizontally", "Mirror Vertically"))
OPTIONS = (3, ("Units", "Grid"))
CURSOR = (2, ("Draw Polyline",))
HELP = (1, ("Help", "About"))


class Photographer:
    """A desk with the program on it."""

    def __init__(self, desk, program, folder):
        self.desk = desk
        self.folder = folder  # where the pictures go
        self.zoom = 200.0
        self._program = program

    def start(self, sample=None, width=1000, height=640, settings="", **environment):
        """Starts the program anew, with a copy of a sample and a file of settings, in a window of a size."""
        self.desk.clear()
        if settings:
            file = self.desk.folder / "config/Quillmere/Hullwright.ini"
            file.parent.mkdir(parents=True)
            file.write_text(settings)
        design = ()
        if sample:
            design = (self.desk.folder / sample,)
            shutil.copy(TOP / "samples" / sample, design[0])
        self.desk.start(self._program, *design, **environment)
        self.desk.resize(width, height)
        self.paper = self.desk.screen().paper()
        self.zoom = 200.0

    def pixel(self, x, y):
        """Where a point of the world is on the screen."""
        left, top, width, height = self.paper
        scale = width / self.zoom
        return round(left + width / 2 + x * scale), round(top + height / 2 - y * scale)

    def zoom_in(self, steps, button=4):
        """Turns the wheel over the middle of the view."""
        for _ in range(abs(steps)):
            self.desk.click(*self.pixel(0, 0), button=button)
            self.zoom *= 0.75 if button == 4 else 4 / 3
        self.desk.settle()

    def choose(self, menu, entry):
        """Runs a menu's entry by the keyboard."""
        lefts, entries = menu
        self.desk.keys("alt+f", *["Left"] * lefts, *["Up"] * (entries.index(entry) + 1), "Return")
        self.desk.settle()

    def draw(self, *vertices, finish=True):
        """Draws a polyline with the mouse."""
        self.choose(CURSOR, "Draw Polyline")
        for x, y in vertices:
            self.desk.click(*self.pixel(x, y))
        if finish:
            self.desk.click(*self.pixel(*vertices[-1]), button=3)
        self.desk.settle()

    def area_of(self, window):
        """A window's place and size with what the window manager adds."""
        text = self.desk.run("xdotool", "getwindowgeometry", "--shell", window)
        place = dict(line.split("=") for line in text.split())
        x, y, width, height = (int(place[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))
        # xdotool counts what is added twice.
        return x - 2 * FRAME, y - 2 * TITLE_BAR, width + 2 * FRAME, height + TITLE_BAR + FRAME

    def shot(self, name, area):
        """Takes a picture of an area of the screen, in few colours, which is small."""
        x, y, width, height = area
        x, y = max(x, 0), max(y, 0)
        self.desk.run("import", "-window", "root", "-crop", f"{width}x{height}+{x}+{y}", "+repage", "+dither", "-colors", 128,
                       "-strip", "-define", "png:exclude-chunks=date,time", f"png8:{self.folder / name}.png")

    def window(self, name):
        """Takes a picture of the program's window."""
        self.desk.settle()
        self.shot(name, self.area_of(self.desk.window))

    def dialog(self, name, title, answer="Escape"):
        """Takes a picture of a dialog and closes it by a key."""
        self.desk.dialog(title)
        self.shot(name, self.area_of(self.desk.find(f"^{title}$", only_visible=True)[-1]))
        self.desk.keys(answer)
        self.desk.settle()

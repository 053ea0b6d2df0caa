"""What a monkey does next: steps at random that suit what it sees. They depend on nothing but the seed and what was
seen, and none on how fast the program is: a timer of the toolkit is waited for, or kept from being started."""

import random

from hands import LEFT, RIGHT, WHEEL_DOWN, WHEEL_UP
from monkey_player import CHECKPOINT, HEIGHT, WIDTH

APART = 20          # pixels between two clicks, which otherwise would be a double click if the program is fast
ANIMATED = 0.15     # seconds; a button that is pressed by its letter takes 0.1
DOCKED = 0.3        # seconds; a toolbar takes 0.2 to find its place
FILE_DIALOGS = ("Open Design", "Save Design As", "Import DXF File")
LISTS = ("Switch Units", "Customize Toolbars")  # there typing is a search, which begins anew after a while
BESIDES = ("Guide", "Object View")  # windows that leave the main one free
MENUS = "fvemoch"   # letters of the menus
DESIGNS = ("workboat.xml", "dredger.xml", "catamaran.xml", "far.xml", "cut.xml", "empty.xml", "missing.xml",
           "a.xml", "b c.xml", "workboat-r12.dxf", CHECKPOINT)
DRAWINGS = ("workboat-r12.dxf", "workboat-r2000.dxf", "workboat-r2010.dxf", "workboat-r2018.dxf", "arc.dxf", "none.dxf",
            "missing.dxf", "workboat.xml")
TARGETS = ("a.xml", "b c.xml", "d", "\u00e4 <&>.xml", CHECKPOINT)
WORDS = ("", "0", "1.5", "-2.25", "1,5", "abc", "1e3", "0x10", " 7", "90", "45.5", "1.15", "nan", "1e400", "-0", "inf",
         "0.001", "-1e300", "9" * 40)
# What can be pressed anywhere. None of these can remove a file in a dialog that lists some.
KEYS = ("ctrl+n", "ctrl+s", "ctrl+z", "ctrl+c", "ctrl+x", "ctrl+v", "ctrl+o", "ctrl+p", "F6", "shift+F6", "Tab",
        "shift+Tab", "Tab", "Up", "Down", "Left", "Right", "Home", "End", "Next", "Prior", "Return", "space", "Escape",
        "Menu", "F1", "plus", "minus")
SCROLLS = ("Next", "Prior", "Tab", "Return", "alt+Left", "alt+Right", "alt+Home", "Down", "Escape")


class Monkey:
    """Yields steps for one seed."""

    def __init__(self, seed):
        self._random = random.Random(seed)
        self._last_click = None

    def _any(self, values):
        return values[self._random.randrange(len(values))]

    def _chance(self, parts):
        return self._random.randrange(parts) == 0

    def moves(self, scene):
        """The steps of one move, for what is seen. Only the last one may open a dialog."""
        title, box, menu = scene
        if not title:
            return self._start()
        if menu:
            return self._in_menu()
        if title == "main":
            return self._in_window()
        if box and title in (*FILE_DIALOGS, "Hullwright"):
            return self._answer()
        if title in FILE_DIALOGS:
            return self._name(title)
        if title in BESIDES:
            return self._beside(title)
        return self._in_dialog(title)

    def _start(self):
        yield ["start", *([] if self._chance(2) else [self._any(("workboat.xml", "dredger.xml", "far.xml"))])]

    # The main window.

    def _in_window(self):
        moves = ((12, self._wander), (14, self._click), (8, self._drag), (8, self._wheel), (5, self._offer),
                 (10, self._press_key), (10, self._open_menu), (8, self._run_entry), (1, self._double),
                 (1, self._resize), (4, self._click_bar), (5, self._click_tree), (1, self._drag_anywhere),
                 (2, self._begin_again))
        weights, makers = zip(*moves)
        return self._random.choices(makers, weights)[0]()

    def _place(self, left=0.0, top=0.0, right=1.0, bottom=1.0):
        """A place in a part of the screen that is not that of the last click."""
        while True:
            x = round(WIDTH * self._random.uniform(left, right))
            y = round(HEIGHT * self._random.uniform(top, bottom))
            if self._last_click is None or max(abs(x - self._last_click[0]), abs(y - self._last_click[1])) > APART:
                return x, y

    def _view(self):
        """A place in the view; half of them near its middle, where the devices are at first."""
        reach = self._any((0.05, 0.3))
        return self._place(0.56 - reach, 0.5 - reach, 0.56 + reach, 0.5 + reach)

    def _clicked(self, place):
        self._last_click = place
        return ["move", *place]

    def _wander(self):
        for _ in range(self._random.randrange(1, 6)):
            yield ["move", *self._view()]

    def _click(self):
        yield self._clicked(self._view())
        yield ["click", LEFT]

    def _double(self):
        yield self._clicked(self._view())
        yield ["double"]

    def _drag(self):
        yield self._clicked(self._view())
        yield ["press", LEFT]
        for _ in range(self._random.randrange(1, 5)):
            self._last_click = self._view()
            yield ["move", *self._last_click]
        yield ["release", LEFT]

    def _drag_anywhere(self):
        yield self._clicked(self._place())
        yield ["press", LEFT]
        yield ["move", *self._place()]
        yield self._clicked(self._place())
        yield ["release", LEFT]
        yield ["pause", DOCKED]

    def _wheel(self):
        yield ["move", *self._view()]
        button = self._any((WHEEL_UP, WHEEL_DOWN, WHEEL_DOWN))
        for _ in range(self._any((1, 1, 2, 5, 5, 12))):
            yield ["click", button]

    def _offer(self):
        yield self._clicked(self._view())
        yield ["click", RIGHT]

    def _click_bar(self):
        """The toolbars, the menu bar, or the status bar."""
        yield self._clicked(self._place(bottom=0.1) if self._chance(4) is False else self._place(top=0.92))
        yield ["click", self._any((LEFT, LEFT, LEFT, RIGHT))]

    def _click_tree(self):
        yield self._clicked(self._place(right=0.18, top=0.08, bottom=0.5))
        yield ["double"] if self._chance(6) else ["click", self._any((LEFT, LEFT, RIGHT))]

    def _press_key(self):
        yield ["key", self._any(KEYS)]

    def _open_menu(self):
        yield ["key", "alt+" + self._any(MENUS)]

    def _run_entry(self):
        """A menu of the bar and one of its entries. The mouse would choose one where it lies."""
        yield ["move", WIDTH - 5, HEIGHT - 5]
        yield ["key", "alt+f"]
        for _ in range(self._random.randrange(7)):
            yield ["key", "Right"]
        for _ in range(self._random.randrange(8)):
            yield ["key", "Down"]
        yield ["key", "Return"]

    def _resize(self):
        yield ["resize", self._any((200, 700, 1045, WIDTH, 3000)), self._any((100, 500, 760, HEIGHT, 2000))]
        yield ["resize", self._any((1045, WIDTH)), self._any((760, HEIGHT))]

    def _begin_again(self):
        yield ["close"] if self._chance(20) else ["key", "ctrl+n"]

    # What else can be seen.

    def _in_menu(self):
        for _ in range(self._random.randrange(6)):
            yield ["key", self._any(("Down", "Down", "Up", "Right", "Left"))]
        yield ["key", self._any(("Return", "Return", "Escape"))]

    def _answer(self):
        key = self._any(("Return", "Escape", "Tab", "alt+y", "alt+n", "alt+n", "space"))
        yield ["key", key]
        if key.startswith("alt+"):
            yield ["pause", ANIMATED]

    def _name(self, title):
        """Names a file, or gives up. With a whole path, the dialog may choose a folder instead for a slow disk."""
        if self._chance(3):
            yield ["key", "Escape"]
        else:
            names = {"Open Design": DESIGNS, "Save Design As": TARGETS, "Import DXF File": DRAWINGS}[title]
            yield ["key", "ctrl+a"]
            yield ["type", self._any(names)]
            yield ["key", "Return"]

    def _beside(self, title):
        yield ["key", self._any(SCROLLS)]
        if self._chance(4):
            yield from self._leave(title)

    def _leave(self, title):
        """Leaves a window that may stay; the guide stays at times, and comes back with its key."""
        if title == "Guide" and self._chance(2):
            yield ["close"]
        else:
            yield ["focus"]

    def _in_dialog(self, title):
        for _ in range(self._random.randrange(5)):
            if title not in LISTS and self._chance(2):
                yield ["key", "ctrl+a"]
                yield ["type", self._any(WORDS)]
            yield ["key", self._any(("Tab", "Tab", "shift+Tab", "space", "Up", "Down", "Home", "End"))]
        yield ["key", self._any(("Return", "Return", "Return", "Escape"))]

    # Checkpoints.

    def escape(self, scene):
        """Steps that lead out of what is seen; again and again they lead to the main window."""
        title, _, menu = scene
        if not title:
            return [["start"]]
        if title in BESIDES and not menu:
            return list(self._leave(title))
        return [["key", "Escape"]]

    def save(self):
        """Saves the design under the name of the checkpoint, from the main window."""
        yield ["move", WIDTH - 5, HEIGHT - 5]
        yield ["forget"]
        yield ["key", "alt+f"]
        yield ["key", "a"]
        yield ["key", "ctrl+a"]
        yield ["type", CHECKPOINT]
        yield ["key", "Return"]

    def begin(self):
        """Begins a new design, from the main window; the one of before has just been saved."""
        yield ["key", "ctrl+n"]

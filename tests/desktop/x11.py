"""The few calls of the display's own libraries that the fast hands need. The libraries come with xdotool."""

import ctypes
from ctypes import POINTER, byref, c_char, c_int, c_long, c_uint, c_ulong, c_void_p

# Of the display's protocol.
DESTROYED, UNMAPPED, MAPPED, MAP_REQUEST, CONFIGURE_REQUEST, CLIENT_MESSAGE = 17, 18, 19, 20, 23, 33
SUBSTRUCTURE_NOTIFY, SUBSTRUCTURE_REDIRECT = 1 << 19, 1 << 20
ABOVE = 0                # all other windows
FALL_BACK_TO_ROOT = 1    # the keys, when the window that has them goes
NUMBERS = 32             # a property of numbers
LONGEST_PROPERTY = 4096  # in units of four bytes

# Names of keys that are characters of their own in a text.
SYMBOLS = {" ": "space", "/": "slash", ".": "period", "-": "minus", "_": "underscore", ",": "comma", ":": "colon",
           "+": "plus", "&": "ampersand", "<": "less", ">": "greater", "'": "apostrophe", '"': "quotedbl",
           "\u00e4": "adiaeresis", "#": "numbersign"}


class Message(ctypes.Structure):
    """A message of one client to another."""
    _fields_ = [("type", c_int), ("serial", c_ulong), ("sent", c_int), ("display", c_void_p), ("window", c_ulong),
                ("kind", c_ulong), ("format", c_int), ("data", c_long * 5)]


class AboutWindow(ctypes.Structure):
    """Something has happened to a window, or is asked for."""
    _fields_ = [("type", c_int), ("serial", c_ulong), ("sent", c_int), ("display", c_void_p), ("parent", c_ulong),
                ("window", c_ulong)]


class Mapped(ctypes.Structure):
    """A window is shown; no window manager was asked for one that is unmanaged."""
    _fields_ = [*AboutWindow._fields_, ("unmanaged", c_int)]


class Changes(ctypes.Structure):
    """The place, size and height above others of a window."""
    _fields_ = [("x", c_int), ("y", c_int), ("width", c_int), ("height", c_int), ("border", c_int),
                ("sibling", c_ulong), ("stack", c_int)]


class ConfigureRequest(ctypes.Structure):
    """A window asks for another place or size."""
    _fields_ = [*AboutWindow._fields_, ("x", c_int), ("y", c_int), ("width", c_int), ("height", c_int),
                ("border", c_int), ("sibling", c_ulong), ("stack", c_int), ("mask", c_ulong)]


class Event(ctypes.Union):
    """Any event of the display."""
    _fields_ = [("type", c_int), ("message", Message), ("about", AboutWindow), ("mapped", Mapped), ("wish", ConfigureRequest),
                ("room", c_long * 24)]

    def is_message(self, kind, window):
        """Whether this is a message of a kind to a window."""
        return self.type == CLIENT_MESSAGE and self.message.kind == kind and self.message.window == window

    def data(self, index):
        """A number of a message."""
        return self.message.data[index]


class Attributes(ctypes.Structure):
    """What the display knows of a window."""
    _fields_ = [("x", c_int), ("y", c_int), ("width", c_int), ("height", c_int), ("border", c_int),
                ("depth", c_int), ("visual", c_void_p), ("root", c_ulong), ("kind", c_int), ("bit_gravity", c_int),
                ("gravity", c_int), ("backing", c_int), ("planes", c_ulong), ("pixel", c_ulong), ("under", c_int),
                ("colours", c_ulong), ("installed", c_int), ("state", c_int), ("all_events", c_long),
                ("own_events", c_long), ("not_passed_on", c_long), ("unmanaged", c_int), ("screen", c_void_p)]


# What the calls return and take, where that is no int.
RETURNED = {"XOpenDisplay": c_void_p, "XDefaultRootWindow": c_ulong, "XInternAtom": c_ulong,
            "XStringToKeysym": c_ulong, "XkbKeycodeToKeysym": c_ulong}
ERROR_HANDLER = ctypes.CFUNCTYPE(c_int, c_void_p, c_void_p)


def client_message(window, kind, data):
    """A message about a window."""
    event = Event()
    message = event.message
    message.type, message.window, message.kind, message.format = CLIENT_MESSAGE, window, kind, NUMBERS
    for i, value in enumerate(data):
        message.data[i] = value
    return event


class Atoms(dict):
    """The numbers of names."""

    def __init__(self, library):
        super().__init__()
        self._library = library

    def __missing__(self, name):
        self[name] = self._library.atom(name)
        return self[name]


class Library:
    """One connection to a display."""

    def __init__(self, display):
        self._x, self._test = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXtst.so.6")
        for name, kind in RETURNED.items():
            getattr(self._x, name).restype = kind
        # Windows go while they are asked about, which would end this process.
        self._handler = ERROR_HANDLER(lambda display, error: 0)
        self._x.XSetErrorHandler(self._handler)
        self._display = c_void_p(self._x.XOpenDisplay(display.encode()))
        if not self._display:
            raise OSError(f"no display {display}")
        self.root = self._x.XDefaultRootWindow(self._display)
        self._x.XSelectInput(self._display, c_ulong(self.root), c_long(SUBSTRUCTURE_NOTIFY | SUBSTRUCTURE_REDIRECT))
        self.descriptor = self._x.XConnectionNumber(self._display)
        self._number = 0

    def close(self):
        """Ends the connection."""
        self._x.XCloseDisplay(self._display)

    def next_number(self):
        """A number that was not used before."""
        self._number += 1
        return self._number

    def atom(self, name):
        """The number of a name."""
        return self._x.XInternAtom(self._display, name.encode(), 0)

    # Events out.

    def motion(self, x, y):
        """Moves the mouse."""
        self._test.XTestFakeMotionEvent(self._display, -1, int(x), int(y), c_ulong(0))

    def button(self, button, down):
        """Presses or releases a button of the mouse."""
        self._test.XTestFakeButtonEvent(self._display, c_uint(button), int(down), c_ulong(0))

    def key(self, code, down):
        """Presses or releases a key."""
        self._test.XTestFakeKeyEvent(self._display, c_uint(code), int(down), c_ulong(0))

    def send(self, window, event):
        """Sends a message to whoever has made a window."""
        self._x.XSendEvent(self._display, c_ulong(window), 0, c_long(0), byref(event))

    def find_key(self, name, levels):
        """The code of the key that has a symbol, and what of `levels` it is pressed with."""
        symbol = self._x.XStringToKeysym(SYMBOLS.get(name, name).encode())
        code = self._x.XKeysymToKeycode(self._display, c_ulong(symbol)) & 0xff
        for level, modifiers in enumerate(levels):
            if code and self._x.XkbKeycodeToKeysym(self._display, code, 0, level) == symbol:
                return code, modifiers
        raise ValueError(f"no key gives {name!r}")

    # Events in.

    def pending(self):
        """How many events wait; sends what was asked for."""
        return self._x.XPending(self._display)

    def next_event(self):
        """The next event."""
        event = Event()
        self._x.XNextEvent(self._display, byref(event))
        return event

    # What a window manager does.

    def map(self, window):
        """Shows a window."""
        self._x.XMapRaised(self._display, c_ulong(window))

    def focus(self, window):
        """Gives a window the keys, above all others."""
        self._x.XRaiseWindow(self._display, c_ulong(window))
        self._x.XSetInputFocus(self._display, c_ulong(window), FALL_BACK_TO_ROOT, c_ulong(0))

    def focused(self):
        """The window that has the keys; the root, or a number that is none, without one."""
        window, fall_back = c_ulong(), c_int()
        self._x.XGetInputFocus(self._display, byref(window), byref(fall_back))
        return window.value

    def grant(self, wish):
        """Gives a window the place and size that it asks for."""
        changes = Changes(wish.x, wish.y, wish.width, wish.height, wish.border, wish.sibling, wish.stack)
        self._x.XConfigureWindow(self._display, c_ulong(wish.window), c_uint(wish.mask), byref(changes))

    def resize(self, window, width, height):
        """Gives a window a size."""
        self._x.XResizeWindow(self._display, c_ulong(window), c_uint(width), c_uint(height))

    def set_numbers(self, window, atom, kind, numbers):
        """Sets a property."""
        values = (c_ulong * len(numbers))(*numbers)
        self._x.XChangeProperty(self._display, c_ulong(window), c_ulong(atom), c_ulong(kind), NUMBERS, 0, values,
                                len(numbers))

    # Windows.

    def _property(self, window, atom, kind):
        """The bytes of a property in units of its format, with their number; ended by the caller with XFree."""
        found, form, count, left, data = c_ulong(), c_int(), c_ulong(), c_ulong(), c_void_p()
        self._x.XGetWindowProperty(self._display, c_ulong(window), c_ulong(atom), c_long(0),
                                   c_long(LONGEST_PROPERTY), 0, c_ulong(kind), byref(found), byref(form),
                                   byref(count), byref(left), byref(data))
        return data, count.value if data else 0

    def number_properties(self, window, atom):
        """The numbers of a property."""
        data, count = self._property(window, atom, 0)
        if not data:
            return []
        numbers = list(ctypes.cast(data, POINTER(c_ulong))[:count])
        self._x.XFree(data)
        return numbers

    def text_property(self, window, atom, kind):
        """The text of a property; empty where there is none."""
        data, count = self._property(window, atom, kind)
        if not data:
            return ""
        text = ctypes.string_at(data, count).decode(errors="replace")
        self._x.XFree(data)
        return text

    def _attributes(self, window):
        attributes = Attributes()
        known = self._x.XGetWindowAttributes(self._display, c_ulong(window), byref(attributes))
        return attributes if known else None

    def place(self, window):
        """A window's place on the screen and its size; None where it has gone."""
        look = self._attributes(window)
        if look is None:
            return None
        left, top, child = c_int(), c_int(), c_ulong()
        self._x.XTranslateCoordinates(self._display, c_ulong(window), c_ulong(self.root), 0, 0, byref(left),
                                      byref(top), byref(child))
        return left.value, top.value, look.width, look.height

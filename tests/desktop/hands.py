"""Hands that are faster than a tool for each event: the mouse and the keys over one connection to the display,
and the question whether the program has dealt with what was sent."""

import select
import time

import x11

PATIENCE = 60      # seconds that an answer may take
LOOK = 0.2         # seconds between two looks at whether the program still runs
LEFT, MIDDLE, RIGHT, WHEEL_UP, WHEEL_DOWN = 1, 2, 3, 4, 5
MODIFIERS = {"ctrl": "Control_L", "shift": "Shift_L", "alt": "Alt_L", "level3": "ISO_Level3_Shift"}
LEVELS = ((), ("shift",), ("level3",))  # what a key is pressed with to give its first, second and third symbol


class NoAnswer(AssertionError):
    """The program has ended, or has not answered in time."""


class Hands:
    """Mouse and keys of one display, and its window manager: only that one sees what programs answer to it, and
    none but these hands is between an event and the program. The newest window has the keys."""

    def __init__(self, display):
        self._x = x11.Library(display)
        self._atoms = x11.Atoms(self._x)
        self._keys = {}
        self._windows = []  # those that are shown; the last one was given the keys
        self._popups = []   # those that are shown without having asked for it
        self._new = []      # those since a window was last waited for
        self.lives = lambda: True  # whether the program that answers are waited for still runs

    def close(self):
        """Leaves the display."""
        self._x.close()

    # Events.

    def move(self, x, y):
        """Moves the mouse to a position of the screen."""
        self._x.motion(x, y)

    def press(self, button=LEFT):
        """Presses a button of the mouse."""
        self._x.button(button, True)

    def release(self, button=LEFT):
        """Releases it."""
        self._x.button(button, False)

    def click(self, button=LEFT):
        """Presses and releases a button, or turns the wheel by a notch."""
        self.press(button)
        self.release(button)

    def key(self, name):
        """Presses and releases a key by its name, such as "Return" or "ctrl+shift+s"."""
        *modifiers, last = name.split("+") if len(name) > 1 else [name]
        code, level = self._code(last)
        codes = [self._code(MODIFIERS[modifier])[0] for modifier in (*modifiers, *level)] + [code]
        for code in codes:
            self._x.key(code, True)
        for code in reversed(codes):
            self._x.key(code, False)

    def _code(self, name):
        """A key's code, and the modifiers that its symbol takes."""
        if name not in self._keys:
            self._keys[name] = self._x.find_key(name, LEVELS)
        return self._keys[name]

    def flush(self):
        """Sends what was done so far, and waits for nothing."""
        self._x.pending()

    # Answers.

    def answered(self, window):
        """Waits for an answer of a window's program. It answers as it reads: all that was sent before has been read
        then, but need not have been dealt with."""
        kind, ping, number = self._atoms["WM_PROTOCOLS"], self._atoms["_NET_WM_PING"], self._x.next_number()
        self._x.send(window, x11.client_message(window, kind, (ping, number, window)))
        self.wait(lambda event: event.is_message(kind, self._x.root) and event.data(1) == number)

    def wait(self, wanted, patience=PATIENCE):
        """Waits for an event, and deals with all before it as a window manager."""
        deadline = time.monotonic() + patience
        while True:
            for event in self._events():
                if wanted(event):
                    return
            if not select.select([self._x.descriptor], [], [], LOOK)[0]:
                if not self.lives():
                    raise NoAnswer("the program has ended")
                if time.monotonic() > deadline:
                    raise NoAnswer("the program does not answer")

    def _events(self):
        """The events that have come, each of which has been dealt with."""
        while self._x.pending():
            event = self._x.next_event()
            self._manage(event)
            yield event

    # Windows.

    def manage(self):
        """Does what there is to do for a window manager; whether there was anything."""
        return sum(1 for _ in self._events()) > 0

    def _manage(self, event):
        """What a window manager does about an event."""
        window = event.about.window
        if event.type == x11.MAP_REQUEST:
            self._x.map(window)
            self._new.append(window)
            self._windows.append(window)
            self.focus(window)
        elif event.type == x11.CONFIGURE_REQUEST:
            self._x.grant(event.wish)
        elif event.type == x11.MAPPED and event.mapped.unmanaged:
            self._popups.append(window)
        elif event.type in (x11.UNMAPPED, x11.DESTROYED):
            self._gone(window)

    def _gone(self, window):
        """The last window that is left has the keys."""
        if window in self._popups:
            self._popups.remove(window)
        if window in self._windows:
            self._windows.remove(window)
            if self._windows:
                self.focus(self._windows[-1])

    def focus(self, window):
        """Gives a window the keys."""
        self._windows.remove(window)
        self._windows.append(window)
        self._x.focus(window)

    def resize(self, window, width, height):
        """Gives a window a size."""
        self._x.resize(window, width, height)

    def ask_to_close(self, window):
        """Asks a window to close, as a button of its frame would."""
        kind = self._atoms["WM_PROTOCOLS"]
        self._x.send(window, x11.client_message(window, kind, (self._atoms["WM_DELETE_WINDOW"], 0)))

    def shows(self, window):
        """Whether a window is shown."""
        return window in self._windows

    def active(self):
        """The window that has the keys; a program may have given them to another one of its windows."""
        window = self._x.focused()
        if window in self._windows:
            self._windows.remove(window)
            self._windows.append(window)
        return self._windows[-1] if self._windows else 0

    def title(self, window):
        """A window's title; empty where it has gone."""
        return self._x.text_property(window, self._atoms["_NET_WM_NAME"], self._atoms["UTF8_STRING"])

    def wait_for_window(self, title, patience=PATIENCE):
        """Waits for a new window whose title ends so; the window."""
        self._new.clear()  # by number, a new window may be one that has gone
        found = []

        def shown(_):
            found[:] = [window for window in self._new if self.title(window).endswith(title)]
            return found

        self.wait(shown, patience)
        return found[-1]

    def menus(self):
        """The menus and lists that are open; no window manager knows of them. That they are no tips is all that is
        sure of their type: the toolkit calls some menus normal windows, and others in another run."""
        tip = self._atoms["_NET_WM_WINDOW_TYPE_TOOLTIP"]
        return [window for window in self._popups
                if tip not in self._x.number_properties(window, self._atoms["_NET_WM_WINDOW_TYPE"])]

    def place(self, window):
        """A window's place on the screen and its size, as (left, top, width, height); None where it has gone."""
        return self._x.place(window)

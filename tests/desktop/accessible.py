"""What assistive technology is told: the accessibility bus of a desk, and the objects that a program has on it."""

import pathlib
import time

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

PATIENCE = 60  # seconds that the bus may take on a slow machine
TICK = 0.05    # seconds between two looks at it
SERVICE = pathlib.Path("/usr/share/dbus-1/services/org.a11y.Bus.service")
REGISTRY = ("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root")
ACCESSIBLE = "org.a11y.atspi.Accessible"
ACTION = "org.a11y.atspi.Action"
LABELLED_BY = 2  # a kind of relation

# The states that the tests ask for, by their bits.
STATES = {"checked": 4, "enabled": 8, "expanded": 10, "focused": 12, "selected": 23, "showing": 25}

# A session bus that starts the accessibility bus and nothing else.
CONFIGURATION = """<busconfig>
  <type>session</type>
  <listen>unix:dir={folder}</listen>
  <auth>EXTERNAL</auth>
  <servicedir>{folder}</servicedir>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""


class Bus:
    """A session bus of a desk's own, with the accessibility bus that it starts; both end with the desk."""

    def __init__(self, desk):
        (desk.folder / SERVICE.name).write_text(SERVICE.read_text())
        configuration = desk.folder / "session.conf"
        configuration.write_text(CONFIGURATION.format(folder=desk.folder))
        session = desk.serve("dbus-daemon", f"--config-file={configuration}", "--nofork", "--print-address")
        # What a program needs to be heard.
        self.environment = {"DBUS_SESSION_BUS_ADDRESS": session, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        self._connection = self._connect(session)
        address = self.ask(("org.a11y.Bus", "/org/a11y/bus"), "org.a11y.Bus", "GetAddress")
        self._connection = self._connect(address)

    @staticmethod
    def _connect(address):
        flags = Gio.DBusConnectionFlags
        return Gio.DBusConnection.new_for_address_sync(
            address, flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION, None, None)

    def ask(self, place, interface, method, arguments=None):
        """The first value that an object (its owner on the bus, and its path) answers."""
        return self._connection.call_sync(*place, interface, method, arguments, None, Gio.DBusCallFlags.NONE,
                                          PATIENCE * 1000, None).unpack()[0]

    def tell(self, place, interface, method, arguments):
        """Calls an object and waits for no answer: one comes only when the dialog is closed that the call opens."""
        self._connection.call(*place, interface, method, arguments, None, Gio.DBusCallFlags.NONE, -1, None, None)
        self._connection.flush_sync(None)

    def _process(self, owner):
        return self.ask(("org.freedesktop.DBus", "/org/freedesktop/DBus"), "org.freedesktop.DBus",
                        "GetConnectionUnixProcessID", GLib.Variant("(s)", (owner,)))

    def program(self, process):
        """The program that runs as a process, as soon as it is known on the bus."""
        deadline = time.monotonic() + PATIENCE
        while time.monotonic() < deadline:
            for place in self.ask(REGISTRY, ACCESSIBLE, "GetChildren"):
                if self._process(place[0]) == process.pid:
                    return Accessible(self, place)
            time.sleep(TICK)
        raise AssertionError("the program is not known on the accessibility bus")


class Accessible:
    """An object of a program as assistive technology sees it."""

    def __init__(self, bus, place):
        self._bus = bus
        self._place = place

    def __str__(self):
        """Its role, its name, and in brackets how it is described."""
        description = self._property("Description")
        return f"{self.role}: {self.name}" + (f" ({description})" if description else "")

    def _property(self, name):
        return self._bus.ask(self._place, "org.freedesktop.DBus.Properties", "Get",
                             GLib.Variant("(ss)", (ACCESSIBLE, name)))

    @property
    def name(self):
        """What it is called."""
        return self._property("Name")

    @property
    def role(self):
        """What kind of object it is."""
        return self._bus.ask(self._place, ACCESSIBLE, "GetRoleName")

    @property
    def states(self):
        """The names of its states, of those in STATES."""
        low, high = self._bus.ask(self._place, ACCESSIBLE, "GetState")
        return {name for name, bit in STATES.items() if (low | high << 32) >> bit & 1}

    @property
    def label(self):
        """The name of the object that labels it; None where none does."""
        for kind, others in self._bus.ask(self._place, ACCESSIBLE, "GetRelationSet"):
            if kind == LABELLED_BY:
                return Accessible(self._bus, others[0]).name
        return None

    @property
    def children(self):
        """The objects directly below it."""
        return [Accessible(self._bus, place) for place in self._bus.ask(self._place, ACCESSIBLE, "GetChildren")]

    def below(self, role=None):
        """All objects below it, or those of a role, in their order."""
        for child in self.children:
            if role in (None, child.role):
                yield child
            yield from child.below(role)

    def find(self, role, name=None):
        """The first object below it with a role, and with a name if one is given."""
        for found in self.below(role):
            if name in (None, found.name):
                return found
        raise AssertionError(f"there is no {role} {name!r} below {self}")

    def act(self):
        """Does what its first action does, such as a press."""
        self._bus.tell(self._place, ACTION, "DoAction", GLib.Variant("(i)", (0,)))

"""Makes random replay scripts: what a user may do with the editor in any order, with odd numbers among the
usual ones. The same seed gives the same script everywhere."""

import json
import random

COMMANDS = (32772, 32775, 32776, 32777, 32778, 32779, 32780, 32781, 32782, 32783, 32784, 32785, 32786, 32787,
            32788, 32788, 32802, 32803, 32804, 32804, 32805, 32806, 32807, 32818, 32819, 57664, 205, 215, 219, 57643)
MENU_COMMANDS = (32789, 32790, 32791, 32792, 32793, 32798, 32815, 32816, 32794)
TREE_COMMANDS = (32789, 32791, 32794, 32795, 32796, 32797, 32798, 32815, 32816, 32817)
FIELDS = ("1000", "1001", "1002", "1003", "1008", "1009", "1011", "1012", "1017", "1023", "1024", "1025", "1027",
          "1028", "1030", "1031")
BOXES = ("1001", "1002", "1013", "1014", "1015", "1016", "1021", "1022")
KEYS = ("Show", "Snap", "SpacingShowX", "SpacingShowY", "SpacingSnapX", "SpacingSnapY")
WORDS = ("", "0", "1.5", "-2.25", "1,5", "abc", "1e3", "0x10", " 7", "90", "45.5", "1.15", "nan", "1e400", "-0")
UNITS = (9001, 9002, 9003, 9005, 9036, 9093, 9098, 9004, 0, -1, 42)
SIDES = (1, 1, 1, 2, 4, 8, 16, 32, 63, 5)
NAMES = ("boat.xml", "ship.xml", "broken.xml", "missing.xml", "folder/none.xml")
SYMBOLS = "aZ0 <&>'\"\t\u00e4\u20ac"
BROKEN = "<vessel><units id='9002'/><shapes view='02'><polyline><vertex x='1'/></polyline></shapes><gps x='3'"
WHOLE = ("<vessel><units id='9003'/><shapes view='3f'><polyline><vertex x='1.0005' y='-2'/><vertex x='4' y='5e1'/>"
         "</polyline></shapes><shapes view='04'/><gps x='1'/><txd y='2'/><piv z='-3'/><anchors><anchor><id>3</id>"
         "<name>Bow &amp; stern</name><attachmentX>12</attachmentX></anchor></anchors></vessel>")


class ScriptMaker:
    """One script, step by step."""

    def __init__(self, seed):
        self.random = random.Random(seed)

    def any(self, values):
        return values[self.random.randrange(len(values))]

    def chance(self, parts):
        return self.random.randrange(parts) == 0

    def number(self):
        if self.chance(40):
            return self.any((0.0, -0.0, 1e300, -1e300, 1e-300, 1e17, 0.1, 1 / 3))
        return self.random.randrange(-4000, 4001) / self.any((16, 16, 10, 1000))

    def vertex(self):
        vertex = [self.number(), self.number(), self.number() if self.chance(2) else 0.0]
        return vertex + [self.random.randrange(9) for _ in range(3)] if self.chance(8) else vertex

    def vertices(self):
        return [self.vertex() for _ in range(self.any((0, 1, 2, 3, 5, 9)))]

    def text(self):
        return "".join(self.any(SYMBOLS) for _ in range(self.random.randrange(8)))

    def shape(self):
        shape = {"type": self.any((1, 2, 2, 2, 3, 8))}
        if shape["type"] == 1:
            shape["position"] = self.vertex()[:3]
        elif shape["type"] == 2:
            shape["vertices"] = self.vertices()
        elif shape["type"] == 3:
            shape["rings"] = [self.vertices() for _ in range(self.random.randrange(3))]
        else:
            shape.update(vertices=[self.vertex()], text=self.text(), angle=self.number(), height=abs(self.number()))
        if self.chance(3):
            shape["style"] = {"lineColour": self.random.randrange(1 << 24), "lineWidth": self.any((0.0, 1.0, 2.5))}
        if self.chance(8):
            shape["selected"] = True
        if self.chance(4):
            shape["editing"] = True
        return shape

    def anchor(self):
        return {"id": self.random.randrange(6), "name": self.text(), "visible": not self.chance(5),
                "attachmentX": self.number(), "attachmentY": self.number()}

    def path(self):
        if self.chance(4):
            return [1, self.random.randrange(4)][: self.random.randrange(1, 3)]
        whole = [0, self.random.randrange(7), self.random.randrange(3), self.random.randrange(4)]
        return whole[: self.random.randrange(1, 5)]

    def dialog(self, step):
        fields = {name: self.any(WORDS) for name in FIELDS if self.chance(3)}
        checks = {name: not self.chance(4) for name in BOXES if self.chance(4)}
        step["dialog"] = {"end": self.any(("ok", "ok", "ok", "cancel", "dblclick")), "fields": fields,
                          "checks": checks}
        if not self.chance(3):
            step["dialog"]["select"] = self.any((None, 0, 1, 2, 5, 20))
        step["answers"] = [self.any(("yes", "yes", "no"))]
        return step

    def at(self, name, **more):
        near = self.chance(2)  # where the devices and the origin are at first
        x = 400 + 4 * self.random.randrange(-50, 51) if near else self.random.randrange(-20, 1000)
        y = 300 + 4 * self.random.randrange(-40, 41) if near else self.random.randrange(-20, 800)
        return {"do": name, "x": x, "y": y, **more}

    def step(self):
        makers = (
            (9, lambda: self.at("mousemove", left=self.chance(2))),
            (4, lambda: self.at("lbuttondown")),
            (3, lambda: self.at("lbuttonup")),
            (3, lambda: self.at("rbuttondown")),
            (2, lambda: self.at("wheel", delta=self.any((120, -120, 0)))),
            (1, self.size),
            (1, lambda: {"do": "setcursor", "hit": self.any((1, 1, 2))}),
            (7, lambda: self.dialog({"do": "command", "id": self.any(COMMANDS)})),
            (4, lambda: self.dialog({"do": "menu", "id": self.any(MENU_COMMANDS)})),
            (3, lambda: {"do": "treeclick", "path": self.path()}),
            (1, lambda: {"do": "treemenu", "path": self.path()}),
            (3, lambda: self.dialog({"do": "treecommand", "id": self.any(TREE_COMMANDS),
                                     "select": None if self.chance(6) else self.path()})),
            (1, lambda: self.dialog({"do": "statusclick", "pane": self.random.randrange(4)})),
            (1, lambda: {"do": "user", "wparam": self.any((1124, 1054, 1044, 7))}),
            (1, lambda: {"do": "new"}),
            (2, lambda: {"do": self.any(("open", "save")), "path": self.any(NAMES)}),
            (1, lambda: {"do": "setting", "key": self.any(KEYS), "value": self.any((None, 0, 1, 7, 100, 250, -5))}),
            (6, lambda: {"do": "putshape", "view": self.any(SIDES), "shape": self.shape()}),
            (2, lambda: {"do": "putanchor", "anchor": self.anchor()}),
            (1, lambda: {"do": "setoffset", "which": self.any(("gps", "txd", "piv")), "x": self.number(),
                         "y": self.number(), "z": self.number()}),
            (1, lambda: {"do": "setunit", "value": self.any(UNITS)}),
            (1, lambda: {"do": "setrotation", "value": self.any((0, 30, -45, 720.5))}),
            (1, self.call),
        )
        return self.random.choices([maker for _, maker in makers], [weight for weight, _ in makers])[0]()

    def size(self):
        # A window without a size loses its view; seldom, so that most scripts keep a picture.
        if self.chance(10):
            return {"do": "size", "cx": self.any((0, 800)), "cy": 0}
        return {"do": "size", "cx": self.any((800, 1024, 1)), "cy": self.any((600, 333))}

    def call(self):
        numbers = [self.number() for _ in range(4)]
        fn, args = self.any((
            ("SnapToGrid", numbers[:2]),
            ("WorldToScreen", numbers[:2]),
            ("ScreenToWorld", numbers[:2]),
            ("Contains", numbers[:2]),
            ("ConvertUnits", [self.any(UNITS), self.any(UNITS), *numbers[:3]]),
            ("ToMetres", [self.any(UNITS), numbers[0]]),
            ("FromMetres", [self.any(UNITS), numbers[0]]),
            ("AddArc", numbers + [45.0]),
            ("Escape", [self.text()]),
            ("NewAnchor", []),
        ))
        return {"do": "call", "fn": fn, "args": args}

    def lines(self, steps):
        files = {"boat.xml": WHOLE, "broken.xml": BROKEN}
        header = {"files": files}
        if self.chance(3):
            header["open"] = self.any(("boat.xml", "boat.xml", "broken.xml"))
        if self.chance(3):
            header["settings"] = {key: self.any((0, 1, 250, 1000)) for key in KEYS if self.chance(2)}
        yield json.dumps(header)
        yield json.dumps({"do": "size", "cx": 800, "cy": 600})
        for _ in range(steps):
            yield json.dumps(self.step())

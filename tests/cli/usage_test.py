#!/usr/bin/env python3
"""What the program says of each wrong use: word for word, with a pointer to the help of the verb."""

import unittest

from cli import SAMPLES, VERBS, CliTest, run

BOAT = SAMPLES / "workboat.xml"
DRAWING = SAMPLES / "dxf" / "workboat-r12.dxf"
WITH_PICTURES = b"built without pictures" not in run("render", "--help").stdout

USES = (
    ("nothing to do",),
    ("unknown verb 'draw'", "draw"),
    ("check takes a design or several", "check"),
    ("standard input can be read only once", "check", "-", "-"),
    ("diff takes two designs or drawings", "diff", BOAT),
    ("diff draws a .png, .svg or .pdf", "diff", BOAT, BOAT, "-o", "a.gif"),
    ("--json and -o can't share standard output", "diff", BOAT, BOAT, "--json", "-o", "-"),
    ("the picture would overwrite what is compared", "diff", "a.png", BOAT, "-o", "a.png"),
    ("not a length: 'wide'", "diff", BOAT, BOAT, "--tolerance", "wide"),
    ("-o needs a name", "diff", BOAT, BOAT, "-o", ""),
    ("unknown side 'Top'", "diff", BOAT, BOAT, "--side", "Top"),
    ("standard input can be read only once", "diff", "-", "-"),
    ("export takes one design", "export", "-o", "a.dxf"),
    ("export needs -o OUT", "export", BOAT),
    ("a.txt: export writes .dxf, .geojson, .csv or .svg; --format chooses one", "export", BOAT, "-o", "a.txt"),
    ("--dxf-version and --layer-by are for a drawing", "export", BOAT, "--dxf-version", "R12", "-o", "a.csv"),
    ("the version of a drawing is R2000 or R12, not 'R13'", "export", BOAT, "--dxf-version", "R13", "-o", "a.dxf"),
    ("layers are by side or kind, not 'colour'", "export", BOAT, "--layer-by", "colour", "-o", "a.dxf"),
    ("the export would overwrite the design", "export", "boat.xml", "--format", "csv", "-o", "boat.xml"),
    ("import takes a drawing or several", "import", "-o", "a.xml"),
    ("import needs -o OUT.xml, or --json", "import", DRAWING),
    ("--json and -o can't share standard input or output", "import", DRAWING, "--json", "-o", "-"),
    ("the design would overwrite the drawing", "import", "a.dxf", "-o", "a.dxf"),
    ("the option -i has an empty value", "import", DRAWING, "-i", "", "-o", "a.xml"),
    ("info takes a design or a drawing, or several", "info"),
)
USES_WITH_PICTURES = (
    ("render takes one design or drawing", "render", "-o", "a.png"),
    ("render needs -o with a .png, .svg or .pdf", "render", BOAT, "-o", "a.gif"),
    ("standard output takes one picture only", "render", BOAT, "--side", "all", "-o", "-"),
    ("unknown side 'Top'", "render", BOAT, "--side", "Top", "-o", "a.png"),
    ("not a size of two lengths from 1 to 20000 pixels: '0x5'", "render", BOAT, "--size", "0x5", "-o", "a.png"),
    ("not a stretch: '1,2'", "render", BOAT, "--view", "1,2", "-o", "a.png"),
    ("the grid is on or off, not 'yes'", "render", BOAT, "--grid", "yes", "-o", "a.png"),
    ("symbols are on or off, not 'no'", "render", BOAT, "--symbols", "no", "-o", "a.png"),
    ("report takes one design", "report", "-o", "a.pdf"),
    ("report needs -o with a .pdf", "report", BOAT, "-o", "a.png"),
)


class UsageTest(CliTest):
    """Nothing is written, and the status is 2."""

    def test_each_wrong_use_is_named_in_words(self):
        for problem, *arguments in USES + (USES_WITH_PICTURES if WITH_PICTURES else ()):
            with self.subTest(problem):
                self.write("boat.xml", "<vessel/>")
                for name in ("a.dxf", "a.png", "report.pdf"):
                    self.write(name, "")
                before = {path: path.read_bytes() for path in self.folder.iterdir()}
                verb = [word for word in arguments[:1] if word in VERBS]
                done = run(*arguments, folder=self.folder)
                self.assertEqual(done.stderr.decode().splitlines(),
                                 [f"hullwright-cli: {problem}",
                                  f"Try '{' '.join(['hullwright-cli', *verb, '--help'])}'."])
                self.assertEqual((done.returncode, done.stdout), (2, b""))
                self.assertEqual({path: path.read_bytes() for path in self.folder.iterdir()}, before)

    def test_of_an_unknown_option_nothing_else_is_said(self):
        for verb in VERBS:
            if WITH_PICTURES or verb not in ("render", "report"):
                done = run(verb, "--wrong")
                option, *others = done.stderr.decode().splitlines()
                self.assertIn("wrong", option)
                self.assertEqual((done.returncode, others), (2, [f"Try 'hullwright-cli {verb} --help'."]))

    @unittest.skipUnless(WITH_PICTURES, "this program makes no documents")
    def test_a_report_does_not_overwrite_its_design(self):
        self.write("boat.pdf", "<vessel/>")
        done = run("report", "boat.pdf", "-o", "boat.pdf", folder=self.folder)
        self.assertEqual(done.stderr.decode().splitlines()[0],
                         "hullwright-cli: the report would overwrite the design")
        self.assertEqual((self.folder / "boat.pdf").read_text(), "<vessel/>")


if __name__ == "__main__":
    unittest.main()

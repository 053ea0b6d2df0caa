#!/usr/bin/env python3
"""hullwright-cli on a system that fails: what is told, and what stays of the user's files."""

import contextlib
import os
import pathlib
import re
import signal
import sqlite3
import subprocess
import sys
import tempfile
import time
import unittest

FAULTY_READS = sys.argv.pop(3)
SIGNALLED_WRITES = sys.argv.pop(3)

from cli import FOLDERS, PROGRAM, SAMPLES, CliTest, run  # noqa: E402  pylint: disable=wrong-import-position


class FaultsTest(CliTest):
    """Each fault has a real cause."""

    def assert_fails(self, problem, *arguments, **environment):
        """The run ends with status 1 and this problem alone."""
        done = run(*arguments, **environment)
        self.assertEqual((done.returncode, done.stderr.decode().replace(f"{self.folder}/", "")),
                         (1, f"hullwright-cli: {problem}\n"))

    def test_half_a_drawing_is_none(self):
        drawing = self.drawing("a.dxf", "0", "LINE", "11", "1", "0", "LINE", "11", "2")
        design = self.write("boat.xml", "<vessel/>")
        for arguments in (("import", drawing, "-o", design), ("info", drawing)):
            self.assert_fails("a.dxf: the drawing can't be read: Input/output error", *arguments,
                              LD_PRELOAD=FAULTY_READS)
        self.assertEqual(design.read_text(), "<vessel/>")
        self.succeed("import", drawing, "-o", design)

    def test_the_log_says_that_a_drawing_was_not_read_to_its_end(self):
        logs = self.folder / "share" / "Sondaris" / "Tracing"
        logs.mkdir(parents=True)
        run("import", self.drawing("a.dxf", "0", "LINE", "11", "1"), "-o", self.folder / "boat.xml",
            LD_PRELOAD=FAULTY_READS, XDG_DATA_HOME=str(self.folder / "share"))
        records = (logs / "Trace_General.txt").read_text("cp1252").splitlines()[1:]
        self.assertEqual(len(records), 1)
        self.assertRegex(records[0], r"\[DXF\] The AutoCAD DXF file could not be read to its end: \[.*/a\.dxf\]\.$")

    def test_half_a_design_is_no_fault_of_its_text(self):
        design = self.write("boat.xml", (SAMPLES / "workboat.xml").read_text())
        problem = "boat.xml: the design can't be read: Input/output error"
        drawing = self.drawing("a.dxf", "0", "LINE", "11", "1")
        out = self.folder / "out.xml"
        self.assert_fails(problem, "info", design, LD_PRELOAD=FAULTY_READS)
        self.assert_fails(problem, "import", drawing, "-i", design, "-o", out, LD_PRELOAD=FAULTY_READS)
        self.assertFalse(out.exists())
        done = run("check", design, LD_PRELOAD=FAULTY_READS)
        self.assertEqual((done.returncode, done.stderr.decode().replace(f"{self.folder}/", "")),
                         (2, "hullwright-cli: boat.xml: Input/output error\n"))

    def test_an_empty_file_name_is_wrong_usage(self):
        drawing = self.drawing("a.dxf", "0", "LINE", "11", "1")
        out = self.folder / "out.xml"
        self.assert_usage_errors(("import", drawing, "-o", ""), ("import", drawing, "--output=", "--json"),
                                 ("import", drawing, "-i", "", "-o", out))

    def test_a_signal_leaves_no_temporary_file(self):
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(number), tempfile.TemporaryDirectory() as temporary:
                with subprocess.Popen([PROGRAM, "info", "-"], stdin=subprocess.PIPE,
                                      env={**os.environ, **FOLDERS, "TMPDIR": temporary}) as reader:
                    reader.stdin.write(b"<vessel>")
                    reader.stdin.flush()
                    while not any(pathlib.Path(temporary).iterdir()):
                        time.sleep(0.01)
                    reader.send_signal(number)
                    self.assertEqual(reader.wait(), -number)
                self.assertEqual(list(pathlib.Path(temporary).iterdir()), [])

    def test_a_signal_in_the_middle_of_an_output_leaves_what_was_there(self):
        boat = SAMPLES / "workboat.xml"
        other = self.write("other.xml", boat.read_text().replace('<gps x="', '<gps x="9'))
        commands = [("export", boat, "-o", "out.dxf"), ("export", boat, "-o", "out.geojson"), ("export", boat, "-o", "out.csv")]
        if b"without pictures" not in run("render", "--help").stdout:
            commands += [("export", boat, "-o", "out.svg"), ("report", boat, "-o", "out.pdf"),
                         ("diff", boat, other, "-o", "out.png")]
        for *arguments, name in commands:
            out = self.write(name, "precious")
            before = sorted(self.folder.iterdir())
            done = run(*arguments, out, LD_PRELOAD=SIGNALLED_WRITES)
            self.assertEqual((done.returncode, done.stderr), (-signal.SIGTERM, b""))
            self.assertEqual((out.read_text(), sorted(self.folder.iterdir())), ("precious", before))

    def test_programs_at_once_lose_no_record_of_the_log(self):
        logs = self.folder / "share" / "Sondaris" / "Tracing"
        logs.mkdir(parents=True)
        drawing = self.drawing("a.dxf", "0", "LINE", "11", "1")
        with contextlib.ExitStack() as programs:
            for i in range(8):
                programs.enter_context(subprocess.Popen(
                    [PROGRAM, "import", drawing, "-o", self.folder / f"{i}.xml"],
                    env={**os.environ, **FOLDERS, "XDG_DATA_HOME": str(self.folder / "share")}))
        general = (logs / "Trace_General.txt").read_text("cp1252").splitlines()
        processing = (logs / "Trace_Processing.txt").read_text("cp1252").splitlines()
        self.assertEqual((general[0], len(general)), ("8", 9))
        self.assertEqual([line.partition("|")[0] for line in processing[1:]],
                         [str(i + 1) for i in range(int(processing[0]))])
        self.assertEqual(sum("Processing file" in line for line in processing), 8)

    def units(self, statements=None, content=b""):
        """A folder of common data with a unit database."""
        database = self.folder / "data" / "Sondaris" / "Database" / "geo.db"
        database.parent.mkdir(parents=True)
        if statements is None:
            database.write_bytes(content)
        else:
            with contextlib.closing(sqlite3.connect(database)) as connection:
                connection.executescript(statements)
        return str(self.folder / "data")

    def test_a_unit_database_that_is_none_is_told_once(self):
        share = self.units(content=b"this is no database, not even a small one")
        design = SAMPLES / "workboat.xml"
        self.succeed("info", design, XDG_DATA_HOME=share, remarks=(
            'The units of length can\'t be read from "data/Sondaris/Database/geo.db": SQLite ERROR #26 '
            "(file is not a database)",))

    def test_a_unit_database_without_an_end_holds_nothing_up(self):
        share = self.units("CREATE VIEW tblUnits AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
                           "SELECT i AS numId, 'metre' AS strUnit, 1 AS numDimension FROM n;")
        self.succeed("info", SAMPLES / "workboat.xml", XDG_DATA_HOME=share, remarks=(
            'The units of length can\'t be read from "data/Sondaris/Database/geo.db": it gives no end of rows',))

    def test_blocks_that_multiply_are_told_and_are_no_success(self):
        blocks = ["0", "BLOCK", "2", "b0", *("0", "LINE", "11", "1") * 10, "0", "ENDBLK"]
        for level in range(1, 12):
            blocks += ["0", "BLOCK", "2", f"b{level}", *("0", "INSERT", "2", f"b{level - 1}") * 10, "0", "ENDBLK"]
        drawing = self.write("bomb.dxf", "\n".join(
            ("0", "SECTION", "2", "BLOCKS", *blocks, "0", "ENDSEC",
             "0", "SECTION", "2", "ENTITIES", "0", "INSERT", "2", "b11", "0", "ENDSEC", "")))
        done = run("info", drawing)
        self.assertEqual(done.returncode, 3)
        self.assertIn(b"left out: 1 insert for want of memory", done.stderr)
        self.assertTrue(re.search(rb"b11 1000000000000\b", done.stdout), done.stdout)


if __name__ == "__main__":
    unittest.main()

#!/usr/bin/env python3
"""What the real program makes of a system that fails under its window: files and folders that go or change, a second
program, logs and unit databases in disorder. The design in the window is what counts."""

import configparser
import os
import pathlib
import shutil
import sqlite3
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent))
from case import PROGRAM, SAMPLES  # noqa: E402
from whole_desk import IMPORT, WholeDeskTest  # noqa: E402

DRAWING = "workboat-r2018.dxf"
POLYLINES = 56  # of that drawing
MOST_RECORDS = 200  # of a log
UNITS = ("alt+f", "Left", "Left", "Left", "Up", "Return")
DATABASE = PROGRAM.resolve().parents[1] / "share" / "Sondaris" / "Database" / "geo.db"


class FaultsTest(WholeDeskTest):
    """Each fault has a real cause."""

    def import_drawing(self):
        """Imports the drawing through its dialog."""
        shutil.copy(SAMPLES / "dxf" / DRAWING, self.desk.work)
        self.keys(*IMPORT)
        self.desk.rest()
        self.assertEqual(self.title(), "Import DXF File")
        self.type(DRAWING)
        self.desk.rest()
        self.keys("Return")
        self.desk.rest()

    def polylines(self, saved):
        """How many polylines a saved design has beyond those of the sample."""
        return saved.count(b"<polyline>") - (SAMPLES / "workboat.xml").read_bytes().count(b"<polyline>")

    # Files.

    def test_a_design_that_is_removed_while_it_is_open_is_written_again(self):
        expected = self.usual()
        path = self.open()
        path.unlink()
        self.move_design()
        self.keys("ctrl+s")
        self.assertEqual(path.read_bytes(), expected)
        self.leave()

    def test_a_design_that_is_replaced_while_it_is_open_stays_as_a_former_version(self):
        expected = self.usual()
        path = self.open()
        other = path.with_name("other.xml")
        other.write_bytes(b"<vessel>somebody else's</vessel>")
        os.replace(other, path)
        self.move_design()
        self.keys("ctrl+s")
        self.assertEqual(path.read_bytes(), expected)
        kept = self.desk.folder / ".local" / "state" / "hullwright"
        self.assertIn(b"<vessel>somebody else's</vessel>", [file.read_bytes() for file in kept.iterdir()])
        self.leave()

    def test_a_folder_that_has_gone_fails_the_save_and_the_next_one_is_whole(self):
        expected = self.usual()
        path = self.open()
        self.move_design()
        away = path.parent.with_name("away")
        path.parent.rename(away)
        self.keys("ctrl+s")
        self.assertFalse(path.exists())
        self.desk.hands.ask_to_close(self.desk.window)  # what was not saved is asked for
        self.desk.answered()
        self.assertEqual(self.title(), "Hullwright")
        self.keys("Escape")
        away.rename(path.parent)
        self.assertEqual(self.save(path), expected)
        self.leave()

    # Two programs.

    def test_two_programs_share_settings_and_logs(self):
        log = self.desk.folder / "data" / "Sondaris" / "Tracing" / "Trace_General.txt"
        log.parent.mkdir(parents=True)
        desks = []
        for name in ("one.xml", "two.xml"):
            path = self.open(name)
            desks.append((self.desk.program, self.desk.window, path))
            self.addCleanup(self.desk.program.wait)
            self.addCleanup(self.desk.program.terminate)

        def sit_down(at):
            self.desk.program, self.desk.window, path = at
            self.desk.hands.focus(self.desk.window)
            self.desk.answered()
            return path

        for desk in desks:
            sit_down(desk)
            self.import_drawing()
        for desk in desks:
            path = sit_down(desk)
            self.assertEqual(self.polylines(self.save(path)), POLYLINES)
            self.leave()
        number, *records = log.read_text().splitlines()
        self.assertEqual([int(record.split("|")[0]) for record in records], list(range(1, int(number) + 1)))
        self.assertGreaterEqual(len(records), len(desks))
        settings = configparser.ConfigParser(interpolation=None)  # which refuses a file with a key that stands twice
        settings.read(self.desk.folder / "config" / "Quillmere" / "Hullwright.ini")
        self.assertIn("Workspace", settings.sections())

    # Logs.

    def import_with_a_log(self):
        """An import, with whatever stands where its log goes."""
        path = self.open()
        self.import_drawing()
        self.assertEqual(self.polylines(self.save(path)), POLYLINES)
        self.leave()

    def test_a_log_of_ten_megabytes_is_cut_to_its_last_records(self):
        log = self.desk.folder / "data" / "Sondaris" / "Tracing" / "Trace_General.txt"
        log.parent.mkdir(parents=True)
        size = 160000
        log.write_text(f"{size}\n" + "".join(f"{n}|0.000|1|{'x' * 50}\r\n" for n in range(1, size + 1)), newline="")
        self.assertGreater(log.stat().st_size, 10_000_000)
        self.import_with_a_log()
        number, *records = log.read_bytes().splitlines()
        self.assertEqual(len(records), MOST_RECORDS)
        self.assertGreater(int(number), size)
        self.assertTrue(records[-1].startswith(number + b"|"))

    def test_a_log_that_nothing_can_be_written_to_stops_nothing(self):
        folder = self.desk.folder / "data" / "Sondaris" / "Tracing"
        (folder / "Trace_General.txt").mkdir(parents=True)  # for root, too, who may write into any folder
        folder.chmod(0o555)
        self.addCleanup(folder.chmod, 0o755)
        self.import_with_a_log()
        self.assertEqual(list((folder / "Trace_General.txt").iterdir()), [])

    # Units.

    def look_at_units(self):
        """Opens the dialog of units, which asks the database, and leaves it."""
        self.keys(*UNITS)
        self.assertEqual(self.title(), "Switch Units")
        self.keys("Escape")

    def work_with_units(self, program=PROGRAM):
        """A day with a look at the units; the design is as on any day."""
        expected = self.usual()
        path = self.desk.folder / "designs" / "workboat.xml"
        path.parent.mkdir()
        shutil.copy(SAMPLES / "workboat.xml", path)
        self.desk.start(program, path)
        self.look_at_units()
        self.move_design()
        self.assertEqual(self.save(path), expected)
        self.leave()

    def test_no_unit_database(self):
        program = self.desk.folder / "elsewhere" / "hullwright"
        program.parent.mkdir()
        shutil.copy(PROGRAM, program)
        self.work_with_units(program)

    def test_a_unit_database_that_somebody_has_locked(self):
        self.usual()
        place = self.desk.folder / "data" / "Sondaris" / "Database" / "geo.db"
        place.parent.mkdir(parents=True)
        shutil.copy(DATABASE, place)
        database = sqlite3.connect(place, isolation_level=None)
        self.addCleanup(database.close)
        database.execute("BEGIN EXCLUSIVE")
        self.work_with_units()


if __name__ == "__main__":
    unittest.main()

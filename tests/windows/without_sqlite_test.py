#!/usr/bin/env python3
"""hullwright-cli for Windows without its SQLite library: units have no names, and all else works."""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

EMULATOR, PROGRAM, SAMPLES = sys.argv.pop(1), pathlib.Path(sys.argv.pop(1)), pathlib.Path(sys.argv.pop(1))


def info(program, folder):
    """What is listed of a sample."""
    return subprocess.run([EMULATOR, program, "info", SAMPLES / "workboat.xml"], capture_output=True, check=True,
                          cwd=folder).stdout.decode().splitlines()


class WithoutSqlite(unittest.TestCase):
    def test_units_have_no_names_and_all_else_is_listed(self):
        with tempfile.TemporaryDirectory() as folder:
            alone = pathlib.Path(folder) / "bin" / PROGRAM.name
            alone.parent.mkdir()
            shutil.copy(PROGRAM, alone)
            shutil.copytree(PROGRAM.parent.parent / "share", pathlib.Path(folder) / "share")
            listed, expected = info(alone, folder), info(PROGRAM, folder)
        self.assertIn("  unit          metre (EPSG 9001)", expected)
        self.assertEqual(listed, [line.replace("metre (EPSG", "unknown (EPSG") for line in expected])


if __name__ == "__main__":
    unittest.main()

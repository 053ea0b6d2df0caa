"""Runs the real hullwright-cli, for the tests of its verbs."""

import os
import pathlib
import struct
import subprocess
import sys
import tempfile
import unittest

sys.path.append(str(pathlib.Path(__file__).parent.parent / "windows"))
from left_out import reason_to_leave_out

PROGRAM = sys.argv.pop(1)
SAMPLES = pathlib.Path(sys.argv.pop(1))
VERBS = ("check", "diff", "export", "import", "info", "render", "report")
# The person's own units, logs and former versions are none of the tests' business.
FOLDERS = {"XDG_STATE_HOME": "/dev/null", "XDG_DATA_HOME": "/dev/null", "XDG_DATA_DIRS": "/dev/null"}
SIDES = ("top", "bottom", "right", "left", "front", "rear")


def run(*arguments, data=None, folder=None, **environment):
    """Runs the program to its end, in a folder, with bytes on standard input and more variables of the environment."""
    return subprocess.run([PROGRAM, *(a if isinstance(a, bytes) else str(a) for a in arguments)], capture_output=True,
                          check=False, input=data or b"", cwd=folder, env={**os.environ, **FOLDERS, **environment})


def size_of(png):
    """Width and height of the bytes of a PNG file."""
    assert png[:8] == b"\x89PNG\r\n\x1a\n"
    return struct.unpack(">II", png[16:24])


class CliTest(unittest.TestCase):
    """A folder for each test, and what all failures have in common."""

    def setUp(self):
        reason = reason_to_leave_out(f"{type(self).__name__}.{self._testMethodName}")
        if reason:
            self.skipTest(reason)
        holder = tempfile.TemporaryDirectory()
        self.addCleanup(holder.cleanup)
        self.folder = pathlib.Path(holder.name) / "Ordner \u00e4 \U0001f6a2"
        self.folder.mkdir()

    def write(self, name, text):
        """Writes a file into the folder."""
        path = self.folder / name
        path.write_text(text, encoding="utf-8")
        return path

    def drawing(self, name, *lines):
        """Writes a drawing of some entities."""
        return self.write(name, "\n".join(("0", "SECTION", "2", "ENTITIES", *lines, "0", "ENDSEC", "")))

    def succeed(self, *arguments, data=None, remarks=(), **environment):
        """Runs with no more than these remarks on standard error; what stands on standard output."""
        done = run(*arguments, data=data, **environment)
        reported = done.stderr.decode("utf-8", "surrogateescape").replace(f"{self.folder}/", "")
        self.assertEqual((done.returncode, reported), (0, "".join(f"hullwright-cli: {line}\n" for line in remarks)))
        return done.stdout

    def fail_with(self, status, words, *arguments, data=None):
        """Runs to a failure that is reported, with nothing on standard output and nothing written."""
        before = sorted(self.folder.iterdir())
        done = run(*arguments, data=data)
        self.assertEqual((done.returncode, done.stdout), (status, b""), done.stderr)
        for word in ("hullwright-cli", *words):
            self.assertIn(word, done.stderr.decode("utf-8", "surrogateescape"))
        self.assertEqual(sorted(self.folder.iterdir()), before)

    def read_only_folder(self):
        """A folder that nothing can be written into; root can write anywhere, so it gets a file's name
        for a folder."""
        if os.geteuid() == 0:
            return self.write("no folder", "")
        folder = self.folder / "locked"
        folder.mkdir()
        folder.chmod(0o555)
        self.addCleanup(folder.chmod, 0o755)
        return folder

    def assert_usage_errors(self, *cases):
        """Each of these is wrong usage, and points to the verb's help."""
        for arguments in cases:
            verbs = [word for word in arguments[:1] if word in VERBS]
            with self.subTest(arguments):
                self.fail_with(2, (f"Try '{' '.join(['hullwright-cli', *verbs, '--help'])}'.",), *arguments)

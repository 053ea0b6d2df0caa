#!/usr/bin/env python3
"""hullwright-cli with less and less memory: a design is written whole or not at all."""

import os
import re
import resource
import subprocess
import sys
import unittest

from cli import FOLDERS, PROGRAM, CliTest

MIB = 1 << 20

# Runs a program and prints its peak memory in KiB.
MEASURE = """
import os, sys
_, status, used = os.wait4(os.posix_spawn(sys.argv[1], sys.argv[1:], os.environ), 0)
print(used.ru_maxrss)
sys.exit(os.waitstatus_to_exitcode(status))
"""


class MemoryTest(CliTest):
    """What memory running out does to a file that is there already."""

    def run_within(self, memory, *arguments):
        """Runs the program, which may take so many bytes of address space."""
        return subprocess.run([PROGRAM, *arguments], capture_output=True, check=False,
                              env={**os.environ, **FOLDERS},
                              preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS, (memory, memory)))

    def test_a_design_with_a_hole_never_replaces_the_one_before(self):
        # A save spells these numbers out, so that it needs far more memory than the import.
        vertices = [word for i in range(40000) for word in ("10", f"{i}e200", "20", f"{i}.5")]
        drawing = self.drawing("big.dxf", "0", "LWPOLYLINE", *vertices)
        design = self.folder / "boat.xml"
        reasons = set()
        whole = 0
        # From less than a program without the toolkit starts in.
        for memory in range(16 * MIB, 200 * MIB, 2 * MIB):
            with self.subTest(memory=memory // MIB):
                design.write_bytes(b"<vessel/>")
                done = self.run_within(memory, "import", drawing, "-o", design)
                written = design.read_bytes()
                if done.returncode in (0, 3):
                    self.assertNotIn(b"\0", written)
                    self.assertTrue(written.endswith(b"</vessel>\n"))
                    self.assertEqual(b"<polyline>" in written, done.returncode == 0, done.stderr)
                    whole += done.returncode == 0
                else:
                    self.assertEqual(written, b"<vessel/>")
                reasons.add(done.stderr.decode().partition("boat.xml: ")[2])
        # Both ends were met: a save that was refused, and one that was whole.
        self.assertIn("the design can't be written: Cannot allocate memory\n", reasons)
        self.assertGreater(whole, 0)

    def test_a_design_that_the_parser_has_no_memory_for_is_refused(self):
        line = '<shapes view="{}"><polyline><vertex x="1"/></polyline></shapes>'
        # The parser keeps a comment until it ends.
        design = self.write("long.xml", f"<vessel>{line.format('01')}<!--{'x' * (12 * MIB)}-->{line.format('02')}</vessel>")
        whole = self.succeed("info", design)
        statuses = set()
        memory = 12 * MIB
        while (0, False) not in statuses and memory < 400 * MIB:
            memory += 4 * MIB
            with self.subTest(memory=memory // MIB):
                done = self.run_within(memory, "info", design)
                if done.returncode == 0:
                    self.assertEqual(done.stdout, whole)
                statuses.add((done.returncode, b"out of memory" in done.stderr))
        self.assertLessEqual({(1, True), (0, False)}, statuses)

    def test_a_drawing_that_came_in_in_part_is_no_success(self):
        # The lines of a comment take memory while the drawing is read, which the save has then.
        entities = [word for i in range(20000) for word in (
            "0", "LWPOLYLINE", "999", "x" * 250, "10", f"{i}", "20", "0", "10", "1", "20", "1")]
        drawing = self.drawing("big.dxf", *entities)
        design = self.folder / "boat.xml"
        statuses = set()
        memory = 4 * MIB  # less than the program starts in, however little it is built with
        while 0 not in statuses and memory < 400 * MIB:
            memory += 2 * MIB
            with self.subTest(memory=memory // MIB):
                design.write_bytes(b"<vessel/>")
                done = self.run_within(memory, "import", drawing, "-o", design)
                statuses.add(done.returncode)
                if done.returncode not in (0, 3):
                    self.assertEqual(design.read_bytes(), b"<vessel/>")
                    continue
                left_out = re.search(rb"left out: (\d+) parts? for want of memory", done.stderr)
                self.assertEqual(done.returncode, 3 if left_out else 0, done.stderr)
                polylines = design.read_bytes().count(b"<polyline>")
                self.assertEqual(polylines, 20000 - (int(left_out[1]) if left_out else 0))
        self.assertTrue({0, 1, 3} <= statuses, statuses)

    def test_a_design_that_did_not_open_whole_is_refused_with_its_reason(self):
        vertices = "".join(f'<vertex x="{i}" y="{i}.5"/>' for i in range(200))
        design = self.write("big.xml", "<vessel><shapes view='02'>" + f"<polyline>{vertices}</polyline>" * 300
                            + "</shapes></vessel>")
        statuses = set()
        memory = 4 * MIB
        while 0 not in statuses and memory < 400 * MIB:
            memory += MIB
            done = self.run_within(memory, "info", design)
            statuses.add(done.returncode)
            if done.returncode == 0:
                self.assertIn(b"60000 vertices", done.stdout)
            elif done.stderr.startswith(b"hullwright-cli: "):
                self.assertRegex(done.stderr, b"out of memory|Cannot allocate memory")
                self.assertEqual(done.stdout, b"")
                statuses.add("a reason")
        self.assertTrue({0, 1, "a reason"} <= statuses, statuses)

    def peak_of_import(self, drawing):
        """Bytes of memory that an import takes at most. A process counts what the one that started it takes, so that is a
        small one."""
        done = subprocess.run([sys.executable, "-c", MEASURE, PROGRAM, "import", drawing, "-o", self.folder / "boat.xml"],
                              capture_output=True, check=True,
                              env={**os.environ, **FOLDERS, "XDG_STATE_HOME": str(self.folder / "state")})
        return int(done.stdout) * 1024

    def test_drawing_and_design_and_the_texts_of_both_do_not_stand_in_memory_together(self):
        # A vertex takes 63 bytes, its lines in the drawing 28, and its line in the design 52.
        vertices = [word for i in range(20) for word in (" 10", f"{i - 400}.{i}23456", " 20", f"{i + 300}.654321")]
        entity = ("  0", "LWPOLYLINE", "  8", "HULL", *vertices)
        small = self.peak_of_import(self.drawing("small.dxf", *entity))
        drawing = self.drawing("big.dxf", *(entity * 15000))
        for design in ("a new one", "over one", "over one with a former version"):
            with self.subTest(design):
                times = (self.peak_of_import(drawing) - small) / drawing.stat().st_size
                self.assertLess(times, 3.0)


if __name__ == "__main__":
    unittest.main()

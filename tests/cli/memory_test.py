#!/usr/bin/env python3
"""hullwright-cli with less and less memory: a design is written whole or not at all."""

import os
import resource
import subprocess
import unittest

from cli import FOLDERS, PROGRAM, CliTest

MIB = 1 << 20


class MemoryTest(CliTest):
    """What memory running out does to a file that is there already."""

    def import_within(self, memory, drawing, design):
        """Runs an import that may take so many bytes of address space."""
        return subprocess.run([PROGRAM, "import", drawing, "-o", design], capture_output=True, check=False,
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
                done = self.import_within(memory, drawing, design)
                written = design.read_bytes()
                if done.returncode == 0:
                    self.assertNotIn(b"\0", written)
                    self.assertTrue(written.endswith(b"</vessel>\n"))
                    whole += b"<polyline>" in written
                else:
                    self.assertEqual(written, b"<vessel/>")
                reasons.add(done.stderr.decode().partition("boat.xml: ")[2])
        # Both ends were met: a save that was refused, and one that was whole.
        self.assertIn("the design can't be written: Cannot allocate memory\n", reasons)
        self.assertGreater(whole, 0)


if __name__ == "__main__":
    unittest.main()

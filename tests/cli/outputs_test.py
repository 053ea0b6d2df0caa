#!/usr/bin/env python3
"""What export, diff, report and check write: into pipes, onto full disks, over other files, and up to a signal"""

import contextlib
import os
import pty
import re
import resource
import signal
import subprocess
import tempfile
import time
import unittest
from pathlib import Path

from cli import FOLDERS, PROGRAM, SAMPLES, CliTest, run

BOAT = SAMPLES / "workboat.xml"
PICTURES = b"without pictures" not in run("render", "--help").stdout
# Verb, ending of its output, its status when that can't be written.
OUTPUTS = [("export", "dxf", 1), ("export", "geojson", 1), ("export", "csv", 1)]
if PICTURES:
    OUTPUTS += [("export", "svg", 1), ("report", "pdf", 1), ("diff", "png", 2), ("diff", "svg", 2), ("diff", "pdf", 2)]
STEPS = {"export": ("reading the design", "making the export"),
         "report": ("reading the design", "drawing the side top", "drawing the side rear", "writing the report"),
         "diff": ("reading the former file", "reading the new file", "comparing", "drawing what differs")}
ENVIRONMENT = {**os.environ, **FOLDERS, "SOURCE_DATE_EPOCH": "1000000000"}


def undated(data):
    """A file without the second in which it was made, which a PDF of differences tells."""
    return re.sub(rb"\(D:\d{14}Z\)", b"", data)


class OutputsTest(CliTest):
    """Each verb with each kind of file that it writes."""

    def setUp(self):
        super().setUp()
        self.other = self.write("other.xml", BOAT.read_text().replace('<gps x="', '<gps x="9'))

    def command(self, verb, ending, out, design=BOAT):
        """The arguments that make an output."""
        inputs = (design, self.other) if verb == "diff" else (design,)
        form = ("-f", ending) if verb == "export" else ()
        return (verb, *inputs, *form, "-o", out)

    def cases(self):
        """Verb and ending, the status of a failure, and a name for the output."""
        for verb, ending, trouble in OUTPUTS:
            yield verb, ending, trouble, self.folder / f"{verb}.{ending}"

    def make(self, verb, ending):
        """The bytes of an output."""
        out = self.folder / f"made.{ending}"
        done = run(*self.command(verb, ending, out), SOURCE_DATE_EPOCH="1000000000")
        self.assertEqual((done.returncode, done.stderr), (1 if verb == "diff" else 0, b""))
        data = out.read_bytes()
        out.unlink()
        self.assertGreater(len(data), 1000)
        return data

    def assert_untouched(self, out, before):
        """The output is what it was, and nothing else has come to be."""
        self.assertEqual(out.read_text(), "precious")
        self.assertEqual(sorted(self.folder.iterdir()), before)

    def test_a_full_device_is_reported(self):
        for verb, ending, trouble, out in self.cases():
            out.symlink_to("/dev/full")
            self.fail_with(trouble, (f"{out.name}: No space left on device",), *self.command(verb, ending, out))

    def test_a_lost_standard_output_is_reported(self):
        for verb, ending, trouble, _ in self.cases():
            if verb == "diff" and ending != "png":
                continue
            with open("/dev/full", "wb") as full:
                done = subprocess.run([PROGRAM, *self.command(verb, ending, "-")], stdout=full, stderr=subprocess.PIPE,
                                      check=False, env=ENVIRONMENT)
            self.assertEqual((done.returncode, done.stderr),
                             (trouble, b"hullwright-cli: standard output: No space left on device\n"))

    def test_a_lost_standard_output_of_check_is_not_taken_for_a_finding(self):
        design = self.write("odd.xml", BOAT.read_text().replace("</vessel>", "<engine /></vessel>"))
        self.assertEqual(run("check", design).returncode, 1)
        with open("/dev/full", "wb") as full:
            done = subprocess.run([PROGRAM, "check", design], stdout=full, stderr=subprocess.PIPE, check=False, env=ENVIRONMENT)
        self.assertEqual((done.returncode, done.stderr), (2, b"hullwright-cli: standard output: it can't be written\n"))

    def test_a_pipe_with_a_name_gets_the_whole_file(self):
        for verb, ending, _, out in self.cases():
            os.mkfifo(out)
            reader = os.open(out, os.O_RDONLY | os.O_NONBLOCK)
            got = b""
            with subprocess.Popen([PROGRAM, *self.command(verb, ending, out)], env=ENVIRONMENT,
                                  stdout=subprocess.DEVNULL) as writer:
                ended = False
                while not ended:
                    ended = writer.poll() is not None  # asked first, so that its last bytes are read
                    with contextlib.suppress(BlockingIOError):
                        while block := os.read(reader, 65536):
                            got += block
                    time.sleep(0.005)
            os.close(reader)
            self.assertTrue(out.is_fifo())
            self.assertEqual(undated(got), undated(self.make(verb, ending)))

    def test_a_folder_is_no_output(self):
        for verb, ending, trouble, out in self.cases():
            out.mkdir()
            self.fail_with(trouble, (f"{out.name}: Is a directory",), *self.command(verb, ending, out))
            out.rmdir()

    def test_what_is_there_survives_an_input_that_can_not_be_read(self):
        bad = self.write("bad.xml", "<vessel>")
        for verb, ending, trouble, out in self.cases():
            out.write_text("precious")
            before = sorted(self.folder.iterdir())
            self.fail_with(trouble, ("bad.xml: not a well-formed design file",), *self.command(verb, ending, out, bad))
            self.assert_untouched(out, before)

    def test_a_full_disk_is_reported_and_leaves_what_is_there(self):
        for verb, ending, trouble, out in self.cases():
            out.write_text("precious")
            before = sorted(self.folder.iterdir())
            done = subprocess.run([PROGRAM, *self.command(verb, ending, out)], capture_output=True, check=False, env=ENVIRONMENT,
                                  preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (1000, 1000)))
            self.assertEqual((done.returncode, done.stdout), (trouble, b""))
            self.assertEqual(done.stderr.decode().replace(f"{self.folder}/", ""), f"hullwright-cli: {out.name}: File too large\n")
            self.assert_untouched(out, before)

    def test_what_is_there_is_replaced_whole(self):
        for verb, ending, _, out in self.cases():
            out.write_text("precious" * 100000)
            self.assertIn(run(*self.command(verb, ending, out), SOURCE_DATE_EPOCH="1000000000").returncode, (0, 1))
            self.assertEqual(undated(out.read_bytes()), undated(self.make(verb, ending)))

    def test_a_signal_while_the_input_comes_leaves_no_temporary_file(self):
        for verb, ending, _, out in self.cases():
            for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
                out.write_text("precious")
                before = sorted(self.folder.iterdir())
                with tempfile.TemporaryDirectory() as temporary:
                    with subprocess.Popen([PROGRAM, *self.command(verb, ending, out, "-")], stdin=subprocess.PIPE,
                                          env={**ENVIRONMENT, "TMPDIR": temporary}) as writer:
                        writer.stdin.write(b"<vessel>")
                        writer.stdin.flush()
                        while not any(Path(temporary).glob(".hullwright-*")):
                            time.sleep(0.005)
                        writer.send_signal(number)
                        self.assertEqual(writer.wait(), -number)
                    # The toolkit may have made a folder of its own.
                    self.assertEqual([path for path in Path(temporary).rglob("*") if path.is_file()], [])
                self.assert_untouched(out, before)

    def test_an_output_that_is_the_input_is_refused_first(self):
        words = {"export": "the export would overwrite the design", "report": "the report would overwrite the design",
                 "diff": "the picture would overwrite what is compared", "render": "the picture would overwrite what is drawn",
                 "import": "the design would overwrite the drawing"}
        for verb in words if PICTURES else ("export", "diff", "import"):
            same = self.write("same.odd", self.other.read_text())
            inputs = (same, self.other) if verb == "diff" else (same,)
            link = self.folder / f"link-{verb}.odd"
            link.symlink_to(same)
            for out in (same, link):
                done = run(verb, *inputs, "-o", out)
                self.assertEqual((done.returncode, done.stderr.decode().splitlines()[0]), (2, f"hullwright-cli: {words[verb]}"))
            self.assertEqual(same.read_text(), self.other.read_text())

    def shown_on_terminal(self, *arguments):
        """What a command writes to a terminal in the place of standard error."""
        master, terminal = pty.openpty()
        done = subprocess.run([PROGRAM, *arguments], stdout=subprocess.DEVNULL, stderr=terminal, check=False, env=ENVIRONMENT)
        os.close(terminal)
        shown = b""
        with contextlib.suppress(OSError):  # at the end of what a terminal was given
            while block := os.read(master, 65536):
                shown += block
        os.close(master)
        self.assertIn(done.returncode, (0, 1))
        return shown

    def test_the_steps_are_named_on_a_terminal_and_removed(self):
        for verb, ending, _, out in self.cases():
            shown = self.shown_on_terminal(*self.command(verb, ending, out))
            steps = re.findall(r"([^\r\033]+) \.\.\.", shown.decode().replace("\033[K", ""))
            self.assertEqual([step for step in steps if step in STEPS[verb]], list(STEPS[verb]))
            self.assertTrue(shown.endswith(b"\r\033[K"), shown)

    def test_a_remark_takes_the_place_of_the_step_on_a_terminal(self):
        point = self.write("point.xml", '<vessel><shapes view="04"><polyline><vertex x="1"/></polyline></shapes></vessel>')
        shown = self.shown_on_terminal("export", point, "-o", self.folder / "point.dxf")
        self.assertIn(f"making the export ...\r\033[Khullwright-cli: {point}: left out: 1 polyline", shown.decode())


if __name__ == "__main__":
    unittest.main()

#!/usr/bin/env python3
"""Lets the monkey loose for some hundred events, and on programs that misbehave, each of which it must notice."""

import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent))
from case import PROGRAM  # noqa: E402
from desk import Desk  # noqa: E402

MONKEY = pathlib.Path(__file__).parent / "monkey"


class MonkeyTest(unittest.TestCase):
    """Each run has a folder for its log."""

    def setUp(self):
        holder = tempfile.TemporaryDirectory()
        self.addCleanup(holder.cleanup)
        self.folder = pathlib.Path(holder.name)
        self.log = self.folder / "log"

    def run_monkey(self, *arguments, program=PROGRAM):
        """Runs the monkey; its exit status and what it has to say."""
        done = subprocess.run([sys.executable, MONKEY, "--program", program, *map(str, arguments)], check=False,
                              capture_output=True, text=True, timeout=570)
        return done.returncode, done.stdout + done.stderr

    def misbehaving(self, script):
        """A program that runs the real one, and does something besides."""
        program = self.folder / "program"
        program.write_text(f'#!/bin/sh\nreal="{PROGRAM.resolve()}"\n{script}\n')
        program.chmod(0o755)
        return program

    def test_some_hundred_events_leave_nothing_and_give_the_same_design_again(self):
        status, words = self.run_monkey("--events", 400, "--checkpoint", 200, "--log", self.log, "--again")
        self.assertEqual(status, 0, words)
        print(words)
        steps = [json.loads(line) for line in self.log.read_text().splitlines()]
        saved = [values[0] for name, *values in steps if name == "saved"]
        self.assertGreater(len(saved), 1)
        self.assertNotIn("nothing", saved)

        # The same run with another design in the end is noticed.
        forged = self.folder / "forged"
        forged.write_text(self.log.read_text().replace(saved[-1], "0" * 64))
        status, words = self.run_monkey("--replay", forged)
        self.assertEqual(status, 1)
        self.assertIn("the design is another one", words)

    def test_a_program_that_dies_is_a_finding(self):
        program = self.misbehaving('"$real" "$@" & sleep 3; kill -KILL $!; wait $!')
        status, words = self.run_monkey("--events", 1000000, "--log", self.log, program=program)
        self.assertEqual(status, 1, words)
        self.assertIn("the program has ended: status 137", words)

    def test_what_a_sanitizer_has_written_is_a_finding(self):
        program = self.misbehaving('echo "a heap in disorder" > "$HOME/sanitizer.1"; exec "$real" "$@"')
        status, words = self.run_monkey("--events", 1000000, "--log", self.log, program=program)
        self.assertEqual(status, 1, words)
        self.assertIn("a heap in disorder", words)

    def test_a_run_for_some_minutes_ends_with_a_whole_checkpoint(self):
        status, words = self.run_monkey("--minutes", 0.001, "--checkpoint", 30, "--log", self.log)
        self.assertEqual(status, 0, words)
        self.assertIn("1 designs saved", words)
        self.assertEqual(json.loads(self.log.read_text().splitlines()[-1]), ["close"])


class SleepTest(unittest.TestCase):
    """When the steps of a monkey are over."""

    def test_a_desk_sleeps_when_no_thread_of_the_program_has_anything_left_to_do(self):
        desk = Desk("100x100", managed=False)
        self.addCleanup(desk.close)
        done = desk.folder / "done"
        # Work that goes from thread to thread, each of which only wakes the next one.
        desk.launch(sys.executable, "-c", f"""
import pathlib, threading, time
def work(left):
    sum(range(300000))
    if left == 0:
        pathlib.Path({str(done)!r}).touch()
        time.sleep(60)
    threading.Thread(target=work, args=[left - 1], daemon=True).start()
    time.sleep(60)
work(30)""")
        desk.sleep()
        self.assertTrue(done.exists(), desk.output())


if __name__ == "__main__":
    unittest.main()

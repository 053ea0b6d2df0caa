"""hullwright-cli of a build without pictures."""

import unittest

from cli import SAMPLES, CliTest, run


class NoPicturesTest(CliTest):
    def test_render_reports_that_there_are_no_pictures_and_writes_none(self):
        self.fail_with(1, ("render: built without pictures",), "render", SAMPLES / "workboat.xml",
                       "-o", self.folder / "boat.png")

    def test_export_reports_that_there_are_no_pictures_and_writes_none(self):
        self.fail_with(1, ("boat.svg: built without pictures",), "export", SAMPLES / "workboat.xml",
                       "-o", self.folder / "boat.svg")

    def test_its_help_says_so(self):
        self.assertIn(b"built without pictures", self.succeed("render", "--help"))

    def test_the_other_verbs_work(self):
        self.assertIn(b"workboat.xml", self.succeed("info", SAMPLES / "workboat.xml"))
        self.assertEqual(run("check", SAMPLES / "workboat.xml").returncode, 0)


if __name__ == "__main__":
    unittest.main()

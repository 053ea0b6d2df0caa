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

    def test_so_do_the_report_and_the_picture_of_differences(self):
        self.fail_with(1, ("report: built without pictures",), "report", SAMPLES / "workboat.xml",
                       "-o", self.folder / "boat.pdf")
        self.fail_with(2, ("diff: built without pictures",), "diff", SAMPLES / "workboat.xml", SAMPLES / "dredger.xml",
                       "-o", self.folder / "boat.png")

    def test_their_help_says_so(self):
        for verb in ("render", "report"):
            self.assertIn(b"built without pictures", self.succeed(verb, "--help"))

    def test_the_other_verbs_work(self):
        self.assertIn(b"workboat.xml", self.succeed("info", SAMPLES / "workboat.xml"))
        self.assertEqual(run("check", SAMPLES / "workboat.xml").returncode, 0)


if __name__ == "__main__":
    unittest.main()

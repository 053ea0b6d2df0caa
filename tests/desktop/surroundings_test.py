#!/usr/bin/env python3
"""Starts the real program in hostile surroundings: in each it opens a design, takes what is typed, saves the same
bytes as anywhere, and quits."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent))
from whole_desk import WholeDeskTest  # noqa: E402

LOCALES = ("de_DE", "ar_EG", "he_IL", "tr_TR")  # a comma, the right to left, an i of two kinds
NO_FONTS = """<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig><dir>{folder}</dir><cachedir>{folder}/cache</cachedir></fontconfig>
"""


class SurroundingsTest(WholeDeskTest):
    """One test for each."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        holder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(holder.cleanup)
        cls.locales = pathlib.Path(holder.name)
        for name in LOCALES:
            subprocess.run(["localedef", "-i", name, "-f", "UTF-8", cls.locales / f"{name}.UTF-8"], check=True,
                           capture_output=True)

    def assert_works(self, name="workboat.xml", **environment):
        """A day in these surroundings is as one in any."""
        expected = self.usual()
        self.assertEqual(self.work(name, **environment), expected)

    def test_languages(self):
        for name in LOCALES:
            with self.subTest(name):
                self.desk.clear()
                locale = f"{name}.UTF-8"
                self.assert_works("\u0130stanbul \u0131I \u05e9\u05dc\u05d5\u05dd.xml", LOCPATH=str(self.locales),
                                  LC_ALL=locale, LANG=locale, LANGUAGE=name)
                self.assertEqual(self.desk.output(), "")

    def test_no_language_but_file_names_in_unicode(self):
        self.assert_works("Schiff \u00e4 \u20ac \U0001f6a2.xml", LC_ALL="C", LANG="C", LANGUAGE="")

    def test_no_fonts(self):
        config = self.desk.folder / "fonts.conf"
        config.write_text(NO_FONTS.format(folder=self.desk.folder / "fonts"))
        self.assert_works(FONTCONFIG_FILE=str(config))

    def test_a_screen_of_twice_the_pixels(self):
        self.assert_works(QT_SCALE_FACTOR="2")

    def test_tiny_and_huge_windows(self):
        expected = self.usual()
        path = self.open()
        for width, height in ((1, 1), (20000, 3), (3, 20000), (4000, 3000), (1000, 700)):
            self.do(self.desk.hands.resize, self.desk.window, width, height)
            self.desk.settle()
        self.move_design()
        self.assertEqual(self.save(path), expected)
        self.leave()
        self.start(path)  # the size is that of before
        self.assertEqual(self.desk.hands.place(self.desk.window)[2:], (1000, 700))

    def test_a_home_that_nothing_can_be_written_to(self):
        nowhere = {name: "/dev/null/none" for name in ("HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME",
                                                       "XDG_STATE_HOME", "XDG_RUNTIME_DIR")}
        self.assert_works(**nowhere)

    def test_a_session_bus_that_has_gone(self):
        self.assert_works(DBUS_SESSION_BUS_ADDRESS=f"unix:path={self.desk.folder}/gone")


if __name__ == "__main__":
    unittest.main()

#!/usr/bin/env python3
"""Installs the build into a folder of its own and checks that what a desktop needs is there and works."""

import os
import pathlib
import shlex
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest

import tools

BUILD, SAMPLES, VERSION = sys.argv.pop(1), pathlib.Path(sys.argv.pop(1)).resolve(), sys.argv.pop(1)
SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)
DESIGN = "application/x-hullwright-design+xml"
EXPECTED = (
    "Sondaris/Database/geo.db",
    "applications/hullwright.desktop",
    "bash-completion/completions/hullwright-cli",
    "doc/hullwright/DXF.md",
    "doc/hullwright/EXCHANGE.md",
    "doc/hullwright/FILE-FORMAT.md",
    "doc/hullwright/guide/README.md",
    "fish/vendor_completions.d/hullwright-cli.fish",
    "icons/hicolor/scalable/apps/hullwright.svg",
    "icons/hicolor/scalable/mimetypes/application-x-hullwright-design+xml.svg",
    "man/man1/hullwright-cli.1",
    "man/man1/hullwright.1",
    "metainfo/hullwright.metainfo.xml",
    "mime/packages/hullwright.xml",
    "thumbnailers/hullwright.thumbnailer",
    "zsh/site-functions/_hullwright-cli",
)


def picture_size(path):
    """Width and height that a PNG states."""
    head = path.read_bytes()[:24]
    assert head[:8] == b"\x89PNG\r\n\x1a\n", f"{path} is no PNG"
    return struct.unpack(">II", head[16:24])


def entries(path):
    """The keys of a file in the form of desktop entries."""
    lines = path.read_text(encoding="utf-8").splitlines()
    return dict(line.split("=", 1) for line in lines if "=" in line)


class Installed(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.prefix = pathlib.Path(folder.name)
        cls.share = tools.install(BUILD, cls.prefix)
        # No display and no home; only the sanitizers may be set up.
        cls.bare = {"PATH": f"{cls.prefix}/bin:/usr/bin:/bin", "LSAN_OPTIONS": os.environ.get("LSAN_OPTIONS", "")}

    def test_everything_is_there(self):
        self.assertEqual([name for name in EXPECTED if not (self.share / name).is_file()], [])

    def test_programs_answer_without_a_display(self):
        for program in ("hullwright", "hullwright-cli"):
            answer = subprocess.run([program, "--version"], check=True, text=True, capture_output=True,
                                    env=self.bare).stdout
            self.assertEqual(answer, f"{program} {VERSION}\n")

    def test_icons_have_the_sizes_of_their_folders(self):
        icons = self.share / "icons/hicolor"
        for name in ("apps/hullwright.png", "mimetypes/application-x-hullwright-design+xml.png"):
            for size in SIZES:
                self.assertEqual(picture_size(icons / f"{size}x{size}" / name), (size, size))

    def test_every_file_speaks_of_the_same_type_and_icon(self):
        starter = entries(self.share / "applications/hullwright.desktop")
        self.assertEqual(starter["MimeType"], f"{DESIGN};")
        self.assertEqual(starter["Icon"], "hullwright")
        self.assertEqual(entries(self.share / "thumbnailers/hullwright.thumbnailer")["MimeType"], f"{DESIGN};")
        self.assertIn(f"<mediatype>{DESIGN}</mediatype>",
                      (self.share / "metainfo/hullwright.metainfo.xml").read_text(encoding="utf-8"))
        self.assertIn(DESIGN, (self.share / "mime/types").read_text(encoding="ascii"))

    def thumbnail(self, source, target, size):
        """Runs the thumbnailer as a file manager does; its exit status."""
        known = {"%i": str(source), "%o": str(target), "%s": str(size)}
        words = shlex.split(entries(self.share / "thumbnailers/hullwright.thumbnailer")["Exec"])
        return subprocess.run([known.get(word, word) for word in words], check=False, env=self.bare,
                              stderr=subprocess.DEVNULL, cwd="/").returncode

    def test_thumbnails_are_drawn_under_any_name(self):
        for name in ("thumbnail.png", ".thumbnail.a8Kf02", "with blanks & 'quotes'"):
            target = self.prefix / name
            self.assertEqual(self.thumbnail(SAMPLES / "workboat.xml", target, 256), 0)
            self.assertEqual(picture_size(target), (256, 256))

    def test_no_thumbnail_is_drawn_of_what_is_no_design(self):
        broken = self.prefix / "broken.xml"
        broken.write_text("<vessel>", encoding="ascii")
        self.assertNotEqual(self.thumbnail(broken, self.prefix / "none.png", 128), 0)

    def test_the_content_of_a_file_decides_whether_it_is_a_design(self):
        if shutil.which("gio") is None:
            self.skipTest("gio is not installed")
        known = os.environ | {"XDG_DATA_DIRS": str(self.share), "XDG_DATA_HOME": str(self.prefix / "home")}
        declaration = '<?xml version="1.0" encoding="UTF-8" ?>\n'
        files = {
            "design.xml": (f"{declaration}<vessel>\n</vessel>\n", True),
            "design": (f"{declaration}<vessel>\n</vessel>\n", True),
            "bare.xml": ("<vessel></vessel>\n", True),
            "late.xml": (f"{declaration}<!--{' ' * 440}-->\n<vessel></vessel>\n", True),
            "too-late.xml": (f"{declaration}<!--{' ' * 520}-->\n<vessel></vessel>\n", False),
            "other.xml": (f"{declaration}<boat></boat>\n", False),
        }
        for name, (text, is_design) in files.items():
            file = self.prefix / name
            file.write_text(text, encoding="ascii")
            answer = subprocess.run(["gio", "info", "-a", "standard::content-type,standard::icon", file], check=True,
                                    text=True, capture_output=True, env=known).stdout
            self.assertEqual(f"standard::content-type: {DESIGN}\n" in answer, is_design, (name, answer))
            self.assertEqual("application-x-hullwright-design+xml" in answer.partition("standard::icon")[2], is_design)


if __name__ == "__main__":
    tools.need("update-mime-database")
    unittest.main()

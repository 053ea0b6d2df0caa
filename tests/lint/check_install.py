#!/usr/bin/env python3
"""Installs the build into a folder of its own and checks that what a desktop needs is there and works."""

import pathlib
import subprocess
import sys
import tempfile

EXPECTED = (
    "bin/hullwright",
    "bin/hullwright-cli",
    "share/Sondaris/Database/geo.db",
    "share/applications/hullwright.desktop",
    "share/icons/hicolor/scalable/apps/hullwright.svg",
    "share/man/man1/hullwright-cli.1",
    "share/man/man1/hullwright.1",
    "share/metainfo/hullwright.metainfo.xml",
    "share/mime/packages/hullwright.xml",
)


def main():
    build, version = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        prefix = pathlib.Path(folder)
        subprocess.run(["cmake", "--install", build, "--prefix", folder], check=True, stdout=subprocess.DEVNULL)
        missing = [name for name in EXPECTED if not (prefix / name).is_file()]
        if missing:
            sys.exit(f"not installed: {missing}")
        # The programs must answer without a display, and the type database must take the design's type.
        for program in ("hullwright", "hullwright-cli"):
            answer = subprocess.run([prefix / "bin" / program, "--version"], check=True, text=True,
                                    capture_output=True, env={"PATH": "/usr/bin:/bin"}).stdout
            if answer != f"{program} {version}\n":
                sys.exit(f"unexpected version: {answer!r}")
        subprocess.run(["update-mime-database", prefix / "share/mime"], check=True, capture_output=True)
        types = (prefix / "share/mime/types").read_text(encoding="ascii")
        if "application/x-hullwright-design+xml" not in types:
            sys.exit("the type of a design is not registered")


if __name__ == "__main__":
    main()

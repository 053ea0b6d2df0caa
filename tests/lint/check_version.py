#!/usr/bin/env python3
"""Checks that the change logs, the man pages and the metainfo file name the version that CMakeLists.txt states."""

import re
import sys
import xml.etree.ElementTree

import checking

LOG = "CHANGELOG.md"
METAINFO = "packaging/hullwright.metainfo.xml"
PACKAGE = "packaging/debian/changelog"
PAGES = ("packaging/hullwright.1", "packaging/hullwright-cli.1")

# file: how it names its version; the first place counts, where the newest one stands
PLACES = {
    LOG: r"^## (\S+?),? ",
    PACKAGE: r"^hullwright \(([^-]*)-\d+\) ",
    METAINFO: r'<release version="([^"]*)"',
    **{page: r'^\.TH \S+ 1 "[^"]*" "Hullwright ([^"]*)" ' for page in PAGES},
}


def problems(project):
    """Yields what is wrong in a project, a line each."""
    build = (project / "CMakeLists.txt").read_text(encoding="utf-8")
    version = re.search(r"^project\(hullwright VERSION (\d+\.\d+\.\d+) ", build, re.MULTILINE)
    if not version:
        yield "CMakeLists.txt: no version"
        return
    for name, place in PLACES.items():
        found = re.search(place, (project / name).read_text(encoding="utf-8"), re.MULTILINE)
        if not found or found[1] != version[1]:
            yield f"{name}: the version is {found[1] if found else 'not there'}, not {version[1]}"
    xml.etree.ElementTree.parse(project / METAINFO)
    for page in (project / "packaging").glob("*.1"):
        if page.relative_to(project).as_posix() not in PLACES:
            yield f"packaging/{page.name}: a man page that no check knows"


def self_test(project):
    """A version that changes in one of the files alone must be found, or the check checks nothing."""
    names = ("CMakeLists.txt", *PLACES)
    texts = {name: (project / name).read_text(encoding="utf-8") for name in names}
    version = re.search(r"VERSION (\d+\.\d+\.\d+) ", texts["CMakeLists.txt"])[1]
    for wrong in names:
        found = checking.found_with(problems, texts, wrong, texts[wrong].replace(version, "9.8.7", 1))
        if len(found) != (len(PLACES) if wrong == "CMakeLists.txt" else 1):
            sys.exit(f"the check of the version does not find a wrong one in {wrong}: {found}")


if __name__ == "__main__":
    checking.run(problems, self_test, "One version.")

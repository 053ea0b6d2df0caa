#!/usr/bin/env python3
"""Checks that what the guide quotes of the program, a command or a label, is a text of the program. A quotation that begins
with a small letter is somebody else's."""

import re
import sys

import checking

ROOMS = ("app", "qt", "resources")


def texts_of_program(project):
    """The texts in the sources, as people see them: without marks of keys, prompts and tooltips apart."""
    texts = set()
    for room in ROOMS:
        for source in sorted((project / "src" / room).glob("*.*")):
            for literal in re.findall(r'"((?:[^"\\]|\\.)*)"', source.read_text(encoding="utf-8")):
                texts.update(part.replace("&", "").replace("\\r", " ") for part in literal.split("\\n"))
    return texts


def problems(project):
    """Yields what is wrong in a project, a line each."""
    texts = texts_of_program(project)
    for page in sorted((project / "docs" / "guide").glob("*.md")):
        for quoted in re.findall(r'"([A-Z][^"]*)"', " ".join(page.read_text(encoding="utf-8").split())):
            if quoted not in texts:
                yield f'{page.relative_to(project)}: "{quoted}" is no text of the program'


def self_test(_):
    """A command that is named differently on either side must be found, or the check checks nothing."""
    files = {"src/resources/Commands.def": 'COMMAND(.text = u"&Open Design...", .prompt = u"Open it\\nOpen\\rDesign")\n',
             "docs/guide/page.md": 'Choose "Open\nDesign..." or "Open Design", not "nan".\n'}
    if found := checking.found_with(problems, files, "", ""):
        sys.exit(f"the check of the guide finds what is not there: {found}")
    for name in files:
        text = files[name].replace("Design...", "Vessel...")
        if len(checking.found_with(problems, files, name, text)) != 1:
            sys.exit(f"the check of the guide does not find a wrong name in {name}")


if __name__ == "__main__":
    checking.run(problems, self_test, "The guide names what the program has.")

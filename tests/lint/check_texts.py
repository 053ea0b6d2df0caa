#!/usr/bin/env python3
"""Checks that every text of the window goes through one door: tr() or translate() with a context, so that it can be
translated. The tables of resources hold the system's own vocabulary, which is none of the window's."""

import pathlib
import re
import sys

import checking

# Names that look like words and are shown to nobody: of objects, styles, and contexts of translations.
NAMES = {"CustomizeButton", "Fusion", "ObjectView", "SideButton", "StandardToolBar", "Windows"}

LITERAL = re.compile(r'"((?:[^"\\\n]|\\.)*)"')
DOOR = re.compile(r'(?:\btr|\bTr)\(\s*$|\btranslate\(\s*(?:"\w+",\s*)?$')
COMMENT = re.compile(r"//[^\n]*|/\*.*?\*/", re.S)
INCLUDE = re.compile(r"^\s*#\s*include[^\n]*", re.M)
# Two words, or one that begins as a label does.
SEEN = re.compile(r"[A-Za-z]{2,}[.,:]? [A-Za-z%(]|^&?[A-Z][a-z]+(?:&?[a-z]+)*[.:]*$")


def problems(project):
    """Yields the texts of the window that no translation would reach, a line each."""
    for path in sorted((project / "src" / "qt").glob("*.*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        # Comments are blanked, so that places stay.
        text = path.read_text(encoding="utf-8")
        for pattern in (INCLUDE, COMMENT):
            text = pattern.sub(lambda found: re.sub(r"[^\n]", " ", found[0]), text)
        through = -1
        for found in LITERAL.finditer(text):
            before = text[:found.start()]
            goes_on = through >= 0 and not text[through:found.start()].strip()
            if goes_on or DOOR.search(before):
                through = found.end()
            elif SEEN.search(found[1]) and found[1] not in NAMES:
                line = before.count("\n") + 1
                yield f'{path.relative_to(project)}:{line}: "{found[1]}" is translated by nobody: no tr() or translate()'


def self_test(_):
    """The check must find texts beside the door, or it checks nothing."""
    wrong = ('setText(QStringLiteral("Click here"));', 'f("&Open...");', 'g(QLatin1String("Ready"));')
    right = ('tr("Click here");', 'translate("Shell", "Runs on "\n  "Qt");', '// "Some words"', 'key("Import/Folder");',
             'name("qt_toolbar_ext_button");', '#include "qt/Some File.h"')
    for text in wrong + right:
        found = checking.found_with(problems, {"src/qt/A.cpp": ""}, "src/qt/A.cpp", text + "\n")
        if len(found) != (text in wrong):
            sys.exit(f"the check of the texts takes {text!r} wrongly")


if __name__ == "__main__":
    checking.run(problems, self_test, "Every text of the window can be translated.")

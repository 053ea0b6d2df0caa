#!/usr/bin/env python3
"""Checks that every link of the documents leads to a file of the project and, where it names one, to a heading; that every
picture beside them is shown; and that every page of the guide can be reached from its first one."""

import pathlib
import re
import sys

import checking

GUIDE = pathlib.PurePath("docs/guide")
FOLDERS_OF_PICTURES = ("docs/pictures", "docs/guide/pictures")
LINK = re.compile(r"!?\[[^\]]*\]\(([^)\s]+)\)")


def pages(project):
    """The documents, as paths in the project."""
    found = [*project.glob("*.md"), *project.glob("docs/**/*.md"), *project.glob("tests/**/*.md")]
    return sorted(page.relative_to(project) for page in found)


def text_of(project, page):
    """A document without what only looks like a link or a heading: code."""
    text = (project / page).read_text(encoding="utf-8")
    return re.sub(r"`[^`\n]*`", "", re.sub(r"^```.*?^```", "", text, flags=re.MULTILINE | re.DOTALL))


def headings(project, page):
    """The names by which links reach the headings of a document."""
    titles = re.findall(r"^#+ (.*)$", (project / page).read_text(encoding="utf-8"), re.MULTILINE)
    return {re.sub(r"[^\w\- ]", "", title.lower()).replace(" ", "-") for title in titles}


def problems(project):
    """Yields what is wrong in a project, a line each."""
    links = {page: LINK.findall(text_of(project, page)) for page in pages(project)}
    reached = set()
    for page, targets in links.items():
        for link in targets:
            if re.match(r"[a-z]+:", link):
                continue
            path, _, heading = link.partition("#")
            target = (project / page.parent / path).resolve() if path else (project / page).resolve()
            if not target.exists() or not target.is_relative_to(project.resolve()):
                yield f"{page}: {link} leads nowhere"
                continue
            name = target.relative_to(project.resolve())
            reached.add(name)
            if heading and heading not in headings(project, name):
                yield f"{page}: {link} names no heading"
    for folder in FOLDERS_OF_PICTURES:
        for picture in sorted((project / folder).glob("*")):
            if picture.relative_to(project) not in reached:
                yield f"{picture.relative_to(project)}: no document shows it"
    first = GUIDE / "README.md"
    listed = {(GUIDE / link).as_posix() for link in links.get(pathlib.Path(first), ())}
    for page in links:
        if page.parent == GUIDE and page != first and page.as_posix() not in listed:
            yield f"{page}: the guide's first page does not list it"


def self_test(_):
    """Each kind of mistake must be found, or the check checks nothing."""
    good = {"README.md": "# A\n[g](docs/guide/README.md) [d](docs/D.md#a-b-c)\n```\n[x](code.md)\n```\n",
            "docs/D.md": "# A b, c\n", "docs/guide/README.md": "[p](page.md)\n",
            "docs/guide/page.md": "![p](pictures/p.png)\n", "docs/guide/pictures/p.png": ""}
    wrong = {"README.md": "[n](nowhere.md)", "docs/D.md": "# Other\n", "docs/guide/README.md": "nothing\n",
             "docs/guide/page.md": "no picture\n"}
    if found := checking.found_with(problems, good, "", ""):
        sys.exit(f"the check of the links finds what is not there: {found}")
    for name, text in wrong.items():
        if len(checking.found_with(problems, good, name, text)) != 1:
            sys.exit(f"the check of the links does not find what is wrong in {name}")


if __name__ == "__main__":
    checking.run(problems, self_test, "Every link leads somewhere.")

#!/usr/bin/env python3
"""Checks that docs/DXF.md and the fuzz dictionary name the keywords of drawings as the reader's table has them."""

import re
import sys

import checking

TABLE = "src/dxf/DxfKeywords.cpp"
PAGE = "docs/DXF.md"
DICTIONARY = "fuzz/reader.dict"


def part(text, pattern):
    found = re.search(pattern, text, re.DOTALL)
    return found[1] if found else ""


def words(text):
    return set(re.findall(r"\b[A-Z0-9][A-Z0-9_]{2,}\b", text))


def problems(project):
    """Yields what is wrong in a project, a line each."""
    table, page, dictionary = ((project / name).read_text(encoding="utf-8") for name in (TABLE, PAGE, DICTIONARY))
    rows = re.findall(r'\{"(\w+)", (true|false), (\w+)\}', table)
    if len(rows) != part(table, r"keywords = .*?\(\{(.*?)\}\);").count('"') / 2:
        yield f"{TABLE}: a row that this check can't read"
    read = {word for word, _, reader in rows if reader != "skipped"}
    skipped = {word for word, _, reader in rows if reader == "skipped"}
    not_in_blocks = {word for word, in_blocks, _ in rows if in_blocks == "false"}

    entities = part(page, r"\n\| entity \|[^\n]*\n\|[-|]*\n(.*?)\n\n")
    first_column = "\n".join(line.split("|")[1] for line in entities.splitlines())
    ignored = part(page, r"\nKnown, and passed over as a whole: (.*?)\.")
    unknown_in_blocks = part(page, r"\. Inside\s+blocks (.*?) are unknown")
    for what, expected, text in (
            ("the table of entities", read, first_column),
            ("the list of entities that are passed over", skipped, ignored),
            ("the list of entities that blocks do not know", not_in_blocks, unknown_in_blocks)):
        for word in sorted(expected ^ (words(text))):
            yield f"{PAGE}: {word} {'is missing in' if word in expected else 'does not belong in'} {what}"
    for word in sorted(read | skipped):
        if f'"0\\x0a{word}\\x0a"' not in dictionary:
            yield f"{DICTIONARY}: {word} is missing"


# Changes of one file that must be found: file, what is replaced there, and by what.
WRONG = (
    (TABLE, r'\{"(\w+)", (\w+), Read\w+\}', r'{"\1", \2, skipped}'),
    (TABLE, r'\{"(\w+)", false,', r'{"\1", true,'),
    (TABLE, r'\{"(\w+)", (\w+), (Read\w+)\},', r'{"\1", \2, \3}, {"NEW", true, skipped},'),
    (TABLE, r'\{"(\w+)", (\w+), (Read\w+)\}', r'{"\1", \2, [] {}}'),
    (PAGE, r"(\| entity \|[^\n]*\n[^\n]*\n\| )\w+", r"\1OTHER"),
    (PAGE, r"(passed over as a whole: )\w+, ", r"\1"),
    (DICTIONARY, r'"0\\x0aVERTEX\\x0a"', ""),
)


def self_test(project):
    """A change of one file alone must be found, or the check checks nothing."""
    texts = {name: (project / name).read_text(encoding="utf-8") for name in (TABLE, PAGE, DICTIONARY)}
    for name, old, new in WRONG:
        if not checking.found_with(problems, texts, name, re.sub(old, new, texts[name], count=1)):
            sys.exit(f"the check of the keywords does not find {old!r} as {new!r} in {name}")


if __name__ == "__main__":
    checking.run(problems, self_test, "Reader, page and dictionary know the same keywords.")

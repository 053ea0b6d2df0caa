"""What the checks of files that must agree have in common."""

import pathlib
import sys
import tempfile


def found_with(problems, texts, changed=None, text=""):
    """What `problems` finds in copies of the files `texts`, of which one may have another text."""
    with tempfile.TemporaryDirectory() as folder:
        for name, original in texts.items():
            file = pathlib.Path(folder, name)
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(text if name == changed else original, encoding="utf-8")
        return list(problems(pathlib.Path(folder)))


def run(problems, self_test, clean):
    """Prints the problems of the project that the command line names, or `clean`; exit status 1 with any."""
    project = pathlib.Path(sys.argv[1])
    found = list(problems(project))
    if not found:
        self_test(project)
    print("\n".join(found) or clean)
    sys.exit(1 if found else 0)

"""What the tests of the packaging have in common: the tools that they need, and a build that is installed."""

import pathlib
import shutil
import subprocess
import sys

LEFT_OUT = 77  # the exit status by which a test says that it did not run


def need(*names):
    """Leaves the test out where a tool is not installed."""
    missing = [name for name in names if shutil.which(name) is None]
    if missing:
        print(f"left out, for this is not installed: {', '.join(missing)}")
        sys.exit(LEFT_OUT)


def install(build, folder):
    """Installs a build into a folder; the folder of its data, where its types of files stand beside the system's."""
    subprocess.run(["cmake", "--install", build, "--prefix", folder], check=True, stdout=subprocess.DEVNULL)
    share = pathlib.Path(folder, "share")
    # In one folder, since a program that looks through several lets any match in a later one win.
    for types in pathlib.Path("/usr/share/mime/packages").glob("*.xml"):
        shutil.copy(types, share / "mime/packages")
    subprocess.run(["update-mime-database", share / "mime"], check=True, capture_output=True)
    return share

#!/usr/bin/env python3
"""Makes the package and lets lintian look at it."""

import pathlib
import subprocess
import sys
import tempfile

import tools


def main():
    build, version = sys.argv[1:]
    tools.need("dpkg-deb", "dpkg-shlibdeps", "lintian")
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run(["cpack", "-G", "DEB", "--config", pathlib.Path(build, "CPackConfig.cmake"), "-B", folder],
                       check=True, stdout=subprocess.DEVNULL)
        package, = pathlib.Path(folder).glob("*.deb")
        if not package.name.startswith(f"hullwright_{version}-"):
            sys.exit(f"unexpected name: {package.name}")
        subprocess.run(["lintian", "--allow-root", "--fail-on", "error,warning", package], check=True)


if __name__ == "__main__":
    main()

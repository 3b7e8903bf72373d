"""Builds the packages for 32-bit ARM and runs their tool, by an emulator.

dpkg installs them into an empty root, without regard to Debian's packages that they depend on:
those cannot be installed on this machine.  What they have of libraries is in the directory
that the build for ARM links from, and in that of the cross compiler.
"""

import argparse
import os
import pathlib
import sys
import tempfile

from consumer_build import Failure, run
from empty_root import EmptyRoot
from package_files import check_all_dependencies, packages_in

TRIPLET = "arm-linux-gnueabihf"
SKIPPED = 77


def check_tool(options, packages, directory):
    root = EmptyRoot(directory)
    run(["dpkg", f"--root={root.path}", "--add-architecture", "armhf"])
    run(["dpkg", f"--root={root.path}", "--force-depends", "--install",
         *packages.values()])
    libraries = [f"{place}/usr/lib/{TRIPLET}" for place in (root.path, options.sysroot)]
    document = root.path / "tmp/a.toml"
    tool = [*options.emulator.split(";"), "-E", f"LD_LIBRARY_PATH={':'.join(libraries)}",
            root.path / "usr/bin/vorn-toml"]
    for text, expected in (("a = 1\n", f"{document}: accepted\n"),
                           ("a = []\n", f"{document}:1:6: error: the array is empty\n")):
        document.write_text(text, encoding="ascii")
        said = run(["sh", "-c", '"$@" || [ $? = 1 ]', "sh", *tool, "check", document])
        if not said.startswith(expected):
            raise Failure(f"the tool prints {said}")


def main():
    parser = argparse.ArgumentParser()
    for name in ("version", "script", "packages", "sysroot", "emulator"):
        parser.add_argument(f"--{name}", required=True)
    options = parser.parse_args()
    if os.geteuid() != 0:
        print("Only root can install packages, in another root, too.")
        return SKIPPED
    try:
        run([options.script, options.packages, "armhf"])
        packages = packages_in(options.packages, options.version, "armhf")
        check_all_dependencies(packages)
        with tempfile.TemporaryDirectory() as directory:
            check_tool(options, packages, pathlib.Path(directory))
    except Failure as failure:
        print(failure)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())

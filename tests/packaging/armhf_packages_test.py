"""Builds the packages for 32-bit ARM and runs their tool, by an emulator.

dpkg installs them into an empty root, without regard to Debian's packages that they depend on:
those cannot be installed on this machine.  What they have of libraries is in the directory
that the build for ARM links from, and in that of the cross compiler.

The libraries of both processors are installed side by side, into another root.  There Debian's
packages are but names and versions.
"""

import argparse
import os
import pathlib
import re
import sys
import tempfile

from commands import Failure, run
from empty_root import EmptyRoot
from package_files import FOREIGN_NAMES, check_all_dependencies, packages_in

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


def check_side_by_side(options, packages, root):
    """Those for amd64 and for armhf, by apt and by dpkg.

    dpkg refuses files of one path that differ.
    """
    run([options.script, options.packages, "amd64", "-DVORN_TOOL=OFF"])
    others = packages_in(options.packages, options.version, "amd64", without=FOREIGN_NAMES)
    archives = [*others.values(), *(packages[name] for name in others)]
    run(["dpkg", f"--root={root.path}", "--add-architecture", "armhf"])
    for control in pathlib.Path(options.sysroot).glob("packages/*/DEBIAN/control"):
        text = control.read_text(encoding="utf-8")
        for architecture in ("amd64", "armhf"):
            root.pretend(*(re.search(rf"^{name}: (.*)$", text, re.MULTILINE)[1]
                           for name in ("Package", "Version")), architecture)
    said = root.simulate(["amd64", "armhf"], *archives)
    if said.count("\nInst ") != len(archives) or "\nRemv " in said:
        raise Failure(f"apt says\n{said}")
    root.install(*archives)


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
        with tempfile.TemporaryDirectory() as directory:
            check_side_by_side(options, packages, EmptyRoot(directory))
    except Failure as failure:
        print(failure)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())

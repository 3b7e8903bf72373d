"""Builds a client and the library with another utility library than the stand-in.

VORN_UTILS_LIBRARY names it; the client's log lines must come out through it, and nothing of
the stand-in may be built, needed or installed.
"""

import argparse
import pathlib
import re

from commands import Failure, in_new_directory, run
from consumer_build import build_with_cmake, check_run

DEVICE = pathlib.Path(__file__).with_name("device") / "device_utils.cpp"


def make_device_library(directory):
    directory.mkdir()
    library = directory / "libdevice_utils.so.3"
    run(["g++", "-std=c++17", "-shared", "-fPIC", f"-Wl,-soname,{library.name}",
         DEVICE, "-o", library])
    link = directory / "libdevice_utils.so"
    link.symlink_to(library.name)
    return link


def check_library(options, directory):
    utils = make_device_library(directory / "device")
    build = directory / "build"
    program = build_with_cmake(
        build, f"-DVORN_PARSERS_SOURCE={options.source}", f"-DVORN_UTILS_LIBRARY={utils}",
        "-DCMAKE_BUILD_TYPE=Debug", "-DVORN_WARNINGS_AS_ERRORS=ON")
    check_run(program, options.version, "the device's log: vorn_parsers 3 ")

    (library,) = build.rglob("libvorn_parsers.so")
    needed = re.findall(r"\(NEEDED\).*\[(.*)\]", run([options.readelf, "-d", "-W", library]))
    if "libdevice_utils.so.3" not in needed or "libvorn_utils.so.0" in needed:
        raise Failure(f"{library} needs {needed}")
    if found := list(build.rglob("libvorn_utils*")):
        raise Failure(f"the stand-in has been built: {found}")


def main():
    parser = argparse.ArgumentParser()
    for name in ("version", "source", "readelf"):
        parser.add_argument(f"--{name}", required=True)
    options = parser.parse_args()
    in_new_directory(check_library, options)


if __name__ == "__main__":
    main()

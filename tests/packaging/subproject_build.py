"""Configures and builds the clients that have the library's sources as a part of them."""

import pathlib
import re

from cmake_model import ask
from commands import Failure, clean_environment, run

# What the library needs no more than its clients do.
ABSENT = ("GTest", "CLI11", "nlohmann_json", "Python3", "benchmark")
# Only what is built is looked at, not how well.
QUICKLY = ("-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0", "-DCMAKE_C_FLAGS_DEBUG=-O0")


def configure(source, build, *options, found=()):
    """Sets a build up, where of what is absent only what is `found` can be found."""
    ask(build)
    return run(["cmake", "-Wdev", "-Werror=dev", "-G", "Ninja", "-S", source, "-B", build,
                *(f"-DCMAKE_DISABLE_FIND_PACKAGE_{name}={'OFF' if name in found else 'ON'}"
                  for name in ABSENT), *options],
               env=clean_environment())


def check_configuring_fails(source, build, message, *options, found=()):
    try:
        configure(source, build, *options, found=found)
    except Failure as failure:
        # CMake breaks lines.
        if message in " ".join(str(failure).split()):
            return
        raise
    raise Failure(f"{' '.join(options)} is configured without saying: {message}")


def tests(build):
    return re.findall(r"Test +#\d+: (\S+)", run(["ctest", "--test-dir", build, "-N"]))


def check_objects(build, source):
    """What has been compiled below `build` is the reader's library and the stand-in alone."""
    expected = {"grammar/TomlParser.c.o", "grammar/TomlTree.c.o"}
    for directory in ("src", "platform"):
        for path in (pathlib.Path(source) / directory).rglob("*.cpp"):
            name = path.relative_to(pathlib.Path(source) / directory)
            if name.parts[0] not in ("config", "diagnosis"):
                expected.add(f"{name}.o")
    found = sorted(re.sub(r"^.*\.dir/", "", str(path)) for path in build.rglob("*.o"))
    if found != sorted(expected):
        raise Failure(f"compiled are {found}, not {sorted(expected)}")

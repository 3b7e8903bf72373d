"""Configures the library at the top and as a part of another project, with parts switched on and
off; nothing is built.
"""

import argparse
import pathlib

from cmake_model import targets
from commands import Failure, in_new_directory
from subproject_build import check_configuring_fails, configure, tests

CLIENT = pathlib.Path(__file__).with_name("subproject")
# What tells that a part is there.
TARGET_OF = {"VORN_DIAGNOSIS": "vorn_toml_diagnosis", "VORN_CONFIG": "vorn_toml_config",
             "VORN_TOOL": "vorn-toml", "VORN_TESTS": "toml_test"}
DIAGNOSIS, CONFIG, TOOL, TESTS = TARGET_OF
TOOL_NEEDS = ("CLI11", "nlohmann_json")
TESTS_NEED = (*TOOL_NEEDS, "GTest", "Python3")


class Project:
    """A build of the library, or of a client that it is a part of."""

    def __init__(self, source, build, *options):
        self.source, self.build, self.options = source, build, options
        self.told = []

    def arguments(self, options):
        """Those of this run, which forget what earlier ones were told, and nothing else."""
        forgotten = [option.partition("=")[0].replace("-D", "-U") for option in self.told]
        self.told = options
        return [*forgotten, *self.options, *options]

    def has(self, *parts, options=(), found=()):
        """With these options and what can be found, there are these parts and no others."""
        configure(self.source, self.build, *self.arguments(options), found=found)
        there = targets(self.build)
        wrong = [part for part, target in TARGET_OF.items()
                 if (target in there) != (part in parts)]
        if wrong:
            raise Failure(f"{self.source} with {options}: {wrong} should be the other way")

    def fails(self, message, *options, found=()):
        check_configuring_fails(self.source, self.build, message, *self.arguments(options),
                                found=found)


def check_contradictions(project):
    for options, message in (
        (["-DVORN_DIAGNOSIS=OFF", "-DVORN_CONFIG=ON"], "VORN_CONFIG needs VORN_DIAGNOSIS"),
        (["-DVORN_DIAGNOSIS=OFF", "-DVORN_TOOL=ON"], "VORN_TOOL needs VORN_DIAGNOSIS"),
        (["-DVORN_TESTS=ON", "-DVORN_TOOL=OFF"], "VORN_TESTS needs VORN_TOOL"),
        (["-DVORN_TESTS=ON", "-DVORN_CONFIG=OFF"], "VORN_TESTS needs VORN_CONFIG"),
    ):
        project.fails(message, *options)


def check_part(source, build):
    """As a part, the libraries; more only where it is asked for."""
    client = Project(CLIENT, build, f"-DVORN_PARSERS_SOURCE={source}")
    client.has(DIAGNOSIS, CONFIG, options=["-DBUILD_TESTING=ON"])
    if "toml_test" in tests(build):
        raise Failure("the client has the library's tests")
    client.has(DIAGNOSIS, options=["-DVORN_CONFIG=OFF"])
    client.has(options=["-DVORN_DIAGNOSIS=OFF"])
    client.has(DIAGNOSIS, CONFIG)
    check_contradictions(client)
    # As with a compiler that is too old.
    without = "-DVORN_HAS_FLOAT_CONVERSIONS=OFF"
    client.has(DIAGNOSIS, options=[without])
    client.fails("VORN_CONFIG needs std::to_chars()", without, "-DVORN_CONFIG=ON")

    client.fails("CLI11 was not found", "-DVORN_TOOL=ON")
    client.has(DIAGNOSIS, CONFIG, TOOL, options=["-DVORN_TOOL=ON"], found=TOOL_NEEDS)
    client.fails("GoogleTest was not found", "-DVORN_TESTS=ON", found=TOOL_NEEDS)
    # The client's own tests are off.
    client.has(DIAGNOSIS, CONFIG, TOOL, TESTS, options=["-DVORN_TESTS=ON", "-DBUILD_TESTING=OFF"],
               found=TESTS_NEED)
    if "toml_test" not in tests(build / "vorn_parsers"):
        raise Failure("the library's tests, which were asked for, are not there")


def check_top(source, build):
    """At the top, everything, unless BUILD_TESTING or a part is off; what only these need is not
    looked for then."""
    top = Project(source, build)
    top.has(*TARGET_OF, found=TESTS_NEED)
    top.fails("GoogleTest was not found", found=TOOL_NEEDS)
    top.has(DIAGNOSIS, CONFIG, TOOL, options=["-DBUILD_TESTING=OFF"], found=TOOL_NEEDS)
    top.has(DIAGNOSIS, CONFIG, TOOL, options=["-DVORN_TESTS=OFF"], found=TOOL_NEEDS)
    top.fails("CLI11 was not found", "-DBUILD_TESTING=OFF")
    top.has(DIAGNOSIS, CONFIG, options=["-DVORN_TOOL=OFF"])
    top.has(DIAGNOSIS, TOOL, options=["-DVORN_CONFIG=OFF"], found=TOOL_NEEDS)
    top.has(options=["-DVORN_DIAGNOSIS=OFF"])
    check_contradictions(top)


def check_options(options, directory):
    check_part(options.source, directory / "client")
    check_top(options.source, directory / "top")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--source", required=True)
    options = parser.parse_args()
    in_new_directory(check_options, options)


if __name__ == "__main__":
    main()

"""Builds a client that has the library's sources as a subdirectory.

It gets the library alone: no test, no tool, nothing to install, and nothing is looked for
that only these need.  The diagnosis, and the values and places, are built for a client that links
them.
"""

import argparse
import json
import pathlib
import re
import sys
import tempfile

from consumer_build import (
    Failure,
    check_explanation,
    check_placing,
    check_run,
    clean_environment,
    run,
)

SOURCE = pathlib.Path(__file__).with_name("subproject")
# What the library needs no more than its clients do.
ABSENT = ("GTest", "CLI11", "nlohmann_json", "Python3", "benchmark")
TARGETS = {"consumer", "explain", "place", "vorn_parsers", "vorn_parsers_objects",
           "vorn_recognisers", "vorn_rooms", "vorn_toml_config", "vorn_toml_config_objects",
           "vorn_toml_diagnosis", "vorn_toml_diagnosis_objects", "vorn_utils"}


def configure(build, *options):
    query = build / ".cmake/api/v1/query/codemodel-v2"
    query.parent.mkdir(parents=True, exist_ok=True)
    query.touch()
    return run(["cmake", "-G", "Ninja", "-S", SOURCE, "-B", build,
                *(f"-DCMAKE_DISABLE_FIND_PACKAGE_{name}=ON" for name in ABSENT), *options],
               env=clean_environment())


def check_targets(build, own):
    """The targets are the libraries' and the client's `own`."""
    (model,) = (build / ".cmake/api/v1/reply").glob("codemodel-v2-*.json")
    (configuration,) = json.loads(model.read_text(encoding="utf-8"))["configurations"]
    targets = {target["name"] for target in configuration["targets"]}
    # Those of CTest are the client's: it has included it, or has not.
    targets = {name for name in targets if not re.match(own, name)}
    if targets != TARGETS:
        raise Failure(f"the targets are {sorted(targets)}, not {sorted(TARGETS)}")


def check_tests(build, names):
    listed = re.findall(r"Test +#\d+: (\S+)", run(["ctest", "--test-dir", build, "-N"]))
    if listed != names:
        raise Failure(f"the tests are {listed}, not {names}")


def installed(build, prefix):
    run(["cmake", "--install", build, "--prefix", prefix])
    return {path.name for path in prefix.rglob("*") if not path.is_dir()}


def check_installed(build, directory):
    """Only a client that asks for it installs the library."""
    found = installed(build, directory / "without")
    if found != {"consumer"}:
        raise Failure(f"installed without being asked for: {sorted(found - {'consumer'})}")
    configure(build, "-DVORN_INSTALL=ON")
    run(["cmake", "--build", build])
    found = installed(build, directory / "with")
    expected = {"consumer", "libvorn_parsers.so", "libvorn_toml_config.so.0",
                "libvorn_toml_diagnosis.so.0", "libvorn_utils.so.0", "toml.h",
                "vorn_parsersConfig.cmake", "vorn_parsers.pc"}
    if not expected <= found or "vorn-toml" in found:
        raise Failure(f"installed on request: {sorted(found)}")


def check_client(options, directory):
    """A client with tests of its own, and one without."""
    source = f"-DVORN_PARSERS_SOURCE={options.source}"
    build = directory / "without-tests"
    configure(build, source, "-DCLIENT_TESTS=OFF")
    check_targets(build, "$^")
    check_tests(build, [])
    cache = (build / "CMakeCache.txt").read_text(encoding="utf-8")
    if found := re.findall(r"^(?:BUILD_TESTING|CMAKE_BUILD_TYPE:\w+=.|\w*(?:GTest|CLI11|nlohmann"
                           r"_json)_DIR|CPACK_\w+).*", cache, re.MULTILINE):
        raise Failure(f"the cache has {found}")

    build = directory / "build"
    configure(build, source, "-DBUILD_TESTING=ON")
    check_targets(build, "(Continuous|Experimental|Nightly)")
    check_tests(build, ["client_test"])
    run(["cmake", "--build", build])
    check_run(build / "consumer", options.version, "error vorn_parsers ")
    found = [path.name for path in build.rglob("*")
             if path.name in ("vorn-toml", "compile_commands.json", "CPackConfig.cmake")
             or path.suffix == ".o" and re.search("toml_(diagnosis|config)", str(path))
             or "libvorn_toml" in path.name]
    if found:
        raise Failure(f"the build has {found}")
    run(["cmake", "--build", build, "--target", "explain"])
    check_explanation(build / "explain")
    run(["cmake", "--build", build, "--target", "place"])
    check_placing(build / "place")
    check_installed(build, directory)


def main():
    parser = argparse.ArgumentParser()
    for name in ("version", "source"):
        parser.add_argument(f"--{name}", required=True)
    options = parser.parse_args()
    try:
        with tempfile.TemporaryDirectory() as directory:
            check_client(options, pathlib.Path(directory))
    except Failure as failure:
        sys.exit(str(failure))


if __name__ == "__main__":
    main()

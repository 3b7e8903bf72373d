"""Builds a client that has the library's sources as a subdirectory.

It gets the library alone: no test, no tool, nothing to install, and nothing is looked for
that only these need.  The diagnosis, and the values and places, are built for a client that links
them.  What such a client installs on request is what the parts that are switched on need.
"""

import argparse
import pathlib
import re

from cmake_model import targets
from commands import Failure, in_new_directory, run
from consumer_build import (
    build_with_cmake,
    build_with_meson,
    check_explanation,
    check_is_missing,
    check_placing,
    check_run,
)
from pkg_config import check_leads_to, check_moved, check_staged
from subproject_build import QUICKLY, check_objects, configure, tests

SOURCE = pathlib.Path(__file__).with_name("subproject")
TARGETS = {"consumer", "explain", "place", "vorn_parsers", "vorn_parsers_objects",
           "vorn_recognisers", "vorn_rooms", "vorn_toml_config", "vorn_toml_config_objects",
           "vorn_toml_diagnosis", "vorn_toml_diagnosis_objects", "vorn_utils"}
MARK = "error vorn_parsers "
# What each library adds to what is installed.
PARTS = {
    "vorn_parsers": {"toml.h"},
    "vorn_toml_diagnosis": {"toml_diagnosis.h"},
    "vorn_toml_config": {"toml_config.h", "toml_places.h", "toml_schema.h", "toml_types.h",
                         "toml_values.h"},
}


def check_targets(build, own):
    """The targets are the libraries' and the client's `own`."""
    # Those of CTest are the client's: it has included it, or has not.
    found = {name for name in targets(build) if not re.match(own, name)}
    if found != TARGETS:
        raise Failure(f"the targets are {sorted(found)}, not {sorted(TARGETS)}")


def check_tests(build, names):
    if tests(build) != names:
        raise Failure(f"the tests are {tests(build)}, not {names}")


def installed(build, prefix):
    run(["cmake", "--install", build, "--prefix", prefix])
    return {path.name for path in prefix.rglob("*") if not path.is_dir()}


def check_parts(build, prefix, version, names):
    """Of the libraries, these are installed, each with all that it needs."""
    expected = {"consumer", "vorn_parsersConfig.cmake", "vorn_parsersConfigVersion.cmake",
                "libvorn_utils.so.0", f"libvorn_utils.so.{version}"}
    for name in names:
        expected |= {f"lib{name}.so", f"lib{name}.so.0", f"lib{name}.so.{version}", f"{name}.pc",
                     f"{name}Targets.cmake", f"{name}Targets-debug.cmake", *PARTS[name]}
    found = installed(build, prefix)
    if found != expected:
        raise Failure(f"with {', '.join(names)} these differ: {sorted(found ^ expected)}")


def check_installed(build, source, version, directory):
    """Only a client that asks for it installs the library, and only what is switched on."""
    found = installed(build, directory / "without")
    if found != {"consumer"}:
        raise Failure(f"installed without being asked for: {sorted(found - {'consumer'})}")
    # As Debian has it.
    libdir = "lib/" + run(["g++", "-print-multiarch"]).strip()
    configure(SOURCE, build, source, "-DVORN_INSTALL=ON", f"-DCMAKE_INSTALL_LIBDIR={libdir}")
    run(["cmake", "--build", build])
    prefix = directory / "with"
    check_parts(build, prefix, version, PARTS)
    check_clients(build, prefix, libdir, version, directory)

    configure(SOURCE, build, source, "-DVORN_CONFIG=OFF")
    check_parts(build, directory / "diagnosis", version, ["vorn_parsers", "vorn_toml_diagnosis"])
    configure(SOURCE, build, source, "-UVORN_CONFIG", "-DVORN_DIAGNOSIS=OFF")
    alone = directory / "alone"
    check_parts(build, alone, version, ["vorn_parsers"])
    found = f"-DCMAKE_PREFIX_PATH={alone}"
    check_run(build_with_cmake(directory / "with-alone", found), version, MARK)
    check_is_missing("toml_diagnosis", directory / "missing", found)


def check_clients(build, prefix, libdir, version, directory):
    """What is installed serves clients at its place, at another one, and in a sysroot."""
    check_leads_to(prefix, libdir)
    check_leads_to(prefix, libdir, "--define-prefix")
    check_staged(build, libdir, directory / "stage")
    moved = directory / "moved"
    prefix.rename(moved)
    check_moved(moved, libdir, directory / "moved-program", version, MARK)
    check_leads_to(moved, libdir)
    files = moved / libdir / "pkgconfig"
    program = build_with_meson(directory / "meson", files, target="place")
    check_placing(program)
    program = build_with_cmake(directory / "found", f"-DCMAKE_PREFIX_PATH={moved}")
    check_run(program, version, MARK)


def check_client(options, directory):
    """A client with tests of its own, and one without."""
    source = f"-DVORN_PARSERS_SOURCE={options.source}"
    build = directory / "without-tests"
    configure(SOURCE, build, source, "-DCLIENT_TESTS=OFF")
    check_targets(build, "$^")
    check_tests(build, [])
    cache = (build / "CMakeCache.txt").read_text(encoding="utf-8")
    if found := re.findall(r"^(?:BUILD_TESTING|CMAKE_BUILD_TYPE:\w+=.|\w*(?:GTest|CLI11|nlohmann"
                           r"_json)_DIR|CPACK_\w+).*", cache, re.MULTILINE):
        raise Failure(f"the cache has {found}")

    build = directory / "build"
    configure(SOURCE, build, source, "-DBUILD_TESTING=ON", *QUICKLY)
    check_targets(build, "(Continuous|Experimental|Nightly)")
    check_tests(build, ["client_test"])
    run(["cmake", "--build", build])
    check_run(build / "consumer", options.version, MARK)
    check_objects(build / "vorn_parsers", options.source)
    found = [path.name for path in build.rglob("*")
             if path.name in ("vorn-toml", "compile_commands.json", "CPackConfig.cmake")
             or "libvorn_toml" in path.name]
    if found:
        raise Failure(f"the build has {found}")
    run(["cmake", "--build", build, "--target", "explain"])
    check_explanation(build / "explain")
    run(["cmake", "--build", build, "--target", "place"])
    check_placing(build / "place")
    check_installed(build, source, options.version, directory)


def main():
    parser = argparse.ArgumentParser()
    for name in ("version", "source"):
        parser.add_argument(f"--{name}", required=True)
    options = parser.parse_args()
    in_new_directory(check_client, options)


if __name__ == "__main__":
    main()

"""Checks that all agree that name the library's version.

They are the project, the header, the library as it runs, its SONAME and file, the CMake
package, the pkg-config file, the tool's manual page and the latest entry of the changelog.
"""

import argparse
import pathlib
import re
import sys
import tempfile

from consumer_build import Failure, run


def matched(pattern, text, what):
    found = re.search(pattern, text, re.MULTILINE)
    if not found:
        raise Failure(f"{what} names no version:\n{text}")
    return found[1]


def installed_versions(options, prefix):
    run([options.cmake, "--install", options.build, "--component", "Development",
         "--prefix", prefix])
    (config,) = prefix.rglob("vorn_parsersConfigVersion.cmake")
    script = prefix / "version.cmake"
    script.write_text(
        f"set(PACKAGE_FIND_VERSION 0.1)\ninclude({config})\n"
        'message("version ${PACKAGE_VERSION}")\n',
        encoding="utf-8",
    )
    package = matched(r"^version (.*)$", run([options.cmake, "-P", script]), "the CMake package")
    (pc,) = prefix.rglob("vorn_parsers.pc")
    return {
        "the CMake package": package,
        "the pkg-config file": run([options.pkg_config, "--modversion", pc]).strip(),
    }


def versions(options):
    runtime, header = run([options.program]).split()
    page = pathlib.Path(options.manual_page).read_text(encoding="ascii")
    changelog = pathlib.Path(options.changelog).read_text(encoding="utf-8")
    with tempfile.TemporaryDirectory() as directory:
        installed = installed_versions(options, pathlib.Path(directory))
    return {
        "the header": header,
        "the library": runtime,
        "the library's file": pathlib.Path(options.library).resolve().name.partition(".so.")[2],
        "the manual page": matched(r'^\.TH .*"vorn_parsers ([^"]*)"', page, "the manual page"),
        "the changelog": matched(r"^## \[?([^\s\]]*)", changelog, "the changelog"),
        **installed,
    }


def main():
    parser = argparse.ArgumentParser()
    for name in ("version", "soversion", "program", "library", "build", "manual-page", "changelog", "cmake",
                 "pkg-config", "readelf"):
        parser.add_argument(f"--{name}", required=True)
    options = parser.parse_args()
    try:
        named = versions(options)
        dynamic = run([options.readelf, "--dynamic", "--wide", options.library])
        soname = matched(r"\(SONAME\).*\[(.*)\]", dynamic, "the library")
    except Failure as failure:
        sys.exit(str(failure))

    wrong = {what: version for what, version in named.items() if version != options.version}
    for what, version in wrong.items():
        print(f"{what} has version {version}, the project {options.version}")
    right_soname = f"libvorn_parsers.so.{options.soversion}"
    if soname != right_soname:
        print(f"the SONAME is {soname}, not {right_soname}")
    print(f"version {options.version}, {len(named)} others")
    return 1 if wrong or soname != right_soname else 0


if __name__ == "__main__":
    sys.exit(main())

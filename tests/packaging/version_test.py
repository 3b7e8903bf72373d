"""Checks that all agree that name the library's version.

They are the project, the header, the library as it runs, the libraries' SONAMEs and files, the
CMake package, the pkg-config files, the tool's manual page and the latest entry of the changelog.
"""

import argparse
import pathlib
import re
import sys
import tempfile

from commands import Failure, run

UTILS = "libvorn_utils.so.0"


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
    files = sorted(prefix.rglob("*.pc"))
    if [file.name for file in files] != ["vorn_parsers.pc", "vorn_toml_config.pc",
                                            "vorn_toml_diagnosis.pc"]:
        raise Failure(f"the pkg-config files are {files}")
    return {
        "the CMake package": package,
        **{file.name: run([options.pkg_config, "--modversion", file]).strip() for file in files},
    }


def file_version(library):
    return pathlib.Path(library).resolve().name.partition(".so.")[2]


def versions(options):
    runtime, header = run([options.program]).split()
    page = pathlib.Path(options.manual_page).read_text(encoding="ascii")
    changelog = pathlib.Path(options.changelog).read_text(encoding="utf-8")
    with tempfile.TemporaryDirectory() as directory:
        installed = installed_versions(options, pathlib.Path(directory))
    return {
        "the header": header,
        "the library": runtime,
        "the library's file": file_version(options.library),
        "the diagnosis's file": file_version(options.diagnosis),
        "the file of values and places": file_version(options.config),
        "the manual page": matched(r'^\.TH .*"vorn_parsers ([^"]*)"', page, "the manual page"),
        "the changelog": matched(r"^## \[?([^\s\]]*)", changelog, "the changelog"),
        **installed,
    }


def check_links(options, library, soname, needed):
    """The name of a library, and which of ours it needs: no other, or it links too much."""
    dynamic = run([options.readelf, "--dynamic", "--wide", library])
    found = matched(r"\(SONAME\).*\[(.*)\]", dynamic, library)
    if found != soname:
        raise Failure(f"the SONAME is {found}, not {soname}")
    ours = set(re.findall(r"\(NEEDED\).*\[(lib(?:vorn|antlr3c).*)\]", dynamic))
    if ours != needed:
        raise Failure(f"{soname} needs {sorted(ours)}, not {sorted(needed)}")


def main():
    parser = argparse.ArgumentParser()
    for name in ("version", "soversion", "diagnosis-soversion", "config-soversion", "program",
                 "library", "diagnosis", "config", "build", "manual-page", "changelog", "cmake",
                 "pkg-config", "readelf"):
        parser.add_argument(f"--{name}", required=True)
    options = parser.parse_args()
    try:
        named = versions(options)
        parsers = f"libvorn_parsers.so.{options.soversion}"
        runtime = "libantlr3c-3.4.so.0"
        check_links(options, options.library, parsers, {runtime, UTILS})
        check_links(options, options.diagnosis,
                    f"libvorn_toml_diagnosis.so.{options.diagnosis_soversion}", {runtime, parsers})
        check_links(options, options.config,
                    f"libvorn_toml_config.so.{options.config_soversion}",
                    {parsers, f"libvorn_toml_diagnosis.so.{options.diagnosis_soversion}"})
    except Failure as failure:
        sys.exit(str(failure))

    wrong = {what: version for what, version in named.items() if version != options.version}
    for what, version in wrong.items():
        print(f"{what} has version {version}, the project {options.version}")
    print(f"version {options.version}, {len(named)} others")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())

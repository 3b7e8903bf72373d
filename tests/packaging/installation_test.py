"""Installs the components of a build and uses what is installed, as clients do.

Nothing of it leads to the sources or the build: the clients are found what they need by the
prefix alone, and link one library alone.
"""

import argparse
import subprocess
import textwrap

from commands import Failure, clean_environment, in_new_directory, run
from consumer_build import (
    EXPLANATION,
    LIBRARY_OF,
    PLACING,
    SOURCE,
    build_with_cmake,
    build_with_meson,
    build_with_pkg_config,
    check_explanation,
    check_is_missing,
    check_placing,
    check_run,
)
from pkg_config import check_moved, check_staged

# The files of each component, where LIB stands for the directory of libraries.
COMPONENTS = {
    "Runtime": ["LIB/libvorn_parsers.so.SONUMBER", "LIB/libvorn_parsers.so.VERSION"],
    "Diagnosis": [
        "LIB/libvorn_toml_diagnosis.so.DIAGNOSIS_SONUMBER",
        "LIB/libvorn_toml_diagnosis.so.VERSION",
    ],
    "Config": [
        "LIB/libvorn_toml_config.so.CONFIG_SONUMBER",
        "LIB/libvorn_toml_config.so.VERSION",
    ],
    "Development": [
        "LIB/cmake/vorn_parsers/vorn_parsersConfig.cmake",
        "LIB/cmake/vorn_parsers/vorn_parsersConfigVersion.cmake",
        "LIB/cmake/vorn_parsers/vorn_parsersTargets-TYPE.cmake",
        "LIB/cmake/vorn_parsers/vorn_parsersTargets.cmake",
        "LIB/cmake/vorn_parsers/vorn_toml_configTargets-TYPE.cmake",
        "LIB/cmake/vorn_parsers/vorn_toml_configTargets.cmake",
        "LIB/cmake/vorn_parsers/vorn_toml_diagnosisTargets-TYPE.cmake",
        "LIB/cmake/vorn_parsers/vorn_toml_diagnosisTargets.cmake",
        "LIB/libvorn_parsers.so",
        "LIB/libvorn_toml_config.so",
        "LIB/libvorn_toml_diagnosis.so",
        "LIB/pkgconfig/vorn_parsers.pc",
        "LIB/pkgconfig/vorn_toml_config.pc",
        "LIB/pkgconfig/vorn_toml_diagnosis.pc",
        "include/vorn/parsers/toml.h",
        "include/vorn/parsers/toml_config.h",
        "include/vorn/parsers/toml_diagnosis.h",
        "include/vorn/parsers/toml_places.h",
        "include/vorn/parsers/toml_schema.h",
        "include/vorn/parsers/toml_types.h",
        "include/vorn/parsers/toml_values.h",
    ],
    "Tool": [
        "bin/vorn-toml",
        "share/bash-completion/completions/vorn-toml",
        "share/man/man1/vorn-toml.1",
    ],
    "HostUtils": ["LIB/libvorn_utils.so.0", "LIB/libvorn_utils.so.VERSION"],
}
# The libraries that another one's headers need.
REQUIRED_BY = {"vorn_toml_config": ("vorn_parsers", "vorn_toml_diagnosis")}


def install(options, component, prefix):
    run([options.cmake, "--install", options.build, "--component", component, "--prefix", prefix])


def check_files(options, component, prefix):
    install(options, component, prefix)
    found = sorted(
        str(path.relative_to(prefix)) for path in prefix.rglob("*") if not path.is_dir()
    )
    stand_ins = {
        "LIB": options.libdir,
        "DIAGNOSIS_SONUMBER": options.diagnosis_soversion,
        "CONFIG_SONUMBER": options.config_soversion,
        "SONUMBER": options.soversion,
        "VERSION": options.version,
        "TYPE": options.build_type.lower(),
    }
    expected = COMPONENTS[component]
    for name, value in stand_ins.items():
        expected = [path.replace(name, value) for path in expected]
    if found != sorted(expected):
        raise Failure(f"{component} has {found}, not {sorted(expected)}")


def check_is_relocated(prefix, options):
    """No text that is installed names the sources or the build."""
    for path in prefix.rglob("*"):
        if path.suffix in (".cmake", ".pc", ".h"):
            text = path.read_text(encoding="utf-8")
            for place in (options.build, options.source):
                if place in text:
                    raise Failure(f"{path} names {place}")


def check_package_is_found(prefix, directory, version):
    right = version.rpartition(".")[0]
    major, minor = (int(number) for number in right.split("."))
    # As long as the first number is 0, the second one stands for major versions.
    older = f"{major}.{minor - 1}"
    for wanted, fits in ((right, True), (version, True), (older, major > 0),
                         (f"{major}.{minor + 1}", False), (f"{major + 1}.0", False)):
        result = subprocess.run(
            ["cmake", "-G", "Ninja", "-S", SOURCE, "-B", directory / f"find-{wanted}",
             f"-DCMAKE_PREFIX_PATH={prefix}", f"-DWANTED_VERSION={wanted}"],
            env=clean_environment(), capture_output=True, text=True, check=False,
        )
        if (result.returncode == 0) != fits:
            raise Failure(f"find_package() of {wanted}:\n{result.stdout}{result.stderr}")
        if fits and f"found vorn_parsers {version}\n" not in result.stdout:
            raise Failure(f"find_package() of {wanted} finds another one:\n{result.stdout}")


def check_pkg_config(prefix, libdir):
    """The pkg-config files name this prefix, and nothing beyond their libraries and those that
    their headers need."""
    for library in LIBRARY_OF.values():
        check_pkg_config_of(library, prefix, libdir)


def check_pkg_config_of(library, prefix, libdir):
    environment = clean_environment(PKG_CONFIG_PATH=f"{prefix}/{libdir}/pkgconfig")
    required = REQUIRED_BY.get(library, ())
    libraries = " ".join(f"-l{name}" for name in (library, *required))
    for arguments, expected in (
        (["--libs"], f"-L{prefix}/{libdir} {libraries}"),
        (["--static", "--libs"], f"-L{prefix}/{libdir} {libraries}"),
        (["--cflags"], f"-I{prefix}/include"),
        (["--print-requires", "--print-requires-private"], "\n".join(required)),
        (["--variable=libdir"], f"{prefix}/{libdir}"),
        (["--variable=includedir"], f"{prefix}/include"),
    ):
        said = run(["pkg-config", *arguments, library], env=environment).strip()
        if said != expected:
            raise Failure(f"pkg-config {' '.join(arguments)} {library} says {said!r}, "
                          f"not {expected!r}")


def check_without(options, directory, left_out, missing):
    """Where components are left out, the other libraries can be used: theirs alone fail."""
    prefix = directory / f"without-{missing[0]}"
    for component in sorted(set(COMPONENTS) - left_out):
        install(options, component, prefix)
    found = f"-DCMAKE_PREFIX_PATH={prefix}"
    program = build_with_cmake(directory / f"parsers-without-{missing[0]}", found)
    check_run(program, options.version, "error vorn_parsers ")
    for component in missing:
        check_is_missing(component, directory / f"{component}-of-{missing[0]}", found)


def check_diagnosis(prefix, libraries, directory):
    """The client of the diagnosis, which prints what the header says, in both ways."""
    program = build_with_cmake(directory / "explain-by-cmake", f"-DCMAKE_PREFIX_PATH={prefix}",
                               "-DWANTED_COMPONENTS=toml_diagnosis", target="explain")
    check_explanation(program)
    program = build_with_pkg_config(directory / "explain-by-pkg-config",
                                    path=libraries / "pkgconfig", target="explain")
    check_explanation(program, LD_LIBRARY_PATH=str(libraries))
    header = (prefix / "include/vorn/parsers/toml_diagnosis.h").read_text(encoding="ascii")
    if textwrap.indent(EXPLANATION, "//   ") not in header:
        raise Failure(f"the header's example prints something else than\n{EXPLANATION}")


def check_places(prefix, libraries, directory):
    """The client of the values and places, in both ways."""
    program = build_with_cmake(directory / "place-by-cmake", f"-DCMAKE_PREFIX_PATH={prefix}",
                               "-DWANTED_COMPONENTS=toml_config", target="place")
    check_placing(program)
    program = build_with_pkg_config(directory / "place-by-pkg-config",
                                    path=libraries / "pkgconfig", target="place")
    check_placing(program, LD_LIBRARY_PATH=str(libraries))
    header = (prefix / "include/vorn/parsers/toml_places.h").read_text(encoding="ascii")
    if f"// {PLACING}" not in header:
        raise Failure(f"the header's example prints something else than\n{PLACING}")


def check_installed(options, directory):
    for component in COMPONENTS:
        check_files(options, component, directory / component)

    prefix = directory / "prefix"
    for component in COMPONENTS:
        install(options, component, prefix)
    check_is_relocated(prefix, options)
    check_package_is_found(prefix, directory, options.version)
    check_pkg_config(prefix, options.libdir)

    libraries = prefix / options.libdir
    mark = "error vorn_parsers "
    program = build_with_cmake(directory / "by-cmake", f"-DCMAKE_PREFIX_PATH={prefix}")
    check_run(program, options.version, mark)
    # What pkg-config says is enough to link; where the library is the loader has to be told.
    program = build_with_pkg_config(directory / "by-pkg-config", path=libraries / "pkgconfig")
    check_run(program, options.version, mark, LD_LIBRARY_PATH=str(libraries))
    program = build_with_meson(directory / "by-meson", libraries / "pkgconfig")
    check_run(program, options.version, mark)
    check_staged(options.build, options.libdir, directory / "stage")
    check_diagnosis(prefix, libraries, directory)
    check_places(prefix, libraries, directory)
    check_without(options, directory, {"Config"}, ["toml_config"])
    check_without(options, directory, {"Diagnosis", "Tool", "Config"},
                  ["toml_diagnosis", "toml_config"])
    check_without(options, directory, {"Diagnosis", "Tool"}, ["toml_diagnosis", "toml_config"])

    # All of it at another place: what is installed finds its libraries from there, too.
    moved = directory / "moved"
    prefix.rename(moved)
    said = run([moved / "bin/vorn-toml", "check", options.document], env=clean_environment())
    if said != f"{options.document}: accepted\n":
        raise Failure(f"the tool prints {said}")
    program = build_with_cmake(directory / "moved-by-cmake", f"-DCMAKE_PREFIX_PATH={moved}")
    check_run(program, options.version, mark)
    program = build_with_cmake(directory / "moved-explain", f"-DCMAKE_PREFIX_PATH={moved}",
                               target="explain")
    check_explanation(program)
    check_moved(moved, options.libdir, directory / "moved-program", options.version, mark)


def main():
    parser = argparse.ArgumentParser()
    for name in ("version", "soversion", "diagnosis-soversion", "config-soversion", "build",
                 "source", "build-type", "libdir", "document", "cmake"):
        parser.add_argument(f"--{name}", required=True)
    options = parser.parse_args()
    in_new_directory(check_installed, options)


if __name__ == "__main__":
    main()

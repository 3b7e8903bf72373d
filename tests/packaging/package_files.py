"""What packages have and what they state, read from their archives."""

import pathlib
import re
import tempfile

from commands import Failure, run

DEBIAN = pathlib.Path(__file__).parents[2] / "debian"
NAMES = ["libvorn-parsers0", "libvorn-parsers-dev", "libvorn-toml-config0",
         "libvorn-toml-diagnosis0", "libvorn-utils0", "vorn-toml"]
# What has no programs and libraries has no debug symbols.
DEBUG_NAMES = [f"{name}-dbgsym" for name in NAMES if not name.endswith("-dev")]
# Of the others those of several processors are installed together.
FOREIGN_NAMES = ["vorn-toml"]
# The packages of the libraries that are needed, on every processor.
PACKAGE_OF = {
    "ld-linux-armhf.so.3": "libc6",
    "libantlr3c-3.4.so.0": "libantlr3c-3.4-0",
    "libc.so.6": "libc6",
    "libgcc_s.so.1": "libgcc-s1",
    "libm.so.6": "libc6",
    "libstdc++.so.6": "libstdc++6",
    "libvorn_parsers.so.0": "libvorn-parsers0",
    "libvorn_toml_config.so.0": "libvorn-toml-config0",
    "libvorn_toml_diagnosis.so.0": "libvorn-toml-diagnosis0",
    "libvorn_utils.so.0": "libvorn-utils0",
}


def package_version(version):
    """The version in debian/changelog: that of the project, and a revision."""
    stated = run(["dpkg-parsechangelog", "-l", DEBIAN / "changelog", "-S", "Version"]).strip()
    if stated.rpartition("-")[0] != version:
        raise Failure(f"debian/changelog is about {stated}, and the version is {version}")
    return stated


def packages_in(directory, version, architecture, without=()):
    """The packages by their names, beside those of debug symbols: these and no others."""
    version = package_version(version)
    found = {path.name: path for path in pathlib.Path(directory).glob(f"*_{architecture}.deb")}
    expected = {name: f"{name}_{version}_{architecture}.deb" for name in [*NAMES, *DEBUG_NAMES]
                if name.removesuffix("-dbgsym") not in without}
    if set(found) != set(expected.values()):
        raise Failure(f"{directory} has {sorted(found)}, not {sorted(expected.values())}")
    return {name: found[expected[name]] for name in NAMES if name in expected}


def field(archive, name):
    return run(["dpkg-deb", "--field", archive, name]).strip()


def dependencies(archive):
    """The names of the packages that one depends on: of alternatives, the first."""
    return {re.split(r"[ (]", part.strip())[0] for part in field(archive, "Depends").split(",")}


def is_elf(path):
    return path.is_file() and not path.is_symlink() and path.read_bytes()[:4] == b"\x7fELF"


def check_dependencies(archive):
    """A package depends on those of all libraries that its programs and libraries need."""
    with tempfile.TemporaryDirectory() as directory:
        run(["dpkg-deb", "--extract", archive, directory])
        binaries = [path for path in pathlib.Path(directory).rglob("*") if is_elf(path)]
        dynamic = "".join(run(["readelf", "--dynamic", "--wide", path]) for path in binaries)
    needed = set(re.findall(r"\(NEEDED\).*\[(.*)\]", dynamic))
    if unknown := {name for name in needed if name not in PACKAGE_OF}:
        raise Failure(f"{archive} needs {unknown}, of packages that are not known here")
    stated = dependencies(archive)
    if missing := {PACKAGE_OF[name] for name in needed} - stated:
        raise Failure(f"{archive} needs {missing} and does not depend on it")
    if "RUNPATH" in dynamic or "RPATH" in dynamic:
        raise Failure(f"{archive} has a run path")
    return len(binaries)


def check_all_dependencies(packages):
    counts = {name: check_dependencies(archive) for name, archive in packages.items()}
    if counts != {name: 0 if name.endswith("-dev") else 1 for name in packages}:
        raise Failure(f"the packages have other programs and libraries: {counts}")
    for name, archive in packages.items():
        kind = "foreign" if name in FOREIGN_NAMES else "same"
        if field(archive, "Multi-Arch") != kind:
            raise Failure(f"{archive} is not Multi-Arch: {kind}")

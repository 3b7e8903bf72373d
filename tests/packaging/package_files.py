"""What packages have and what they state, read from their archives."""

import pathlib
import re
import tempfile

from consumer_build import Failure, run

NAMES = ["libvorn-parsers0", "libvorn-parsers-dev", "libvorn-toml-config0",
         "libvorn-toml-diagnosis0", "libvorn-utils0", "vorn-toml"]
# The packages of the libraries that are needed, on every processor.
PACKAGE_OF = {
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


def packages_in(directory, version, architecture):
    """The packages by their names: these and no others."""
    found = {path.name: path for path in pathlib.Path(directory).glob(f"*_{architecture}.deb")}
    expected = {name: f"{name}_{version}_{architecture}.deb" for name in NAMES}
    if set(found) != set(expected.values()):
        raise Failure(f"{directory} has {sorted(found)}, not {sorted(expected.values())}")
    return {name: found[file] for name, file in expected.items()}


def dependencies(archive):
    """The names of the packages that one depends on."""
    stated = run(["dpkg-deb", "--field", archive, "Depends"])
    return {re.split(r"[ (]", part.strip())[0] for part in stated.split(",")}


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
    if counts != {name: 0 if name.endswith("-dev") else 1 for name in NAMES}:
        raise Failure(f"the packages have other programs and libraries: {counts}")

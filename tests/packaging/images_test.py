"""Builds the archive of a release for 32-bit ARM as the recipes for images would.

Both state the same flags for CMake, which are taken from them.  With all parts, what is installed
is that of one package each, and finds its libraries where the system's are.  With no part, nothing
of the others is configured.
"""

import argparse
import pathlib
import re
import shutil
import sys

from cmake_model import ask, components, targets
from commands import Failure, clean_environment, in_new_directory, run
from image_recipes import OPTIONS, Recipe, buildroot_flags
from release_making import copy_repository, make_archive

SKIPPED = 77
DEVICE = pathlib.Path(__file__).with_name("device") / "device_utils.cpp"
LIBRARY = "/usr/lib/libdevice_utils.so"
TRIPLET = "arm-linux-gnueabihf"
# A part's package, and a file of it.
PARTS = {"vorn-parsers": "/usr/lib/libvorn_parsers.so.0",
         "vorn-parsers-diagnosis": "/usr/lib/libvorn_toml_diagnosis.so.0",
         "vorn-parsers-config": "/usr/lib/libvorn_toml_config.so.0",
         "vorn-parsers-tool": "/usr/bin/vorn-toml",
         "vorn-parsers-doc": "/usr/share/man/man1/vorn-toml.1",
         "vorn-parsers-dev": "/usr/include/vorn/parsers/toml.h"}


def make_device_library(staging):
    """The device's utility library, in a staging directory."""
    library = pathlib.Path(f"{staging}{LIBRARY}")
    library.parent.mkdir(parents=True)
    run([f"{TRIPLET}-g++", "-std=c++17", "-shared", "-fPIC", f"-Wl,-soname,{library.name}.3",
         DEVICE, "-o", library])


def flags_of_recipes(recipes, staging, directory, chosen):
    """The flags that both recipes have with these parts."""
    (path,) = recipes.glob("yocto/**/*.bb")
    yocto = Recipe(path, STAGING_LIBDIR=f"{staging}/usr/lib").flags(chosen)
    buildroot = buildroot_flags(
        recipes / "buildroot/package/vorn-parsers/vorn-parsers.mk", directory, chosen,
        STAGING_DIR=staging, BR2_PACKAGE_VORN_PARSERS_UTILS_LIBRARY=f'"{LIBRARY}"')
    if yocto != buildroot:
        raise Failure(f"with {chosen} Yocto's flags are {yocto}, and Buildroot's {buildroot}")
    return yocto


def check_checksums(recipes, archive):
    """The recipes beside the archive have its checksum."""
    (checksum,) = re.findall(r"^\w+", run(["sha256sum", archive]))
    for pattern, stated in (("**/*.bb", f'SRC_URI[sha256sum] = "{checksum}"'),
                            ("**/*.hash", f"sha256  {checksum}  {archive.name}")):
        (path,) = recipes.glob(pattern)
        if f"\n{stated}\n" not in path.read_text(encoding="ascii"):
            raise Failure(f"{path} has not the checksum {checksum}")


def configure(options, source, build, flags):
    """What CMake says; the recipes' flags, and what Yocto and Buildroot give by themselves."""
    ask(build)
    toolchain = source / "cmake/arm-linux-gnueabihf.cmake"
    return run(["cmake", "-G", "Ninja", "-S", source, "-B", build, *flags,
                f"-DCMAKE_TOOLCHAIN_FILE={toolchain}", f"-DVORN_ARM_SYSROOT={options.sysroot}",
                "-DCMAKE_INSTALL_PREFIX=/usr", "-DCMAKE_INSTALL_LIBDIR=lib",
                "-DCMAKE_BUILD_TYPE=Release", "-DCMAKE_C_FLAGS_RELEASE=-O1",
                "-DCMAKE_CXX_FLAGS_RELEASE=-O1"],
               env=clean_environment())


def check_nothing_else(build, said):
    """With no part on there are no targets of parts, and nothing of theirs is installed."""
    for part in ("diagnosis", "config", "tool", "tests"):
        if not re.search(rf"^-- +{part} +OFF$", said, re.MULTILINE):
            raise Failure(f"{part} is not off:\n{said}")
    unwanted = "diagnosis|config|toml|utils|test"
    if others := {name for name in targets(build) if re.search(unwanted, name)}:
        raise Failure(f"there are the targets {sorted(others)}")
    if (found := components(build)) != {"Runtime", "Development"}:
        raise Failure(f"{sorted(found)} are installed")


def check_installed(recipe, root):
    """Every file is of one package, and each package has its own."""
    found = {}
    for path in root.rglob("*"):
        if path.is_symlink() or not path.is_dir():
            file = f"/{path.relative_to(root)}"
            packages = recipe.packages_of(file)
            if len(packages) != 1:
                raise Failure(f"{file} is of the packages {packages}")
            found.setdefault(packages[0], set()).add(file)
    if set(found) != set(PARTS) or set(recipe.patterns()) != set(PARTS):
        raise Failure(f"there are the packages {sorted(found)}, not {sorted(PARTS)}")
    for package, file in PARTS.items():
        if file not in found[package]:
            raise Failure(f"{package} has {sorted(found[package])}, without {file}")


def check_libraries(options, root):
    """The device's library is needed, and no program or library has a path to others."""
    said = run([options.readelf, "-d", "-W", root / "usr/lib/libvorn_parsers.so"])
    if f"[{pathlib.Path(LIBRARY).name}.3]" not in said:
        raise Failure(f"the library does not need that of the device:\n{said}")
    for path in (*root.glob("usr/lib/*.so"), root / "usr/bin/vorn-toml"):
        if re.search(r"R(UN)?PATH", run([options.readelf, "-d", "-W", path])):
            raise Failure(f"{path} has a path to libraries")


def check_images(options, directory):
    repository = directory / "repository"
    repository.mkdir()
    copy_repository(options.source, repository)
    archive, _ = make_archive(repository, options.version, directory / "archive")
    recipes = archive.path.with_name(f"{archive.top}-recipes")
    check_checksums(recipes, archive.path)
    source = archive.unpack(directory)
    staging = directory / "staging"
    make_device_library(staging)

    flags = flags_of_recipes(recipes, staging, directory, ())
    build = directory / "nothing"
    check_nothing_else(build, configure(options, source, build, flags))
    flags_of_recipes(recipes, staging, directory, ("diagnosis",))
    flags = flags_of_recipes(recipes, staging, directory, OPTIONS)
    build, root = directory / "everything", directory / "root"
    configure(options, source, build, flags)
    run(["cmake", "--build", build, "--parallel", "2"])
    run(["cmake", "--install", build], env=clean_environment(DESTDIR=str(root)))
    (path,) = recipes.glob("yocto/**/*.bb")
    check_installed(Recipe(path), root)
    check_libraries(options, root)


def main():
    parser = argparse.ArgumentParser()
    for name in ("version", "sysroot", "readelf"):
        parser.add_argument(f"--{name}", required=True)
    parser.add_argument("--source", type=pathlib.Path, required=True)
    options = parser.parse_args()
    if not (options.source / ".git").exists() or not shutil.which("antlr3"):
        print("An archive is made of a checkout, with the tool.")
        return SKIPPED
    return in_new_directory(check_images, options)


if __name__ == "__main__":
    sys.exit(main())

"""Builds the packages for this machine and uses them in a root that has nothing else.

In the root there are, beside them, only the packages that they depend on; for building a
client a compiler, CMake, Ninja and pkg-config come to it.  (Debian's packages are copied from
this machine, so their own installation is not tested; and nothing for another processor is.)

The library is built again in another directory: the same bytes, debug symbols included.  The source
package is only made.
"""

import argparse
import os
import pathlib
import shutil
import sys
import tempfile

from commands import Failure, run
from consumer_build import (
    SOURCE,
    build_with_cmake,
    build_with_pkg_config,
    check_explanation,
    check_placing,
    check_run,
)
from empty_root import EmptyRoot
from package_files import DEBIAN, NAMES, check_all_dependencies, dependencies, packages_in

SKIPPED = 77
MARK = "error vorn_parsers "


def check_tool(root, packages):
    """The tool, with the packages that it depends on and nothing else."""
    names = ("libvorn-utils0", "libvorn-parsers0", "libvorn-toml-diagnosis0", "vorn-toml")
    archives = [packages[name] for name in names]
    root.add(*sorted(set().union(*map(dependencies, archives)) - set(NAMES)))
    for name in ("vorn-toml", "libvorn-parsers-dev", "libvorn-toml-config0",
                 "libvorn-toml-diagnosis0", "libvorn-parsers0"):
        if not root.refuses(packages[name]):
            raise Failure(f"{name} can be installed without another of these packages")
    root.install(*archives)
    (root.path / "tmp/a.toml").write_text("a = 1\n", encoding="ascii")
    said = root.run("/usr/bin/vorn-toml", "check", "/tmp/a.toml")
    if said != "/tmp/a.toml: accepted\n":
        raise Failure(f"the tool prints {said}")


def check_client(root, packages, version):
    """A client that is built with what the packages have, in both ways, and runs."""
    # The shell, with which Ninja runs the compiler, is essential: nothing depends on it.
    root.add("dash", "g++", "cmake", "ninja-build", "pkgconf")
    root.install(packages["libvorn-toml-config0"], packages["libvorn-parsers-dev"])
    shutil.copytree(SOURCE, root.path / "tmp/consumer")
    place = {"source": "/tmp/consumer", "within": root.within}
    program = build_with_cmake("/tmp/build", **place)
    check_run(program, version, MARK, root.within)
    program = build_with_pkg_config("/tmp/by-pkg-config", **place)
    check_run(program, version, MARK, root.within)
    program = build_with_cmake("/tmp/explain-build", target="explain", **place)
    check_explanation(program, root.within)
    program = build_with_pkg_config("/tmp/explain", target="explain", **place)
    check_explanation(program, root.within)
    program = build_with_cmake("/tmp/place-build", target="place", **place)
    check_placing(program, root.within)
    program = build_with_pkg_config("/tmp/place", target="place", **place)
    check_placing(program, root.within)


def check_distribution_test(root):
    """The test that a distribution runs of the installed packages."""
    # (As essential as the shell.)
    root.add("grep")
    source = root.path / "tmp/source"
    shutil.copytree(DEBIAN.with_name("examples"), source / "examples")
    shutil.copytree(DEBIAN / "tests", source / "debian/tests")
    root.run("sh", "-c", "cd /tmp/source && AUTOPKGTEST_TMP=/tmp sh debian/tests/client")


def check_same_bytes(built, directory):
    """The library, built as it was for its package, in another directory."""
    source = directory / "another-place"
    results = ("obj-*", "tmp", *NAMES)
    shutil.copytree(built, source, symlinks=True, ignore=shutil.ignore_patterns(*results))
    run(["debian/rules", "override_dh_auto_configure"], cwd=source)
    (build,) = source.glob("obj-*")
    run(["cmake", "--build", build, "--target", "vorn_parsers"])
    libraries = [*build.glob("src/libvorn_*.so.*.*"), *build.glob("platform/libvorn_*.so.*.*")]
    if len(libraries) != 2:
        raise Failure(f"these have been built: {libraries}")
    for library in libraries:
        other = built / library.relative_to(source)
        if library.read_bytes() != other.read_bytes():
            raise Failure(f"{other.name} is not the same in {built} and in another directory")


def check_source_package(script, packages):
    """That of the last commit, where there are commits: lintian has nothing to say."""
    if not DEBIAN.with_name(".git").exists():
        return
    run([script, packages, "source"])
    (description,) = pathlib.Path(packages).glob("*.dsc")
    with tempfile.TemporaryDirectory() as directory:
        source = pathlib.Path(directory) / "source"
        run(["dpkg-source", "--extract", description, source])
        if not (source / "generated/TomlParser.c").exists():
            raise Failure(f"{description} needs antlr3, which it does not ask for")


def check_without_diagnosis(root, version):
    """The library as on a device that does without the diagnosis."""
    if not root.refuses_to_remove("libvorn-toml-diagnosis0"):
        raise Failure("libvorn-toml-diagnosis0 can be removed from below others")
    root.remove("vorn-toml", "libvorn-parsers-dev", "libvorn-toml-config0",
                "libvorn-toml-diagnosis0")
    for name in ("build/consumer", "by-pkg-config"):
        check_run(f"/tmp/{name}", version, MARK, root.within)


def main():
    parser = argparse.ArgumentParser()
    for name in ("version", "script", "packages"):
        parser.add_argument(f"--{name}", required=True)
    options = parser.parse_args()
    if os.geteuid() != 0:
        print("Only root can run programs in another root.")
        return SKIPPED
    try:
        run([options.script, options.packages, "amd64"])
        packages = packages_in(options.packages, options.version, "amd64")
        check_all_dependencies(packages)
        with tempfile.TemporaryDirectory() as directory:
            root = EmptyRoot(directory)
            check_tool(root, packages)
            check_client(root, packages, options.version)
            check_distribution_test(root)
            check_without_diagnosis(root, options.version)
        check_source_package(options.script, options.packages)
        (built,) = pathlib.Path(options.packages).glob("build-amd64/vorn-parsers-*")
        with tempfile.TemporaryDirectory() as directory:
            check_same_bytes(built, pathlib.Path(directory))
    except Failure as failure:
        print(failure)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())

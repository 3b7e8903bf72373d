"""Makes the archive of a release, and builds the library from it where there is no Java.

The repository is a copy of this one with all that is not ignored committed, so that changes that
are not committed here are tested, too.  The archive has to be the same when it is made of
a clone, elsewhere, later and with other settings.  In a root with a compiler, CMake, Make and the
runtime, and nothing else, the library builds from it; once a grammar has changed, it asks for
the tool, and takes it where there is one.
"""

import argparse
import os
import pathlib
import re
import shutil
import sys

from commands import Failure, in_new_directory, run
from consumer_build import SOURCE, check_run
from empty_root import EmptyRoot
from release_archive import check_checksums, check_generated, check_members, check_names
from release_making import DATE, GIT, copy_repository, environment, git, make_archive

SKIPPED = 77
SUMMARY = "antlr3            "
NOT_NEEDED = SUMMARY + "not needed: the recognisers' sources are in the archive\n"
# The library alone.  (What is no variable here does no harm.)
ALONE = ("-DCMAKE_BUILD_TYPE=Debug", "-DBUILD_TESTING=OFF", "-DVORN_TOOL=OFF", "-DVORN_TESTS=OFF",
         "-DVORN_CONFIG=OFF", "-DVORN_DIAGNOSIS=OFF")


def check_reproducible(repository, archive, version, directory):
    """A clone that differs in all that must not count gives the same bytes."""
    clone = directory / "elsewhere" / "clone"
    clone.parent.mkdir()
    git(directory, "clone", "--quiet", repository, clone, **GIT)
    settings = directory / "settings"
    settings.write_text("[core]\n\tautocrlf = true\n[tar]\n\tumask = 0077\n", encoding="ascii")
    (clone / "CHANGELOG.md").write_text("not committed\n", encoding="ascii")
    again, said = make_archive(
        clone, version, directory / "elsewhere" / "archive", umask=0o077,
        GIT_CONFIG_GLOBAL=str(settings), TZ="Pacific/Auckland", XZ_OPT="--check=none",
        TAR_OPTIONS="--exclude=README.md")
    if "without what was changed since" not in said:
        raise Failure(f"nothing is said of what is not committed:\n{said}")
    if again.path.read_bytes() != archive.path.read_bytes():
        raise Failure("another clone gives another archive")


def check_content(options, repository, archive, directory):
    listed = git(repository, "ls-files", "--stage", "-z", **GIT).rstrip("\0").split("\0")
    modes = {name: line.split()[0] for line, name in (entry.split("\t") for entry in listed)}
    check_members(archive, {name for name, mode in modes.items() if mode == "100755"}, DATE)
    check_names(archive, {name: repository / name for name in modes})
    check_checksums(archive)
    check_generated(archive, (str(directory), options.source, options.build),
                    pathlib.Path(options.build))


def fails(command, *patterns, **options):
    """Checks that a command fails and says all of this."""
    try:
        said = run(command, **options)
    except Failure as failure:
        said = re.sub(r"\s+", " ", str(failure))
        if all(pattern in said for pattern in patterns):
            return
    raise Failure(f"{command} does not fail with {patterns}:\n{said}")


def check_without_tool(archive, version, directory):
    """Where there is neither the tool nor Java, by plain CMake."""
    root = EmptyRoot(directory)
    # The shell, with which Make runs the compiler, is essential: nothing depends on it.
    root.add("dash", "g++", "cmake", "make", "libantlr3c-dev")
    for name in ("antlr3", "java"):
        if list(root.path.glob(f"usr/*bin/{name}*")) or (root.path / "usr/share/java").exists():
            raise Failure(f"{name} is in the root")
    top = archive.unpack(root.path / "tmp")
    inside = f"/tmp/{archive.top}"
    configure = [*root.within, "cmake", "-S", inside, "-B", "/tmp/build", *ALONE]
    build = [*root.within, "cmake", "--build", "/tmp/build", "--target", "vorn_parsers"]
    said = run(configure, env=environment())
    if NOT_NEEDED not in said:
        raise Failure(f"the summary does not say that no tool is needed:\n{said}")
    run([*build, "--parallel", "2"], env=environment())
    shutil.copy(SOURCE / "consumer.cpp", root.path / "tmp")
    libraries = ("/tmp/build/src", "/tmp/build/platform")
    root.run("g++", "-std=c++17", f"-I{inside}/include", "/tmp/consumer.cpp", "-o", "/tmp/consumer",
             *(f"-Wl,-rpath,{library}" for library in libraries), f"-L{libraries[0]}",
             "-lvorn_parsers")
    check_run("/tmp/consumer", version, "error vorn_parsers ", root.within)

    missing = ("the Debian package antlr3", "generated/ was made with another state of: ")
    for name in ("src/grammar/Toml.g", "src/grammar/TomlTree.g", "cmake/RunAntlr.cmake",
                 "generated/TomlParser.c"):
        with open(top / name, "a", encoding="ascii") as file:
            file.write("\n")
        # The change alone makes CMake run again.
        fails(build, *missing, f" {name}.", env=environment())
        (top / name).write_bytes(archive.content[name])
    (top / "generated/TomlTree.h").unlink()
    fails(configure, *missing, " generated/TomlTree.h.", env=environment())


def check_with_tool(archive, directory):
    """On this machine: the tool is looked for once a grammar has changed."""
    top = archive.unpack(directory)
    build = top / "build"
    said = run(["cmake", "-S", top, "-B", build, *ALONE], env=environment())
    if NOT_NEEDED not in said or "ANTLR3_TOOL" in (build / "CMakeCache.txt").read_text():
        raise Failure(f"the tool is looked for where it is not needed:\n{said}")
    make = ["cmake", "--build", build, "--target", "vorn_recognisers"]
    said = run(make, env=environment())
    if "Copying the recognisers of Toml.g" not in said:
        raise Failure(f"the archive's recognisers are not taken:\n{said}")
    grammar = top / "src/grammar/Toml.g"
    released = grammar.read_bytes()
    grammar.write_bytes(released + b"// A change.\n")
    said = run(make, env=environment())
    if NOT_NEEDED in said or "Making the recognisers of Toml.g" not in said:
        raise Failure(f"a changed grammar does not lead to other recognisers:\n{said}")
    grammar.write_bytes(released)
    said = run(make, env=environment())
    if NOT_NEEDED not in said or "Copying the recognisers of Toml.g" not in said:
        raise Failure(f"the grammar of the release does not lead back to the archive:\n{said}")


def check_release(options, directory):
    repository = directory / "repository"
    copy_repository(pathlib.Path(options.source), repository)
    archive, said = make_archive(repository, options.version, directory / "archive")
    if "changed since" in said:
        raise Failure(f"the repository has no changes:\n{said}")
    check_content(options, repository, archive, directory)
    check_reproducible(repository, archive, options.version, directory)
    check_with_tool(archive, directory / "with-tool")
    if os.geteuid() != 0:
        print("The archive is right. Only root can build from it in another root.")
        return SKIPPED
    check_without_tool(archive, options.version, directory / "root")
    return 0


def main():
    parser = argparse.ArgumentParser()
    for name in ("version", "source", "build"):
        parser.add_argument(f"--{name}", required=True)
    options = parser.parse_args()
    if not (pathlib.Path(options.source) / ".git").exists():
        print("An archive is made of a repository, which this is not.")
        return SKIPPED
    return in_new_directory(check_release, options)


if __name__ == "__main__":
    sys.exit(main())

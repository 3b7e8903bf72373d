"""Compiles the public headers and clients with each compiler, as clients do, and runs one.

The warnings that careful projects ask for are errors in them: the headers are not a system's.
The headers are compiled with and without exceptions and type information, by each standard: all at
once, to save time (`scripts/check headers` has each alone).  Then the client without both is linked
with the libraries of the build, and run.
"""

import argparse
import concurrent.futures
import os
import pathlib
import subprocess
import sys
import tempfile
from typing import NamedTuple

HEADERS = "the headers"
WITH = ()
WITHOUT = ("-fno-exceptions", "-fno-rtti")
HEADER_WAYS = [(standard, flags) for standard in ("c++17", "c++20", "c++2b")
               for flags in (WITH, WITHOUT)]
# Programs take longer: each has one standard for each way.
PROGRAM_WAYS = [("c++17", WITHOUT), ("c++2b", WITH)]
WARNINGS = ("-Wall", "-Wextra", "-Wpedantic", "-Wconversion", "-Wshadow", "-Wold-style-cast",
            "-Werror")
PLAIN = "tests/packaging/plain_client.cpp"
# Programs, and how they are compiled: as they can be, some in one way only, to save time.
PROGRAMS = {
    "examples/config_reader.cpp": (WITHOUT,),
    "examples/daemon_config.cpp": (WITH, WITHOUT),
    "examples/network_config.cpp": (WITH,),
    "examples/toml_to_json.cpp": (WITHOUT,),
    "tests/packaging/consumer/consumer.cpp": (WITH,),  # its visitor throws
    "tests/packaging/consumer/explain.cpp": (WITH, WITHOUT),
    "tests/packaging/consumer/place.cpp": (WITH,),  # it asks for a type
    "tests/packaging/version_program.cpp": (WITH, WITHOUT),
    PLAIN: (WITHOUT,),
}


class Compilation(NamedTuple):
    compiler: str
    standard: str
    flags: tuple
    name: str  # of a program, or HEADERS

    def __str__(self):
        return " ".join((self.compiler, f"-std={self.standard}", *self.flags, self.name))


def said_by(command, text=None):
    """Whether a command succeeds, and its output."""
    environment = {name: value for name, value in os.environ.items() if name != "LD_LIBRARY_PATH"}
    result = subprocess.run([str(word) for word in command], input=text, env=environment, text=True,
                            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
    return result.returncode == 0, result.stdout


def version_of(compiler):
    """The compiler's first line about itself, or nothing if there is none of that name."""
    try:
        return said_by([compiler, "--version"])[1].partition("\n")[0]
    except OSError:
        return ""


def compilations(compilers):
    for compiler in compilers:
        for standard, flags in HEADER_WAYS:
            yield Compilation(compiler, standard, flags, HEADERS)
        for standard, flags in PROGRAM_WAYS:
            for program, wanted in PROGRAMS.items():
                if flags in wanted:
                    yield Compilation(compiler, standard, flags, program)


def including_all(root):
    headers = sorted((root / "include").rglob("*.h"))
    if not headers:
        sys.exit(f"there is no header below {root}/include")
    return "".join(f"#include <{path.relative_to(root / 'include')}>\n" for path in headers)


def errors_of(root, compilation):
    """What the compiler says of a header or a program, if it is not content."""
    command = [compilation.compiler, f"-std={compilation.standard}", *compilation.flags, *WARNINGS,
               "-I", root / "include", "-fsyntax-only", "-x", "c++"]
    if compilation.name == HEADERS:
        succeeded, said = said_by([*command, "-"], including_all(root))
    else:
        succeeded, said = said_by([*command, root / compilation.name])
    return "" if succeeded else f"$ {compilation}\n{said}"


def failure_of_client(options, compiler, directory):
    """Links the client without exceptions, and runs it."""
    program = directory / f"plain_client-{pathlib.Path(compiler).name}"
    needed = [f"-Wl,-rpath-link,{pathlib.Path(path).parent}" for path in options.needed]
    libraries = [f"-Wl,-rpath,{pathlib.Path(path).parent}" for path in options.library]
    succeeded, said = said_by([compiler, "-std=c++17", "-O1", *WITHOUT, *WARNINGS,
                               "-I", options.source / "include", options.source / PLAIN,
                               "-o", program, *options.library, *libraries, *needed])
    if succeeded:
        succeeded, said = said_by([program])
    return "" if succeeded else f"$ {program}\n{said}"


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--source", type=pathlib.Path, required=True)
    parser.add_argument("--compilers", nargs="+", required=True, help="all of them have to be there")
    parser.add_argument("--library", nargs="+", required=True, help="what the client is linked with")
    parser.add_argument("--needed", nargs="*", default=[], help="what these need besides")
    options = parser.parse_args()
    found = {name: version_of(name) for name in options.compilers}
    for name, version in found.items():
        print(f"{name}: {version or 'was not found'}")
    if missing := [name for name, version in found.items() if not version]:
        sys.exit(f"`scripts/setup compilers` installs what is missing: {', '.join(missing)}")

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool, \
            tempfile.TemporaryDirectory() as directory:
        wanted = list(compilations(found))
        clients = pool.map(lambda name: failure_of_client(options, name, pathlib.Path(directory)),
                           found)
        failures = [*clients, *pool.map(lambda one: errors_of(options.source, one), wanted)]
    print(f"{len(wanted) // len(found)} compilations with each compiler")
    failures = [failure for failure in failures if failure]
    print("\n".join(failures[:10]))
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())

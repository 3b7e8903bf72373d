"""Builds and runs the programs of consumer/, in ways in which clients do."""

import pathlib
import shlex
import subprocess

from commands import Failure, clean_environment, run

SOURCE = pathlib.Path(__file__).with_name("consumer")
# The programs there, and the library that each one links.
LIBRARY_OF = {"consumer": "vorn_parsers", "explain": "vorn_toml_diagnosis",
              "place": "vorn_toml_config"}
OUTPUT = """\
31
accepted
same
the visitor threw 1.5
same
the visitor threw 2.5
same
3
rejected
same
0
"""
# What is logged: by the stand-in after "error vorn_parsers ...: ".
MESSAGES = ["Failed to visit toml tree", "No such file: /no/such.toml"]
# What the client of the diagnosis prints.
EXPLANATION = """\
config.toml:12:10: the array is empty
   12 | names = []
      |          ^
"""
# What that of the values and places prints.
PLACING = "2:8: 80800 is not a port\n"


def build_with_cmake(build, *options, source=SOURCE, within=(), target="consumer"):
    """A program, by CMake; `within` are words before each command."""
    run([*within, "cmake", "-G", "Ninja", "-S", source, "-B", build, *options],
        env=clean_environment())
    run([*within, "cmake", "--build", build, "--target", target], env=clean_environment())
    return f"{build}/{target}"


def build_with_pkg_config(program, path=None, source=SOURCE, within=(), target="consumer",
                          options=()):
    """A program, by nothing but the compiler and what pkg-config says."""
    variables = {"PKG_CONFIG_PATH": str(path)} if path else {}
    said = run([*within, "pkg-config", *options, "--cflags", "--libs", LIBRARY_OF[target]],
               env=clean_environment(**variables))
    run([*within, "g++", "-std=c++17", f"{source}/{target}.cpp", "-o", program,
         *shlex.split(said)], env=clean_environment())
    return program


def build_with_meson(build, path, source=SOURCE, target="consumer"):
    """A program, by Meson, which asks pkg-config."""
    environment = clean_environment(PKG_CONFIG_PATH=str(path))
    run(["meson", "setup", build, source], env=environment)
    run(["ninja", "-C", build, target], env=environment)
    return f"{build}/{target}"


def check_is_missing(component, build, found):
    """Where a component is not installed, find_package() says so."""
    try:
        build_with_cmake(build, found, f"-DWANTED_COMPONENTS={component}")
    except Failure as failure:
        if component in str(failure):
            return
        raise
    raise Failure("find_package() finds a component that is not installed")


def check_run(program, version, mark, within=(), **variables):
    """Runs the program; the log lines must have `mark` in them."""
    result = subprocess.run(
        [*within, program],
        env=clean_environment(**variables),
        stdin=subprocess.DEVNULL,
        capture_output=True,
        text=True,
        check=False,
    )
    if result.returncode != 0 or result.stdout != f"{version}\n{OUTPUT}":
        raise Failure(f"{program} ends with status {result.returncode} and prints\n"
                      f"{result.stdout}{result.stderr}")
    logged = [line for line in result.stderr.splitlines() if mark in line]
    wrong = [message for message, line in zip(MESSAGES, logged) if not line.endswith(message)]
    # The visitor that throws ends the second reading before anything is logged.
    if wrong or len(logged) != len(MESSAGES):
        raise Failure(f"{program} logs\n{result.stderr}")


def check_explanation(program, within=(), **variables):
    """Runs the client of the diagnosis."""
    said = run([*within, program], env=clean_environment(**variables))
    if said != EXPLANATION:
        raise Failure(f"{program} prints\n{said}and not\n{EXPLANATION}")


def check_placing(program, within=(), **variables):
    """Runs the client of the values and places."""
    said = run([*within, program], env=clean_environment(**variables))
    if said != PLACING:
        raise Failure(f"{program} prints\n{said}and not\n{PLACING}")

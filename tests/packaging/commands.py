"""Runs commands that have to succeed, and tests that say what has failed."""

import os
import pathlib
import subprocess
import sys
import tempfile


class Failure(Exception):
    """Something is not as it should be."""


def run(command, **options):
    """The output of a command that must succeed."""
    result = subprocess.run(
        [str(word) for word in command],
        stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        text=True,
        check=False,
        **options,
    )
    if result.returncode != 0:
        words = " ".join(str(word) for word in command)
        raise Failure(f"$ {words}\n{result.stdout}ends with status {result.returncode}")
    return result.stdout


def clean_environment(**variables):
    """The environment without what would help to find libraries."""
    helpers = ("LD_LIBRARY_PATH", "LD_PRELOAD", "PKG_CONFIG_PATH", "CMAKE_PREFIX_PATH")
    kept = {name: value for name, value in os.environ.items() if name not in helpers}
    return {**kept, **variables}


def in_new_directory(check, options):
    """What a test returns, which gets a directory that is removed afterwards.  If it fails, the
    program ends, and says why."""
    try:
        with tempfile.TemporaryDirectory() as directory:
            return check(options, pathlib.Path(directory))
    except Failure as failure:
        sys.exit(str(failure))

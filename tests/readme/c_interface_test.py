#!/usr/bin/env python3
"""Checks that the page of the C interface is true: its files are compiled and run.

A fenced block with a name after its kind is a file.  Its header is compiled as C, its C++ file
becomes a library, and what its Python script prints for all documents, and for one that there is
not, is the page's block of `text`.
"""

import argparse
import pathlib
import subprocess
import sys
import tempfile

from readme_test import TIME_LIMIT, PageError, blocks_of, differences

LIBRARY = "libapp_config.so"


def run(command, directory):
    ended = subprocess.run(
        command,
        cwd=directory,
        stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        timeout=TIME_LIMIT,
        check=False,
    )
    output = ended.stdout.decode(errors="replace")
    if ended.returncode != 0:
        raise PageError(f"{command} ends with status {ended.returncode}\n{output}")
    return output


def check(page, options):
    """What is wrong with the page, or nothing."""
    files = {}
    expected = []
    for block in blocks_of(page):
        kind, _, name = block.kind.partition(" ")
        if name:
            files[name] = block.content
        elif kind == "text":
            expected.append(block.content)
    if len(expected) != 1:
        raise PageError("it should have one block of text")
    names = {suffix: [name for name in files if name.endswith(suffix)]
             for suffix in (".h", ".cpp", ".py", ".toml")}
    compiler, *rest = options.compile
    with tempfile.TemporaryDirectory() as directory:
        for name, content in files.items():
            pathlib.Path(directory, name).write_text(content, encoding="utf-8")
        strict = ["-Wall", "-Wextra", "-Wpedantic", "-Werror", "-fsyntax-only"]
        (pathlib.Path(directory, "header.c")).write_text(
            "".join(f'#include "{name}"\n' for name in names[".h"]), encoding="utf-8")
        run([compiler, "-x", "c", "-std=c11", *strict, "header.c"], directory)
        run([compiler, "-shared", "-fPIC", *names[".cpp"], "-o", LIBRARY, *rest], directory)
        actual = run([sys.executable, *names[".py"], *names[".toml"], "none.toml"], directory)
    return "" if actual == expected[0] else differences(expected[0], actual)


def main():
    parser = argparse.ArgumentParser(description="Checks the page of the C interface.")
    parser.add_argument("page", help="a Markdown file")
    parser.add_argument(
        "--compile",
        required=True,
        nargs=argparse.REMAINDER,
        help="the compiler and what follows the source file: options and libraries",
    )
    options = parser.parse_args()

    try:
        complaint = check(pathlib.Path(options.page).read_text(encoding="utf-8"), options)
    except (OSError, PageError) as error:
        complaint = str(error)
    print(f"{options.page}: {complaint or 'as it says'}")
    return 1 if complaint else 0


if __name__ == "__main__":
    sys.exit(main())

#!/usr/bin/env python3
"""Checks that the page of `vorn-toml fix` is true: fixes the documents of its table.

In a table with the columns Before and After each has a document in backquotes, as in the page of
the language.
"""

import argparse
import pathlib
import subprocess
import sys
import tomllib

from language_test import CODE, TIME_LIMIT, cells_of, document_of

COLUMNS = ["What", "Before", "After"]


def rows_of(page):
    """Line numbers, and the documents before and after."""
    is_table = False
    for number, line in enumerate(page.splitlines(), 1):
        if not line.startswith("|"):
            is_table = False
        elif cells_of(line) == COLUMNS:
            is_table = True
        elif is_table and not line.startswith("|---"):
            _, before, after = (CODE.findall(cell) for cell in cells_of(line))
            yield number, document_of(before[0]), document_of(after[0])


def fixed(tool, document):
    done = subprocess.run([tool, "fix", "-"], input=document.encode("utf-8"), capture_output=True,
                          timeout=TIME_LIMIT, check=False)
    return done.stdout.decode("utf-8") + done.stderr.decode("utf-8")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("page", type=pathlib.Path)
    parser.add_argument("--tool", required=True)
    options = parser.parse_args()
    rows = list(rows_of(options.page.read_text(encoding="utf-8")))
    if not rows:
        sys.exit("the page has no documents")
    wrong = 0
    for number, before, after in rows:
        result = fixed(options.tool, before)
        if result != after or repr(tomllib.loads(before)) != repr(tomllib.loads(after)):
            print(f"line {number}: {before!r} becomes {result!r}, not {after!r}")
            wrong += 1
    print(f"{len(rows)} documents, {wrong} of them wrong")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())

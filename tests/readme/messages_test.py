#!/usr/bin/env python3
"""Checks that the page of log lines has the messages that the library logs, and no others.

A message of the page is code in a heading or at the start of a list's line.
"""

import argparse
import pathlib
import re
import sys

# A text in the sources that begins like a message is one, whoever it is handed to; what is
# handed to the macro that logs is one, however it begins.
LOGGED = re.compile(r'(?:VORN_LOG_ERROR\(\s*"|"(?=Invalid|Failed|No such))((?:[^"\\]|\\.)*)"')
TITLE = re.compile(r"^(?:#|- `).*", re.MULTILINE)
CODE = re.compile(r"`([^`]*)`")
MESSAGE = re.compile(r"(?:Invalid|Failed|No such)\b")


def main():
    parser = argparse.ArgumentParser(description="Checks the messages of a page.")
    parser.add_argument("page", help="a Markdown file")
    parser.add_argument("sources", nargs="+", help="C++ files")
    options = parser.parse_args()

    logged = set()
    for source in options.sources:
        logged.update(LOGGED.findall(pathlib.Path(source).read_text(encoding="utf-8")))
    page = pathlib.Path(options.page).read_text(encoding="utf-8")
    described = {
        code for title in TITLE.findall(page) for code in CODE.findall(title) if MESSAGE.match(code)
    }
    for message in sorted(logged - described):
        print(f"{options.page}: {message!r} is missing")
    for message in sorted(described - logged):
        print(f"{options.page}: {message!r} is not logged")
    print(f"{options.page}: {len(described)} messages")
    return 1 if logged != described or not logged else 0


if __name__ == "__main__":
    sys.exit(main())

#!/usr/bin/env python3
"""Compares what is found in documents with Python's reader of TOML 1.0.

    strict_differential_test.py PROGRAM [--count COUNT] [--seed SEED]

Of the documents that can be read, those in which something is found must be those that
Python's reader rejects, except for what it knows better or less well than TOML 1.0:

- it has no year 0000 and no second 60: they are replaced for it;
- it reads integers of any size: what is only wrong with such integers it must accept.

A document that cannot be read is compared only if there are forbidden bytes in it.
"""

import argparse
import collections
import re
import struct
import subprocess
import sys
import tomllib

YEAR = re.compile("0000(-[0-9]{2}-[0-9]{2})")
SECOND = re.compile("([0-9]{2}:[0-9]{2}):60")
BYTES = {"nul", "control-character", "not-utf8", "lone-carriage-return"}
CODES = {
    *BYTES, "duplicate-key", "duplicate-table", "table-over-value", "value-over-table",
    "table-over-array-of-tables", "array-of-tables-over-table", "inline-table-extended",
    "array-extended", "dotted-key-over-table", "spaced-brackets", "date-does-not-exist",
    "time-does-not-exist", "offset-out-of-range", "integer-out-of-range",
    "escape-of-no-character", "unknown-escape",
}


def records(stream):
    def text():
        size = stream.read(4)
        return stream.read(struct.unpack("<I", size)[0]) if size else None

    while (document := text()) is not None:
        yield document, text().decode("ascii").split()


def rejection(document):
    """Why Python's reader rejects a document; nothing if it accepts it."""
    try:
        text = document.decode("utf-8").removeprefix("\ufeff")
        tomllib.loads(SECOND.sub(r"\1:59", YEAR.sub(r"0004\1", text)))
    except (UnicodeDecodeError, tomllib.TOMLDecodeError) as error:
        return str(error)
    return ""


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("--count", type=int, default=200_000)
    parser.add_argument("--seed", type=int, default=1)
    arguments = parser.parse_args()
    command = [arguments.program, str(arguments.count), str(arguments.seed)]
    counts = collections.Counter()
    differences = 0
    with subprocess.Popen(command, stdout=subprocess.PIPE) as run:
        for document, codes in records(run.stdout):
            counts.update(set(codes) or {"none"})
            if "unread" in codes and not BYTES.intersection(codes):
                continue
            counts["compared"] += 1
            found = set(codes) - {"unread", "integer-out-of-range"}
            rejected = rejection(document)
            if bool(found) != bool(rejected):
                differences += 1
                if differences <= 20:
                    print(f"{document}: found {codes}, Python's reader: {rejected or 'accepted'}")
    print(", ".join(f"{name} {count}" for name, count in sorted(counts.items())))
    print(f"{differences} differences")
    missing = CODES.difference(counts) if arguments.count >= 10_000 else ()
    if missing:
        print("never found: " + ", ".join(sorted(missing)))
    return 1 if run.returncode or differences or missing else 0


if __name__ == "__main__":
    sys.exit(main())

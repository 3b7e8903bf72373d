"""Checks that nothing which a library exports can be written once it is loaded.

    read_only_symbols_test.py --readelf PROGRAM --library FILE --expected NAME...

What the loader fills in itself, tables of virtual functions and of names, is among what it
makes read-only afterwards (PT_GNU_RELRO).
"""

import argparse
import re
import subprocess
import sys

PAGE = 4096  # The loader protects whole pages: the smallest there are.


def said(readelf, *options):
    run = subprocess.run([readelf, "--wide", *options], stdout=subprocess.PIPE, text=True,
                         check=False)
    if run.returncode != 0:
        sys.exit(f"{readelf} cannot read {options[-1]}")
    return run.stdout


def segments(headers, kind):
    """The ranges of addresses of the segments of a kind, with their flags."""
    for found in re.finditer(rf"^ +{kind} +0x\w+ 0x(\w+) 0x\w+ 0x\w+ 0x(\w+) ([R WE]{{3}}) ",
                             headers, re.MULTILINE):
        start = int(found[1], 16)
        yield start, start + int(found[2], 16), found[3]


def exported_objects(symbols):
    for found in re.finditer(r"^ *\d+: (\w+) +(\w+) OBJECT +(?:GLOBAL|WEAK|UNIQUE) +\w+ +\d+ (\S+)$",
                             symbols, re.MULTILINE):
        yield found[3], int(found[1], 16), int(found[2], 0)


def main():
    parser = argparse.ArgumentParser()
    for name in ("readelf", "library"):
        parser.add_argument(f"--{name}", required=True)
    parser.add_argument("--expected", nargs="+", required=True, help="some of what is exported")
    options = parser.parse_args()

    headers = said(options.readelf, "--segments", options.library)
    writable = [segment for segment in segments(headers, "LOAD") if "W" in segment[2]]
    protected = [(start, end - end % PAGE) for start, end, _ in segments(headers, "GNU_RELRO")]
    objects = list(exported_objects(said(options.readelf, "--dyn-syms", options.library)))
    failed = not writable
    for name in set(options.expected) - {name for name, _, _ in objects}:
        print(f"not exported: {name}")
        failed = True
    for name, start, size in objects:
        in_writable = any(first <= start < last for first, last, _ in writable)
        if in_writable and not any(first <= start and start + size <= last
                                   for first, last in protected):
            print(f"can be written: {name}")
            failed = True
    print(f"{len(objects)} objects are exported")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())

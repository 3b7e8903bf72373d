"""Checks what the loader has to do for a library before a program starts.

    load_cost_test.py --readelf PROGRAM --library FILE --most-names NUMBER --most-addresses NUMBER

Names are symbols that it looks up at once, addresses those that it adds the place of the library
to.  (Functions of others are looked up when they are called first.)
"""

import argparse
import re
import subprocess
import sys


def said(readelf, *options):
    run = subprocess.run([readelf, "--wide", *options], stdout=subprocess.PIPE, text=True,
                         check=False)
    if run.returncode != 0:
        sys.exit(f"{readelf} cannot read {options[-1]}")
    return run.stdout


def relocations(text):
    """The kind and the name of each; addresses have no name."""
    for found in re.finditer(r"^[0-9a-f]{8,} +[0-9a-f]+ +R_(\w+)(?: +[0-9a-f]+ +(\S+))?", text,
                             re.MULTILINE):
        yield found[1], (found[2] or "").partition("@")[0]


def exported(symbols):
    return set(re.findall(r" FUNC +(?:GLOBAL|WEAK) +DEFAULT +\d+ (\S+)$", symbols, re.MULTILINE))


def main():
    parser = argparse.ArgumentParser()
    for name in ("readelf", "library"):
        parser.add_argument(f"--{name}", required=True)
    for name in ("most-names", "most-addresses"):
        parser.add_argument(f"--{name}", required=True, type=int)
    options = parser.parse_args()

    found = list(relocations(said(options.readelf, "--relocs", options.library)))
    addresses = [kind for kind, _ in found if kind.endswith("RELATIVE")]
    calls = {name for kind, name in found if kind.endswith("JUMP_SLOT")}
    names = len(found) - len(addresses) - sum(kind.endswith("JUMP_SLOT") for kind, _ in found)
    dynamic = said(options.readelf, "--dynamic", options.library)
    constructors = re.search(r"\(INIT_ARRAYSZ\) +(\d+) ", dynamic)
    header = said(options.readelf, "--file-header", options.library)
    word = 4 if "ELF32" in header else 8
    functions = exported(said(options.readelf, "--dyn-syms", options.library))
    print(f"{names} names, {len(addresses)} addresses, {len(calls)} functions of others")

    failures = {
        "no relocations are found": not addresses or not calls or not functions,
        "too many names": names > options.most_names,
        "too many addresses": len(addresses) > options.most_addresses,
        "its own functions are looked up": bool(calls & functions),
        "relocations in the code": "(TEXTREL)" in dynamic,
        "a second table of symbols": "(HASH)" in dynamic or "(GNU_HASH)" not in dynamic,
        # The compiler's start files have one.
        "constructors run": constructors is not None and int(constructors[1]) > word,
    }
    for failure, failed in failures.items():
        if failed:
            print(failure)
    return 1 if any(failures.values()) else 0


if __name__ == "__main__":
    sys.exit(main())

"""Compares what a library exports with the list of its symbols in debian/.

    exported_symbols_test.py --nm PROGRAM --library FILE --symbols FILE
"""

import argparse
import pathlib
import subprocess
import sys


def listed_symbols(file):
    # Other lines are about the package, or comments.
    lines = pathlib.Path(file).read_text(encoding="ascii").splitlines()
    symbols = [line.strip().partition("@Base ")[0] for line in lines if line.startswith(" ")]
    twice = {symbol for symbol in symbols if symbols.count(symbol) > 1}
    if twice:
        sys.exit(f"{file} has these twice: {' '.join(sorted(twice))}")
    return set(symbols)


def exported_symbols(nm, library):
    run = subprocess.run(
        [nm, "--dynamic", "--defined-only", "--format=posix", library],
        stdout=subprocess.PIPE,
        text=True,
        check=False,
    )
    if run.returncode != 0:
        sys.exit(f"{nm} cannot read {library}")
    return {line.split()[0] for line in run.stdout.splitlines()}


def main():
    parser = argparse.ArgumentParser()
    for name in ("nm", "library", "symbols"):
        parser.add_argument(f"--{name}", required=True)
    options = parser.parse_args()

    listed = listed_symbols(options.symbols)
    exported = exported_symbols(options.nm, options.library)
    for symbol in sorted(listed - exported):
        print(f"not exported: {symbol}")
    for symbol in sorted(exported - listed):
        print(f"not in the list: {symbol}")
    print(f"{len(listed)} symbols are listed, {len(exported)} are exported")
    return 0 if listed and listed == exported else 1


if __name__ == "__main__":
    sys.exit(main())

"""Fails where tests/ has not the rooms of src/, or two headers of src/ are easily mistaken for
each other.

    rooms.py [ROOT]
"""

import argparse
import itertools
import sys
from pathlib import Path

# Folders of tests/ that are about no single room: about the sources in src/ itself and the
# public header, about all of the library, about what is around it, and what tests share.
OTHERS = (
    "toml", "toml_utils", "visitor",
    "cost", "differential", "faults", "reference",
    "bench", "checks", "examples", "packaging", "platform", "readme", "tools",
    "support", "tokens",
)


def rooms_below(directory):
    """The directories with sources of their own, as paths from there."""
    return {
        str(file.parent.relative_to(directory))
        for file in directory.rglob("*")
        if file.suffix in (".cpp", ".h", ".g", ".py") and file.parent != directory
    }


def differ_by_one(one, other):
    """Whether a letter more, less or another one makes a name the other."""
    one, other = sorted((one, other), key=len)
    if len(other) - len(one) > 1:
        return False
    same = next((at for at, letter in enumerate(one) if letter != other[at]), len(one))
    if len(one) == len(other):
        return one != other and one[same + 1:] == other[same + 1:]
    return one[same:] == other[same + 1:]


def findings(root):
    rooms = rooms_below(root / "src")
    tested = rooms_below(root / "tests")
    for room in sorted(rooms - tested):
        yield f"src/{room} has no tests: there is no tests/{room}"
    for folder in sorted(tested - rooms):
        if folder.partition("/")[0] not in OTHERS:
            yield f"tests/{folder} has no room: there is no src/{folder}"
    for folder in OTHERS:
        if folder in rooms:
            yield f"src/{folder} has the name of a folder of tests that are about no single room"
    headers = sorted((root / "src").rglob("*.h"))
    for one, other in itertools.combinations(headers, 2):
        if differ_by_one(one.stem, other.stem):
            names = " and ".join(str(header.relative_to(root)) for header in (one, other))
            yield f"{names}: their names differ by one letter"


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("root", nargs="?", type=Path, default=Path("."))
    root = parser.parse_args().root
    rooms = rooms_below(root / "src")
    print("the rooms of src/: " + ", ".join(sorted(rooms)))
    if not rooms:
        sys.exit("There is nothing to check: src/ has no rooms.")
    found = list(findings(root))
    for line in found:
        print(line)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())

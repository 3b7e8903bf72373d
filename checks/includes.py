"""Fails where a file includes what its room must not, or files or rooms include each other in
a circle.

    includes.py [ROOT]

An include is looked for beside the file that has it, then where the compiler is told to
search.  Those in angle brackets that are in neither place are a system's.
"""

import argparse
import os
import re
import sys
from pathlib import Path
from typing import NamedTuple

INCLUDE = re.compile(r'^\s*#\s*include\s+(["<])([^">]+)[">]')
DIRECTORIES = ("src", "include", "platform", "tools", "examples")
SEARCHED = ("src", "include", "platform/include")

# The rooms, and which others each may include.  In include/ are the public headers, which all
# may include; "src" is what stands in src/ itself.
ROOMS = {
    "include": (),
    "src/scan": (),
    "src/grammar": (),
    "src/direct": ("src/scan",),
    "src/grammar/lexer": ("src/scan", "src/grammar"),
    "src/pipeline": ("src/grammar", "src/grammar/lexer"),
    "src/diagnosis": ("src/scan", "src/direct", "src/grammar/lexer", "src/pipeline"),
    "src/config": (),
    "src": ("src/scan", "src/direct", "src/grammar", "src/grammar/lexer", "src/pipeline",
            "platform/include"),
    "platform": ("platform/include",),
    "platform/include": (),
    "tools": ("src", "src/scan", "src/direct", "src/grammar", "src/grammar/lexer",
              "src/pipeline", "src/diagnosis", "src/config", "platform/include"),
    "examples": (),
}
# Single files that may include more: these read valid lines directly, and find their tokens.
MORE = {
    "src/pipeline/document_lines.h": ("src/direct",),
    "src/pipeline/valid_tokens.cpp": ("src/direct",),
}
# Headers that are not of this project, and where they may be included.
RUNTIME = "antlr3.h"
WITHOUT_RUNTIME = ("src/scan", "src/direct", "src/config", "include", "platform", "examples")
GENERATED = ("TomlLexer.h", "TomlParser.h", "TomlTree.h")
RECOGNISERS = "src/pipeline/recognisers.h"


class Include(NamedTuple):
    file: str  # these are relative to the root
    line: int
    name: str  # as it is written
    quoted: bool
    target: str | None


def includes_of(root, file):
    for number, line in enumerate((root / file).read_text(encoding="utf-8").splitlines(), 1):
        if found := INCLUDE.match(line):
            places = (Path(file).parent, *SEARCHED)
            targets = [os.path.normpath(Path(place, found[2])) for place in places]
            yield Include(file, number, found[2], found[1] == '"',
                          next((one for one in targets if (root / one).is_file()), None))


def room_of(file):
    """The room that a file is in: the innermost one."""
    rooms = [room for room in ROOMS if file.startswith(room + "/")]
    room = max(rooms, key=len, default=None)
    # In src/ itself are files alone: a directory there is a room of its own.
    return None if room == "src" and file.count("/") > 1 else room


def short(room):
    return room.removeprefix("src/") if room != "src" else "src/ itself"


def allowed(room):
    others = [short(other) for other in ROOMS[room] if other.startswith("src")]
    return f"includes {', '.join(others) if others else 'nothing'} of ours"


def refusal(include):
    """Why an include may not be, or nothing."""
    room = room_of(include.file)
    if include.name == RUNTIME:
        return f"{short(room)} knows nothing of the runtime" if room in WITHOUT_RUNTIME else ""
    if include.name in GENERATED:
        return "" if include.file == RECOGNISERS else f"only {RECOGNISERS} includes it"
    if include.target is None:
        return "there is no such file" if include.quoted else ""
    other = room_of(include.target)
    if other is None:
        return "it is in none of the rooms"
    if other in (room, "include", *ROOMS[room]):
        return ""
    if other in MORE.get(include.file, ()):
        return ""
    if other == "platform/include" and room.startswith("src"):
        return "only src/ itself includes headers of the platform"
    return f"{short(room)} {allowed(room)}"


def circle(node, graph, path, done):
    """The nodes of a circle that can be reached from a node; empty if there is none."""
    if node in path:
        return [*path[path.index(node):], node]
    if node in done:
        return []
    for other in graph.get(node, ()):
        if found := circle(other, graph, [*path, node], done):
            return found
    done.add(node)
    return []


def circles(graph, what):
    done = set()
    for node in sorted(graph):
        if found := circle(node, graph, [], done):
            return [f"a circle of {what}: " + " -> ".join(found)]
    return []


def findings(root, files, includes):
    for file in files:
        if room_of(file) is None:
            yield f"{file}: the table of checks/includes.py has no such room"
    for include in includes:
        if room_of(include.file) and (why := refusal(include)):
            yield f"{include.file}:{include.line} includes {include.name}: {why}"
    of_files, of_rooms = {}, {}
    for include in includes:
        if include.target:
            of_files.setdefault(include.file, []).append(include.target)
            room, other = room_of(include.file), room_of(include.target)
            if room and other and room != other:
                of_rooms.setdefault(room, set()).add(other)
    yield from circles(of_files, "files")
    yield from circles({room: sorted(others) for room, others in of_rooms.items()}, "rooms")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("root", nargs="?", type=Path, default=Path("."))
    root = parser.parse_args().root
    files = sorted(
        str(file.relative_to(root))
        for directory in DIRECTORIES
        for file in (root / directory).rglob("*")
        if file.suffix in (".cpp", ".h", ".g")
    )
    includes = [include for file in files for include in includes_of(root, file)]
    ours = sum(include.target is not None for include in includes)
    print(f"{len(files)} files with {ours} includes of each other")
    if not ours:
        sys.exit("There is nothing to check: no file includes another one.")
    found = list(findings(root, files, includes))
    for line in found:
        print(line)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())

"""Fails where C++ files include each other in a circle.

    includes.py DIRECTORY... --search DIRECTORY...

An include is looked for beside the file that has it, then in the directories to search;
what is in neither is a system's or a generated header and is left out.
"""

import argparse
import os
import re
import sys
from pathlib import Path

INCLUDE = re.compile(r'^\s*#\s*include\s+["<]([^">]+)[">]', re.MULTILINE)


def included(file, search):
    """The files of this project that a file includes."""
    found = []
    for name in INCLUDE.findall(file.read_text(encoding="utf-8")):
        for directory in (file.parent, *search):
            candidate = Path(os.path.normpath(directory / name))
            if candidate.is_file():
                found.append(candidate)
                break
    return found


def circle(file, graph, path, done):
    """The files of a circle that can be reached from a file; empty if there is none."""
    if file in path:
        return [*path[path.index(file):], file]
    if file in done:
        return []
    for other in graph[file]:
        if found := circle(other, graph, [*path, file], done):
            return found
    done.add(file)
    return []


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("directories", nargs="+", type=Path)
    parser.add_argument("--search", nargs="*", type=Path, default=[])
    options = parser.parse_args()
    files = sorted(
        file
        for directory in options.directories
        for file in directory.rglob("*")
        if file.suffix in (".cpp", ".h", ".g")
    )
    graph = {}
    waiting = list(files)
    while waiting:
        file = waiting.pop()
        if file not in graph:
            graph[file] = included(file, options.search)
            waiting += graph[file]
    includes = sum(len(others) for others in graph.values())
    print(f"{len(graph)} files with {includes} includes of each other")
    if not includes:
        sys.exit("There is nothing to check: no file includes another one.")
    done = set()
    for file in files:
        if found := circle(file, graph, [], done):
            sys.exit("A circle of includes: " + " -> ".join(map(str, found)))


if __name__ == "__main__":
    main()

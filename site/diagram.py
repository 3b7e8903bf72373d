#!/usr/bin/env python3
"""Checks a diagram: diagram.py SOURCE PICTURE

The picture shows what Graphviz makes of the source, in colours for light and dark; places aside,
which depend on fonts.  Every stage names a file of the repository in its last line, or is dashed.
"""

import json
import pathlib
import re
import subprocess
import sys

from picture_colours import with_both_colours

ROOT = pathlib.Path(__file__).resolve().parent.parent
FILE = re.compile(r"[\w.-]+(?:/[\w.-]+)+")
NUMBER = re.compile(r"-?\d+(?:\.\d+)?")


def graphviz(source, form):
    run = subprocess.run(["dot", "-T" + form, source], stdout=subprocess.PIPE, check=True)
    return run.stdout.decode()


def complaints_of(source, picture):
    expected = with_both_colours(graphviz(source, "svg"))
    if NUMBER.sub("", expected) != NUMBER.sub("", picture.read_text()):
        yield f"{picture} is not of {source}: run scripts/docs pictures"
    for shape in json.loads(graphviz(source, "json"))["objects"]:
        label = re.sub(r"\\[nl]", "\n", shape.get("label", ""))
        files = FILE.findall(label)
        if not files and "dashed" not in shape.get("style", ""):
            yield f"{source}: {shape['name']} names no file"
        for file in files:
            if not (ROOT / file).is_file():
                yield f"{source}: {shape['name']}: there is no file {file}"


def main():
    complaints = list(complaints_of(*map(pathlib.Path, sys.argv[1:3])))
    for complaint in complaints:
        print(complaint)
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())

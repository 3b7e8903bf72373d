#!/usr/bin/env python3
"""Gives pictures of Graphviz and Matplotlib colours for light and dark: picture_colours.py SVG...

A browser takes those that its reader prefers, in whatever page the picture is.  The picture keeps
a background of its own, so it is readable on any page.
"""

import pathlib
import re
import sys

# What is drawn, and its colour where the reader prefers dark pages.  Others stay.
DARK = {
    "white": "#14171b",
    "#ffffff": "#14171b",
    "black": "#dfe3e8",
    "#000000": "#dfe3e8",
    "#555555": "#9ba5b0",
    "#e0e0e0": "#353c44",
    # Bars.
    "#1b6ca8": "#4fa3e0",
    "#7fb3d9": "#b5d8ef",
    "#8d6fb8": "#a78bd0",
    # Parts of a diagram.
    "#eef4fb": "#1b2938",
    "#fbf4ea": "#2f281d",
}
TEXT = DARK["black"]
FONTS = "'DejaVu Sans', system-ui, sans-serif"
METADATA = re.compile(r"\s*<metadata>.*?</metadata>", re.DOTALL)
FAMILY = re.compile(r"'DejaVu Sans'(?:, (?:'[^']*'|sans-serif))*")
STYLE = re.compile(r' style="([^"]*)"')
COLOUR = re.compile(r"(fill|stroke): (#\w+)")
ATTRIBUTE = re.compile(r'(fill|stroke)="([^"]*)"')
START = re.compile(r"<svg[^>]*>")
# What Matplotlib writes and nothing needs.
NO_ROTATION = re.compile(r' transform="rotate\(-0 [^)]*\)"')
NAME_OF_GROUP = re.compile(r'(?<=<g) id="[\w.]+_\d+"')
BLANKS = re.compile(r"\s*\n\s*")
LONG_NUMBER = re.compile(r"\d+\.\d{3,}")


def dark_rules(styles, attributes):
    yield f"text{{fill:{TEXT}}}"
    for name, colour in sorted(attributes):
        if colour in DARK:
            yield f'[{name}="{colour}"]{{{name}:{DARK[colour]}}}'
    for style, number in styles.items():
        for name, colour in COLOUR.findall(style):
            if colour in DARK:
                yield f".s{number}{{{name}:{DARK[colour]}}}"


def with_both_colours(svg):
    """The picture with classes in place of styles, and a sheet that has them for light and dark."""
    for needless in (METADATA, NO_ROTATION, NAME_OF_GROUP):
        svg = needless.sub("", svg)
    svg = BLANKS.sub("\n", svg)
    svg = LONG_NUMBER.sub(lambda number: f"{float(number[0]):.2f}".rstrip("0").rstrip("."), svg)
    svg = FAMILY.sub(FONTS, svg)
    styles = {}

    def class_of(style):
        return f' class="s{styles.setdefault(style[1], len(styles))}"'

    svg = STYLE.sub(class_of, svg)
    light = [f".s{number}{{{style}}}" for style, number in styles.items()]
    dark = dark_rules(styles, set(ATTRIBUTE.findall(svg)))
    sheet = "\n".join([*light, "@media (prefers-color-scheme: dark) {", *dark, "}"])
    return START.sub(lambda start: f"{start[0]}\n<style>\n{sheet}\n</style>", svg, count=1)


def main():
    for name in sys.argv[1:]:
        path = pathlib.Path(name)
        path.write_text(with_both_colours(path.read_text(encoding="utf-8")), encoding="utf-8")


if __name__ == "__main__":
    main()

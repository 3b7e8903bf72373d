"""Turns a page of the repository into a tree of HTML, with links to places of the site."""

import math
import os
import pathlib
import re
import subprocess
import xml.etree.ElementTree as ElementTree
from urllib.parse import urlsplit

from pages import ROOT, SiteError, target_of

HEADINGS = ("h1", "h2", "h3", "h4")
PICTURES = {".svg", ".png"}
HEADER = re.compile(r"include/vorn/parsers/(\w+)\.h")
VIEW = re.compile(r'viewBox="\S+ \S+ (\S+) (\S+)"')
FONT_SIZE = re.compile(r'font: (\d+(?:\.\d+)?)px|font-size="(\d+(?:\.\d+)?)"')
MAX_UNBROKEN = 20  # characters
MIN_FONT_SIZE = 9  # pixels
PIXELS = 4 / 3  # in a point
LINE_OF_CODE = re.compile(r"cb\d+-\d+")


def text_of(element):
    return " ".join("".join(element.itertext()).split())


def tree_of(source):
    """What pandoc makes of a page."""
    run = subprocess.run(
        ["pandoc", "--from=gfm", "--to=html5", "--wrap=preserve", ROOT / source],
        stdout=subprocess.PIPE,
        check=True,
    )
    try:
        return ElementTree.fromstring(f"<main>{run.stdout.decode()}</main>")
    except ElementTree.ParseError as error:
        raise SiteError(f"{source}: {error}") from error


def append_text(element, text):
    """Adds text after everything that an element has."""
    if len(element):
        element[-1].tail = (element[-1].tail or "") + text
    else:
        element.text = (element.text or "") + text


def without_line_numbers(code):
    """Code without an element and a hidden link for each line."""
    plain = ElementTree.Element("code", {"class": code.get("class", "")})
    append_text(plain, code.text or "")
    for line in code:
        if not LINE_OF_CODE.fullmatch(line.get("id", "")):
            raise SiteError(f"unexpected markup in code: {ElementTree.tostring(line)}")
        tokens = [token for token in line if token.tag != "a"]
        append_text(plain, line.text or "")
        for token in line:
            if token in tokens:
                plain.append(token)
            else:
                append_text(plain, token.tail or "")
        append_text(plain, line.tail or "")
    return plain


def shape_code(body):
    """Short code in a text stays on one line."""
    in_blocks = set(body.findall(".//pre/code"))
    for code in body.iter("code"):
        if code not in in_blocks and len(text_of(code)) <= MAX_UNBROKEN:
            code.set("class", "short")
    for block in body.iter("pre"):
        if (code := block.find("code")) is not None and code.find("span") is not None:
            block.remove(code)
            block.append(without_line_numbers(code))


def shape_tables(body):
    """Wide tables of figures scroll; the rows of others become lists on a narrow screen, for
    which each cell gets the name of its column."""
    for parent in list(body.iter()):
        for index, table in enumerate(parent):
            if table.tag != "table":
                continue
            for widths in table.findall("colgroup"):
                table.remove(widths)
            names = [text_of(cell) for cell in table.iter("th")]
            right = sum("right" in cell.get("style", "") for cell in table.iter("th"))
            for cell in table.iter():
                if "right" in cell.attrib.pop("style", "") and right < len(names) - 1:
                    cell.set("class", "figure")
            if right > 0 and right >= len(names) - 1:
                table.set("class", "figures")
            elif right == 0 and len(names) > 2:
                table.set("class", "stacked")
                for row in table.find("tbody"):
                    for name, cell in zip(names, row):
                        cell.set("data-label", name)
            frame = ElementTree.Element("div", {"class": "table", "tabindex": "0"})
            frame.tail, table.tail = table.tail, None
            frame.append(table)
            parent[index] = frame


def size_of(path):
    """The attributes of an SVG that keep its place on a page, and its texts readable."""
    svg = path.read_text(encoding="utf-8")
    width, height = (float(number) for number in VIEW.search(svg).groups())
    smallest = min(float(size[0] or size[1]) for size in FONT_SIZE.findall(svg))
    narrowest = math.floor(width * MIN_FONT_SIZE / smallest)
    size = {"width": f"{width * PIXELS:.0f}", "height": f"{height * PIXELS:.0f}"}
    return {**size, "style": f"min-width: {narrowest}px"}


def shape_pictures(body, source):
    """A picture alone in its paragraph is a figure that leads to the whole picture.  Where the
    screen is narrower than its texts allow, it scrolls."""
    for paragraph in body.iter("p"):
        if len(paragraph) == 1 and paragraph[0].tag == "img" and not text_of(paragraph):
            picture = paragraph[0]
            paragraph.remove(picture)
            paragraph.tag = "figure"
            link = ElementTree.SubElement(paragraph, "a", {"href": picture.get("src")})
            link.append(picture)
            path = ROOT / pathlib.PurePath(source).parent / picture.get("src")
            if path.suffix == ".svg" and path.is_file():
                picture.attrib.update(size_of(path))


def address_of(link, source, linked):
    """The place of the site that a link leads to.  Further pages and files are gathered in
    `linked`, with their places."""
    url = urlsplit(link)
    if url.scheme or url.netloc or not url.path:
        return link
    path = os.path.normpath(pathlib.PurePath(source).parent / url.path)
    if not (ROOT / path).is_file():
        raise SiteError(f"{source}: there is no file {url.path}")
    if path.endswith(".md"):
        target = target_of(path)
    elif header := HEADER.fullmatch(path):
        return url._replace(path=f"reference/{header[1]}.html").geturl()
    elif pathlib.PurePath(path).suffix in PICTURES:
        target = path
    else:
        target = path + ".txt"
    linked[path] = target
    return url._replace(path=target).geturl()


def body_of(source, linked):
    body = tree_of(source)
    shape_code(body)
    shape_tables(body)
    shape_pictures(body, source)
    for element in body.iter():
        for name in ("href", "src"):
            if name in element.attrib:
                element.set(name, address_of(element.get(name), source, linked))
    return body

#!/usr/bin/env python3
"""Checks the page of errors: runs its examples, and compares all that is printed.

The page has a heading for each code of the headers, and no others.  Below it are an
explanation and an example: a block of `toml` with a document, one of `text` with what
`vorn-toml check` prints for it, which has a finding of that code, and one of `toml` with
the corrected document, of which nothing is said.  Below the heading of the strict codes
all is checked with --strict.

Two hexadecimal digits between U+2039 and U+203A stand for a byte, and the word end between
them for the end of the file.
"""

import argparse
import json
import pathlib
import re
import subprocess
import sys
import tempfile
from typing import NamedTuple

# Kebab-case in quotes.
DECLARED = re.compile(r'"([a-z0-9]+(?:-[a-z0-9]+)*)"')
HEADING = re.compile(r"^(##|###) (.*)$", re.MULTILINE)
BLOCK = re.compile(r"^```([a-z]*)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
BYTE = re.compile("\u2039([0-9A-F]{2})\u203a")
END = "\u2039end\u203a"
NAME = "config.toml"
TIME_LIMIT = 120  # seconds, for a document

# What these are about is not in the document.
WITHOUT_EXAMPLE = {"nested-too-deeply", "too-large"}


class Entry(NamedTuple):
    line: int
    code: str
    strict: bool
    blocks: list  # matches of BLOCK


def entries_of(page):
    headings = list(HEADING.finditer(page))
    strict = False
    for number, heading in enumerate(headings):
        if heading[1] == "##":
            strict = heading[2] == "Strict"
            continue
        end = headings[number + 1].start() if number + 1 < len(headings) else len(page)
        blocks = list(BLOCK.finditer(page, heading.end(), end))
        line = page.count("\n", 0, heading.start()) + 1
        yield Entry(line, heading[2].strip("`"), strict, blocks)


def document_of(text):
    """The bytes that a block stands for."""
    document = b""
    at = 0
    text = text.partition(END)[0]
    for byte in BYTE.finditer(text):
        document += text[at : byte.start()].encode() + bytes([int(byte[1], 16)])
        at = byte.end()
    return document + text[at:].encode()


def check(tool, document, *options):
    """What the tool prints, without the blanks at the ends of lines."""
    with tempfile.TemporaryDirectory() as directory:
        pathlib.Path(directory, NAME).write_bytes(document)
        printed = subprocess.run(
            [tool, "check", *options, NAME],
            cwd=directory,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
            timeout=TIME_LIMIT,
            check=False,
        ).stdout.decode(errors="replace")
    return re.sub(" +$", "", printed, flags=re.MULTILINE)


def complaints_of(entry, tool):
    if entry.code in WITHOUT_EXAMPLE and not entry.blocks:
        return
    if [block[1] for block in entry.blocks] != ["toml", "text", "toml"]:
        yield "an example has a document, what is printed, and the corrected document"
        return
    options = ["--strict"] if entry.strict else []
    wrong, printed, corrected = (block[2] for block in entry.blocks)
    actual = check(tool, document_of(wrong), *options)
    if actual != printed:
        yield f"prints\n{actual}"
    report = json.loads(check(tool, document_of(wrong), "--json", *options))
    codes = {finding["code"] for finding in report[0]["findings"]}
    if entry.code not in codes:
        yield f"the codes are {', '.join(sorted(codes))}"
    said = check(tool, document_of(corrected), *options)
    if said != f"{NAME}: accepted\n":
        yield f"of the corrected document it is said\n{said}"


def with_printed(page, tool):
    """The page with what the tool prints now."""
    for entry in reversed(list(entries_of(page))):
        if len(entry.blocks) == 3:
            document = document_of(entry.blocks[0][2])
            begin, end = entry.blocks[1].span(2)
            options = ["--strict"] if entry.strict else []
            page = page[:begin] + check(tool, document, *options) + page[end:]
    return page


def main():
    parser = argparse.ArgumentParser(description="Checks the page of errors.")
    parser.add_argument("page", help="a Markdown file")
    parser.add_argument("headers", nargs="+", help="the headers that have the codes")
    parser.add_argument("--tool", required=True, help="vorn-toml")
    parser.add_argument("--write", action="store_true", help="writes what is printed, instead")
    options = parser.parse_args()

    options.tool = pathlib.Path(options.tool).resolve()
    path = pathlib.Path(options.page)
    page = path.read_text(encoding="utf-8")
    if options.write:
        path.write_text(with_printed(page, options.tool), encoding="utf-8")
        return 0
    declared = set()
    for header in options.headers:
        declared.update(DECLARED.findall(pathlib.Path(header).read_text(encoding="utf-8")))
    entries = list(entries_of(page))
    described = {entry.code for entry in entries}
    wrong = 0
    for code in sorted(declared ^ described):
        problem = "is missing" if code in declared else "is not a code"
        print(f"{options.page}: {code} {problem}")
        wrong += 1
    for entry in entries:
        for complaint in complaints_of(entry, options.tool):
            print(f"{options.page}:{entry.line}: {entry.code}: {complaint}")
            wrong += 1
    print(f"{options.page}: {len(entries)} codes, {wrong} complaints")
    return 1 if wrong or not entries or len(described) != len(entries) else 0


if __name__ == "__main__":
    sys.exit(main())

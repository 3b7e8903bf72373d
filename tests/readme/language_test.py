#!/usr/bin/env python3
"""Checks that the page of the language is true: reads its documents, and compares.

In a table with a column Document each row has a document in backquotes.  The heading above
the table says whether Python's reader of TOML 1.0 and the library accept it.  The documents
of a column Instead are accepted by both, and mean the same as the row's.
What the library accepts, check --strict accepts if TOML 1.0 does; what it rejects of
TOML 1.0, fix rewrites.

U+23CE stands for a line feed, and two hexadecimal digits between U+2039 and U+203A for the
character of that number.
"""

import argparse
import pathlib
import re
import subprocess
import sys
import tomllib
from typing import NamedTuple

LINE_FEED = "\u23ce"
NUMBER = re.compile("\u2039([0-9A-F]{2})\u203a")
CODE = re.compile(r"`([^`]*)`")
VERDICTS = {True: "accepted", False: "rejected"}
# What the headings of tables say of TOML 1.0, and of the library.
HEADINGS = {
    "Rejected here": ("accepted", "rejected"),
    "Accepted here": ("rejected", "accepted"),
    "Accepted in both": ("accepted", "accepted"),
    "Rejected in both": ("rejected", "rejected"),
}
TIME_LIMIT = 120  # seconds, for a document

# What fix cannot express.
NOT_FIXED = {"a = []\n", "a = {}\n", "# \U0001F600\n"}


class Row(NamedTuple):
    line: int
    document: str
    standard: str  # what the heading says
    here: str
    instead: list[str]


class PageError(Exception):
    """A page that cannot be checked."""


def document_of(code):
    return NUMBER.sub(lambda number: chr(int(number[1], 16)), code.replace(LINE_FEED, "\n"))


def cells_of(line):
    return [cell.strip() for cell in line.strip().strip("|").split("|")]


def row_of(number, cells, heading):
    codes = CODE.findall(cells["Document"])
    if len(codes) != 1:
        raise PageError(f"line {number}: a row has one document")
    if heading not in HEADINGS:
        raise PageError(f"line {number}: the heading {heading!r} says nothing of documents")
    instead = [document_of(code) for code in CODE.findall(cells.get("Instead", ""))]
    return Row(number, document_of(codes[0]), *HEADINGS[heading], instead)


def rows_of(page):
    """The rows of all tables that have documents."""
    rows = []
    columns = None
    heading = None
    seen = set()
    for number, line in enumerate(page.splitlines(), 1):
        if line.startswith("#"):
            heading = line.lstrip("# ")
        if not line.startswith("|"):
            columns = None
        elif columns is None:
            columns = cells_of(line)
        elif set(line) <= set("|-: "):
            pass
        elif "Document" in columns:
            cells = cells_of(line)
            if len(cells) != len(columns):
                raise PageError(f"line {number}: {len(cells)} cells for {len(columns)} columns")
            rows.append(row_of(number, dict(zip(columns, cells)), heading))
            seen.add(heading)
    if missing := HEADINGS.keys() - seen:
        raise PageError(f"no documents below {', '.join(sorted(missing))}")
    return rows


def meaning_of(document):
    """What Python's reader makes of a document; nothing if it rejects it."""
    try:
        return tomllib.loads(document)
    except tomllib.TOMLDecodeError:
        return None


def accepts(tool, document, *command):
    run = subprocess.run(
        [tool, *(command or ["events"]), "-"],
        input=document.encode(),
        stdout=subprocess.DEVNULL,
        stderr=subprocess.DEVNULL,
        timeout=TIME_LIMIT,
        check=False,
    )
    if run.returncode not in (0, 1):
        raise PageError(f"the tool ends with status {run.returncode}")
    return run.returncode == 0


def complaints_of(row, tool):
    """What is wrong with a row."""
    meaning = meaning_of(row.document)
    standard = VERDICTS[meaning is not None]
    if row.standard != standard:
        yield f"Python's reader says {standard}"
    here = VERDICTS[accepts(tool, row.document)]
    if row.here != here:
        yield f"the library says {here}"
    if row.here == VERDICTS[True] and accepts(tool, row.document, "check", "--strict") != (
        meaning is not None
    ):
        yield "check --strict does not say the same as Python's reader"
    if row.here == VERDICTS[False] and meaning is not None:
        if accepts(tool, row.document, "fix") != (row.document not in NOT_FIXED):
            yield "fix can express it, or not, against what is expected"
    for document in row.instead:
        if not accepts(tool, document):
            yield f"the library rejects {document!r}"
        if meaning is not None and meaning_of(document) != meaning:
            yield f"{document!r} means something else"


def main():
    parser = argparse.ArgumentParser(description="Checks the tables of a page of the language.")
    parser.add_argument("page", help="a Markdown file")
    parser.add_argument("--tool", required=True, help="vorn-toml")
    options = parser.parse_args()

    wrong = 0
    try:
        rows = rows_of(pathlib.Path(options.page).read_text(encoding="utf-8"))
        for row in rows:
            for complaint in complaints_of(row, options.tool):
                print(f"{options.page}:{row.line}: {row.document!r}: {complaint}")
                wrong += 1
    except (OSError, PageError) as error:
        print(f"{options.page}: {error}")
        return 1
    print(f"{options.page}: {len(rows)} documents, {wrong} complaints")
    return 1 if wrong or not rows else 0


if __name__ == "__main__":
    sys.exit(main())

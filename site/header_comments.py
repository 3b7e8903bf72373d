#!/usr/bin/env python3
"""Prints a header with its `//` comments as Doxygen reads them: header_comments.py HEADER

The comment above a declaration is that of all declarations below it, up to the next blank
line; one beside a declaration is about that one alone.  A comment between blank lines is about the namespace, and the first one of a file is
about the file; that of toml.h is the reference's first page, too.  Indented lines are code,
apart from lists.
"""

import html
import itertools
import pathlib
import re
import sys

FIRST_PAGE = "toml.h"
COMMENT = re.compile(r"\s*//( ?)(.*)")
NAMESPACE = re.compile(r"^namespace ([\w:]+)$", re.MULTILINE)
DECLARATION = re.compile(r"#define .*|\s*[\w~].*[;}]")
BESIDE = re.compile(r"(\s*\w.*[,;])\s*// (?!NOLINT)(.*)")
CODE_SPAN = re.compile(r"`([^`]*)`")


def literal(text):
    """A text in which no character means anything to Doxygen."""
    return re.sub(r"([\\@#%])", r"\\\1", html.escape(text).replace("&#x27;", "&apos;"))


def prose(line):
    parts = CODE_SPAN.split(line)
    parts[::2] = map(literal, parts[::2])
    parts[1::2] = [f"<code>{literal(code)}</code>" for code in parts[1::2]]
    return "".join(parts)


def converted(comment):
    """The lines of a comment, without the two slashes."""
    lines = []
    in_list = in_code = False
    for line in comment:
        if line.startswith("NOLINT") or (line and set(line) == {"-"}):
            continue
        indented = line.startswith("  ")
        in_list = line.lstrip().startswith("- ") or (in_list and indented)
        if in_code != (indented and not in_list):
            in_code = not in_code
            lines.append("\\code{.cpp}" if in_code else "\\endcode")
        lines.append(line if in_code else prose(line))
    return lines + ["\\endcode"] * in_code


def block(comment, command="\\brief"):
    return [f"/// {line}".rstrip() for line in [command, *converted(comment)]]


def filtered(lines, namespace):
    """The lines of a header with Doxygen's comments."""
    output = []
    comment = []  # the lines of the one being read
    attached = []  # the lines of the one above the declarations being read
    is_first = True
    for line in lines:
        match = COMMENT.fullmatch(line)
        if match:
            comment.append(match[2])
            continue
        if comment and is_first:
            output += block(comment, "\\file")
        elif comment and not line.strip():
            output += [*block(comment, f"\\namespace {namespace}"), ""]
        elif comment:
            attached = comment
        is_first = is_first and not comment
        beside = []
        if match := BESIDE.fullmatch(line):
            line, beside = match[1], [match[2]]
        if beside or attached and (comment or DECLARATION.fullmatch(line)):
            output += block([*attached, *([""] if attached and beside else []), *beside])
        if not DECLARATION.fullmatch(line):
            attached = []
        comment = []
        # A macro that is not explained is not for users.
        output.append(line if attached or not line.startswith("#define") else "")
    return output


def main():
    path = pathlib.Path(sys.argv[1])
    header = path.read_text(encoding="utf-8")
    namespace = NAMESPACE.search(header)
    lines = filtered(header.splitlines(), namespace[1] if namespace else "")
    if path.name == FIRST_PAGE:
        comment = itertools.takewhile(COMMENT.fullmatch, header.splitlines())
        lines = block([COMMENT.fullmatch(line)[2] for line in comment], "\\mainpage") + [""] + lines
    sys.stdout.write("\n".join(lines) + "\n")


if __name__ == "__main__":
    main()

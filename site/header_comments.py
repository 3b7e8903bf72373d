#!/usr/bin/env python3
"""Prints a header with its `//` comments as Doxygen reads them: header_comments.py HEADER

The comment above a declaration is that of all declarations below it, up to the next blank
line; one beside a declaration is about that one alone.  The first comment of a file is about
the file.  A comment between blank lines is a page for Doxygen, whose name says after which line
of the output it stands: note-toml-120.  Indented lines are code, apart from lists.
"""

import html
import pathlib
import re
import sys

COMMENT = re.compile(r"\s*//( ?)(.*)")
INTERNAL = re.compile(r"(} // )?namespace config$")  # its start and its end
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


def filtered(lines, header):
    """The lines of a header with Doxygen's comments."""
    output = []
    comment = []  # the lines of the one being read
    attached = []  # the lines of the one above the declarations being read
    is_first = True
    internal = False
    for line in lines:
        match = COMMENT.fullmatch(line)
        if match:
            comment.append(match[2])
            continue
        if comment and is_first:
            output += block(comment, "\\file")
        elif comment and not line.strip() and not internal:
            output += [*block(comment, f"\\page note-{header}-{len(output)}"), ""]
        elif comment:
            attached = comment
        is_first = is_first and not comment
        if INTERNAL.match(line):
            internal = not line.startswith("}")
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
    lines = filtered(path.read_text(encoding="utf-8").splitlines(), path.stem)
    sys.stdout.write("\n".join(lines) + "\n")


if __name__ == "__main__":
    main()

"""Checks that pages are true: runs what they show and compares the output.

A fenced block of `console` holds command lines after "$ ", each followed by what it
prints, on standard output and standard error alike.  A fenced block of `cpp` that has
an `int main` is a program; the next block of `text` is what it prints on standard output.
Other blocks are passed over.
"""

import argparse
import difflib
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile
from typing import NamedTuple

FENCE = re.compile(r"^```([^\n`]*)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
FENCE_LINE = re.compile(r"^\s*```", re.MULTILINE)
STAND_INS = re.compile(r"(?<![\w./-])(?:\./)?(scripts/vorn-toml|build/test)(?![\w.-])")
TIME_LIMIT = 120  # seconds, for a command or a program


class Block(NamedTuple):
    line: int  # of its opening fence
    kind: str
    content: str


class Command(NamedTuple):
    line: int
    text: str
    output: str


class Program(NamedTuple):
    line: int
    source: str
    output: str | None


class PageError(Exception):
    """A page that cannot be checked."""


def blocks_of(page):
    blocks = [
        Block(page.count("\n", 0, fence.start()) + 1, fence[1].strip(), fence[2])
        for fence in FENCE.finditer(page)
    ]
    if len(FENCE_LINE.findall(page)) != 2 * len(blocks):
        raise PageError("a fence is indented or not closed")
    return blocks


def commands_of(blocks):
    commands = []
    for block in blocks:
        if block.kind != "console":
            continue
        for number, line in enumerate(block.content.splitlines(keepends=True), block.line + 1):
            if line.startswith("$ "):
                commands.append(Command(number, line[2:].rstrip("\n"), ""))
            elif number == block.line + 1:
                raise PageError(f"the console block in line {block.line} begins without a command")
            else:
                commands[-1] = commands[-1]._replace(output=commands[-1].output + line)
    return commands


def programs_of(blocks):
    programs = []
    for block in blocks:
        if block.kind == "cpp" and "int main" in block.content:
            programs.append(Program(block.line, block.content, None))
        elif block.kind == "text" and programs and programs[-1].output is None:
            programs[-1] = programs[-1]._replace(output=block.content)
    return programs


def differences(expected, actual):
    lines = difflib.unified_diff(
        expected.splitlines(), actual.splitlines(), "the page", "the run", lineterm=""
    )
    return "\n".join(lines) or f"the page: {expected!r}\nthe run: {actual!r}"


def run_command(command, options):
    """What is wrong with a command of a page, or nothing."""
    places = {"scripts/vorn-toml": options.tool, "build/test": options.build}
    run = subprocess.run(
        ["sh", "-c", STAND_INS.sub(lambda name: shlex.quote(places[name[1]]), command.text)],
        cwd=options.directory,
        stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        timeout=TIME_LIMIT,
        check=False,
    )
    actual = run.stdout.decode(errors="replace")
    return "" if actual == command.output else differences(command.output, actual)


def run_program(program, options):
    """What is wrong with a program of a page, or nothing."""
    if program.output is None:
        return "no text block says what it prints"
    with tempfile.TemporaryDirectory() as directory:
        source = pathlib.Path(directory, "program.cpp")
        executable = pathlib.Path(directory, "program")
        source.write_text(program.source, encoding="utf-8")
        compiler, *rest = options.compile
        compilation = subprocess.run(
            [compiler, source, "-o", executable, *rest],
            stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
            timeout=TIME_LIMIT,
            check=False,
        )
        if compilation.returncode != 0:
            return "does not compile:\n" + compilation.stdout.decode(errors="replace")
        run = subprocess.run(
            [*filter(None, options.emulator.split(";")), executable],
            cwd=directory,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            timeout=TIME_LIMIT,
            check=False,
        )
    if run.returncode != 0:
        return f"ends with status {run.returncode}"
    actual = run.stdout.decode(errors="replace")
    return "" if actual == program.output else differences(program.output, actual)


def check_page(name, options):
    """Checks a page and answers with how many commands and programs it has, and
    how many of them are wrong."""
    blocks = blocks_of(pathlib.Path(name).read_text(encoding="utf-8"))
    commands = commands_of(blocks)
    programs = programs_of(blocks)
    if not commands and not programs:
        raise PageError("there is nothing to run")
    complaints = [(c.line, f"$ {c.text}", run_command(c, options)) for c in commands]
    complaints += [(p.line, "the program", run_program(p, options)) for p in programs]
    wrong = [complaint for complaint in complaints if complaint[2]]
    for line, what, complaint in wrong:
        print(f"{name}:{line}: {what}\n{complaint}\n")
    print(f"{name}: {len(commands)} commands, {len(programs)} programs, {len(wrong)} wrong")
    return len(commands), len(programs), len(wrong)


def main():
    parser = argparse.ArgumentParser(description="Checks that pages are true.")
    parser.add_argument("pages", nargs="+", help="Markdown files")
    parser.add_argument("--tool", required=True, help="stands for scripts/vorn-toml")
    parser.add_argument("--build", required=True, help="stands for build/test")
    parser.add_argument("--directory", required=True, help="where the commands run")
    parser.add_argument("--emulator", default="", help="runs a page's programs: words with ';'")
    parser.add_argument(
        "--compile",
        required=True,
        nargs=argparse.REMAINDER,
        help="the compiler and what follows the source file: options and libraries",
    )
    options = parser.parse_args()

    commands = programs = wrong = 0
    for page in options.pages:
        try:
            counts = check_page(page, options)
        except (OSError, PageError) as error:
            print(f"{page}: {error}")
            counts = 0, 0, 1
        commands += counts[0]
        programs += counts[1]
        wrong += counts[2]
    if commands == 0 or programs == 0:
        print("The pages need a command and a program at least.")
        return 1
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())

#!/usr/bin/env python3
"""Checks that a page of recipes is true: compiles and runs them, and compares what they print.

The first fenced block of `cpp` is a program.  Each other one stands in for what that has before
its `int main()`, or has an `int main()` itself.  The block of `text` after it is what the program
prints, with the blocks of `toml` between them as files: app.toml, or what follows the word
`toml`.  More blocks of `toml` and `text` are more runs of the same program.

All of them are compiled as one program, in a namespace each, since compiling the headers takes
most of the time.
"""

import argparse
import pathlib
import re
import subprocess
import sys
import tempfile
from typing import NamedTuple

from readme_test import TIME_LIMIT, PageError, blocks_of, differences

INCLUDE = re.compile(r"^(?:#include|using namespace) .*$", re.MULTILINE)
MAIN = "int main()"


class Run(NamedTuple):
    line: int  # of what it prints
    recipe: int
    files: dict
    output: str


def recipes_and_runs(blocks):
    recipes, runs, files = [], [], {}
    for block in blocks:
        kind, _, name = block.kind.partition(" ")
        if kind == "cpp":
            if recipes and (not runs or runs[-1].recipe != len(recipes) - 1):
                raise PageError(f"the program in line {recipes[-1].line} prints nothing")
            recipes.append(block)
        elif kind == "toml":
            files[name or "app.toml"] = block.content
        elif kind == "text" and recipes:
            runs.append(Run(block.line, len(recipes) - 1, files, block.content))
            files = {}
    if not runs or runs[-1].recipe != len(recipes) - 1 or files:
        raise PageError("a program prints nothing, or a document is not read")
    return recipes, runs


def placed(page, line, source):
    """Source as a part of the page, for the compiler's messages."""
    return f'#line {line} "{page}"\n{source}\n'


def source_of(page, recipes):
    """The program that has all recipes; its argument is the number of the one to run."""
    first = recipes[0].content
    if MAIN not in first:
        raise PageError(f"the program in line {recipes[0].line} has no {MAIN}")
    before, rest = first.split(MAIN)
    main = placed(page, recipes[0].line + before.count("\n") + 1, MAIN + rest)
    parts = ["#include <cstdlib>\n"]
    for recipe in recipes:
        parts += [f"{line}\n" for line in INCLUDE.findall(recipe.content)]
    for number, recipe in enumerate(recipes):
        own = placed(page, recipe.line + 1, INCLUDE.sub("", recipe.content))
        whole = own if MAIN in recipe.content else own + main
        parts.append(f"namespace recipe{number}\n{{\n{whole.replace(MAIN, 'void run()')}}}\n")
    calls = "".join(
        f"    case {number}: recipe{number}::run(); break;\n" for number in range(len(recipes))
    )
    parts.append(
        f"int main(int, char** arguments)\n{{\n    switch (std::atoi(arguments[1]))\n"
        f"    {{\n{calls}    }}\n}}\n"
    )
    return "".join(parts)


def compile_all(source, directory, options):
    program = directory / "recipes"
    (directory / "recipes.cpp").write_text(source, encoding="utf-8")
    compiler, *rest = options.compile
    compilation = subprocess.run(
        [compiler, directory / "recipes.cpp", "-o", program, *rest],
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        timeout=TIME_LIMIT,
        check=False,
    )
    if compilation.returncode != 0:
        raise PageError("does not compile:\n" + compilation.stdout.decode(errors="replace"))
    return program


def run_recipe(run, program, options):
    """What is wrong with a run, or nothing."""
    with tempfile.TemporaryDirectory() as directory:
        for name, content in run.files.items():
            file = pathlib.Path(directory, name)
            file.parent.mkdir(exist_ok=True)
            file.write_text(content, encoding="utf-8")
        ended = subprocess.run(
            [*filter(None, options.emulator.split(";")), program, str(run.recipe)],
            cwd=directory,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            timeout=TIME_LIMIT,
            check=False,
        )
    if ended.returncode != 0:
        return f"ends with status {ended.returncode}"
    actual = ended.stdout.decode(errors="replace")
    return "" if actual == run.output else differences(run.output, actual)


def main():
    parser = argparse.ArgumentParser(description="Checks that a page of recipes is true.")
    parser.add_argument("page", help="a Markdown file")
    parser.add_argument("--emulator", default="", help="runs the program: words with ';'")
    parser.add_argument(
        "--compile",
        required=True,
        nargs=argparse.REMAINDER,
        help="the compiler and what follows the source file: options and libraries",
    )
    options = parser.parse_args()

    wrong = 0
    try:
        recipes, runs = recipes_and_runs(
            blocks_of(pathlib.Path(options.page).read_text(encoding="utf-8"))
        )
        with tempfile.TemporaryDirectory() as directory:
            source = source_of(options.page, recipes)
            program = compile_all(source, pathlib.Path(directory), options)
            for run in runs:
                complaint = run_recipe(run, program, options)
                if complaint:
                    print(f"{options.page}:{run.line}: something else is printed\n{complaint}\n")
                    wrong += 1
    except (OSError, PageError) as error:
        print(f"{options.page}: {error}")
        return 1
    print(f"{options.page}: {len(recipes)} recipes, {len(runs)} runs, {wrong} wrong")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())

"""Shows how many instructions readers take: counts them with callgrind and writes the page's table.

It stands in the page between two marks and is replaced there.
"""

import argparse
import collections
import datetime
import pathlib
import re
import subprocess
import tempfile

import figures
from readers import READERS, names_of

# callgrind writes down what it has counted whenever this returns.
RETURNING = "bench::countedReading*"

# The others do much in the kernel, or are slow anyway.
SHOWN = [reader for reader in READERS if reader not in ["library-file", "pipeline", "toml11"]]


def counted(program):
    """What the program says of itself, and document: reader: instructions per byte."""
    with tempfile.TemporaryDirectory() as directory:
        out = pathlib.Path(directory, "out")
        command = ["valgrind", "--quiet", "--tool=callgrind", f"--dump-after={RETURNING}"]
        command += [f"--callgrind-out-file={out}", program, f"--readers={','.join(SHOWN)}", "--count"]
        said = subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout
        about, *readings = said.splitlines()
        per_byte = collections.defaultdict(dict)
        # Each reading was done twice, and the second counts.
        for index, reading in enumerate(readings):
            name, size = reading.split()
            dump = pathlib.Path(f"{out}.{2 * index + 2}").read_text(encoding="utf-8")
            document, reader = name.rsplit("/", 1)
            total = int(re.search(r"^totals: (\d+)$", dump, re.MULTILINE)[1])
            per_byte[document][reader] = total / int(size)
        return about, per_byte


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("program", type=pathlib.Path, help="vorn-bench")
    parser.add_argument("--page", type=pathlib.Path, required=True, help="Markdown file")
    options = parser.parse_args()

    about, per_byte = counted(options.program)
    rows = [
        [document, *(f"{readers[reader]:.1f}" for reader in SHOWN)]
        for document, readers in per_byte.items()
    ]
    table = figures.table_of(["document", *names_of(SHOWN)], rows)
    today = datetime.datetime.now(datetime.timezone.utc).date()
    content = f"\nInstructions per byte of TOML; {about}; {today}.\n\n{table}\n"
    print(content)
    figures.write_part(options.page, "instructions.py", content)


if __name__ == "__main__":
    main()

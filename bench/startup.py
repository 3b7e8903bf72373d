"""Measures programs that read one file of 1 KB, from their start to their end.

    startup.py --processor NAME --compiler NAME --libraries DIRECTORY --page FILE READER=PROGRAM...

All programs look for their libraries in a directory first, whether they find some there or not.
The loader itself tells what it has done (LD_DEBUG), the system the page faults, callgrind the
instructions, those of the loader included.  Times are the best of many runs, in turn.
"""

import argparse
import datetime
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import time

import figures

SIZE = 1024
ROUNDS = 1500

SERVICE = """[[service]]
name = "service-{number}"
command = "/usr/bin/daemon --id {number}"
port = {port}
enabled = true
timeout = 2.5
args = ["a", "bc", "def"]

[service.limits]
memory = 1_000_000
files = 1024

"""

COLUMNS = {
    "libraries": "libraries",
    "names": "relocations by name",
    "addresses": "by address",
    "faults": "page faults",
    "instructions": "thousand instructions",
    "microseconds": "microseconds",
}


def document():
    """Services, and a comment that makes them as large as they have to be."""
    text = ""
    while len(text) + len(SERVICE) + 10 < SIZE:
        number = text.count("[[service]]")
        text += SERVICE.format(number=number, port=1000 + number)
    return text + "#" * (SIZE - 1 - len(text)) + "\n"


def output_of(command, **environment):
    run = subprocess.run(command, env={**os.environ, "LC_ALL": "C", **environment}, text=True,
                         stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
    if run.returncode != 0:
        sys.exit(f"{' '.join(command)} has failed:\n{run.stdout}")
    return run.stdout


def number_after(words, text):
    """The last one: the loader tells its numbers at the program's start and at its end."""
    return int(re.findall(rf"{words} *: *([\d,]+)", text)[-1].replace(",", ""))


def counted(program, path):
    command = [program, path]
    loaded = output_of(command, LD_TRACE_LOADED_OBJECTS="1")
    told = output_of(command, LD_DEBUG="statistics")
    callgrind = output_of(["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null",
                           *command])
    return {
        "libraries": len(re.findall(r"\.so\b.*\(0x", loaded)) - loaded.count("linux-vdso"),
        "names": number_after("final number of relocations", told),
        "addresses": number_after("number of relative relocations", told),
        "instructions": number_after("Collected", callgrind) / 1000,
    }


def run_of(program, path):
    """Microseconds and page faults."""
    start = time.perf_counter_ns()
    child = os.posix_spawn(program, [program, path], os.environ)
    _, status, usage = os.wait4(child, 0)
    taken = (time.perf_counter_ns() - start) / 1000
    if status != 0:
        sys.exit(f"{program} does not accept the document")
    return {"microseconds": taken, "faults": usage.ru_minflt}


def measured(programs, path):
    best = {reader: counted(program, path) for reader, program in programs.items()}
    for _ in range(ROUNDS):
        for reader, program in programs.items():
            for name, value in run_of(program, path).items():
                best[reader][name] = min(value, best[reader].get(name, value))
    return best


def main():
    parser = argparse.ArgumentParser()
    for name in ("processor", "compiler", "libraries"):
        parser.add_argument(f"--{name}", required=True)
    parser.add_argument("--page", type=pathlib.Path, required=True)
    parser.add_argument("programs", nargs="+", metavar="READER=PROGRAM")
    options = parser.parse_args()

    os.environ["LD_LIBRARY_PATH"] = options.libraries
    programs = dict(program.split("=", 1) for program in options.programs)
    with tempfile.TemporaryDirectory() as directory:
        path = pathlib.Path(directory, "document.toml")
        path.write_text(document(), encoding="ascii")
        results = measured(programs, str(path))

    caption = figures.caption_of({"context": {
        "processor": options.processor,
        "num_cpus": os.cpu_count(),
        "compiler": options.compiler,
        "date": datetime.datetime.now(datetime.timezone.utc).isoformat(),
    }})
    rows = [[reader, *(figures.rounded(result[name]) if name in ("instructions", "microseconds")
                       else f"{result[name]:,}" for name in COLUMNS)]
            for reader, result in results.items()]
    table = figures.table_of(["program", *COLUMNS.values()], rows)
    print(table)
    figures.write_part(options.page, "startup.py", f"\n{caption}.\n\n{table}\n")


if __name__ == "__main__":
    main()

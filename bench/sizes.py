"""Writes into a page what the libraries take on a device, and what builders download.

Sizes are of the installed libraries, stripped.  What is downloaded is what apt would install on a
Debian that has nothing but its required packages, apt and git: it is asked, and installs nothing.
The tables stand in the page between two marks and are replaced there.
"""

import argparse
import os
import pathlib
import re
import subprocess
import sys
import tempfile

import figures

LIBRARIES = ["libvorn_parsers.so.0", "libvorn_toml_diagnosis.so.0", "libvorn_toml_config.so.0",
             "libantlr3c-3.4.so.0"]
# The tools' names start with what follows `strip`.
STRIP_OF = {"x86-64": "strip", "32-bit ARM": "arm-linux-gnueabihf-strip"}


def output_of(command, **options):
    return subprocess.run(command, stdout=subprocess.PIPE, text=True, check=True, **options).stdout


def stripped_size(library, strip):
    with tempfile.NamedTemporaryFile() as copy:
        subprocess.run([strip, "-o", copy.name, library], check=True)
        return os.stat(copy.name).st_size


def found(directories, name):
    for directory in directories:
        if (path := pathlib.Path(directory, name)).exists():
            return path
    raise FileNotFoundError(f"{name} is in none of {directories}")


def sizes(places):
    """Of each library on each processor; `places` has the directories of a processor's."""
    rows = []
    for name in LIBRARIES:
        row = [f"`{name}`"]
        for processor, directories in places.items():
            size = stripped_size(found(directories, name), STRIP_OF[processor])
            row.append(f"{size:,}")
        rows.append(row)
    return figures.table_of(["library", *places], rows)


class BareDebian:
    """What apt says on a machine with the required packages, apt and git."""

    def __init__(self, directory):
        self._directory = pathlib.Path(directory)
        (self._directory / "partial").mkdir()
        self._status = self._directory / "status"
        self._status.touch()
        stanzas = output_of(["apt-cache", "dumpavail"]).split("\n\n")
        required = {
            re.search(r"^Package: (\S+)", stanza, re.MULTILINE)[1]
            for stanza in stanzas
            if re.search(r"^(Priority: required|Essential: yes)$", stanza, re.MULTILINE)
        }
        said = self.install("--simulate", *required, "apt", "git")
        names = re.findall(r"^Inst (\S+)", said, re.MULTILINE)
        stanzas = output_of(["apt-cache", "show", "--no-all-versions", *names]).strip()
        installed = [stanza.replace("\n", "\nStatus: install ok installed\n", 1)
                     for stanza in stanzas.split("\n\n")]
        self._status.write_text("\n\n".join(installed) + "\n", encoding="utf-8")

    def install(self, *arguments):
        settings = {"Dir::State::status": self._status, "Dir::Cache::archives": self._directory,
                    "Dir::State::extended_states": "/dev/null", "Debug::NoLocking": "true",
                    "APT::Install-Recommends": "false"}
        words = [word for setting in settings.items() for word in ("-o", "{}={}".format(*setting))]
        # What is asked and not answered makes the status 1.
        run = subprocess.run(["apt-get", *words, "install", *arguments], stdout=subprocess.PIPE,
                             text=True, check=False, env={**os.environ, "LC_ALL": "C"})
        return run.stdout

    def row(self, what, packages):
        said = self.install("--assume-no", *packages)
        number = re.search(r"(\d+) newly installed", said)
        download = re.search(r"Need to get (?:\S+ \S+/)?(\S+ \S+) of archives", said)
        disk = re.search(r"After this operation, (\S+ \S+) of additional", said)
        if not number or not download or not disk:
            raise RuntimeError(f"apt does not say how much {packages} takes:\n{said}")
        java = "yes" if "-jre" in said else "no"
        return [what, number[1], download[1], disk[1], java]


def downloads(setup):
    with tempfile.TemporaryDirectory() as directory:
        debian = BareDebian(directory)
        rows = [
            debian.row(f"`{command}`", output_of([setup, "--print", *groups]).split())
            for command, groups in (
                ("scripts/vorn-toml", ["build"]), ("scripts/test quick", ["test"]),
                ("scripts/test", ["test", "compilers", "check", "fuzz", "arm", "docs",
                                   "package", "release"]))
        ]
        archive = ["g++", "cmake", "make", "libantlr3c-dev"]
        rows.append(debian.row("the libraries, from a release archive", archive))
    columns = ["for", "packages", "download", "on disk", "with Java"]
    return figures.table_of(columns, rows)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--page", type=pathlib.Path, required=True)
    parser.add_argument("--setup", required=True, help="the script that installs packages")
    parser.add_argument("--x86-64", nargs="+", required=True, help="directories of libraries")
    parser.add_argument("--arm", nargs="+", required=True, help="those for 32-bit ARM")
    parser.add_argument("--date", required=True)
    options = parser.parse_args()
    places = {"x86-64": options.x86_64, "32-bit ARM": options.arm}
    compiler = output_of(["g++", "-dumpfullversion"]).strip()
    content = (f"\nBytes of the stripped files; GNU {compiler}, Release; {options.date}.\n\n"
               f"{sizes(places)}\nWhat apt would install; {options.date}.\n\n"
               f"{downloads(options.setup)}\n")
    figures.write_part(options.page, "sizes.py", content)


if __name__ == "__main__":
    sys.exit(main())

"""Builds a client that fetches an archive of the library's sources, by CMake's FetchContent.

The archive has the sources as they are here, and nothing that has been built.
"""

import argparse
import hashlib
import pathlib
import tarfile

from commands import Failure, in_new_directory, run
from consumer_build import check_run
from subproject_build import QUICKLY, check_objects, configure, tests

SOURCE = pathlib.Path(__file__).with_name("fetched")


def make_archive(source, archive):
    """All but what has been built, and git's own."""
    def kept(member):
        top, _, below = member.name.partition("/")
        first = below.partition("/")[0]
        left_out = first in ("build", ".git") or pathlib.Path(below).name == "__pycache__"
        return None if top and left_out else member

    with tarfile.open(archive, "w:gz", compresslevel=1) as file:
        file.add(source, arcname="vorn_parsers-archived", filter=kept)
    return hashlib.sha256(archive.read_bytes()).hexdigest()


def check_fetched(options, directory):
    archive = directory / "vorn_parsers.tar.gz"
    hashed = make_archive(options.source, archive)
    build = directory / "build"
    configure(SOURCE, build, f"-DARCHIVE={archive}", f"-DARCHIVE_HASH={hashed}", *QUICKLY)
    if tests(build) != ["client_test"]:
        raise Failure(f"the tests are {tests(build)}, not those of the client")
    run(["cmake", "--build", build])
    check_objects(build / "_deps/vorn_parsers-build", build / "_deps/vorn_parsers-src")
    check_run(build / "consumer", options.version, "error vorn_parsers ")


def main():
    parser = argparse.ArgumentParser()
    for name in ("version", "source"):
        parser.add_argument(f"--{name}", required=True)
    options = parser.parse_args()
    in_new_directory(check_fetched, options)


if __name__ == "__main__":
    main()

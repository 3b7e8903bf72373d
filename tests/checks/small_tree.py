"""Small trees of files for checks to read."""

import contextlib
import pathlib
import subprocess
import sys
import tempfile


@contextlib.contextmanager
def tree_of(files):
    """A directory with these files: their paths and texts."""
    with tempfile.TemporaryDirectory() as directory:
        for name, text in files.items():
            path = pathlib.Path(directory, name)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        yield pathlib.Path(directory)


def check(script, root, *options):
    """The exit status and the output of a check."""
    result = subprocess.run(
        [sys.executable, script, root, *options],
        stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
        text=True, check=False)
    return result.returncode, result.stdout

"""Checks toml_to_json against Python's own TOML reader, tomllib.

The example configurations and the documents below must give the same values, in the same
order, and what tomllib does not accept toml_to_json must complain of.  Usage:

    toml_to_json_test.py PROGRAM[:SUBCOMMAND] CONFIGURATION...
"""

import json
import math
import pathlib
import subprocess
import sys
import tempfile
import tomllib
from datetime import date, datetime, time

# The library's language differs from that of tomllib, so that these have no empty arrays
# and inline tables, end in a line break and keep to what both accept as keys and strings.
RIGHT = [
    "",
    "a = 1\n'b' = 2\n\"c\" = 3\n",
    "'' = 1\n\"a.b\" = 2\na.b = 3\n\"a\\\"\\\\\\u0042\" = 4\n'a\\n' = 5\n",
    "'0' = 1\nx.'0' = 2\nx.'1' = 3\n[y.'0'.'-']\n'~1' = 4\n'/' = 5\n",
    "a.b.c = 1\na.b.d = 2\na.e = 3\nf = 4\na.b.g = 5\n",
    "[a.b.c]\nx = 1\n[a]\ny = 2\n[a.b]\nz = 3\n",
    "[a.b]\nx = 1\n[a]\nc.d = 2\n[a.c.e]\nf = 3\n",
    "[a.b.c]\nx = 1\n[a]\nb.d = 2\n",
    "[[a]]\nx = 1\n[[a]]\n[[a]]\ny = 2\n",
    "[[a]]\n[[a.b]]\nx = 1\n[[a.b]]\nx = 2\n[a.b.c]\ny = 3\n[[a]]\n[[a.b]]\nx = 4\n[a.c]\nz = 5\n",
    "[a.b]\n[[a.c]]\nx = 1\n[[a.c]]\nx.y = 2\n[a.c.x.z]\nw = 3\n[a]\nd = 4\n",
    "[[a.b]]\n[a]\nc = 1\n[[a.b]]\nd = 2\n",
    "a = { b = 1, c.d = 2, c.e = { f.g = 3 } }\nb = [ { a = 1 }, { a = 2, b = [ 3 ] } ]\n",
    "a = [ 1, [ 2, [ 3, { b = [ 4, { c = 5 } ] } ] ], 'x', true, 1.5 ]\n",
    "[a]\nb.c = 1\n[a.b.d]\ne = 1\n",
    "a = [ 0, +1, -2, 1_000, 0xFF, 0o17, 0b11, 9223372036854775807, -9223372036854775808 ]\n",
    "a = [ 0.0, -0.0, 1.5e3, 1E-3, 6.626e-34, 0.1, 1e22, 1e23, 5e-324, 1_0.0_1 ]\n",
    "a = [ inf, +inf, -inf, nan, +nan, -nan ]\n",
    "a = [ 1979-05-27T07:32:00Z, 1979-05-27T00:32:00-07:00, 1979-05-27 00:32:00.25+05:30 ]\n",
    "a = [ 1979-05-27T07:32:00, 1979-05-27 00:32:00.999999, 1979-05-27, 07:32:00, 00:32:00.5 ]\n",
    'a = "\\b\\t\\n\\f\\r\\"\\\\\\u00e9\\U0001F512\\u0000"\nb = \'\\n\'\n',
    'a = """\n\n  one \\\n\n   two\\\\\n  three\\n""four""""\n',
    'a = """\\\n   x \\\n   """\n' + "b = '''\n\\\n'one' ''two''''\n",
]
WRONG = [
    "a = 1\na = 2\n",
    "a = 1\n'a' = 2\n",
    "a = 1\na.b = 2\n",
    "a.b = 1\na = 2\n",
    "a.b = 1\na.b = 2\n",
    "a.b = 1\na.b.c = 2\n",
    "a.b = 1\n[a]\n",
    "a.b.c = 1\n[a.b]\n",
    "a = 1\n[a]\n",
    "a = 1\n[a.b]\n",
    "a = 1\n[[a]]\n",
    "[a]\n[a]\n",
    "[a.b]\n[a]\n[a]\n",
    "[a]\nb = 1\n[a.b]\n",
    "[a]\nb = 1\n[a.b.c]\n",
    "[a]\nb.c = 1\n[a.b]\n",
    "[a]\nb.c.d = 1\n[a.b.c]\n",
    "[a.b]\n[a]\nb = 1\n",
    "[a.b]\n[a]\nb.c = 1\n",
    "[a.b.c]\n[a]\nb.c.d = 1\n",
    "[a.b.c.d]\n[a]\nb.c.d.e = 1\n",
    "[a.b.c]\n[a]\nb.d = 1\n[a.b]\n",
    "[a]\n[[a]]\n",
    "[[a]]\n[a]\n",
    "[a.b]\n[[a]]\n",
    "[a]\nb.c = 1\n[[a.b]]\n",
    "[[a.b]]\n[a]\nb.c = 1\n",
    "[[a]]\nb = 1\n[[a.b]]\n",
    "[[a]]\n[a.b]\n[a.b]\n",
    "[[a]]\nb.c = 1\n[a.b]\n",
    "a = [ 1 ]\n[[a]]\n",
    "a = [ { b = 1 } ]\n[[a]]\n",
    "a = [ { b = 1 } ]\n[a.c]\n",
    "a = [ { b = 1 } ]\na.c = 1\n",
    "a = { b = 1 }\n[a]\n",
    "a = { b = 1 }\n[a.c]\n",
    "a = { b = 1 }\n[[a.c]]\n",
    "a = { b = 1 }\na.c = 2\n",
    "a = { b.c = 1 }\na.b.d = 2\n",
    "a = { b.c = 1 }\n[a.b]\n",
    "a.b = { c = 1 }\n[a.b.d]\n",
    "a = { b = 1, b = 2 }\n",
    "a = { b = 1, b.c = 2 }\n",
    "a = { b.c = 1, b = 2 }\n",
    "a = { b = { c = 1 }, b.d = 2 }\n",
    "a = [ { b = 1, 'b' = 2 } ]\n",
    'a = "\\ud800"\n',
    'a = """\\UD8000000"""\n',
]


def moment(text):
    """The date, time or both of a text."""
    if text[2] == ":":
        return time.fromisoformat(text)
    if len(text) == 10:
        return date.fromisoformat(text)
    return datetime.fromisoformat(text.upper().replace(" ", "T").replace("Z", "+00:00"))


def difference(actual, expected, path="document"):
    """Where a value of JSON differs from one of tomllib, or nothing."""
    if isinstance(expected, float) and not math.isfinite(expected):
        expected = str(expected)
    if isinstance(expected, (date, time)) and isinstance(actual, str):
        actual = moment(actual)
    if type(actual) is not type(expected):
        return f"{path}: {actual!r} is not of the kind of {expected!r}"
    if isinstance(expected, dict):
        if list(actual) != list(expected):
            return f"{path}: the keys {list(actual)} are not {list(expected)}"
        parts = [(actual[key], expected[key], f"{path}.{key}") for key in expected]
    elif isinstance(expected, list):
        if len(actual) != len(expected):
            return f"{path}: {len(actual)} elements, not {len(expected)}"
        parts = [(a, e, f"{path}[{i}]") for i, (a, e) in enumerate(zip(actual, expected))]
    else:
        # The forms tell 0.0 from -0.0, and a time from the same time with another offset.
        same = actual == expected and str(actual) == str(expected)
        return None if same else f"{path}: {actual!r} is not {expected!r}"
    return next(filter(None, (difference(*part) for part in parts)), None)


def run_on(program, path):
    run = subprocess.run([*program.split(":"), path], capture_output=True, check=False, timeout=60)
    return run.returncode, run.stdout.decode(), run.stderr.decode()


def fault_with_right(program, path):
    """What is wrong with the run on a valid document, or nothing."""
    status, output, error = run_on(program, path)
    if status != 0 or error:
        return f"status {status}\n{error}"
    with open(path, "rb") as document:
        return difference(json.loads(output), tomllib.load(document))


def fault_with_wrong(program, path):
    """What is wrong with the run on an invalid document, or nothing."""
    with open(path, "rb") as document:
        try:
            tomllib.load(document)
            return "tomllib accepts it"
        except tomllib.TOMLDecodeError:
            pass
    status, output, error = run_on(program, path)
    if status != 1 or output or not error.startswith(f"{path}:"):
        return f"status {status}\n{output}{error}"
    return None


def main():
    program, *configurations = sys.argv[1:]
    faults = [(path, fault_with_right(program, path)) for path in configurations]
    with tempfile.TemporaryDirectory() as directory:
        file = pathlib.Path(directory, "document.toml")
        for texts, fault in (RIGHT, fault_with_right), (WRONG, fault_with_wrong):
            for text in texts:
                file.write_text(text, encoding="utf-8")
                faults.append((text, fault(program, str(file))))
    found = [(document, fault) for document, fault in faults if fault]
    for document, fault in found:
        print(f"{document}\n{fault}\n")
    print(f"{len(faults)} documents, {len(found)} faults")
    return 1 if found or not configurations else 0


if __name__ == "__main__":
    sys.exit(main())

"""Checks the SARIF logs of vorn-toml against a schema of what they may hold.

The schema has the parts of the standard's that the tool uses.  With --schema the standard's
own can be given.  The regions must name the bytes of the findings, by line and column too.
"""

import argparse
import json
import os
import pathlib
import subprocess
import sys
import tempfile
from urllib.parse import unquote

try:
    import jsonschema
except ImportError:  # Debian's package is one of Debian's Python.
    if sys.executable == "/usr/bin/python3":
        raise
    os.execv("/usr/bin/python3", ["/usr/bin/python3", *sys.argv])

DOCUMENTS = {
    "good.toml": b"a = 1\n",
    "empty.toml": b"",
    "bad.toml": b"a = []\nb = \"\\q\"\n[t\nc = 1\n",
    "sub dir/\xc3\xa9,%.toml".encode("latin-1").decode(): "\ufeff\u00e9 = 1\nx = '\u00e9' @\n".encode(),
    "bytes.toml": b"a = 1\n\xc1?\n",
    "many.toml": b"a = []\n" * 30,
    "unclosed.toml": b"a = [\n1,\n[2,\n",
    "twice.toml": b"a = 1\na = 2\n",
}


def offset_of(content, line, column):
    """The byte at a place, by the tool's way of counting."""
    at = 0
    for _ in range(line - 1):
        at = content.index(b"\n", at) + 1
    if at == 0 and content.startswith(b"\xef\xbb\xbf"):
        at = 3
    return at + len(content[at:].decode(errors="surrogateescape")[:column - 1].encode(
        errors="surrogateescape"))


def fault_with_region(region, content):
    begin, length = region["byteOffset"], region["byteLength"]
    start = offset_of(content, region["startLine"], region["startColumn"])
    end = offset_of(content, region["endLine"], region["endColumn"])
    return None if (begin, begin + length) == (start, end) else f"{region} is {start} to {end}"


def check_log(log, directory):
    """What is wrong with a log beyond its form."""
    (run,) = log["runs"]
    rules = [rule["id"] for rule in run["tool"]["driver"]["rules"]]
    if rules != sorted({result["ruleId"] for result in run["results"]}):
        return f"{rules} are not the rules of the results"
    for result in run["results"]:
        for location in result["locations"] + result.get("relatedLocations", []):
            place = location["physicalLocation"]
            content = directory.joinpath(unquote(place["artifactLocation"]["uri"])).read_bytes()
            if fault := fault_with_region(place["region"], content):
                return fault
    return None


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--tool", required=True)
    parser.add_argument("--schema", required=True)
    options = parser.parse_args()
    schema = json.loads(pathlib.Path(options.schema).read_text(encoding="utf-8"))
    validator_class = jsonschema.validators.validator_for(schema)
    validator_class.check_schema(schema)
    validator = validator_class(schema)
    with tempfile.TemporaryDirectory() as name:
        directory = pathlib.Path(name)
        for file, content in DOCUMENTS.items():
            directory.joinpath(file).parent.mkdir(exist_ok=True)
            directory.joinpath(file).write_bytes(content)
        files = list(DOCUMENTS)
        runs = [files, *([file] for file in files), [*files, "missing.toml"], ["."],
                ["--all", "many.toml"], ["--strict", *files]]
        results = 0
        for words in runs:
            output = subprocess.run([options.tool, "check", "--format=sarif", *words],
                                    cwd=directory, capture_output=True, check=False).stdout
            log = json.loads(output)
            results += len(log["runs"][0]["results"])
            faults = [f"{list(fault.absolute_path)}: {fault.message}"
                      for fault in validator.iter_errors(log)]
            faults += filter(None, [check_log(log, directory)])
            if faults:
                sys.exit(f"check --format=sarif {words}:\n" + "\n".join(faults))
    print(f"{len(runs)} logs with {results} results")
    if results < 100:
        sys.exit("These are too few results.")


if __name__ == "__main__":
    main()

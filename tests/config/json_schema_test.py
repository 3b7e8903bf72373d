"""Checks the JSON Schemas that describe configurations.

They have to be JSON Schemas, and to say of documents what the library says: those that it reads
are valid, and those that it does not are not, as far as the mistake is one that a schema can tell.
"""

import argparse
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import tomllib

try:
    import jsonschema
except ImportError:  # Debian's package is one of Debian's Python.
    if sys.executable == "/usr/bin/python3":
        raise
    os.execv("/usr/bin/python3", ["/usr/bin/python3", *sys.argv])

LISTENER = "[[listener]]\nport = 1\n"

READ = {
    "listener": [
        "name = 'a'\n",
        "name = 'a'\nlimits = {a = -9223372036854775808, b = 9223372036854775807}\n",
        "name = 'a'\ndns.timeout = 60\ndns.search = ['a', 'b']\nlog = {level = 'error'}\n",
        "name = 'a'\nlistener = [{port = 65535}, {port = 1, certificate = 'c'}]\n",
        "name = 'a'\n" + 3 * LISTENER,
    ],
    "every": [
        "",
        "day = 07:32:00\nclock = 1979-05-27\n",
        "single = 5\ndelay = 0.5\nunset = 9\nset = 'x'\n",
        "lists.point = [1, -10, 2.5]\nlists.matrix = [[1], [2, 3]]\n",
        "maps.nested = [{a = ['b'], c = ['d']}, {e = ['f']}]\n",
        "[tables.proxy]\nother = 1\n[tables.unset]\nhost = 'x'\nother = {a = 1}\n",
        "[none.a]\naddress = 'x'\n[none.a.proxies.b]\nport = 1\nother = 2\n",
        "[[rule]]\ntarget = 'x'\nmatch = {ports = [1, 65535]}\n",
    ],
}

NOT_READ = {
    "listener": [
        "",
        "name = 1\n",
        "name = 'a'\nother = 1\n",
        "name = 'a'\ndns.other = 1\n",
        "name = 'a'\ndns.timeout = 60.5\n",
        "name = 'a'\ndns.timeout = 0\n",
        "name = 'a'\ndns.search = 'a'\n",
        "name = 'a'\ndns.search = [1]\n",
        "name = 'a'\nlog.level = 'Info'\n",
        "name = 'a'\nlimits = {a = 'b'}\n",
        "name = 'a'\nlistener = [{address = 'x'}]\n",
        "name = 'a'\nlistener = {port = 1}\n",
        "name = 'a'\n[[listener]]\nport = 0\n",
        "name = 'a'\n[[listener]]\nport = 65536\n",
        "name = 'a'\n[[listener]]\nport = 1\nother = 2\n",
    ],
    "every": [
        "on = 1\n",
        "integers.'true'.tiny = -129\n",
        "integers.byte = -1\n",
        "integers.byte = 256\n",
        "integers.port = 65536\n",
        "integers.port = 0\n",
        "integers.size = -1\n",
        "integers.large = 1.5\n",
        "unset = 4\n",
        "colour = 'green'\n",
        "day = 5\n",
        "delay = 61\n",
        "lists.point = [1, 2]\n",
        "lists.point = [1, 2, 3, 4]\n",
        "lists.point = [1, 2, 11]\n",
        "lists.colours = ['red', 'blue']\n",
        "maps.counts = {a = true}\n",
        "[none.a]\n",
        "[none.a]\naddress = 'x'\nother = 1\n",
        "[[rule]]\n",
        "[[rule]]\ntarget = 'x'\nmatch.ports = [0]\n",
        "[[pair.\"\\U0001F600\"]]\ntarget = 'x'\n",
    ],
}


def plain(value):
    """A value of a document as JSON has it: dates are strings."""
    if isinstance(value, dict):
        return {key: plain(inner) for key, inner in value.items()}
    if isinstance(value, list):
        return [plain(inner) for inner in value]
    return value if isinstance(value, (bool, int, float, str)) else value.isoformat()


def with_examples(text):
    """A document with the examples in its comments."""
    return re.sub(r'^(?:# )+(?=\[|(?:[\w.-]+|"[^"]*") = )', "", text, flags=re.MULTILINE)


def defaults_in(schema):
    """The parts of a schema that have a default."""
    if isinstance(schema, dict):
        if "type" in schema and "default" in schema:
            yield schema
        for inner in schema.values():
            yield from defaults_in(inner)


class Checks:
    def __init__(self, command, option, directory):
        self.command = command
        self.file = directory / "document.toml"
        text = self.output(option)
        text.encode("ascii")
        self.schema = json.loads(text)
        jsonschema.Draft7Validator.check_schema(self.schema)
        self.validator = jsonschema.Draft7Validator(self.schema)
        if self.validator.META_SCHEMA["$schema"] != self.schema["$schema"]:
            sys.exit(f"{command} writes one of {self.schema['$schema']}")

    def output(self, what):
        return subprocess.run([*self.command, what], capture_output=True, check=True,
                              encoding="utf-8").stdout

    def check(self, document, is_read):
        self.file.write_text(document, encoding="utf-8")
        reading = subprocess.run([*self.command, self.file], capture_output=True, check=False,
                                 encoding="utf-8")
        if reading.returncode != (0 if is_read else 1):
            sys.exit(f"{document}\nis {'not ' if is_read else ''}read: {reading.stdout}")
        faults = [f"{list(fault.absolute_path)}: {fault.message}"
                  for fault in self.validator.iter_errors(plain(tomllib.loads(document)))]
        if is_read == bool(faults):
            sys.exit(f"{document}\nis {'in' if is_read else ''}valid by the schema: {faults}")

    def check_defaults(self):
        parts = list(defaults_in(self.schema))
        for part in parts:
            jsonschema.Draft7Validator(part).validate(part["default"])
        return len(parts)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--program", required=True)
    parser.add_argument("--config-reader", required=True)
    parser.add_argument("--network", type=pathlib.Path, required=True)
    options = parser.parse_args()
    count = defaults = 0
    with tempfile.TemporaryDirectory() as name:
        for schema in READ:
            checks = Checks([options.program, schema], "json-schema", pathlib.Path(name))
            described = checks.output("toml")
            documents = [*READ[schema], with_examples(described)]
            if schema == "every":
                documents.append(described)
            for document in documents:
                checks.check(document, True)
            for document in NOT_READ[schema]:
                checks.check(document, False)
            count += len(documents) + len(NOT_READ[schema])
            defaults += checks.check_defaults()
        checks = Checks([options.config_reader], "--json-schema", pathlib.Path(name))
        network = options.network.read_text(encoding="utf-8")
        checks.check(network, True)
        checks.check(network.replace("[dns]", "[dsn]"), False)
        defaults += checks.check_defaults()
    print(f"{count} documents, {defaults} defaults")
    if count < 50 or defaults < 40:
        sys.exit("These are too few.")


if __name__ == "__main__":
    main()

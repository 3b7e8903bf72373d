"""Checks the tool's manual page and its completion in bash against the tool's help."""

import argparse
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

from commands import Failure, run

STATUSES = "0123"


def subcommands_of(tool):
    listed = run([tool, "--help"]).partition("Subcommands:\n")[2].partition("\n\n")[0]
    names = re.findall(r"^  (\S+) ", listed, re.MULTILINE)
    if not names:
        raise Failure("the tool's help lists no subcommand")
    return names


def options_of(tool, *words):
    names = re.findall(r"--[a-z][a-z-]*", run([tool, *words, "--help"]).partition("Example:")[0])
    return set(names)


def check_page(page, tool):
    """The page is well-formed, and has all that the help has."""
    formatted = subprocess.run(
        ["groff", "-man", "-ww", "-Tascii", "-P-c", page], capture_output=True, text=True,
        check=False)
    if formatted.returncode != 0 or formatted.stderr:
        raise Failure(f"groff says of the page: {formatted.stderr}")
    text = re.sub(".\b", "", formatted.stdout)
    for name in subcommands_of(tool):
        if not re.search(rf"^ +{name} ", text, re.MULTILINE):
            raise Failure(f"the page has no command {name}:\n{text}")
        for option in options_of(tool, name):
            if option not in text:
                raise Failure(f"the page has no option {option}:\n{text}")
    statuses = text.partition("EXIT STATUS")[2].partition("ENVIRONMENT")[0]
    if re.findall(r"^ +(\d)", statuses, re.MULTILINE) != list(STATUSES):
        raise Failure(f"the page has other exit statuses:\n{statuses}")


def check_page_examples(page, tool, directory):
    """What the page shows is what the tool prints."""
    source = pathlib.Path(page).read_text(encoding="ascii").partition(".SH EXAMPLES")[2]
    examples = re.findall(r'^\.RB "\$ " "(.*)"\n((?:[^.].*\n)*)', source, re.MULTILINE)
    if not examples:
        raise Failure("the page has no example")
    (directory / "network.toml").write_text("a = 1\n", encoding="ascii")
    for command, output in examples:
        for escape, character in (("\\(aq", "'"), ("\\(rs", "\\"), ("\\-", "-")):
            command = command.replace(escape, character)
        said = run(["sh", "-c", command.replace("vorn-toml", shlex.quote(tool))], cwd=directory)
        if said != output:
            raise Failure(f"$ {command}\nprints\n{said}and not\n{output}")


def completions(script, directory, *words):
    """What bash offers after `vorn-toml WORDS...`, of which the last is to be completed."""
    commands = (
        f"source {shlex.quote(script)}; COMP_WORDS=(vorn-toml {shlex.join(words)});"
        f" COMP_CWORD={len(words)}; _vorn_toml; printf '%s\\n' \"${{COMPREPLY[@]}}\""
    )
    return set(run(["bash", "-u", "-c", commands], cwd=directory).split())


def check_completion(script, tool, directory):
    for name in ("a.toml", "b.toml", "notes.txt"):
        (directory / name).touch()
    (directory / "conf.d").mkdir()
    files = {"a.toml", "b.toml", "conf.d"}
    names = subcommands_of(tool)
    cases = [([name], {name}) for name in names]
    cases += [([name, ""], files) for name in names]
    cases += [([name, "a"], {"a.toml"}) for name in names]
    cases += [(["check", "a.toml", "n"], {"notes.txt"}), (["--help", "che"], {"check"}),
              (["check", "--color", "a"], {"auto", "always"}),
              (["check", "--format", ""], {"text", "json", "sarif", "github"})]
    for words, expected in cases:
        offered = completions(script, directory, *words)
        if offered != expected:
            raise Failure(f"{words} completes to {offered}, not to {expected}")
    offered = completions(script, directory, "")
    if missing := {*names, "--help"} - offered:
        raise Failure(f"{offered} are offered, without {missing}")
    for name in names:
        offered = completions(script, directory, name, "-")
        if missing := options_of(tool, name) - offered:
            raise Failure(f"after {name} {offered} are offered, without {missing}")


def main():
    parser = argparse.ArgumentParser()
    for name in ("tool", "page", "completion"):
        parser.add_argument(f"--{name}", required=True)
    options = parser.parse_args()
    try:
        with tempfile.TemporaryDirectory() as name:
            directory = pathlib.Path(name)
            check_page(options.page, options.tool)
            check_completion(options.completion, options.tool, directory)
            check_page_examples(options.page, options.tool, directory)
    except Failure as failure:
        sys.exit(str(failure))


if __name__ == "__main__":
    main()

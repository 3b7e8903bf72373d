"""Checks what the page on editors and services tells them, with what vorn-toml prints.

Vim, jq and Emacs read real output where they are installed; where one is not, the test says so
and goes on.  The other patterns are regular expressions that Python understands.
"""

import argparse
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

try:
    import yaml
except ImportError:  # Debian's package is one of Debian's Python.
    if sys.executable == "/usr/bin/python3":
        raise
    os.execv("/usr/bin/python3", ["/usr/bin/python3", *sys.argv])

FENCE = re.compile(r"^```([^\n`]+)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
DOCUMENTS = {
    "conf.d/bad.toml": b"a = 1\nnames = []\nb = \"\\q\"\n",
    "conf.d/good.toml": b"a = 1\n",
    "conf.d/odd name.toml": b"a = 1\n\xc1?\n",
}
# What check says of them: the file, line, column, kind and start of the message.
EXPECTED = [
    ("conf.d/bad.toml", 2, 10, "error", "the array is empty"),
    ("conf.d/bad.toml", 3, 6, "error", "unknown escape"),
    ("conf.d/odd name.toml", 2, 1, "warning", "the file is only read up to"),
]


class Failure(Exception):
    """What the page says is not true."""


def blocks_of(page, kind):
    found = [content for name, content in FENCE.findall(page) if name == kind]
    if not found:
        raise Failure(f"the page has no block of {kind}")
    return found


def expect(found, expected=None, what="findings"):
    expected = EXPECTED if expected is None else expected
    shortened = [(*one[:4], one[4][:len(other[4])]) for one, other in zip(found, expected)]
    if shortened != expected or len(found) != len(expected):
        raise Failure(f"{what}: {found}, not {expected}")


def run(words, status, **options):
    done = subprocess.run(words, capture_output=True, text=True, check=False, timeout=60,
                          **options)
    if done.returncode != status:
        raise Failure(f"{words} ends with {done.returncode}:\n{done.stdout}{done.stderr}")
    return done.stdout + done.stderr


def shell(commands, status):
    return run(["sh", "-c", commands], status)


def missing(program):
    if shutil.which(program):
        return False
    print(f"skipped: {program} is not installed")
    return True


def check_line(page):
    for line in blocks_of(page, "sh"):
        output = shell(line, 1)
        if output.count(": error: ") != 2 or "accepted" in output:
            raise Failure(f"{line}prints\n{output}")


def check_visual_studio(page):
    (block,) = blocks_of(page, "json")
    (task,) = json.loads(block)["tasks"]
    words = [word.replace("${workspaceFolder}", "conf.d") for word in task["args"]]
    pattern = task["problemMatcher"]["pattern"]
    found = []
    for line in run([task["command"], *words], 1).splitlines():
        if match := re.search(pattern["regexp"], line):
            file, number, column, kind, message = (
                match[pattern[name]] for name in ("file", "line", "column", "severity", "message"))
            found.append((file, int(number), int(column), kind, message))
    expect(found, what="the problem matcher")


def check_vim(page, directory):
    (block,) = blocks_of(page, "vim")
    if missing("vim") or "+quickfix" not in run(["vim", "--version"], 0):
        print("skipped: Vim's errorformat")
        return
    script = directory / "read.vim"
    script.write_text(block + "silent make!\n"
                      "call writefile([json_encode(map(getqflist(), "
                      "{_, e -> [bufname(e.bufnr), e.lnum, e.col, e.type, e.text]}))],"
                      " 'quickfix.json')\nqall!\n", encoding="utf-8")
    found = []
    for file in ("conf.d/bad.toml", "conf.d/odd name.toml"):
        subprocess.run(["vim", "-N", "-u", "NONE", "-i", "NONE", "-es", "-S", script, file],
                       check=False, timeout=60, stdin=subprocess.DEVNULL,
                       stdout=subprocess.DEVNULL)
        found += json.loads(pathlib.Path("quickfix.json").read_text(encoding="utf-8"))
    kinds = {"e": "error", "w": "warning"}
    expect([(file, line, column, kinds[kind.lower()], text)
            for file, line, column, kind, text in found], what="Vim's list")


def check_emacs(page):
    """Translates the patterns of Flycheck."""
    (block,) = blocks_of(page, "elisp")
    (command,) = re.findall(r":command \(([^)]*)\)", block)
    words = re.findall(r'"([^"]*)"', command)
    patterns = re.findall(
        r'\((error|warning) line-start "-:" line ":" column "([^"]*)" \(message\) line-end\)',
        block)
    if len(patterns) != 2 or block.count("(") != block.count(")"):
        raise Failure(f"these patterns are not understood:\n{block}")
    output = run(words, 1, input=DOCUMENTS["conf.d/bad.toml"].decode())
    output += run(words, 0, input="a = 1\n\udcc1?\n", errors="surrogateescape")
    found = []
    for line in output.splitlines():
        for kind, text in patterns:
            if match := re.fullmatch(rf"-:(\d+):(\d+){re.escape(text)}(.*)", line):
                found.append(("-", int(match[1]), int(match[2]), kind, match[3]))
    expect(found, [("-", *one[1:]) for one in EXPECTED], "Flycheck's patterns")
    # What M-x compile knows of its own, of messages of GNU's form with a column.
    gnu = re.compile(r"^(?:[A-Za-z][\w.-]+: ?)?((?:\d*[^\d\n ]).*?):(\d+):(\d+): (error|warning): (.*)")
    lines = filter(None, map(gnu.match, run(["vorn-toml", "check", "-q", "."], 1).splitlines()))
    expect([(line[1].removeprefix("./"), int(line[2]), int(line[3]), line[4], line[5])
            for line in lines], what="Emacs' own pattern")


def check_github(workflow):
    (job,) = workflow["jobs"].values()
    (command,) = [step["run"] for step in job["steps"] if "run" in step]
    if "--format sarif" in command:
        shell(command, 1)
        (upload,) = [step for step in job["steps"] if "sarif" in step.get("uses", "")]
        log = json.loads(pathlib.Path(upload["with"]["sarif_file"]).read_text(encoding="utf-8"))
        found = []
        for result in log["runs"][0]["results"]:
            place = result["locations"][0]["physicalLocation"]
            found.append((place["artifactLocation"]["uri"].replace("%20", " "),
                          place["region"]["startLine"], place["region"]["startColumn"],
                          result["level"], result["message"]["text"]))
    else:
        pattern = re.compile(r"^::(\w+) file=([^,]*),line=(\d+),.*,col=(\d+),.*?::(.*)$", re.M)
        found = [(file, int(line), int(column), kind, text)
                 for kind, file, line, column, text in pattern.findall(shell(command, 1))]
    expect(found, what=command)


def check_gitlab(job):
    if missing("jq"):
        return
    shell("\n".join(job["script"]), 1)
    report = job["artifacts"]["reports"]["codequality"]
    entries = json.loads(pathlib.Path(report).read_text(encoding="utf-8"))
    kinds = {"major": "error", "minor": "warning"}
    expect([(one["location"]["path"], one["location"]["lines"]["begin"],
             int(one["fingerprint"].split(":")[2]), kinds[one["severity"]], one["description"])
            for one in entries], what="the code quality report")
    if len({one["fingerprint"] for one in entries}) != len(entries):
        raise Failure("two findings have the same fingerprint")


def check_hooks(configurations, hooks, root):
    known = {hook["id"] for hook in hooks}
    for hook in hooks:
        program, *words = hook["entry"].split()
        if hook["language"] != "script" or not os.access(root / program, os.X_OK):
            raise Failure(f"{hook['id']}: {program} is no script")
        if words[0] == "check":
            run(["vorn-toml", *words, "conf.d/good.toml", "conf.d/odd name.toml"], 0)
            run(["vorn-toml", *words, "conf.d/good.toml", "conf.d/bad.toml"], 1)
        if not re.search(hook["files"], "a.toml") or re.search(hook["files"], "a.tomlx"):
            raise Failure(f"{hook['id']} takes other files")
    for configuration in configurations:
        for repository in configuration["repos"]:
            for hook in repository["hooks"]:
                if hook["id"] not in known:
                    raise Failure(f"there is no hook {hook['id']}")
                if repository["repo"] == "local":
                    run([*hook["entry"].split(), "conf.d/bad.toml", "conf.d/good.toml"], 1)


def check_services(page, hooks, root):
    services = [yaml.safe_load(block) for block in blocks_of(page, "yaml")]
    workflows = [one for one in services if "jobs" in one]
    (gitlab,) = [one["toml"] for one in services if "toml" in one]
    configurations = [one for one in services if "repos" in one]
    if len(workflows) != 2 or len(workflows) + len(configurations) + 1 != len(services):
        raise Failure("the page has other blocks of YAML")
    for workflow in workflows:
        check_github(workflow)
    check_gitlab(gitlab)
    check_hooks(configurations, yaml.safe_load(hooks.read_text(encoding="utf-8")), root)


def main():
    parser = argparse.ArgumentParser()
    for name in ("page", "hooks", "tool"):
        parser.add_argument(f"--{name}", required=True, type=lambda one: pathlib.Path(one).resolve())
    options = parser.parse_args()
    page = options.page.read_text(encoding="utf-8")
    os.environ["PATH"] = f"{options.tool.parent}:{os.environ['PATH']}"
    with tempfile.TemporaryDirectory() as name:
        os.chdir(name)
        for file, content in DOCUMENTS.items():
            pathlib.Path(file).parent.mkdir(exist_ok=True)
            pathlib.Path(file).write_bytes(content)
        try:
            check_line(page)
            check_visual_studio(page)
            check_vim(page, pathlib.Path(name))
            check_emacs(page)
            check_services(page, options.hooks, options.hooks.parent)
        except Failure as failure:
            sys.exit(str(failure))
        finally:
            os.chdir("/")


if __name__ == "__main__":
    main()

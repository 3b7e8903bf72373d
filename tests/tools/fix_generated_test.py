#!/usr/bin/env python3
"""Checks that `vorn-toml fix` keeps the meaning of documents of TOML 1.0.

    fix_generated_test.py --tool TOOL [--count COUNT] [--seed SEED]

Random documents are fixed, many at once.  Then the tool accepts each of them, Python's reader of
TOML 1.0 reads the same values as before, each comment is still there, and fixing once more
changes nothing.  What the tool accepts already stays as it is.  What it cannot express is
reported, and left alone; if it is in comments, it can be fixed without them.
"""

import argparse
import collections
import os
import pathlib
import subprocess
import sys
import tempfile
import tomllib

from generate_toml import HIGH, generate

BATCH = 1000
TIME_LIMIT = 600  # seconds, for a batch


class Failure(Exception):
    """A document that is not fixed as it should be."""


def run(tool, directory, *words, names):
    """What the tool says of each file, and of all on standard error."""
    done = subprocess.run([tool, *words, *names], cwd=directory, capture_output=True, text=True,
                          encoding="utf-8", timeout=TIME_LIMIT, check=False)
    if done.returncode not in (0, 1):
        raise Failure(f"{words} exits with {done.returncode}: {done.stderr[-2000:]}")
    # After the files is a line about all of them.
    said = dict(line.rsplit(": ", 1) for line in done.stdout.splitlines()[:len(names)])
    if list(said) != names:
        raise Failure(f"{words} does not say something of each file")
    return said, done.stderr


def meaning_of(text):
    """The values, in a form in which not-a-numbers are the same, and 1 is not true."""
    return repr(tomllib.loads(text))


def expect(condition, what, document, after):
    if not condition:
        raise Failure(f"{what}\nbefore: {document.text!r}\nafter:  {after!r}")


def expect_fixed(document, meaning, verdict, after):
    text = after.decode("utf-8")
    before = document.text.encode("utf-8")
    expect((verdict == "fixed") == (after != before), f"it says {verdict}", document, text)
    try:
        same = meaning_of(text) == meaning
    except tomllib.TOMLDecodeError as error:
        expect(False, f"it is not TOML any more: {error}", document, text)
    expect(same, "it means something else", document, text)
    for comment in document.comments:
        kept = text.count(comment) == document.text.count(comment)
        expect(kept, f"{comment!r} is lost", document, text)


def check_dropping(tool, directory, documents):
    """Without the comments that cannot be expressed, documents are fixed like others."""
    if not documents:
        return
    names = list(documents)
    run(tool, directory, "fix", "--drop-comments", names=names)
    checked, _ = run(tool, directory, "check", names=names)
    for file, (document, meaning) in documents.items():
        after = (directory / file).read_bytes()
        kept = [comment for comment in document.comments
                if not any(character in comment for character in HIGH)]
        expect(checked[file] == "accepted", "it is rejected without comments", document, after)
        expect_fixed(document._replace(comments=kept), meaning, "fixed", after)


def check_batch(tool, documents, counts):
    with tempfile.TemporaryDirectory() as name:
        directory = pathlib.Path(name)
        names = [f"{number}.toml" for number in range(len(documents))]
        for file, (document, _) in zip(names, documents):
            (directory / file).write_bytes(document.text.encode("utf-8"))
        accepted, _ = run(tool, directory, "check", names=names)
        would, _ = run(tool, directory, "fix", "--check", names=names)
        said, errors = run(tool, directory, "fix", names=names)
        after = {file: (directory / file).read_bytes() for file in names}
        checked, _ = run(tool, directory, "check", names=names)
        again, _ = run(tool, directory, "fix", names=names)
        for file, (document, meaning) in zip(names, documents):
            result = after[file]
            verdict = said[file]
            counts[verdict] += 1
            expected = {"fixed": "would change"}.get(verdict, verdict)
            expect(would[file] == expected, f"--check says {would[file]}", document, result)
            if accepted[file] == "accepted":
                expect(verdict == "unchanged", f"accepted, and {verdict}", document, result)
            if document.has_empty or document.has_high_comment:
                expect(verdict == "not fixed", f"it says {verdict}", document, result)
                expect(result == document.text.encode("utf-8"), "it is changed", document, result)
                expect(f"{file}:" in errors, "it says nothing of it", document, result)
                continue
            why = [line for line in errors.splitlines() if line.startswith(f"{file}:")]
            expect(verdict != "not fixed", f"it says {why}", document, result)
            expect_fixed(document, meaning, verdict, result)
            expect(checked[file] == "accepted", "the result is rejected", document, result)
            expect(again[file] == "unchanged", "it is not done at once", document, result)
            expect((directory / file).read_bytes() == result, "it changes twice", document, result)
        check_dropping(tool, directory, {
            file: (document, meaning) for file, (document, meaning) in zip(names, documents)
            if document.has_high_comment and not document.has_empty})


def documents_from(seeds, counts):
    """Documents that are valid, and their meanings."""
    for seed in seeds:
        document = generate(seed)
        try:
            yield document, meaning_of(document.text)
        except tomllib.TOMLDecodeError:
            counts["invalid"] += 1


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--tool", required=True, type=os.path.abspath)
    parser.add_argument("--count", type=int, default=2000)
    parser.add_argument("--seed", type=int, default=1)
    options = parser.parse_args()
    counts = collections.Counter()
    seeds = range(options.seed, options.seed + options.count)
    try:
        for begin in range(0, len(seeds), BATCH):
            check_batch(options.tool,
                        list(documents_from(seeds[begin:begin + BATCH], counts)), counts)
    except Failure as failure:
        sys.exit(str(failure))
    print(", ".join(f"{count} {what}" for what, count in sorted(counts.items())))
    if counts["invalid"] > 0.02 * options.count:
        sys.exit("too many of the generated documents are not TOML 1.0")
    if counts["not fixed"] > 0.2 * options.count or not counts["not fixed"]:
        sys.exit("too many or none of the documents cannot be expressed")


if __name__ == "__main__":
    main()

"""Names the places that do not know what the grammars say, where the language has changed.

    language.py ROOT --vocabulary FILE

ROOT is that of the sources, the vocabulary the Toml.tokens that the tool has made.  Tests tell
whether each place knows it right; this tells which place has been forgotten.
"""

import argparse
import re
import sys
from pathlib import Path
from typing import NamedTuple

GRAMMAR = "src/grammar/Toml.g"
TREE_GRAMMAR = "src/grammar/TomlTree.g"
HEADER = "include/vorn/parsers/toml.h"
TOKEN_TYPES = "src/scan/token_type.h"
LEXER = "src/grammar/lexer/toml_lexer.h"
LEXER_RULES = "src/grammar/lexer/rules.h"
EVENTS = "src/direct/event.h"
VISITOR_CALLS = "src/direct/visitor_calls.h"
DICTIONARY = "fuzz/toml.dict"
GUIDE = "CONTRIBUTING.md"

LITERAL = re.compile(r"'((?:\\.|[^'\\])+)'")
RANGE = re.compile(r"{0}\s*\.\.\s*{0}".format(LITERAL.pattern))
OPERATION = r"(?:begin|end|visit)[A-Z]\w*"


class Rule(NamedTuple):
    name: str
    fragment: bool
    start: str  # what stands before its alternatives
    body: str

    def is_token(self):
        return self.name[0].isupper() and not self.fragment


class Sources:
    def __init__(self, root):
        self.root = root

    def text(self, name):
        return (self.root / name).read_text(encoding="utf-8")

    def file_named(self, name):
        """A file that may be in the tool or in a room of src/."""
        (found,) = [*self.root.glob(f"tools/{name}"), *self.root.glob(f"src/**/{name}")]
        return str(found.relative_to(self.root))


def rules_of(text):
    text = re.sub(r"^\s*//.*\n", "", text, flags=re.MULTILINE)
    rule = r"^(fragment )?(\w+)\b((?:(?!\n\n).)*?)\n    : (.*?)\n    ;$"
    return [Rule(name, bool(fragment), start, body) for fragment, name, start, body
            in re.findall(rule, text, re.MULTILINE | re.DOTALL)]


def literals_of(rule):
    return {found.encode().decode("unicode_escape")
            for found in LITERAL.findall(RANGE.sub("", rule.body))}


def tokens_of(rules):
    """The names of tokens in the vocabulary, and whether the lexer discards them."""
    tokens = {rule.name: "SKIP()" in rule.body for rule in rules if rule.is_token()}
    for rule in rules:
        if rule.name[0].islower():
            tokens.update((f"'{literal}'", False) for literal in sorted(literals_of(rule)))
    return tokens


def check_tokens(sources, rules, vocabulary):
    """Every token has a type, rules of the lexer, and words."""
    numbers = {name: int(number) for name, number
               in re.findall(r"^(\w+|'.+')=(\d+)$", vocabulary, re.MULTILINE)}
    enumerators = {int(number): name for name, number
                   in re.findall(r"^\s*(\w+) = (-?\d+),", sources.text(TOKEN_TYPES), re.MULTILINE)}
    lexer, lexer_rules = sources.text(LEXER), sources.text(LEXER_RULES)
    words_file = sources.file_named("kind_name.cpp")
    words = sources.text(words_file)
    tokens = tokens_of(rules)
    for token, discarded in tokens.items():
        number = numbers.get(token)
        if number is None:
            yield f"the vocabulary has no {token}: it is that of another grammar"
        enumerator = enumerators.get(number)
        if enumerator is None:
            yield f"{TOKEN_TYPES} has no TokenType with the number {number}, of {token}"
        rule = f"mT__{number}" if token.startswith("'") else f"m{token}"
        if not re.search(rf"\b{rule};", lexer):
            yield f"{LEXER} has no rule {rule}, for {token}"
        if not re.search(rf"^bool {enumerator}\(", lexer_rules, re.MULTILINE):
            yield f"{LEXER_RULES} has no rule for {token}, with the name of its TokenType"
        if not discarded and not re.search(rf"case TokenType::{enumerator}:", words):
            yield f"{words_file} has no words for {token}"
    known = {numbers.get(token) for token in tokens}
    for number, enumerator in enumerators.items():
        if number > 0 and number not in known:
            yield f"{TOKEN_TYPES}: {enumerator}, {number}, is no token of {GRAMMAR}"


def check_dictionary(sources, rules):
    """The fuzzer has an entry that starts with each literal of the language."""
    entries = [entry.encode().decode("unicode_escape") for entry
               in re.findall(r'^"(.*)"$', sources.text(DICTIONARY), re.MULTILINE)]
    literals = set().union(*(literals_of(rule) for rule in rules if not rule.fragment))
    for literal in sorted(literals):
        if not any(entry.startswith(literal) for entry in entries):
            yield f"{DICTIONARY} has no entry that starts with {literal!r}"


def calls_for(node, tree_rules):
    """Whether where the walk meets a node it calls the visitor."""
    for rule in tree_rules:
        for alternative in re.split(r"\n    \| ", rule.body):
            if re.search(rf"\^\({node}\b", alternative):
                return "visitor." in alternative + rule.start
    return False


def check_nodes(sources, grammar, rules):
    """Every kind of node is made by the parser, and is something to the visitor."""
    tree_rules = rules_of(sources.text(TREE_GRAMMAR))
    (listed,) = re.findall(r"^tokens \{(.*?)\}", grammar, re.MULTILINE | re.DOTALL)
    for node in re.findall(r"(\w+);", listed):
        if not any(f"-> ^({node} " in rule.body for rule in rules):
            yield f"{GRAMMAR} makes no {node} in any rule"
        if not calls_for(node, tree_rules):
            yield f"{TREE_GRAMMAR} calls the visitor for no {node}"


def check_operations(sources):
    """The header's operations, the walk's calls and the direct reader's events are the same."""
    header = re.findall(rf"virtual void ({OPERATION})\(.*\) = 0;", sources.text(HEADER))
    (enumeration,) = re.findall(r"enum class Event[^{]*\{(.*?)\};", sources.text(EVENTS), re.DOTALL)
    document = ("beginDocument", "endDocument")  # which no token makes
    knowing = {
        TREE_GRAMMAR: re.findall(rf"visitor\.({OPERATION})\(", sources.text(TREE_GRAMMAR)),
        EVENTS: [*re.findall(rf"({OPERATION}),", enumeration), *document],
        VISITOR_CALLS: [*re.findall(rf"&Visitor::({OPERATION})\b", sources.text(VISITOR_CALLS)),
                        *document],
    }
    for file, known in knowing.items():
        for operation in header:
            if operation not in known:
                yield f"{file} has no {operation}, an operation of {HEADER}"
        for operation in dict.fromkeys(known):
            if operation not in header:
                yield f"{file}: {operation} is no operation of {HEADER}"


def check_guide(sources):
    """The list of places that follow a change names none that is gone."""
    (section,) = re.findall(r"^## Changing the grammar$(.*?)^## ", sources.text(GUIDE),
                            re.MULTILINE | re.DOTALL)
    rows = re.findall(r"^\| (.*`.*?) \|", section, re.MULTILINE)
    if not rows:
        yield f"{GUIDE} lists no places"
    for row in rows:
        directory = ""
        for place in re.findall(r"`([^`]+)`", row.split(" | ")[0]):
            # Further names of a row are of the same directory, or of the root.
            if not any([*sources.root.glob(place), *sources.root.glob(directory + place)]):
                yield f"{GUIDE} names {place}, which is gone"
            directory = place.rpartition("/")[0] + "/" if "/" in place else directory


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("root", type=Path)
    parser.add_argument("--vocabulary", type=Path, required=True)
    options = parser.parse_args()
    sources = Sources(options.root)
    grammar = sources.text(GRAMMAR)
    rules = rules_of(grammar)
    found = [
        *check_tokens(sources, rules, options.vocabulary.read_text(encoding="utf-8")),
        *check_dictionary(sources, rules),
        *check_nodes(sources, grammar, rules),
        *check_operations(sources),
        *check_guide(sources),
    ]
    tokens = tokens_of(rules)
    print(f"{len(rules)} rules, {len(tokens)} tokens")
    for line in found:
        print(line)
    return 1 if found or not tokens else 0


if __name__ == "__main__":
    sys.exit(main())

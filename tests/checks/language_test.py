"""Tests checks/language.py, in copies of the sources with another language in single places:
language_test.py SCRIPT --source DIRECTORY --vocabulary FILE
"""

import argparse
import pathlib
import shutil
import sys
import tempfile
import unittest

from small_tree import check

GRAMMAR = "src/grammar/Toml.g"
TREE_GRAMMAR = "src/grammar/TomlTree.g"
TOKEN_TYPES = "src/scan/token_type.h"
EVENTS = "src/direct/event.h"
HEADER = "include/vorn/parsers/toml.h"
VISITOR_CALLS = "src/direct/visitor_calls.h"
GUIDE = "CONTRIBUTING.md"
options = argparse.Namespace()


def words_file():
    (found,) = [*options.source.glob("tools/kind_name.cpp"),
                *options.source.glob("src/**/kind_name.cpp")]
    return str(found.relative_to(options.source))


class Language(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.root = pathlib.Path(directory.name)
        for name in ("src", "include", "tools", "fuzz"):
            shutil.copytree(options.source / name, self.root / name)
        # What the guide names beside these need only be there.
        for name in ("tests", "docs", "bench", "examples"):
            (self.root / name).symlink_to((options.source / name).resolve())
        for page in options.source.glob("*.md"):
            shutil.copy(page, self.root)
        self.vocabulary = self.root / "Toml.tokens"
        shutil.copy(options.vocabulary, self.vocabulary)

    def change(self, name, old, new):
        path = self.root / name
        text = path.read_text(encoding="utf-8")
        self.assertEqual(text.count(old), 1, f"{old} in {name}")
        path.write_text(text.replace(old, new), encoding="utf-8")

    def expect(self, *said):
        status, output = check(options.script, self.root, "--vocabulary", self.vocabulary)
        self.assertEqual(output.splitlines()[1:], list(said))
        self.assertEqual(status, 1 if said else 0)

    def test_sources(self):
        self.expect()

    def test_another_token(self):
        self.change(GRAMMAR, "BOOLEAN\n    :", "AMPERSANDS\n    : '&'+\n    ;\n\nBOOLEAN\n    :")
        with self.vocabulary.open("a", encoding="utf-8") as vocabulary:
            vocabulary.write("AMPERSANDS=99\n")
        self.expect(f"{TOKEN_TYPES} has no TokenType with the number 99, of AMPERSANDS",
                    "src/grammar/lexer/toml_lexer.h has no rule mAMPERSANDS, for AMPERSANDS",
                    "src/grammar/lexer/rules.h has no rule for AMPERSANDS, with the name of its "
                    "TokenType",
                    f"{words_file()} has no words for AMPERSANDS",
                    "fuzz/toml.dict has no entry that starts with '&'")

    def test_another_mark(self):
        self.change(GRAMMAR, "key '=' value ->", "key ('=' | ':=') value ->")
        with self.vocabulary.open("a", encoding="utf-8") as vocabulary:
            vocabulary.write("':='=76\n")
        self.expect(f"{TOKEN_TYPES} has no TokenType with the number 76, of ':='",
                    "src/grammar/lexer/toml_lexer.h has no rule mT__76, for ':='",
                    "src/grammar/lexer/rules.h has no rule for ':=', with the name of its "
                    "TokenType",
                    f"{words_file()} has no words for ':='",
                    "fuzz/toml.dict has no entry that starts with ':='")

    def test_another_number(self):
        self.change(TOKEN_TYPES, "floating = 20,", "floating = 21,")
        self.expect(f"{TOKEN_TYPES} has no TokenType with the number 20, of FLOAT",
                    "src/grammar/lexer/rules.h has no rule for FLOAT, with the name of its "
                    "TokenType",
                    f"{words_file()} has no words for FLOAT",
                    f"{TOKEN_TYPES}: floating, 21, is no token of {GRAMMAR}")

    def test_forgotten_words(self):
        self.change("fuzz/toml.dict", '"true"\n', "")
        self.change("src/grammar/lexer/rules.h", "bool newline(", "bool newLine(")
        self.expect("src/grammar/lexer/rules.h has no rule for NL, with the name of its TokenType",
                    "fuzz/toml.dict has no entry that starts with 'true'")

    def test_another_node(self):
        self.change(GRAMMAR, "    VAL_ARRAY;\n", "    VAL_ARRAY;\n    VAL_RANGE;\n")
        self.expect(f"{GRAMMAR} makes no VAL_RANGE in any rule",
                    f"{TREE_GRAMMAR} calls the visitor for no VAL_RANGE")

    def test_node_without_a_call(self):
        self.change(TREE_GRAMMAR, "      { visitor.visitFloat(characters($float_text.text)); }\n",
                    "")
        self.change(TREE_GRAMMAR, "@init { visitor.beginArray(); }", "")
        self.change(TREE_GRAMMAR, " { visitor.endArray(); }", "")
        self.expect(f"{TREE_GRAMMAR} calls the visitor for no VAL_FLOAT",
                    f"{TREE_GRAMMAR} calls the visitor for no VAL_ARRAY",
                    f"{TREE_GRAMMAR} has no beginArray, an operation of {HEADER}",
                    f"{TREE_GRAMMAR} has no endArray, an operation of {HEADER}",
                    f"{TREE_GRAMMAR} has no visitFloat, an operation of {HEADER}")

    def test_another_operation(self):
        self.change(HEADER, "    virtual void visitFloat(const char* text) = 0;\n",
                    "    virtual void visitFloat(const char* text) = 0;\n"
                    "    virtual void visitRange(const char* text) = 0;\n")
        self.expect(*(f"{file} has no visitRange, an operation of {HEADER}"
                      for file in (TREE_GRAMMAR, EVENTS, VISITOR_CALLS)))

    def test_a_place_that_is_gone(self):
        (self.root / "src/scan/escape.h").unlink()
        self.change(GUIDE, "`src/direct/event.h`, `visitor_calls.h`",
                    "`src/direct/event.h`, `calls.h`")
        self.expect(f"{GUIDE} names src/scan/escape.h, which is gone",
                    f"{GUIDE} names calls.h, which is gone")

    def test_another_event(self):
        self.change(EVENTS, "    visitFloat,\n", "    visitReal,\n")
        self.expect(f"{EVENTS} has no visitFloat, an operation of {HEADER}",
                    f"{EVENTS}: visitReal is no operation of {HEADER}")


if __name__ == "__main__":
    parser = argparse.ArgumentParser()
    parser.add_argument("script", type=pathlib.Path)
    parser.add_argument("--source", type=pathlib.Path, required=True)
    parser.add_argument("--vocabulary", type=pathlib.Path, required=True)
    parser.parse_args(namespace=options)
    unittest.main(argv=sys.argv[:1])

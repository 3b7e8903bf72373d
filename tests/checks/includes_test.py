"""Tests checks/includes.py: includes_test.py SCRIPT"""

import sys
import unittest

from small_tree import check, tree_of

# One where each room includes what it may.
RIGHT = {
    "include/vorn/parsers/toml.h": "#include <string>\n",
    "platform/include/vorn/utils/log.h": "",
    "platform/src/log.cpp": '#include "vorn/utils/log.h"\n',
    "src/scan/token.h": "#include <vorn/parsers/toml.h>\n",
    "src/scan/scanner.h": '#include "token.h"\n',
    "src/direct/reader.h": '#include "scan/scanner.h"\n',
    "src/grammar/tree_actions.h": "#include <antlr3.h>\n",
    "src/grammar/TomlTree.g": '@header {\n#include "grammar/tree_actions.h"\n}\n',
    "src/grammar/lexer/matching.h":
        '#include <antlr3.h>\n#include "scan/token.h"\n#include "grammar/tree_actions.h"\n',
    "src/pipeline/valid_tokens.cpp": '#include "direct/reader.h"\n',
    "src/pipeline/recognisers.h":
        '#include "grammar/lexer/matching.h"\n#include "TomlParser.h"\n#include "TomlTree.h"\n',
    "src/diagnosis/words.h": '#include "pipeline/recognisers.h"\n#include "direct/reader.h"\n',
    "src/config/config.h": "#include <vorn/parsers/toml.h>\n",
    "src/log.h": "#include <vorn/utils/log.h>\n",
    "src/toml.cpp":
        '#include "log.h"\n#include "direct/reader.h"\n#include "pipeline/recognisers.h"\n',
    "tools/main.cpp":
        '#include "words.h"\n#include "scan/token.h"\n#include <vorn/utils/log.h>\n',
    "tools/words.h": '#include "diagnosis/words.h"\n',
    "examples/reader.cpp": "#include <vorn/parsers/toml.h>\n",
}
# What a file may not include, and what is said of it.
REFUSED = [
    ("src/scan/x.h", '"grammar/lexer/matching.h"', "scan includes nothing of ours"),
    ("src/scan/x.h", '"direct/reader.h"', "scan includes nothing of ours"),
    ("src/scan/x.h", '"log.h"', "scan includes nothing of ours"),
    ("src/scan/x.h", "<antlr3.h>", "scan knows nothing of the runtime"),
    ("src/direct/x.h", "<antlr3.h>", "direct knows nothing of the runtime"),
    ("src/direct/x.h", '"pipeline/recognisers.h"', "direct includes scan of ours"),
    ("src/grammar/x.h", '"scan/token.h"', "grammar includes nothing of ours"),
    ("src/grammar/TomlTree.g", '"lexer/matching.h"', "grammar includes nothing of ours"),
    ("src/grammar/lexer/x.cpp", '"pipeline/recognisers.h"',
     "grammar/lexer includes scan, grammar of ours"),
    ("src/grammar/lexer/x.cpp", '"../../direct/reader.h"',
     "grammar/lexer includes scan, grammar of ours"),
    ("src/pipeline/x.cpp", '"direct/reader.h"',
     "pipeline includes grammar, grammar/lexer of ours"),
    ("src/pipeline/x.cpp", "<vorn/utils/log.h>",
     "only src/ itself includes headers of the platform"),
    ("src/pipeline/x.cpp", '"TomlLexer.h"', "only src/pipeline/recognisers.h includes it"),
    ("src/toml.cpp", '"TomlParser.h"', "only src/pipeline/recognisers.h includes it"),
    ("tools/x.cpp", "<TomlTree.h>", "only src/pipeline/recognisers.h includes it"),
    ("src/toml.cpp", '"diagnosis/words.h"',
     "src/ itself includes scan, direct, grammar, grammar/lexer, pipeline of ours"),
    ("src/diagnosis/x.h", '"config/config.h"',
     "diagnosis includes scan, direct, grammar/lexer, pipeline of ours"),
    ("src/config/x.h", '"scan/token.h"', "config includes nothing of ours"),
    ("include/vorn/x.h", '"scan/token.h"', "include includes nothing of ours"),
    ("include/vorn/x.h", "<vorn/utils/log.h>", "include includes nothing of ours"),
    ("platform/src/x.cpp", '"log.h"', "platform includes nothing of ours"),
    ("examples/x.cpp", '"scan/token.h"', "examples includes nothing of ours"),
    ("src/scan/x.h", '"tokens.h"', "there is no such file"),
]


class Includes(unittest.TestCase):
    def expect_said(self, files, *said):
        with tree_of(files) as root:
            status, output = check(sys.argv[1], root)
        self.assertEqual(status, 1, output)
        for line in said:
            self.assertIn(line + "\n", output)

    def test_tree_that_is_right(self):
        with tree_of(RIGHT) as root:
            status, output = check(sys.argv[1], root)
        self.assertEqual(status, 0, output)
        self.assertEqual(output.strip(), "18 files with 21 includes of each other")

    def test_wrong_directions(self):
        for file, name, why in REFUSED:
            with self.subTest(file=file, name=name):
                text = RIGHT.get(file, "#pragma once\n")
                line = text.count("\n") + 1
                self.expect_said({**RIGHT, file: f"{text}#include {name}\n"},
                                 f"{file}:{line} includes {name[1:-1]}: {why}")

    def test_all_are_told(self):
        lines = '#include "direct/reader.h"\n  #  include <antlr3.h>\n'
        self.expect_said(
            {**RIGHT, "src/scan/x.h": lines},
            "src/scan/x.h:1 includes direct/reader.h: scan includes nothing of ours",
            "src/scan/x.h:2 includes antlr3.h: scan knows nothing of the runtime")

    def test_circle_of_files(self):
        self.expect_said(
            {**RIGHT, "src/scan/a.h": '#include "b.h"\n', "src/scan/b.h": '#include "c.h"\n',
             "src/scan/c.h": '#include "scan/a.h"\n'},
            "a circle of files: src/scan/a.h -> src/scan/b.h -> src/scan/c.h -> src/scan/a.h")
        self.expect_said({**RIGHT, "src/scan/a.h": '#include "a.h"\n'},
                         "a circle of files: src/scan/a.h -> src/scan/a.h")

    def test_circle_of_rooms(self):
        # None of the files is in a circle.
        self.expect_said({**RIGHT, "src/scan/x.cpp": '#include "direct/reader.h"\n'},
                         "a circle of rooms: src/direct -> src/scan -> src/direct")

    def test_room_without_a_row(self):
        self.expect_said({**RIGHT, "src/words/x.h": ""},
                         "src/words/x.h: the table of checks/includes.py has no such room")
        self.expect_said({**RIGHT, "src/words/x.h": "", "src/toml.cpp": '#include "words/x.h"\n'},
                         "src/toml.cpp:1 includes words/x.h: it is in none of the rooms")

    def test_nothing_to_check(self):
        self.expect_said({"src/toml.cpp": "#include <string>\n"},
                         "There is nothing to check: no file includes another one.")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])

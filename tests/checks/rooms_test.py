"""Tests checks/rooms.py: rooms_test.py SCRIPT"""

import sys
import unittest

from small_tree import check, tree_of

RIGHT = {
    "src/toml.cpp": "",
    "src/scan/token.h": "",
    "src/scan/token_cursor.h": "",
    "src/grammar/Toml.g": "",
    "src/grammar/lexer/rules.h": "",
    "tests/text_test.cpp": "",
    "tests/scan/token_test.cpp": "",
    "tests/grammar/lexer/rules_test.cpp": "",
    "tests/grammar/names_test.cpp": "",
    "tests/toml/text_test.cpp": "",
    "tests/packaging/consumer/consumer.cpp": "",
    "tests/checks/includes_test.py": "",
}


class Rooms(unittest.TestCase):
    def expect_said(self, files, said):
        with tree_of(files) as root:
            status, output = check(sys.argv[1], root)
        self.assertEqual(status, 1, output)
        self.assertEqual(output.partition("\n")[2], said + "\n")

    def test_tree_that_is_right(self):
        with tree_of(RIGHT) as root:
            status, output = check(sys.argv[1], root)
        self.assertEqual((status, output.strip()),
                         (0, "the rooms of src/: grammar, grammar/lexer, scan"))

    def test_room_without_tests(self):
        self.expect_said({**RIGHT, "src/config/config.h": ""},
                         "src/config has no tests: there is no tests/config")
        self.expect_said({**RIGHT, "src/scan/strings/string.h": ""},
                         "src/scan/strings has no tests: there is no tests/scan/strings")

    def test_tests_without_a_room(self):
        for name in ("words_test.cpp", "words_test.py"):
            self.expect_said({**RIGHT, f"tests/words/{name}": ""},
                             "tests/words has no room: there is no src/words")
        self.expect_said({**RIGHT, "tests/scan/more/token_test.cpp": ""},
                         "tests/scan/more has no room: there is no src/scan/more")

    def test_room_of_another_name(self):
        self.expect_said(
            {**RIGHT, "src/tools/words.h": "", "tests/tools/words_test.cpp": ""},
            "src/tools has the name of a folder of tests that are about no single room")

    def test_names_that_differ_by_one_letter(self):
        for other in ("tokens", "taken", "oken", "token_", "atoken", "tokn", "Token"):
            with self.subTest(other=other):
                # The headers are named in the order of their paths.
                self.expect_said({**RIGHT, f"src/scan/z/{other}.h": "", "tests/scan/z/z.cpp": ""},
                                 f"src/scan/token.h and src/scan/z/{other}.h: "
                                 "their names differ by one letter")

    def test_names_that_differ_by_more(self):
        others = ("tokenses", "ken", "nekot", "taker", "token_type")
        with tree_of({**RIGHT, **{f"src/scan/{other}.h": "" for other in others}}) as root:
            self.assertEqual(check(sys.argv[1], root)[0], 0)

    def test_nothing_to_check(self):
        with tree_of({"src/toml.cpp": ""}) as root:
            self.assertEqual(check(sys.argv[1], root)[0], 1)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])

"""Makes random documents of TOML 1.0, with every form that the language has.

A document has what occurs rarely in others, often: keys that read as values, comments and line
breaks wherever arrays allow them, quotes beside delimiters.  No key is defined twice.
"""

import random
from typing import NamedTuple

HIGH = ["\U0001F600", "\U00010000", "\U0010FFFF"]
WIDE = ["\u00e9", "\u00df", "\u0416", "\u6f22", "\u20ac", "\u0085", "\u2028", "\ufeff", "\ue000",
        "\uffff", "\ud7ff", "\ufffe"]
PLAIN = [*"abcXYZ0189 .,:;=#[]{}()<>@$%&*!?/|^~`-_+", " ", " ", "\t"]
ESCAPES = ["\\b", "\\t", "\\n", "\\f", "\\r", '\\"', "\\\\", "\\u00e9", "\\u0000", "\\uFFFF",
           "\\U0001F600", "\\U0010ffff", "\\U00000041"]
ESCAPED = ["\b", "\t", "\n", "\f", "\r", '"', "\\", "\u00e9", "\0", "\uffff", "\U0001F600",
           "\U0010FFFF", "A"]
BARE = ["true", "false", "inf", "nan", "-inf", "-nan", "0", "-0", "7", "1234", "-1", "1_000", "00",
        "07", "1e5", "1E05", "1e-5", "-1e5", "1e", "e5", "2020-01-01", "2020-01-0", "2020-01-011",
        "2020-13-99", "1979-05-27T07", "1979-05-27T", "1979-05-27t0", "0x1F", "0o7", "0b1", "0x",
        "0xg", "-", "--", "_", "-_", "1-", "1_", "a", "b", "key", "A-b_c", "trues", "infinity",
        "nanx", "inf-", "true_", "1979", "20", "T", "z"]
INTEGERS = ["0", "+0", "-0", "7", "+99", "-17", "1_000", "5_349_221", "1_2_3", "0xDEAD_beef",
            "0x0", "0o755", "0o0_1", "0b1101_0101", "0b0", "9223372036854775807",
            "-9223372036854775808", "19790527", "2020"]
FLOATS = ["1.5", "+1.0", "-0.01", "3.141_5", "5e+22", "1e06", "-2E-2", "6.626e-34", "0.0", "-0.0",
          "0e0", "1_0.0_1e1_0", "+0e-00", "inf", "+inf", "-inf", "nan", "+nan", "-nan"]
TIMES = ["07:32:00", "00:32:00.999999", "23:59:59.1", "00:00:00", "12:00:00.123456"]
DATES = ["1979-05-27", "2024-02-29", "0001-01-01", "9999-12-31"]
OFFSETS = ["Z", "z", "+00:00", "-07:00", "+23:59"]


class Document(NamedTuple):
    text: str
    comments: list[str]  # each is different
    has_empty: bool  # an array or an inline table
    has_high_comment: bool


class Key(NamedTuple):
    text: str
    names: tuple[str, ...]


class Generator:
    def __init__(self, seed):
        self.random = random.Random(seed)
        self.comments = []
        self.has_empty = False
        self.has_high_comment = False
        self.newlines = self.random.choice([["\n"], ["\n"], ["\r\n"], ["\n", "\r\n"]])
        # Some documents have rarely what others have often.
        self.rarity = self.random.choice([1, 1, 3, 10])
        # For each table of a header the names in it, as a tree.
        self.tables = {(): {}}
        self.table = ()

    def chance(self, share):
        return self.random.random() < share

    def pick(self, choices):
        return self.random.choice(choices)

    def newline(self):
        return self.pick(self.newlines)

    def blanks(self):
        return self.pick(["", "", " ", " ", "  ", "\t", " \t", "\t "])

    def rare(self):
        return self.chance(0.3 / self.rarity)

    # Comments and gaps

    def comment(self):
        text = f"#{len(self.comments)}:" + "".join(
            self.pick([*PLAIN, *WIDE, '"', "'", "\\"]) for _ in range(self.random.randrange(6)))
        if self.chance(0.004):
            text += self.pick(HIGH)
            self.has_high_comment = True
        text += "."
        self.comments.append(text)
        return text

    def gap(self):
        """What may be between the tokens of an array."""
        if not self.rare():
            return self.pick(["", "", " "])
        lines = "".join(
            self.blanks() + (self.comment() if self.chance(0.35) else "") + self.newline()
            for _ in range(self.random.choice([0, 1, 1, 1, 2, 3])))
        return lines + self.blanks()

    # Strings: each is its text and its content

    def character(self):
        if self.rare() and self.chance(0.3):
            return self.pick(HIGH)
        return self.pick(WIDE) if self.chance(0.1) else self.pick(PLAIN)

    def basic(self):
        text, content = "", ""
        for _ in range(self.random.randrange(7)):
            if self.chance(0.25):
                at = self.random.randrange(len(ESCAPES))
                text, content = text + ESCAPES[at], content + ESCAPED[at]
            else:
                character = self.pick(["'", self.character()])
                text, content = text + character, content + character
        return f'"{text}"', content

    def literal(self):
        content = "".join(self.pick(['"', "\\", self.character(), self.character()])
                          for _ in range(self.random.randrange(7)))
        return f"'{content}'", content

    def line_ending(self):
        text = "\\" + self.blanks() + self.newline()
        for _ in range(self.random.randrange(3)):
            text += self.blanks() + self.newline()
        return text + self.blanks()

    def multiline(self, quote):
        text, run = "", 0
        for _ in range(self.random.randrange(12)):
            part = self.pick(["quote", "quote", "newline", "other", "escape", "character",
                              "character"])
            if part == "quote" and run < 2:
                text, run = text + quote, run + 1
                continue
            run = 0
            if part == "newline":
                text += self.newline()
            elif part == "other":
                text += "'" if quote == '"' else '"'
            elif part == "escape" and quote == '"':
                text += self.pick([self.line_ending(), self.pick(ESCAPES)])
            elif part == "escape":
                text += "\\"
            else:
                text += self.character()
        first = self.newline() if self.chance(0.3) else ""
        return quote * 3 + first + text + quote * 3

    # Keys

    def key_part(self):
        form = self.random.randrange(10)
        if form == 0:
            return self.basic()
        if form == 1:
            return self.literal()
        if form < (6 if self.rarity == 1 else 3):
            text = self.pick(BARE)
        else:
            letters = "abcdefghijkTZ-_0123456789"
            text = "".join(self.pick(letters) for _ in range(self.random.randrange(1, 8)))
        return text, text

    def key(self):
        parts = [self.key_part()]
        while self.chance(0.2):
            parts.append(self.key_part())
        text = parts[0][0]
        for part, _ in parts[1:]:
            text += self.blanks_around(".") + part
        return Key(text, tuple(name for _, name in parts))

    def blanks_around(self, mark):
        return mark if self.chance(0.6) else self.blanks() + mark + self.blanks()

    def new_key(self, tree):
        """A key that a table does not have, which has it then."""
        while True:
            key = self.key()
            node, found = tree, True
            for name in key.names[:-1]:
                node = node.setdefault(name, {})
                if node is None:
                    found = False
                    break
            if found and key.names[-1] not in node:
                node[key.names[-1]] = None
                return key

    # Values

    def date_time(self):
        date, time = self.pick(DATES), self.pick(TIMES)
        form = self.random.randrange(4)
        if form == 0:
            return date
        if form == 1:
            return time
        text = date + self.pick(["T", "t", " "]) + time
        return text + (self.pick(OFFSETS) if form == 3 else "")

    def scalar(self):
        return self.pick([
            lambda: self.basic()[0], lambda: self.literal()[0], lambda: self.multiline('"'),
            lambda: self.multiline("'"), lambda: self.pick(INTEGERS), lambda: self.pick(FLOATS),
            lambda: self.pick(["true", "false"]), self.date_time, self.date_time])()

    def array(self, depth):
        if self.chance(0.006):
            self.has_empty = True
            return f"[{self.gap()}]"
        text = "[" + self.gap() + self.value(depth + 1)
        for _ in range(self.pick([0, 0, 1, 1, 2, 3])):
            text += self.gap() + "," + self.gap() + self.value(depth + 1)
        if self.chance(0.4):
            text += self.gap() + ","
        return text + self.gap() + "]"

    def inline_table(self, depth):
        if self.chance(0.006):
            self.has_empty = True
            return "{" + self.blanks() + "}"
        tree = {}
        pairs = [self.blanks() + self.pair(tree, depth + 1) + self.blanks()
                 for _ in range(self.pick([1, 1, 2, 3]))]
        return "{" + ",".join(pairs) + "}"

    def value(self, depth=0):
        form = self.random.randrange(9 + 3 * depth)
        if form < 3:
            return self.array(depth)
        return self.inline_table(depth) if form == 3 else self.scalar()

    def pair(self, tree, depth=0):
        return self.new_key(tree).text + self.blanks_around("=") + self.value(depth)

    # Lines

    def header(self):
        """A header of a table that is new, or of one more of an array of tables."""
        is_array = self.chance(0.4)
        parent = self.pick([(), *self.tables]) if not is_array else ()
        key = self.key()
        tree = self.tables[parent]
        if key.names[0] in tree:
            return self.comment()
        tree[key.names[0]] = None
        self.table = parent + key.names
        self.tables[self.table] = {}
        parts = [self.quoted(name) for name in parent] + [key.text]
        text = parts[0]
        for part in parts[1:]:
            text += self.blanks_around(".") + part
        text = self.blanks() + text + self.blanks()
        if not is_array:
            return f"[{text}]"
        again = self.chance(0.3)
        return f"[[{text}]]" + (self.newline() + f"[[{text}]]" if again else "")

    def quoted(self, name):
        characters = {'"': '\\"', "\\": "\\\\", "\n": "\\n", "\r": "\\r", "\b": "\\b",
                      "\f": "\\f", "\0": "\\u0000"}
        return '"' + "".join(characters.get(character, character) for character in name) + '"'

    def line(self):
        form = self.random.randrange(12)
        if form == 0:
            return self.blanks()
        if form == 1:
            return self.blanks() + self.comment()
        statement = self.header() if form == 2 else self.pair(self.tables[self.table])
        return (self.blanks() + statement + self.blanks()
                + (self.comment() if self.chance(0.2) else ""))

    def document(self):
        lines = [self.line() for _ in range(self.random.randrange(9))]
        text = "".join(line + self.newline() for line in lines[:-1]) + "".join(lines[-1:])
        if self.chance(0.7):
            text += self.newline()
        return Document(text, self.comments, self.has_empty, self.has_high_comment)


def generate(seed):
    return Generator(seed).document()

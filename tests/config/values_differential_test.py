#!/usr/bin/env python3
"""Compares the values of scalars, made at random, with those of Python's reader of TOML 1.0.

    values_differential_test.py PROGRAM [--count COUNT] [--seed SEED]

Each text must have the value that the reader gives it, of that kind and no other, and none if the
reader rejects it, except for what it knows better or less well than TOML 1.0 or the library:

- it has no year 0000 and no second 60: these are not compared, nor is what the library takes
  and TOML 1.0 forbids, escapes of apostrophes and lone carriage returns;
- it has integers of any size, and infinity for floats that are too large: there is no value;
- it has microseconds: nanoseconds are compared with the text;
- it takes two quotes before the delimiter of a string of several lines, which the library does
  not;
- it reads a carriage return before a line feed as if it were not there: carriage returns of
  strings are not compared.
"""

import argparse
import collections
import datetime
import math
import random
import re
import struct
import subprocess
import sys
import tomllib

NONE = ("-", "-", "false", "-", "-")
QUOTES = re.compile(r"(?:[^\\](?:\\\\)*\"\"\"\"\"|''''')$")
NOT_COMPARED = re.compile(r"\r(?!\n)|^0000-|^\".*\\'", re.DOTALL)


def digits(choose, alphabet, most):
    text = choose.choice(alphabet)
    for _ in range(choose.randrange(most)):
        text += choose.choice(("", "", "", "_")) + choose.choice(alphabet)
    return text


def integer(choose):
    radix, alphabet = choose.choice((
        ("", "0123456789"), ("0x", "0123456789abcdefABCDEF"), ("0o", "01234567"), ("0b", "01")))
    if radix:
        return radix + digits(choose, alphabet, choose.choice((4, 24, 70)))
    if choose.random() < 0.1:
        return str(choose.choice((-2**63, 2**63 - 1)) + choose.randrange(-2, 3))
    sign = choose.choice(("", "", "+", "-"))
    return sign + choose.choice("123456789") + digits(choose, alphabet, choose.choice((2, 22)))


def floating(choose):
    if choose.random() < 0.05:
        return choose.choice(("", "+", "-")) + choose.choice(("inf", "nan"))
    if choose.random() < 0.3:
        bits = struct.pack("<Q", choose.getrandbits(64))
        value = struct.unpack("<d", bits)[0]
        return repr(value) if math.isfinite(value) else "1e309"
    text = choose.choice(("", "+", "-"))
    text += choose.choice(("0", choose.choice("123456789") + digits(choose, "0123456789", 30)))
    if choose.random() < 0.7:
        text += "." + digits(choose, "0123456789", choose.choice((3, 40)))
    if "." not in text or choose.random() < 0.4:
        text += choose.choice("eE") + choose.choice(("", "+", "-"))
        text += digits(choose, "0123456789", choose.choice((1, 3, 4)))
    return text


def string(choose):
    delimiter = choose.choice(('"', "'", '"""', "'''"))
    pieces = ["a", "xyz", " ", "\t", "\u00e9", "\u20ac", "="]
    if '"' in delimiter:
        pieces += ["'", r"\n", r"\t", r"\b", r"\f", r"\r", r"\"", "\\\\", r"\u00e9", r"\u20AC",
                   r"\U0001F600", r"\u0000", r"\uD7FF", r"\uFFFF", r"\U0010FFFF"]
        if choose.random() < 0.1:
            pieces += [r"\uD800", r"\uDFFF", r"\U00110000", r"\UFFFFFFFF", r"\x", r"\u12"]
    else:
        pieces += ['"', "\\"]
    if len(delimiter) == 3:
        pieces += ["\n", "\r\n", "\n\n", delimiter[:1], delimiter[:2]]
        pieces += ["\\\n", "\\\r\n  ", "\\\n\t\n "] if delimiter == '"""' else []
    content = "".join(choose.choice(pieces) for _ in range(choose.randrange(9)))
    return delimiter + content + delimiter


def date_time(choose):
    date = (f"{choose.choice((1, 1900, 1979, 2000, 2023, 2024, 9999)):04}-"
            f"{choose.randrange(1, 13):02}-{choose.choice((1, 15, 28, 29, 30, 31)):02}")
    time = (f"{choose.randrange(24 + choose.randrange(2)):02}:{choose.randrange(61):02}:"
            f"{choose.randrange(60):02}")
    if choose.random() < 0.4:
        time += "." + "".join(choose.choices("0123456789", k=choose.choice((1, 3, 6, 9, 12))))
    offset = choose.choice(("", "Z", f"{choose.choice('+-')}{choose.randrange(25):02}:"
                                     f"{choose.randrange(61):02}"))
    return choose.choice((date, time, date + choose.choice("Tt ") + time + offset))


def scalar(choose):
    make = choose.choice((integer, floating, string, date_time,
                          lambda choose: choose.choice(("true", "false", "True", "1", "0"))))
    text = make(choose)
    if choose.random() < 0.05:
        at = choose.randrange(len(text))
        text = text[:at] + choose.choice("0_.-+:eZ'\"\\x") + text[at + choose.randrange(2):]
    return text


def shown_date_time(value, text):
    shown = "d"
    if not isinstance(value, datetime.time):
        shown += f"{value.year},{value.month},{value.day}"
    if not isinstance(value, datetime.date) or isinstance(value, datetime.datetime):
        fraction = re.search(r"\.([0-9]+)", text)
        nanosecond = int(fraction[1][:9].ljust(9, "0")) if fraction else 0
        if nanosecond // 1000 != value.microsecond:
            raise AssertionError(text)
        shown += f"T{value.hour},{value.minute},{value.second},{nanosecond}"
        offset = value.utcoffset()
        if offset is not None:
            shown += f"Z{offset // datetime.timedelta(minutes=1)}"
    return shown


def expected(text):
    """What the program has to print for a text, without the carriage returns of strings."""
    try:
        document = tomllib.loads(f"a = {text}\n")
    except tomllib.TOMLDecodeError:
        return NONE
    value = document["a"]
    integers, floats, booleans, strings, date_times = NONE
    if len(document) > 1 or QUOTES.search(text) and len(text) > 7 and text[:3] == text[-3:]:
        return NONE
    if isinstance(value, bool):
        booleans = str(value).lower()
    elif isinstance(value, int):
        integers = str(value) if -2**63 <= value < 2**63 else "-"
    elif isinstance(value, float):
        if not math.isinf(value) or "inf" in text:
            floats = struct.pack(">d", value).hex()
    elif isinstance(value, str):
        strings = "s" + value.replace("\r", "").encode().hex()
    elif isinstance(value, (datetime.date, datetime.time)):
        date_times = shown_date_time(value, text)
    return integers, floats, booleans, strings, date_times


def without_carriage_returns(shown):
    if not shown.startswith("s"):
        return shown
    return "s" + bytes.fromhex(shown[1:]).replace(b"\r", b"").hex()


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("--count", type=int, default=20_000)
    parser.add_argument("--seed", type=int, default=1)
    arguments = parser.parse_args()
    choose = random.Random(arguments.seed)
    # A blank after a value is no part of it.
    texts = [text for text in (scalar(choose) for _ in range(arguments.count))
             if text == text.strip(" \t\r\n") and not NOT_COMPARED.search(text)]
    run = subprocess.run([arguments.program], capture_output=True, check=True, text=True,
                         input="".join(text.encode().hex() + "\n" for text in texts))
    lines = run.stdout.splitlines()
    if len(lines) != len(texts):
        sys.exit(f"{len(lines)} lines for {len(texts)} texts")
    kinds = collections.Counter()
    differences = 0
    for text, line in zip(texts, lines):
        found = tuple(without_carriage_returns(part) for part in line.split(" "))
        wanted = expected(text)
        kinds[next((at for at in range(5) if wanted[at] != NONE[at]), "none")] += 1
        if found != wanted:
            differences += 1
            if differences <= 20:
                print(f"{text!r}: {found}, Python's reader: {wanted}")
    print(f"kinds {dict(kinds)}, {differences} differences")
    few = [kind for kind in (*range(5), "none") if kinds[kind] < len(texts) / 50]
    if few:
        print(f"too few of {few}")
    return 1 if differences or few else 0


if __name__ == "__main__":
    sys.exit(main())

"""Checks that the figures of a page's first screen come from pages that scripts write.

The first screen is what stands before the heading "Use it", apart from blocks of code.  Where one
of its paragraphs or items links a page that has a part between the marks of a script, each number
of it must stand in such a part of one of the pages that it links.
"""

import argparse
import pathlib
import re
import sys

WRITTEN = re.compile(r"<!-- Written by \S+ from here -->\n(.*?)<!-- to here -->", re.DOTALL)
FENCE = re.compile(r"^```.*?^```$", re.MULTILINE | re.DOTALL)
LINK = re.compile(r"\]\(([^)#]+)[^)]*\)")
NUMBER = re.compile(r"(?<![\w.])\d[\d,]*(?:\.\d+)?(?![\d\w])")
# Names, in which numbers are no figures.
NAMES = re.compile(r"32-bit|x86-64|TOML 1\.0|C\+\+17|Debian 12|`[^`]*`")


def written_in(directory, link):
    page = directory / link
    if page.suffix != ".md":
        return ""
    return "\n".join(WRITTEN.findall(page.read_text(encoding="utf-8")))


def check(page):
    """How many figures the page has, and what is wrong with them."""
    first_screen, heading, _ = page.read_text(encoding="utf-8").partition("\n## Use it\n")
    if not heading:
        return 0, ["there is no heading 'Use it'"]
    count = 0
    complaints = []
    for paragraph in re.split(r"\n\n|\n(?=- )", FENCE.sub("", first_screen)):
        links = LINK.findall(paragraph)
        written = "\n".join(written_in(page.parent, link) for link in links)
        if not written:
            continue
        known = set(NUMBER.findall(written))
        for number in NUMBER.findall(NAMES.sub("", LINK.sub("", paragraph))):
            count += 1
            if number not in known:
                complaints.append(f"{number} is not written by a script in {' or '.join(links)}")
    return count, complaints


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("page", type=pathlib.Path)
    count, complaints = check(parser.parse_args().page)
    for complaint in complaints:
        print(complaint)
    print(f"{count} figures")
    # Speed, sizes, what a mistake costs and what is downloaded: there are more than these.
    return 1 if complaints or count < 12 else 0


if __name__ == "__main__":
    sys.exit(main())

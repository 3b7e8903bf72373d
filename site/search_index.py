"""Writes what the search looks through: the sections of all pages, with their texts.

It is a script, not JSON, since a page that is opened from a file may only load scripts.
"""

import json

from markdown_pages import HEADINGS, text_of


class Sections:
    """The sections of a page, one for each heading and each term that has a place."""

    def __init__(self, page):
        self.page = page
        self.found = []

    def start(self, title, place):
        address = self.page.target + ("#" + place if place else "")
        self.found.append({"title": title, "page": self.page.title, "address": address, "text": []})

    def read(self, body):
        for element in body:
            if element.tag in HEADINGS:
                self.start(text_of(element), element.get("id") if element.tag != "h1" else None)
            elif element.tag == "dl":
                self.read(element)
            else:
                if element.tag == "dt":
                    self.start(element.get("data-title"), element.get("id"))
                self.found[-1]["text"].append(text_of(element))


def search_index(pages):
    entries = []
    for page in pages:
        sections = Sections(page)
        sections.read(page.body)
        entries += [{**found, "text": " ".join(found["text"])} for found in sections.found]
    lines = ",\n".join(json.dumps(entry, ensure_ascii=False) for entry in entries)
    return f"const searchIndex = [\n{lines}\n];\n"

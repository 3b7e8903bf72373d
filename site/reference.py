"""Makes pages of what Doxygen's XML says of the headers: one for each, and a list of all names.

A page goes through its header from top to bottom.  Functions of one name, or with one comment,
share a section, and so do a class and its members.
"""

import itertools
import pathlib
import re
import xml.etree.ElementTree as ElementTree

from pages import Page, SiteError
from reference_text import Writer, write_declaration, write_template

# The headers, in the order of the navigation.
HEADERS = [
    "toml.h",
    "toml_config.h",
    "toml_schema.h",
    "toml_types.h",
    "toml_values.h",
    "toml_places.h",
    "toml_diagnosis.h",
]
CLASSES = ("class", "struct")
NOTE = re.compile(r"note-(\w+)-(\d+)")


def line_of(thing):
    """Where a thing stands in what Doxygen has read."""
    if note := NOTE.fullmatch(thing.get("id")):
        return int(note[2])
    return int(thing.find("location").get("line"))


def header_of(thing):
    return pathlib.PurePath(thing.find("location").get("file")).name


def name_of(thing):
    return (thing.findtext("name") or thing.findtext("compoundname")).rpartition("::")[2]


def comment_of(thing):
    """The text of the comment above a thing."""
    return "".join(thing.find("briefdescription").itertext()).strip()


def members_of(thing):
    if thing.get("kind") == "enum":
        return thing.findall("enumvalue")
    members = thing.iterfind("sectiondef/memberdef")
    shown = [m for m in members if m.get("prot") != "private" and m.get("kind") != "friend"]
    return sorted(shown, key=line_of)


class Headers:
    """What Doxygen has read: the things of each header, and their places in the site."""

    def __init__(self, directory):
        self.files = {}
        self.things = {header: [] for header in HEADERS}
        for path in directory.glob("*.xml"):
            for compound in ElementTree.parse(path).getroot().iter("compounddef"):
                self.sort_in(compound)
        if set(self.files) != set(HEADERS):
            raise SiteError(f"the reference is not of {HEADERS}, but of {sorted(self.files)}")
        self.places = {}
        self.values = set()  # those of enumerations
        for header, things in self.things.items():
            things.sort(key=line_of)
            self.places[self.files[header].get("id")] = target_of(header)
            self.find_places(header, things)

    def sort_in(self, compound):
        kind = compound.get("kind")
        if kind == "file":
            self.files[compound.findtext("compoundname")] = compound
        if kind in ("file", "namespace"):
            for member in compound.iterfind("sectiondef/memberdef"):
                self.things[header_of(member)].append(member)
        elif kind in CLASSES or NOTE.fullmatch(compound.get("id")):
            self.things[header_of(compound)].append(compound)

    def find_places(self, header, things):
        known = set()

        def add(thing, name):
            name = re.sub(r"\W+", "-", name.replace("operator", "operator-")).strip("-")
            numbered = (f"{name}-{number}" for number in itertools.count(2))
            place = next(place for place in itertools.chain([name], numbered) if place not in known)
            known.add(place)
            self.places[thing.get("id")] = f"{target_of(header)}#{place}"

        for thing in things:
            if thing.get("kind") != "page":
                add(thing, OPERATORS.get(name_of(thing), name_of(thing)))
                for member in members_of(thing):
                    add(member, f"{name_of(thing)}-{name_of(member)}")
                    if member.tag == "enumvalue":
                        self.values.add(member.get("id"))

    def place(self, thing):
        """The place of a thing in its page."""
        return self.places[thing.get("id")].partition("#")[2]


OPERATORS = {"operator<<": "operator-put", "operator==": "operator-equal"}
OPERATORS["operator!="] = "operator-unequal"


def target_of(header):
    return f"reference/{header.removesuffix('.h')}.html"


def is_function(thing):
    return thing.get("kind") in ("function", "define")


def grouped(things):
    """Lists of things that share a comment."""
    for _, group in itertools.groupby(things, key=comment_of):
        yield list(group)


def sections_of(things):
    """Lists of things that share a section."""
    sections = []
    for thing in things:
        last = sections[-1][-1] if sections else None
        alike = last is not None and is_function(thing) and last.get("kind") == thing.get("kind")
        if alike and (name_of(last) == name_of(thing) or comment_of(last) == comment_of(thing)):
            sections[-1].append(thing)
        else:
            sections.append([thing])
    return sections


def write_note(writer, note):
    """A comment that stands alone; a first line without a full stop is a heading."""
    paragraphs = note.find("detaileddescription")
    title = "".join(paragraphs[0].itertext()).strip()
    if not title.endswith("."):
        writer.element("h2", title, id=title.lower().replace(" ", "-"))
        paragraphs.remove(paragraphs[0])
    writer.description(paragraphs)


def write_members(writer, headers, thing):
    """Members that share a comment have one description; some have a word of their own."""
    writer.start("dl", {})
    for group in grouped(members_of(thing)):
        own = group[0].get("kind", "enumvalue") == "variable"
        for member in group:
            title = f"{name_of(thing)}::{name_of(member)}"
            writer.start("dt", {"id": headers.place(member), "data-title": title})
            writer.start("code", {"class": "sourceCode"})
            write_declaration(writer, member)
            remark = "".join(member.find("detaileddescription").itertext()).strip()
            if own and len(group) > 1 and remark:
                writer.element("span", f"  // {remark}", **{"class": "co"})
            writer.end("code")
            writer.end("dt")
        writer.start("dd", {})
        parts = [group[0].find("briefdescription")]
        if not own or len(group) == 1:
            parts.append(group[0].find("detaileddescription"))
        writer.description(*parts)
        writer.end("dd")
    writer.end("dl")


def write_class(writer, headers, thing):
    kind = "enum class" if thing.get("kind") == "enum" else thing.get("kind")
    writer.element("h2", name_of(thing), id=headers.place(thing))
    writer.start_code()
    write_template(writer, thing)
    writer.element("span", kind, **{"class": "kw"})
    writer.data(" " + name_of(thing))
    for base in thing.findall("basecompoundref"):
        writer.data(" : public ")
        address = headers.places[base.get("refid")]
        writer.element("a", base.text.rpartition("::")[2], href=address)
    writer.end_code()
    writer.description(thing.find("briefdescription"), thing.find("detaileddescription"))
    write_members(writer, headers, thing)


def write_functions(writer, headers, functions):
    names = ", ".join(dict.fromkeys(map(name_of, functions)))
    writer.element("h2", names, id=headers.place(functions[0]))
    for group in grouped(functions):
        writer.start_code()
        for index, function in enumerate(group):
            writer.data("\n" if index else "")
            if function is not functions[0]:
                writer.element("span", "", id=headers.place(function))
            write_declaration(writer, function)
        writer.end_code()
        parts = [group[0].find("briefdescription"), group[0].find("detaileddescription")]
        writer.description(*parts)


def body_of(headers, header):
    writer = Writer(headers.places, headers.values)
    writer.start("main", {})
    writer.element("h1", header)
    writer.description(headers.files[header].find("detaileddescription"))
    for section in sections_of(headers.things[header]):
        if section[0].get("kind") == "page":
            write_note(writer, section[0])
        elif is_function(section[0]):
            write_functions(writer, headers, section)
        else:
            write_class(writer, headers, section[0])
    writer.end("main")
    return writer.close()


def list_of_names(headers):
    """A page with the names of each header."""
    writer = Writer(headers.places, headers.values)
    writer.start("main", {})
    writer.element("h1", "Reference")
    writer.element("p", "What the headers declare, in the namespace vorn::parsers::toml.")
    for header in HEADERS:
        writer.start("h2", {"id": header.removesuffix(".h").replace("_", "-")})
        writer.element("a", header, href=target_of(header))
        writer.end("h2")
        writer.node(headers.files[header].find("detaileddescription")[0])
        writer.start("ul", {"class": "names"})
        seen = set()
        for thing in headers.things[header]:
            if thing.get("kind") != "page" and name_of(thing) not in seen:
                seen.add(name_of(thing))
                writer.start("li", {})
                writer.start("a", {"href": headers.places[thing.get("id")]})
                writer.element("code", name_of(thing))
                writer.end("a")
                writer.end("li")
                writer.data(" ")
        writer.end("ul")
    writer.end("main")
    return writer.close()


def pages_of(group, directory):
    headers = Headers(directory)
    yield Page(group, "reference/index.html", "All names", list_of_names(headers))
    for header in HEADERS:
        yield Page(group, target_of(header), header, body_of(headers, header))

"""Writes what Doxygen's XML says of a thing as HTML: descriptions and declarations."""

import re
import xml.etree.ElementTree as ElementTree

from pages import SiteError

# Doxygen's elements, and what they become; None: only what they contain stays.
ELEMENTS = {
    "para": "p",
    "computeroutput": "code",
    "itemizedlist": "ul",
    "orderedlist": "ol",
    "listitem": "li",
    "bold": "strong",
    "emphasis": "em",
    "codeline": None,
    "ref": None,
    "sp": None,
}
# Doxygen's kinds of words in code, and the classes that pandoc has for them.
WORDS = {
    "keyword": "kw",
    "keywordtype": "dt",
    "keywordflow": "cf",
    "comment": "co",
    "preprocessor": "pp",
    "stringliteral": "st",
    "charliteral": "ch",
    "normal": None,
}
MAX_WIDTH = 72  # of a declaration on one line
BLOCKS = {"itemizedlist", "orderedlist", "programlisting"}


def tidy(code):
    """A type without the blanks that Doxygen puts inside brackets and before marks."""
    return code.replace("< ", "<").replace(" >", ">").replace(" &", "&").replace(" *", "*")


class Writer(ElementTree.TreeBuilder):
    """Makes a page; references become links to the places of things."""

    def __init__(self, places, values):
        super().__init__()
        self.places = places
        self.values = values

    def element(self, tag, text, **attributes):
        self.start(tag, attributes)
        self.data(text)
        self.end(tag)

    def is_link(self, ref, in_code):
        """In code Doxygen takes any word for a value of an enumeration that has that name."""
        return ref.get("refid") in self.places and (
            not in_code or "::" in ref.text or ref.get("refid") not in self.values
        )

    def node(self, node, shown=str, in_code=False):
        """An element of Doxygen's; `shown` makes of each text what is to be seen."""
        if node.tag == "programlisting":
            self.listing([node])
            return
        if node.tag not in ELEMENTS and node.tag != "highlight":
            raise SiteError(f"the reference has an unknown element: {node.tag}")
        tag, attributes = ELEMENTS.get(node.tag), {}
        if node.tag == "ref" and self.is_link(node, in_code):
            tag, attributes = "a", {"href": self.places[node.get("refid")]}
        elif node.tag == "highlight" and WORDS[node.get("class")]:
            tag, attributes = "span", {"class": WORDS[node.get("class")]}
        elif node.tag == "sp":
            self.data(" ")
        if tag:
            self.start(tag, attributes)
        self.content(node, shown, in_code)
        if tag:
            self.end(tag)

    def content(self, node, shown=str, in_code=False):
        self.data(shown(node.text or ""))
        for child in node:
            self.node(child, shown, in_code)
            self.data(shown(child.tail or ""))

    def start_code(self):
        for tag in ("pre", "code"):
            self.start(tag, {"class": "sourceCode cpp"})

    def end_code(self):
        self.end("code")
        self.end("pre")

    def listing(self, nodes):
        """Blocks of code in a row are one, with blank lines between them."""
        self.start_code()
        for index, node in enumerate(nodes):
            self.data("\n" if index else "")
            for line in node:
                self.content(line, in_code=True)
                self.data("\n")
        self.end_code()

    def description(self, *nodes):
        """Paragraphs, lists and code, one after the other."""
        listings = []
        for paragraph in (paragraph for node in nodes for paragraph in node):
            block = paragraph[0] if len(paragraph) and paragraph[0].tag in BLOCKS else None
            if block is not None and block.tag == "programlisting":
                listings.append(block)
                continue
            if listings:
                self.listing(listings)
                listings = []
            self.node(paragraph if block is None else block)
        if listings:
            self.listing(listings)


def plain(node):
    """A type, a value and the like, without links."""
    return tidy("".join(node.itertext())) if node is not None else ""


def name_in(parameter):
    """The name of a parameter, with the blank before it."""
    name = parameter.findtext("declname", "")
    return name if not name or plain(parameter.find("type")).endswith("::*") else " " + name


def write_parameters(writer, parameters, separator):
    for index, parameter in enumerate(parameters):
        writer.data(separator if index else "")
        writer.content(parameter.find("type"), tidy)
        writer.data(name_in(parameter))
        if (value := parameter.find("defval")) is not None:
            writer.data(" = " + plain(value))


def write_template(writer, thing):
    if (parameters := thing.find("templateparamlist")) is not None:
        writer.element("span", "template", **{"class": "kw"})
        writer.data(" <")
        write_parameters(writer, parameters, ", ")
        writer.data(">\n")


def write_function(writer, function):
    parameters = function.findall("param")
    end = function.findtext("argsstring").rpartition(")")[2]
    end = re.sub(r"=(?=\w)", " = ", end)
    words = [word for word in ("explicit", "static") if function.get(word) == "yes"]
    if function.get("virt") != "non-virtual" and "override" not in end:
        words.append("virtual")
    for word in words:
        writer.element("span", word, **{"class": "kw"})
        writer.data(" ")
    before = plain(function.find("type"))
    writer.content(function.find("type"), tidy)
    name = (" " if before else "") + function.findtext("name")
    width = len(before + name + end) + sum(
        len(plain(parameter.find("type")) + name_in(parameter)) + 2 for parameter in parameters
    )
    broken = width > MAX_WIDTH and parameters
    writer.data(name + ("(\n    " if broken else "("))
    write_parameters(writer, parameters, ",\n    " if broken else ", ")
    writer.data(")" + end)


def write_declaration(writer, thing):
    """A function, a variable, a value of an enumeration or a macro, as code."""
    kind = thing.get("kind", thing.tag)
    write_template(writer, thing)
    value = plain(thing.find("initializer"))
    if kind == "function":
        write_function(writer, thing)
    elif kind == "variable":
        writer.content(thing.find("type"), tidy)
        writer.data(f" {thing.findtext('name')} {value}".rstrip())
    elif kind == "enumvalue":
        writer.data(f"{thing.findtext('name')} {value}".rstrip())
    elif kind == "define":
        writer.element("span", "#define ", **{"class": "pp"})
        writer.data(f"{thing.findtext('name')} {value}")
    else:
        raise SiteError(f"the reference has an unknown kind of member: {kind}")

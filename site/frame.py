"""What all pages of the site share: head, navigation, anchors of headings."""

import copy
import html
import re
import string
import xml.etree.ElementTree as ElementTree

from markdown_pages import HEADINGS, text_of
from pages import GROUPS, ROOT, relative

TEMPLATE = string.Template((ROOT / "site/page.html").read_text(encoding="utf-8"))
MAX_DESCRIPTION = 160


def description_of(body):
    """The sentences that a page starts with, as many as a search engine shows."""
    paragraph = next((text_of(element) for element in body if element.tag == "p"), "")
    if len(paragraph) <= MAX_DESCRIPTION:
        return paragraph.rstrip(":")
    shown = paragraph[:MAX_DESCRIPTION]
    sentences = re.match(r".*[.?!](?= )", shown)
    return sentences[0] if sentences else shown.rpartition(" ")[0] + " ..."


def sections_of(page):
    """The sections of a page in the navigation."""
    yield '<ul class="sections">'
    for heading in page.body:
        if heading.tag == "h2":
            title = html.escape(text_of(heading))
            yield f'<li><a href="#{heading.get("id")}">{title}</a></li>'
    yield "</ul>"


def navigation_of(pages, page):
    for group in GROUPS:
        yield f"<h2>{group}</h2>\n<ul>"
        for other in pages:
            if other.group != group:
                continue
            mark = ' aria-current="page"' if other is page else ""
            address = relative(other.target, page.target)
            yield f'<li><a href="{address}"{mark}>{html.escape(other.title)}</a>'
            if other is page:
                yield from sections_of(page)
            yield "</li>"
        yield "</ul>"


def with_anchors(body):
    for element in body:
        if element.tag in HEADINGS[1:]:
            anchor = {"class": "anchor", "href": "#" + element.get("id")}
            anchor["aria-label"] = "Link to this section"
            link = ElementTree.SubElement(element, "a", anchor)
            link.text = "#"
    return body


def framed(pages, page):
    """The whole page."""
    body = with_anchors(copy.deepcopy(page.body))
    for element in body.iter():
        for name in ("href", "src"):
            if name in element.attrib:
                element.set(name, relative(element.get(name), page.target))
    content = "".join(ElementTree.tostring(part, "unicode", "html") for part in body)
    heading = text_of(page.body.find("h1"))
    title = heading if heading == "vorn_parsers" else heading + " - vorn_parsers"
    return TEMPLATE.substitute(
        title=html.escape(title),
        description=html.escape(description_of(page.body)),
        root=relative(".", page.target),
        navigation="\n".join(navigation_of(pages, page)),
        content=content,
    )

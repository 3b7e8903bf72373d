"""Which pages the site has, where they are, and what stands in the navigation."""

import os
import pathlib
from typing import NamedTuple

ROOT = pathlib.Path(__file__).resolve().parent.parent

# The groups of the navigation.  A page that these link to, and that is not among them, comes
# after the first one that links to it.
GROUPS = {
    "Start": ["README.md", "docs/getting-started.md"],
    "Use": [
        "docs/configuration.md",
        "docs/c-interface.md",
        "docs/events.md",
        "docs/conversions.md",
        "docs/language.md",
        "docs/log-lines.md",
    ],
    "Reference": [],  # of the headers; reference.py makes them
    "Tool": ["docs/errors.md", "docs/fix.md", "docs/editors-and-ci.md"],
    "Quality": ["docs/reliability.md", "docs/performance.md", "docs/growth.md", "docs/sizes.md"],
    "Project": [
        "docs/promises.md",
        "docs/packaging.md",
        "docs/architecture.md",
        "SECURITY.md",
        "CONTRIBUTING.md",
        "CHANGELOG.md",
    ],
}
REFERENCE = "Reference"


class SiteError(Exception):
    """Pages of which no site can be made."""


class Page(NamedTuple):
    group: str
    target: str  # its place in the site
    title: str  # in the navigation
    body: object  # an element with headings, paragraphs and so on, one after the other


def target_of(source):
    """The place of a page in the site."""
    return "index.html" if source == "README.md" else source.removesuffix(".md") + ".html"


def relative(address, target):
    """An address of the site as a page names it; one with a scheme stays."""
    if ":" in address.partition("/")[0] or address.startswith("#"):
        return address
    path, mark, place = address.partition("#")
    return os.path.relpath(path, pathlib.PurePath(target).parent) + mark + place


def missing_pages():
    """The pages of docs/ that no group has."""
    listed = {source for sources in GROUPS.values() for source in sources}
    return {str(path.relative_to(ROOT)) for path in ROOT.glob("docs/*.md")} - listed

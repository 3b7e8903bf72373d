#!/usr/bin/env python3
"""Makes a site of the repository's pages and headers: build.py DIRECTORY REFERENCE

pandoc turns each page into HTML, at the place that it has in the repository; REFERENCE is the
directory in which Doxygen has written XML.  Links to pages lead to these then; other files that
are linked come along as plain text.
"""

import pathlib
import shutil
import subprocess
import sys

import reference
from frame import framed
from markdown_pages import body_of, text_of
from pages import GROUPS, REFERENCE, ROOT, Page, SiteError, missing_pages, target_of
from search_index import search_index

SITE = ROOT / "site"
# The parts of the style sheet, in their order: later ones prevail.
STYLES = ["colours", "frame", "navigation", "search", "texts", "code", "tables", "reference", "print"]
LUNR = pathlib.Path("/usr/share/javascript/lunr/lunr.min.js")


def page_of(group, source, linked):
    body = body_of(source, linked)
    heading = body.find("h1")
    if heading is None:
        raise SiteError(f"{source} has no title")
    title = "Overview" if source == "README.md" else text_of(heading)
    return Page(group, target_of(source), title, body)


def read_pages(group, sources, known, files):
    """The pages of a group, and those that they link to and that are not known yet; `files`
    gets the other files."""
    waiting = list(sources)
    while waiting:
        linked = {}
        yield page_of(group, waiting.pop(0), linked)
        further = [path for path in linked if path.endswith(".md") and path not in known]
        known.update(further)
        waiting = further + waiting
        files.update((path, place) for path, place in linked.items() if not path.endswith(".md"))


def build(directory, headers):
    if forgotten := missing_pages():
        raise SiteError(f"the list of pages lacks {', '.join(sorted(forgotten))}")
    files = {}
    pages = []
    known = {source for sources in GROUPS.values() for source in sources}
    for group, sources in GROUPS.items():
        if group == REFERENCE:
            pages += reference.pages_of(group, headers)
        pages += read_pages(group, sources, known, files)
    for page in pages:
        target = directory / page.target
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_text(framed(pages, page), encoding="utf-8")
    for path, target in files.items():
        (directory / target).parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(ROOT / path, directory / target)
    (directory / "search-index.js").write_text(search_index(pages), encoding="utf-8")
    # Browsers ask for it where they show a picture or a plain text.
    (directory / "favicon.ico").touch()
    style = "\n".join((SITE / f"style/{name}.css").read_text("utf-8") for name in STYLES)
    (directory / "style.css").write_text(style, encoding="utf-8")
    for path in (SITE / "menu.js", SITE / "search.js", LUNR):
        shutil.copyfile(path, directory / path.name)


if __name__ == "__main__":
    try:
        build(*map(pathlib.Path, sys.argv[1:]))
    except (SiteError, subprocess.CalledProcessError) as error:
        sys.exit(f"site/build.py: {error}")

#!/usr/bin/env python3
"""Makes a site of the repository's pages: build.py DIRECTORY

pandoc turns each page into HTML, at the place that it has in the repository.  Links to
pages lead to these then; other files that are linked come along as plain text.
"""

import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
from urllib.parse import urlsplit

ROOT = pathlib.Path(__file__).resolve().parent.parent
SITE = ROOT / "site"
PAGES = [
    "README.md",
    "docs/getting-started.md",
    "docs/configuration.md",
    "docs/c-interface.md",
    "docs/events.md",
    "docs/language.md",
    "docs/fix.md",
    "docs/conversions.md",
    "docs/errors.md",
    "docs/log-lines.md",
    "docs/editors-and-ci.md",
    "docs/reliability.md",
    "docs/performance.md",
    "docs/growth.md",
    "docs/promises.md",
    "docs/packaging.md",
    "docs/architecture.md",
    "SECURITY.md",
    "CONTRIBUTING.md",
    "CHANGELOG.md",
]
REFERENCE = "reference/namespacevorn_1_1parsers_1_1toml.html"
PICTURES = {".svg", ".png"}
LINK = re.compile(r'(?<=\s)(href|src)="([^"]*)"')


class SiteError(Exception):
    """Pages of which no site can be made."""


def title_of(page):
    return (ROOT / page).read_text(encoding="utf-8").partition("\n")[0].lstrip("# ")


def target_of(page):
    """The place of a page in the site."""
    return "index.html" if page == "README.md" else page.removesuffix(".md") + ".html"


def relative(target, page):
    return os.path.relpath(target, pathlib.PurePath(target_of(page)).parent)


def navigation_of(page):
    targets = [(title_of(other), target_of(other)) for other in PAGES]
    targets.insert(2, ("Reference", REFERENCE))
    return [{"title": title, "target": relative(target, page)} for title, target in targets]


def html_of(page):
    settings = {
        "from": "gfm",
        "to": "html5",
        "wrap": "preserve",
        "template": str(SITE / "page.html"),
        "metadata": {"pagetitle": title_of(page)},
        "variables": {"style": relative("style.css", page), "navigation": navigation_of(page)},
    }
    with tempfile.NamedTemporaryFile("w", suffix=".json", encoding="utf-8") as defaults:
        json.dump(settings, defaults)
        defaults.flush()
        return subprocess.run(
            ["pandoc", "--defaults", defaults.name, ROOT / page],
            stdout=subprocess.PIPE,
            check=True,
        ).stdout.decode()


def with_links(html, page, linked):
    """The page with its links leading to places of the site; those of other files are
    gathered in `linked`."""

    def replaced(match):
        url = urlsplit(match[2])
        if url.scheme or url.netloc or not url.path or match[2] in own:
            return match[0]
        path = os.path.normpath(pathlib.PurePath(page).parent / url.path)
        if path in PAGES:
            target = target_of(path)
        elif (ROOT / path).is_file():
            target = path if pathlib.PurePath(path).suffix in PICTURES else path + ".txt"
            linked[path] = target
        else:
            raise SiteError(f"{page}: there is no file {url.path}")
        return f'{match[1]}="{url._replace(path=relative(target, page)).geturl()}"'

    own = {entry["target"] for entry in navigation_of(page)} | {relative("style.css", page)}
    return LINK.sub(replaced, html)


def build(directory):
    forgotten = {str(path.relative_to(ROOT)) for path in ROOT.glob("docs/*.md")} - set(PAGES)
    if forgotten:
        raise SiteError(f"the list of pages lacks {', '.join(sorted(forgotten))}")
    linked = {}
    for page in PAGES:
        target = directory / target_of(page)
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_text(with_links(html_of(page), page, linked), encoding="utf-8")
    for path, target in linked.items():
        (directory / target).parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(ROOT / path, directory / target)
    shutil.copyfile(SITE / "style.css", directory / "style.css")
    # Browsers ask for it where a page says nothing of it: those of the reference do not.
    (directory / "favicon.ico").touch()


if __name__ == "__main__":
    try:
        build(pathlib.Path(sys.argv[1]))
    except (SiteError, subprocess.CalledProcessError) as error:
        sys.exit(f"site/build.py: {error}")

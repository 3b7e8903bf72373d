#!/usr/bin/env python3
"""Opens all pages of a site in a browser, by their links: browse.py DIRECTORY

It starts at index.html.  A page that does not come, a place in a page that is not there, a
picture that is not shown, an error in the browser's console and a page that no link leads
to are complaints.  Links to other sites are counted, not followed.
"""

import contextlib
import functools
import http.server
import os
import pathlib
import sys
import tempfile
import threading
import urllib.parse

from selenium import webdriver
from selenium.webdriver.chrome.service import Service

LOOK = """
    const all = (selector, what) => Array.from(document.querySelectorAll(selector), what);
    return {
        status: performance.getEntriesByType('navigation')[0].responseStatus,
        links: all('a[href], area[href]', element => element.href),
        places: all('[id], a[name]', element => element.id || element.name),
        lost: all('img', image => image)
            .filter(image => !image.complete || image.naturalWidth === 0)
            .map(image => image.src),
        pictures: document.querySelectorAll('img').length,
    };
"""


class QuietHandler(http.server.SimpleHTTPRequestHandler):
    def log_message(self, *_):
        pass


@contextlib.contextmanager
def served(directory):
    """Serves a directory on this machine; yields the address of its root."""
    handler = functools.partial(QuietHandler, directory=directory)
    with http.server.ThreadingHTTPServer(("127.0.0.1", 0), handler) as server:
        thread = threading.Thread(target=server.serve_forever)
        thread.start()
        try:
            yield f"http://127.0.0.1:{server.server_port}/"
        finally:
            server.shutdown()
            thread.join()


@contextlib.contextmanager
def browser():
    options = webdriver.ChromeOptions()
    options.binary_location = "/usr/bin/chromium"
    options.add_argument("--headless=new")
    options.add_argument("--disable-dev-shm-usage")
    if os.geteuid() == 0:
        # The browser does not run as root with its sandbox; the pages are our own.
        options.add_argument("--no-sandbox")
    options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
    driver = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)
    driver.set_page_load_timeout(60)
    try:
        yield driver
    finally:
        driver.quit()


class Visit:
    """What has been seen of a site."""

    def __init__(self, driver, root):
        self.driver = driver
        self.root = root
        self.complaints = []
        self.pages = {}  # the places of each page that came
        self.pictures = 0
        self.elsewhere = set()
        self.links = []  # (page, address, place)

    def complain(self, page, what):
        self.complaints.append(f"{page.removeprefix(self.root)}: {what}")

    def look(self, page):
        """Opens a page; returns the pages that its links lead to."""
        self.driver.get(page)
        seen = self.driver.execute_script(LOOK)
        if seen["status"] != 200:
            self.complain(page, f"status {seen['status']}")
        for entry in self.driver.get_log("browser"):
            if entry["level"] == "SEVERE":
                self.complain(page, f"console: {entry['message']}")
        for picture in seen["lost"]:
            self.complain(page, f"the picture {picture} is not shown")
        self.pictures += seen["pictures"]
        self.pages[page] = set(seen["places"])
        targets = []
        for link in seen["links"]:
            address, _, place = link.partition("#")
            if address.startswith(self.root):
                self.links.append((page, address, urllib.parse.unquote(place)))
                targets.append(address)
            else:
                self.elsewhere.add(address)
        return targets

    def follow(self, start):
        waiting = [start]
        while waiting:
            page = waiting.pop()
            if page not in self.pages:
                waiting += self.look(page)
        for page, address, place in self.links:
            if place and place not in self.pages[address]:
                self.complain(page, f"there is no place {place} in {address}")

    def find_orphans(self, directory):
        for path in sorted(pathlib.Path(directory).rglob("*.html")):
            page = self.root + urllib.parse.quote(str(path.relative_to(directory)))
            if page not in self.pages:
                self.complain(page, "no link leads here")


def visit(driver, directory):
    with served(directory) as root:
        result = Visit(driver, root)
        result.follow(root + "index.html")
        result.find_orphans(directory)
        return result


def sees_what_is_wrong(driver):
    """Whether a site with one mistake of each kind gets a complaint about each."""
    with tempfile.TemporaryDirectory() as directory:
        page = (
            '<!DOCTYPE html><link rel="icon" href="data:,"><a href="gone.html">a</a>'
            '<a href="index.html#nowhere">b</a><img src="data:image/png;base64,AAAA">'
            "<script>noSuchFunction()</script>"
        )
        pathlib.Path(directory, "index.html").write_text(page, encoding="utf-8")
        pathlib.Path(directory, "orphan.html").write_text("", encoding="utf-8")
        complaints = "\n".join(visit(driver, directory).complaints)
    expected = ["status 404", "nowhere", "is not shown", "noSuchFunction", "no link leads here"]
    missed = [sign for sign in expected if sign not in complaints]
    if missed:
        print(f"site/browse.py does not see: {missed} in\n{complaints}")
    return not missed


def main():
    with browser() as driver:
        if not sees_what_is_wrong(driver):
            return 1
        result = visit(driver, sys.argv[1])
    for complaint in result.complaints:
        print(complaint)
    print(
        f"{len(result.pages)} pages, {len(result.links)} links within,"
        f" {len(result.elsewhere)} elsewhere, {result.pictures} pictures,"
        f" {len(result.complaints)} complaints"
    )
    return 1 if result.complaints else 0


if __name__ == "__main__":
    sys.exit(main())

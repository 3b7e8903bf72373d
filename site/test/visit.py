"""Visits all pages of a site, by their links."""

import pathlib
import urllib.parse

from looks import Looks

LOOK = """
    const all = (selector, what) => Array.from(document.querySelectorAll(selector), what);
    return {
        status: performance.getEntriesByType('navigation')[0].responseStatus,
        links: all('a[href], area[href]', element => element.href)
            .filter(address => typeof address === 'string'),
        places: all('[id], a[name]', element => element.id || element.name),
        lost: all('img', image => image)
            .filter(image => !image.complete || image.naturalWidth === 0)
            .map(image => image.src),
        pictures: document.querySelectorAll('img').length,
    };
"""


class Visit:
    """What has been seen of a site."""

    def __init__(self, driver, root):
        self.driver = driver
        self.root = root
        self.complaints = []
        self.looks = Looks(driver, self.complain)
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
        if seen["status"] == 200:
            self.looks.look(page)
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
        self.looks.compare_pictures()
        for page, address, place in self.links:
            if place and place not in self.pages[address]:
                self.complain(page, f"there is no place {place} in {address}")

    def find_orphans(self, directory):
        for page in self.pages_of(directory):
            if page not in self.pages:
                self.complain(page, "no link leads here")

    def pages_of(self, directory):
        """The addresses of the pages in a directory."""
        for path in sorted(pathlib.Path(directory).rglob("*.html")):
            yield self.root + urllib.parse.quote(str(path.relative_to(directory)))

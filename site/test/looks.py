"""Looks at pages on a telephone and on a wide screen, in light and dark."""

import pathlib

from browser import set_screen

LOOKS, NAVIGATION = (
    pathlib.Path(__file__).with_name(name).read_text(encoding="utf-8")
    for name in ("looks.js", "navigation.js")
)
NARROW, WIDE = 390, 1280
SCREENS = [(width, colours) for colours in ("light", "dark") for width in (NARROW, WIDE)]
MAX_DARK = 0.1  # the luminance of a picture's background
MIN_FONT_SIZE = 9  # of pictures, in pixels


class Looks:
    """What is seen of the pages of a site, one after the other."""

    def __init__(self, driver, complain):
        self.driver = driver
        self.complain = complain
        self.smallest = {}  # picture: its smallest text, as a share of its width
        self.shown = []  # (page, screen, picture, its width there)

    def look(self, page, only_texts=False):
        """Looks at the page that is open."""
        for width, colours in SCREENS:
            set_screen(self.driver, width, colours)
            seen = self.driver.execute_script(LOOKS)
            if seen is None:
                return
            screen = f"{width} pixels, {colours}"
            for what in seen["faint"] + seen.get("wide", []):
                self.complain(page, f"{screen}: {what}")
            if "smallest" in seen:
                self.smallest[page] = seen["smallest"]
                if colours == "dark" and seen["background"] > MAX_DARK:
                    self.complain(page, f"{screen}: the picture is bright")
            if "pictures" in seen:
                self.shown += [(page, screen, *picture) for picture in seen["pictures"]]
            if "pictures" in seen and not only_texts:
                navigation = self.driver.execute_script(NAVIGATION)
                self.look_at_navigation(page, width, navigation)

    def look_at_navigation(self, page, width, navigation):
        if navigation is None:
            self.complain(page, "there is no navigation")
            return
        if navigation["marked"] != [page]:
            self.complain(page, f"the current page is not marked, but {navigation['marked']}")
        if width == WIDE and not navigation["seen"]:
            self.complain(page, "the navigation is hidden on a wide screen")
        if width == NARROW and navigation["seen"]:
            self.complain(page, "the navigation is not folded on a narrow screen")
        if width == NARROW and not navigation["opens"]:
            self.complain(page, "the navigation does not open")
        if navigation["stays"]:
            self.complain(page, "the navigation stays open")

    def compare_pictures(self):
        """Once all pages and pictures have been looked at."""
        for page, screen, picture, width in self.shown:
            if picture not in self.smallest:
                self.complain(page, f"no link leads to the picture {picture}")
            elif (size := self.smallest[picture] * width) < MIN_FONT_SIZE - 0.05:
                self.complain(page, f"{screen}: a text of {size:.1f} pixels in {picture}")

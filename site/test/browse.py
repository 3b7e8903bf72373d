#!/usr/bin/env python3
"""Opens all pages of a site in a browser, by their links: browse.py DIRECTORY

It starts at index.html.  A page that does not come, a place in a page that is not there, a
picture that is not shown, an error in the browser's console and a page that no link leads
to are complaints.  So are, on a telephone and on a wide screen, in light and dark: what is wider
than the screen, a text whose contrast is less than 4.5, pictures with smaller texts than can be
read, and a navigation that is not folded, or not marked, as it should be.  Links to other sites
are counted, not followed.  At the end the search is tried.
"""

import functools
import sys
import time

import search_trial
from browser import browser, served
from mistakes import sees_what_is_wrong
from visit import Visit


def visited(driver, directory, trials):
    driver.get_log("browser")  # that of an earlier visit
    with served(directory) as root:
        result = Visit(driver, root)
        result.follow(root + "index.html")
        result.find_orphans(directory)
        search_trial.search(result, directory, trials)
        return result


def main():
    start = time.monotonic()
    with browser() as driver:
        if not sees_what_is_wrong(functools.partial(visited, driver)):
            return 1
        result = visited(driver, sys.argv[1], search_trial.TRIALS)
    for complaint in result.complaints:
        print(complaint)
    print(
        f"{len(result.pages)} pages, {len(result.links)} links within,"
        f" {len(result.elsewhere)} elsewhere, {result.pictures} pictures,"
        f" {len(result.complaints)} complaints, {time.monotonic() - start:.0f} s"
    )
    return 1 if result.complaints else 0


if __name__ == "__main__":
    sys.exit(main())

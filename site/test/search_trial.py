"""Tries the search of a site: with a server and without, by the keyboard alone."""

import pathlib
import urllib.parse

from selenium.common.exceptions import TimeoutException
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys
from selenium.webdriver.support.wait import WebDriverWait

TIME_LIMIT = 5  # seconds
HITS = "return Array.from(document.querySelectorAll('#hits [role=option] a'), hit => hit.href)"
INDEX = "return window.searchIndex ?? (typeof searchIndex === 'undefined' ? [] : searchIndex)"
# What is typed, and where the first hit leads to.
TRIALS = {
    "visitTomlTree": "reference/toml.html#visitTomlTree",
    "finding severity": "reference/toml_diagnosis.html#Finding-severity",
    "empty-array": "docs/errors.html",
    "byte order mark": None,
    "schmea": None,
}


def typed(driver, start, text):
    """Types a text into the search of a page; returns the addresses of the hits."""
    driver.get(start)
    driver.switch_to.active_element.send_keys("/")
    field = driver.switch_to.active_element
    if field.tag_name != "input":
        return []
    field.send_keys(text)
    if not driver.find_elements(By.ID, "hits"):
        return []
    try:
        return WebDriverWait(driver, TIME_LIMIT).until(lambda _: driver.execute_script(HITS))
    except TimeoutException:
        return []


def follow_first(driver, hits):
    """Goes down and up again, and follows the first hit; returns where that leads to."""
    field = driver.switch_to.active_element
    field.send_keys(Keys.ARROW_DOWN, Keys.ARROW_UP, Keys.ENTER)
    try:
        WebDriverWait(driver, TIME_LIMIT).until(lambda _: driver.current_url == hits[0])
    except TimeoutException:
        pass
    return driver.current_url


def try_search(visit, root, trials):
    """Complains of texts that are not found from the first page."""
    start = root + "index.html"
    for number, (text, expected) in enumerate(trials.items()):
        hits = typed(visit.driver, start, text)
        if number == 0:
            visit.looks.look(start, only_texts=True)  # with the hits
        if not hits:
            visit.complain(start, f"the search finds nothing for {text!r}")
        elif (reached := follow_first(visit.driver, hits)) != hits[0]:
            visit.complain(start, f"the first hit for {text!r} leads to {reached}")
        elif expected and not hits[0].startswith(root + expected):
            visit.complain(start, f"the first hit for {text!r} is {hits[0]}")


def compare_index(visit, directory):
    """Complains of places that the index has and that are not there, and of pages without one."""
    start = visit.root + "index.html"
    typed(visit.driver, start, "a")
    found = set()
    for entry in visit.driver.execute_script(INDEX):
        address, _, place = (visit.root + entry["address"]).partition("#")
        found.add(address)
        if place and urllib.parse.unquote(place) not in visit.pages.get(address, ()):
            visit.complain(start, f"the index has {entry['address']}, which is not there")
    for page in visit.pages_of(directory):
        if page not in found:
            visit.complain(page, "the search does not know the page")


def search(visit, directory, trials):
    compare_index(visit, directory)
    try_search(visit, visit.root, trials)
    # Opened from a file, without a server.
    root = pathlib.Path(directory).resolve().as_uri() + "/"
    try_search(visit, root, dict(list(trials.items())[:1]))

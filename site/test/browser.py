"""A browser, and a server for the pages that it opens."""

import contextlib
import functools
import http.server
import os
import threading

from selenium import webdriver
from selenium.webdriver.chrome.service import Service


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
    options.add_argument("--hide-scrollbars")
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


def set_screen(driver, width, colours):
    """Has pages take a screen as so wide, and their reader as one who prefers these colours."""
    screen = {"width": width, "height": 900, "deviceScaleFactor": 1, "mobile": False}
    driver.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", screen)
    feature = {"name": "prefers-color-scheme", "value": colours}
    driver.execute_cdp_cmd("Emulation.setEmulatedMedia", {"features": [feature]})

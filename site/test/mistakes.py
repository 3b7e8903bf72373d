"""A site with one mistake of each kind, and the complaints that there should be about them."""

import pathlib
import tempfile

ICON = '<!DOCTYPE html><link rel="icon" href="data:,">'
NAVIGATION = '<nav><a href="index.html">a</a></nav>'
PICTURE = (
    '<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 1000 100"><rect width="1000"'
    ' height="100" fill="#666"/><text x="9" y="50" font-size="12">a</text></svg>'
)
FIRST = (
    ICON + '<a href="gone.html">a</a><a href="index.html#nowhere">b</a>'
    '<a href="second.html">c</a><a href="picture.svg">d</a><img src="data:image/png;base64,AAAA">'
    '<img src="picture.svg" width="500"><p style="width: 2000px">wide</p>'
    "<style>.a { color: #999 }  @media (prefers-color-scheme: dark) { .b { color: #222;"
    ' background: #444 } }</style><p class="a">faint</p><p class="b">faint in the dark</p>'
    "<script>noSuchFunction()</script>" + NAVIGATION
)
# Its navigation is marked and folded, but there is nothing that unfolds it; its search has a page
# that is not there, and finds nothing.
SECOND = ICON + (
    '<style>@media (max-width: 600px) { nav { display: none } }</style>'
    '<nav><a href="second.html" aria-current="page">a</a></nav>'
)
THIRD = ICON + (
    '<p>a page without a navigation</p><div style="overflow-x: auto">'
    '<table style="width: 500px"><tr><td>wide, with a frame</td></tr></table></div>'
    '<pre><code style="white-space: nowrap">one\ntwo</code></pre>'
)
# Nothing folds its navigation away again.
FOURTH = ICON + (
    '<button popovertarget="menu">a</button><nav id="menu" popover><ul class="sections">'
    '<li><a href="#menu">a</a></li></ul></nav>'
)
SEARCH = (
    "<input><script>const searchIndex = [{address: 'second.html#gone'}];"
    "addEventListener('keydown', () => document.querySelector('input').focus())</script>"
)
FILES = {
    "index.html": FIRST + SEARCH + '<a href="third.html">c</a><a href="fourth.html">d</a>',
    "second.html": SECOND,
    "third.html": THIRD,
    "fourth.html": FOURTH,
    "picture.svg": PICTURE,
    "orphan.html": "",
    "favicon.ico": "",
}
EXPECTED = [
    "status 404",
    "nowhere",
    "is not shown",
    "noSuchFunction",
    "no link leads here",
    "390 pixels, light: p is wider than the screen",
    "1280 pixels, dark: p is wider than the screen",
    'light: contrast 2.8, rgb(153, 153, 153) on rgb(255,255,255): "faint"',
    '"faint in the dark"',
    "picture.svg: 390 pixels, light: contrast 3.",
    "picture.svg: 390 pixels, dark: the picture is bright",
    "a text of 6.0 pixels",
    "index.html: the current page is not marked",
    "index.html: the navigation is not folded",
    "second.html: the navigation does not open",
    "third.html: there is no navigation",
    "fourth.html: the navigation stays open",
    'third.html: 390 pixels, dark: table is wider than the screen: "wide, with a frame"',
    "third.html: 390 pixels, light: code without its line breaks",
    "the search finds nothing for 'second'",
    "the index has second.html#gone, which is not there",
    "third.html: the search does not know the page",
]
# What is right, and must not be complained of.
UNEXPECTED = [
    "light: contrast 1",
    "third.html: 1280 pixels, light: table",
    "second.html: the current page",
    "second.html: the navigation is",
]


def sees_what_is_wrong(visited):
    """Whether there are complaints about all of it; `visited` visits a directory."""
    with tempfile.TemporaryDirectory() as directory:
        for name, content in FILES.items():
            pathlib.Path(directory, name).write_text(content, encoding="utf-8")
        complaints = "\n".join(visited(directory, {"second": None}).complaints)
    missed = [sign for sign in EXPECTED if sign not in complaints]
    invented = [sign for sign in UNEXPECTED if sign in complaints]
    if missed or invented:
        print(f"site/test/browse.py does not see {missed}, but sees {invented} in\n{complaints}")
    return not missed and not invented

// Uses the navigation of the page that is open; browse.py runs this in it, for each screen.
// Returns whether it is seen, and whether its button, if there is one to be seen, opens it; whether
// it stays open when it has led to a section of the page; which pages it marks.
"use strict";

const nav = document.querySelector("nav");
const button = document.querySelector("[popovertarget]");
if (nav === null) {
    return null;
}
const seen = nav.checkVisibility();
let opens = false;
let stays = false;
if (button !== null && button.checkVisibility()) {
    button.click();
    opens = nav.checkVisibility();
    nav.querySelector(".sections a")?.click();
    stays = nav.querySelector(".sections a") !== null && nav.checkVisibility();
    if (nav.checkVisibility()) {
        button.click();
    }
}
const marked = Array.from(nav.querySelectorAll("[aria-current=page]"), link => link.href);
return {seen, opens, stays, marked};

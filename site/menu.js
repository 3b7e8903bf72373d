// Folds the navigation of a narrow screen away when it has led to a section of the same page.
"use strict";

document.getElementById("navigation").addEventListener("click", event => {
    if (event.target.closest("a") && event.currentTarget.matches(":popover-open")) {
        event.currentTarget.hidePopover();
    }
});

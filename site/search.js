// The search over all pages.  Its index and lunr, which looks through it, are loaded when it is used
// for the first time: as scripts, which a page that is opened from a file may load, too.
"use strict";

(() => {
    const form = document.getElementById("search");
    const input = form.querySelector("input");
    const list = document.getElementById("hits");
    const separator = /[^\p{L}\p{N}_]+/u;
    const maxHits = 10;
    let index = null;
    let loading = null;

    form.hidden = false;
    input.addEventListener("focus", load);
    input.addEventListener("input", show);
    input.addEventListener("keydown", choose);
    form.addEventListener("submit", event => event.preventDefault());
    form.addEventListener("focusout", event => {
        if (!form.contains(event.relatedTarget)) {
            close();
        }
    });
    document.addEventListener("keydown", event => {
        const writing = event.target.closest("input, textarea, [contenteditable]");
        if (event.key === "/" && !writing && !event.ctrlKey && !event.metaKey && !event.altKey) {
            event.preventDefault();
            input.focus();
        }
    });

    function script(name) {
        return new Promise((done, failed) => {
            const element = document.createElement("script");
            element.src = form.dataset.root + name;
            element.onload = done;
            element.onerror = failed;
            document.head.append(element);
        });
    }

    function load() {
        loading ??= Promise.all([script("lunr.min.js"), script("search-index.js")]).then(() => {
            index = indexOf(searchIndex);
            show();
        });
    }

    // Names of code are found by their parts, too: visitTomlTree by "tree".
    function indexOf(entries) {
        lunr.tokenizer.separator = separator;
        return lunr(function () {
            this.field("title", {boost: 8, extractor: entry => withParts(entry.title)});
            this.field("page", {boost: 3});
            this.field("text");
            this.ref("number");
            entries.forEach((entry, number) => this.add({...entry, number}));
        });
    }

    function withParts(name) {
        return name + " " + name.replace(/([a-z\d])([A-Z])/g, "$1 $2").replace(/_/g, " ");
    }

    function stem(word) {
        return lunr.stemmer(new lunr.Token(word)).toString();
    }

    // Entries that have all words, or words that start like them; otherwise words that are nearly so.
    function hitsOf(words) {
        const {TRAILING} = lunr.Query.wildcard;
        const found = index.query(query => {
            for (const word of words) {
                query.term(word, {boost: 10});
                query.term(word, {boost: 2, wildcard: TRAILING, usePipeline: false});
            }
        });
        const has = (hit, word) => Object.keys(hit.matchData.metadata)
            .some(term => term.startsWith(word) || term === stem(word));
        const whole = found.filter(hit => words.every(word => has(hit, word)));
        if (whole.length > 0) {
            // What has just this name comes first, in the order of the pages.
            const named = whole.filter(hit => searchIndex[hit.ref].title.toLowerCase() === input.value
                .trim().toLowerCase());
            named.sort((one, other) => one.ref - other.ref);
            return [...named, ...whole.filter(hit => !named.includes(hit))];
        }
        return index.query(query => words.forEach(word => {
            query.term(word, {editDistance: word.length > 4 ? 2 : 1, usePipeline: false});
        }));
    }

    // The part of a text around the first of the words, with all of them marked.
    function excerptOf(text, words) {
        const start = text.toLowerCase().indexOf(words[0]);
        const from = start > 60 ? text.indexOf(" ", start - 60) + 1 : 0;
        const excerpt = document.createElement("span");
        excerpt.className = "text";
        const end = text.length > from + 150 ? text.lastIndexOf(" ", from + 150) : text.length;
        const shown = (from > 0 ? "... " : "") + text.slice(from, end)
            + (end < text.length ? " ..." : "");
        const marks = new RegExp(`(${words.join("|")})`, "i");
        for (const [number, part] of shown.split(marks).entries()) {
            const node = document.createElement(number % 2 === 1 ? "mark" : "span");
            node.append(part);
            excerpt.append(node);
        }
        return excerpt;
    }

    function itemOf(entry, number, words) {
        const item = document.createElement("li");
        item.id = `hit-${number}`;
        item.setAttribute("role", "option");
        const link = document.createElement("a");
        link.href = form.dataset.root + entry.address;
        link.tabIndex = -1;
        const title = document.createElement("b");
        title.append(entry.title);
        link.append(title);
        if (entry.page !== entry.title) {
            const page = document.createElement("span");
            page.append(` ${entry.page}`);
            link.append(page);
        }
        link.append(excerptOf(entry.text, words));
        item.append(link);
        return item;
    }

    function show() {
        const words = input.value.toLowerCase().split(separator).filter(word => word);
        if (index === null || words.length === 0) {
            close();
            return;
        }
        const hits = hitsOf(words).slice(0, maxHits);
        list.replaceChildren(...hits.map((hit, number) =>
            itemOf(searchIndex[hit.ref], number, words)));
        if (hits.length === 0) {
            const none = document.createElement("li");
            none.className = "none";
            none.append("Nothing found");
            list.append(none);
        }
        list.hidden = false;
        input.setAttribute("aria-expanded", "true");
        select(list.querySelector("[role=option]"));
    }

    function close() {
        list.hidden = true;
        input.setAttribute("aria-expanded", "false");
        input.removeAttribute("aria-activedescendant");
    }

    function selected() {
        return list.hidden ? null : list.querySelector("[aria-selected=true]");
    }

    function select(item) {
        selected()?.removeAttribute("aria-selected");
        if (item !== null) {
            item.setAttribute("aria-selected", "true");
            item.scrollIntoView({block: "nearest"});
            input.setAttribute("aria-activedescendant", item.id);
        }
    }

    function choose(event) {
        const item = selected();
        if (event.key === "Escape") {
            close();
        } else if (item !== null && event.key === "ArrowDown") {
            select(item.nextElementSibling ?? item);
        } else if (item !== null && event.key === "ArrowUp") {
            select(item.previousElementSibling ?? item);
        } else if (item !== null && event.key === "Enter") {
            item.querySelector("a").click();
            close();
        } else {
            return;
        }
        event.preventDefault();
    }
})();

// Looks at the page that is open; browse.py runs this in it, for each screen.
// Returns what does not fit and what cannot be read.
"use strict";

const minContrast = 4.5;

// The red, green, blue and opacity of a computed colour.
function partsOf(colour) {
    const numbers = colour.match(/[\d.]+/g).map(Number);
    return colour.startsWith("rgb") ? [...numbers, 1].slice(0, 4) : null;
}

// What is seen of a colour on an opaque one.
function blended([r, g, b, opacity], below) {
    return [r, g, b].map((part, i) => part * opacity + below[i] * (1 - opacity));
}

function luminance(colour) {
    const [r, g, b] = colour.map(part => {
        const share = part / 255;
        return share <= 0.04045 ? share / 12.92 : ((share + 0.055) / 1.055) ** 2.4;
    });
    return 0.2126 * r + 0.7152 * g + 0.0722 * b;
}

function contrast(one, other) {
    const [low, high] = [luminance(one), luminance(other)].sort((a, b) => a - b);
    return (high + 0.05) / (low + 0.05);
}

// The colour behind an element's text: its background, on those of what it is in.
const backgrounds = new Map();
function backgroundOf(element) {
    if (element === null) {
        return [255, 255, 255];
    }
    if (!backgrounds.has(element)) {
        const own = partsOf(getComputedStyle(element).backgroundColor);
        backgrounds.set(element, own[3] === 1 ? own.slice(0, 3)
            : blended(own, backgroundOf(element.parentElement)));
    }
    return backgrounds.get(element);
}

// In a picture, the topmost shape that is filled below the middle of a text.
function shapeBelow(text) {
    const box = text.getBoundingClientRect();
    const [x, y] = [box.x + box.width / 2, box.y + box.height / 2];
    for (const element of document.elementsFromPoint(x, y)) {
        const fill = getComputedStyle(element).fill;
        if (!(element instanceof SVGTextContentElement) && fill.startsWith("rgb")
            && element instanceof SVGGeometryElement && partsOf(fill)[3] === 1) {
            return partsOf(fill).slice(0, 3);
        }
    }
    return [255, 255, 255];
}

// All texts that are shown: what they say, their colour and the one behind them.
function* textsOfPage() {
    const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
    const elements = new Set();
    while (walker.nextNode()) {
        if (walker.currentNode.data.trim() !== "") {
            elements.add(walker.currentNode.parentElement);
        }
    }
    for (const element of elements) {
        if (element.checkVisibility({checkOpacity: true, checkVisibilityCSS: true})) {
            yield [element.textContent, getComputedStyle(element).color, backgroundOf(element)];
        }
    }
    for (const element of document.querySelectorAll("td[data-label]")) {
        const label = getComputedStyle(element, "::before");
        if (label.content !== "none" && element.checkVisibility()) {
            yield [element.dataset.label, label.color, backgroundOf(element)];
        }
    }
    for (const element of document.querySelectorAll("input")) {
        const colour = getComputedStyle(element, "::placeholder").color;
        yield [element.placeholder, colour, backgroundOf(element)];
    }
}

function* textsOfPicture() {
    for (const text of document.querySelectorAll("text")) {
        yield [text.textContent, getComputedStyle(text).fill, shapeBelow(text)];
    }
}

function faintTexts(texts) {
    const faint = new Map();
    for (const [text, colour, background] of texts) {
        const ratio = contrast(blended(partsOf(colour), background), background);
        const said = `contrast ${ratio.toFixed(1)}, ${colour} on rgb(${background.map(Math.round)})`;
        if (ratio < minContrast && !faint.has(said)) {
            faint.set(said, text.trim().slice(0, 40));
        }
    }
    return Array.from(faint, ([said, text]) => `${said}: "${text}"`);
}

function isWide(element) {
    return `${element.tagName.toLowerCase()} is wider than the screen:`
        + ` "${element.textContent.trim().slice(0, 40)}"`;
}

// Whether an element is in a frame that scrolls by itself.
function isFramed(element) {
    for (let outer = element.parentElement; outer !== document.body; outer = outer.parentElement) {
        if (getComputedStyle(outer).overflowX !== "visible") {
            return true;
        }
    }
    return false;
}

// What reaches beyond the screen without a frame, and tables that need one: only those of figures may.
function wideElements() {
    const tables = Array.from(document.querySelectorAll("table:not(.figures)"))
        .filter(table => table.scrollWidth > table.parentElement.clientWidth);
    if (document.scrollingElement.scrollWidth <= innerWidth) {
        return tables.map(isWide);
    }
    const wide = Array.from(document.body.querySelectorAll("*")).filter(element =>
        element.getBoundingClientRect().right > innerWidth && !isFramed(element));
    return [...tables, ...wide.slice(0, 3)].map(isWide);
}

// Blocks of code that would lose their line breaks.
function brokenCode() {
    return Array.from(document.querySelectorAll("pre, pre *"))
        .filter(element => !getComputedStyle(element).whiteSpace.startsWith("pre"))
        .map(element => `code without its line breaks: "${element.textContent.slice(0, 40)}"`);
}

// The widths of the pictures, by their addresses.
function picturesOfPage() {
    return Array.from(document.querySelectorAll("img[src$='.svg']"), image =>
        [image.src, image.getBoundingClientRect().width]);
}

if (document.documentElement instanceof SVGElement) {
    // All of it on the screen: what is not is below no point.
    document.documentElement.setAttribute("width", innerWidth);
    document.documentElement.setAttribute("height", innerHeight);
    const sizes = Array.from(document.querySelectorAll("text"), text =>
        parseFloat(getComputedStyle(text).fontSize));
    return {
        faint: faintTexts(textsOfPicture()),
        background: luminance(shapeBelow(document.querySelector("text"))),
        // The smallest text, as a share of the picture's width.
        smallest: Math.min(...sizes) / document.documentElement.viewBox.baseVal.width,
    };
}
if (document.contentType !== "text/html") {
    return null;
}
return {
    faint: faintTexts(textsOfPage()),
    wide: [...wideElements(), ...brokenCode()],
    pictures: picturesOfPage(),
};

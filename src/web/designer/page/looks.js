// SPDX-License-Identifier: GPL-3.0-or-later

// What is shown in addition to the page itself. It is in style sheets that belong to the view or painted by the
// program, so that none of it can get into the page's text.

import {markName} from './marks.js';
import {bodyElement, nativeCommand, setDocumentMember} from './nodes.js';
import {isPlain, plainRules} from './plaintext.js';

export const looks = {borders: false, details: false, browseMode: false, snapToGrid: false};

const glyphLook = `all: initial; display: inline-block !important; font: 10px/14px sans-serif; padding: 0 2px;
    margin: 0 1px; border: 1px solid #b08000; border-radius: 2px; background: #fff4c8; color: #604800;
    vertical-align: baseline; white-space: nowrap;`;

// Elements that aren't visible by themselves, and the word shown for each.
const glyphs = [
    ['a[name]:not([href]), a[id]:not([href], [name])', 'anchor'],
    ['form', 'form'],
    ['map', 'map'],
    ['area', 'area'],
    ['applet', 'applet'],
    ['bgsound', 'sound'],
    ['body basefont', 'font'],
    ['body template', 'template'],
    ['body link', 'link'],
    ['body meta', 'meta'],
];

// The text of these would become visible if they were displayed.
const silentGlyphs = ['script', 'style', 'title'];

// The engine gives these elements no box at all, or, for a line break, one without a width. Their signs are painted on
// top.
const paintedSigns = [
    ['br', '\u21b5'],
    ['input[type=hidden]', 'hidden'],
    ['noscript', 'noscript'],
    ['audio:not([controls])', 'audio'],
];
const mostSigns = 2000;
const signHeight = 10;

// The end of the nearest preceding sibling that has a box, or the parent's corner; in CSS pixels of the page.
const placeOfUnseen = element => {
    const range = new Range();
    for (let before = element.previousSibling; before; before = before.previousSibling) {
        range.selectNode(before);
        const box = [...range.getClientRects()].at(-1);
        if (box)
            return {x: box.right, y: box.top - signHeight / 2};
    }
    const box = element.parentElement.getBoundingClientRect();
    return {x: box.left, y: box.top - signHeight / 2};
};

// The signs that the program paints, for the visible part of the page.
export const signsInSight = () => {
    if (!looks.details || looks.browseMode || isPlain || !bodyElement())
        return [];
    const selector = paintedSigns.map(([each]) => each).join(',');
    const found = [...bodyElement().querySelectorAll(selector)].slice(0, mostSigns);
    const signs = found.map(element => {
        const box = element.getClientRects()[0];
        const word = paintedSigns.find(([each]) => element.matches(each))[1];
        return {...box ? {x: box.right, y: box.top + (box.height - signHeight) / 2} : placeOfUnseen(element), word};
    });
    return signs.filter(({y}) => y > -signHeight && y < innerHeight);
};

const detailRules = () => [
    ...glyphs.map(([selector, word]) => `:is(${selector})::before { ${glyphLook} content: "${word}"; }`),
    ...silentGlyphs.map(name => `body ${name} { display: inline-block !important; font-size: 0 !important;
        -webkit-user-modify: read-only; }
        body ${name}::before { ${glyphLook} content: "${name}"; }`),
    'map, area, body :is(basefont, template, link, meta) { display: inline-block !important; }',
    `${markName}[mark$=c] { display: inline-block !important; }`,
    `${markName}[mark$=c]::before { ${glyphLook} content: "<!"; }`,
];

const borderRules = () => [
    'table, td, th { outline: 1px dotted #909090 !important; outline-offset: -1px; }',
    'form { outline: 1px dashed #c06060 !important; }',
    'div { outline: 1px dotted #b0b0e0; outline-offset: -1px; }',
];

const markRules = () => [
    `${markName} { -webkit-user-modify: read-only; user-select: all; display: none; }`,
    `${markName}[mark$=s] { display: inline-block !important; }`,
    `${markName}[mark$=s]::before { ${glyphLook} content: "<%"; }`,
];

const hiddenMarkRules = () => [`${markName} { display: none !important; }`];

// The mouse pointer over a grip.
export const cursorSheet = new CSSStyleSheet();

const sheetOf = rules => {
    const sheet = new CSSStyleSheet();
    sheet.replaceSync(rules.join('\n'));
    return sheet;
};

export const showLooks = () => {
    const rules = isPlain ? plainRules
        : looks.browseMode ? hiddenMarkRules()
        : [...markRules(), ...looks.details ? detailRules() : [], ...looks.borders ? borderRules() : []];
    setDocumentMember('adoptedStyleSheets', [sheetOf(rules), cursorSheet]);
    setDocumentMember('designMode', looks.browseMode ? 'off' : 'on');
    nativeCommand('styleWithCSS', false, false);
    nativeCommand('defaultParagraphSeparator', false, 'p');
};

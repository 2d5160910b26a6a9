// SPDX-License-Identifier: GPL-3.0-or-later

// Shows the page as on a desktop with light or dark colours: the conditions of the style sheets are written as if the
// wanted scheme were asked for and always true, the other one never. The elements stay as they are.

import {adopt, query, rootElement, styleSheets} from './nodes.js';

const question = /\(\s*prefers-color-scheme\s*:\s*(light|dark)\s*\)/gi;
const originals = new WeakMap();

let wanted = '';
let wasWanted = false;
let canvas = null;

const mendMedia = media => {
    if (!originals.has(media)) {
        if (!/prefers-color-scheme/i.test(media.mediaText))
            return;
        originals.set(media, media.mediaText);
    }
    const original = originals.get(media);
    const text = wanted === '' ? original
        : original.replace(question, (_, scheme) => scheme.toLowerCase() === wanted ? '(min-width: 0)' : '(max-width: 0)');
    if (media.mediaText !== text)
        media.mediaText = text;
};

const mendRules = rules => {
    for (const rule of rules) {
        if (rule.media)
            mendMedia(rule.media);
        if (rule.styleSheet)
            mendSheet(rule.styleSheet);
        else if (rule.cssRules)
            mendRules(rule.cssRules);
    }
};

const mendSheet = sheet => {
    mendMedia(sheet.media);
    try {
        mendRules(sheet.cssRules);
    } catch {
        // The rules of a sheet from another machine can't be read.
    }
};

// What the engine itself paints, such as the ground and the form elements, for pages that say that they know both.
const mendCanvas = () => {
    const known = getComputedStyle(rootElement()).colorScheme;
    const isKnown = canvas !== null || known.split(/\s+/).includes(wanted)
        || /\b(light|dark)\b/.test(query('meta[name=color-scheme]')[0]?.content ?? '');
    if (wanted === '' || !isKnown) {
        canvas?.replaceSync('');
        return;
    }
    canvas ??= new CSSStyleSheet();
    adopt(canvas);
    canvas.replaceSync(`:root { color-scheme: ${wanted} !important; }`);
};

// For sheets that have come since.
export const refreshScheme = () => {
    if (!wasWanted)
        return;
    for (const sheet of styleSheets())
        mendSheet(sheet);
    if (rootElement())
        mendCanvas();
};

// `scheme` is "light", "dark", or empty for that of the desktop.
export const setScheme = scheme => {
    wanted = scheme;
    wasWanted ||= scheme !== '';
    refreshScheme();
};

export const forgetCanvas = () => {
    canvas = null;
};

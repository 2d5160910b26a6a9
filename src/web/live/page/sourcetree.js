// SPDX-License-Identifier: GPL-3.0-or-later

// The source of the page as a tree of its own, which is never shown, and which of its nodes stands for which node of the
// page. What scripts add to the page stands for nothing in the source.

import {isElement} from './nodes.js';

const shownBy = new WeakMap();
const sourceOf = new WeakMap();
const places = new WeakMap();

// Each start tag of the text bears its place as an attribute with this name.
const takePlaces = (root, mark) => {
    for (const element of root.querySelectorAll(`[${mark}]`)) {
        places.set(element, Number(element.getAttribute(mark)));
        element.removeAttribute(mark);
    }
    for (const template of root.querySelectorAll('template'))
        takePlaces(template.content, mark);
};

export const parseSource = (text, mark) => {
    const tree = new DOMParser().parseFromString(text, 'text/html');
    takePlaces(tree, mark);
    return tree;
};

// The place of an element's start tag in the text; undefined for one that has no tag.
export const placeOf = element => places.get(element);

// The node of the page that stands for a node of the source, unless a script has removed it.
export const shownFor = node => {
    const shown = shownBy.get(node);
    return shown?.isConnected ? shown : null;
};

export const pair = (node, shown) => {
    shownBy.set(node, shown);
    sourceOf.set(shown, node);
};

// The node of the source for a node of the page, or for the nearest around it that has one.
export const sourceFor = shown => {
    while (shown && !sourceOf.has(shown))
        shown = shown.parentNode;
    return shown ? sourceOf.get(shown) : null;
};

// Two trees that are equal, one of which was imported or is an earlier reading of the same source.
export const pairAll = (node, shown) => {
    pair(node, shown);
    for (let i = 0; i < node.childNodes.length; ++i)
        pairAll(node.childNodes[i], shown.childNodes[i]);
};

export const handOn = (before, node) => {
    const shown = shownBy.get(before);
    if (shown)
        pair(node, shown);
    for (let one = before.firstChild, other = node.firstChild; one && other;
        one = one.nextSibling, other = other.nextSibling)
        handOn(one, other);
};

// The parser nests no deeper than some hundred elements. What is deeper was made by scripts, and has no end.
const deepest = 1000;

// The page as it was read, before its later scripts change it.
export const snapshot = (shown, depth = 0) =>
    ({shown, children: depth < deepest ? [...shown.childNodes].map(child => snapshot(child, depth + 1)) : []});

const isSameKind = (node, shown) => node.nodeType === shown.nodeType && node.nodeName === shown.nodeName;
const isAlike = (node, shown) => isSameKind(node, shown)
    && (isElement(node)
        ? ['id', 'class', 'name'].every(name => node.getAttribute(name) === shown.getAttribute(name))
        : node.data === shown.data);

// How many nodes of a script are passed over in search of the next one of the source.
const farthestShown = 50;

// Scripts may have added nodes to the page, changed or removed some. What isn't found has no partner.
export const pairWithSnapshot = (node, {shown, children}) => {
    pair(node, shown);
    let next = 0;
    for (const child of node.childNodes) {
        const near = children.slice(next, next + farthestShown);
        let found = near.findIndex(other => isAlike(child, other.shown));
        if (found < 0)
            found = near.length > 0 && isSameKind(child, near[0].shown) ? 0 : -1;
        if (found < 0)
            continue;
        next += found + 1;
        pairWithSnapshot(child, near[found]);
    }
};

// SPDX-License-Identifier: GPL-3.0-or-later

// Changes the page to what the source is now: only where the source has changed. Everything else stays as it is, with
// what scripts have made of it, what was typed into forms, and where it was scrolled to.

import {importNode, isElement} from './nodes.js';
import {handOn, pair, pairAll, shownFor} from './sourcetree.js';

// A change of these has effects that only a new load has, or isn't seen by a comparison of nodes.
const loadedAnew = 'script,base,link,meta[http-equiv],template';

const doctypeOf = tree => {
    const {name, publicId, systemId} = tree.doctype ?? {};
    return JSON.stringify([name, publicId, systemId]);
};

export const needsLoad = (before, now) => {
    const parts = tree => [...tree.querySelectorAll(loadedAnew)].map(element => element.outerHTML).join('\n');
    return doctypeOf(before) !== doctypeOf(now) || parts(before) !== parts(now);
};

const mendAttributes = (before, now, shown) => {
    for (const {name} of [...before.attributes]) {
        if (!now.hasAttribute(name))
            shown.removeAttribute(name);
    }
    for (const attribute of now.attributes) {
        if (before.getAttribute(attribute.name) !== attribute.value)
            shown.setAttributeNode(attribute.cloneNode());
    }
};

const canBecome = (before, now) => before.nodeType === now.nodeType && before.nodeName === now.nodeName
    && before.namespaceURI === now.namespaceURI;

const isSame = (before, now) => before.isEqualNode(now)
    || (isElement(now) && now.id !== '' && canBecome(before, now) && before.id === now.id);

// How far an unchanged node is looked for behind a changed one.
const farthestEqual = 100;

// The node of `before` that each node of `now` was, or null; in the same order.
const partners = (before, now) => {
    const found = now.map(() => null);
    let next = 0;
    now.forEach((node, index) => {
        const same = before.slice(next, next + farthestEqual).findIndex(other => isSame(other, node));
        if (same < 0)
            return;
        found[index] = before[next + same];
        next += same + 1;
    });
    // Between the unchanged ones, those that only changed.
    const isTaken = new Set(found);
    const numbers = new Map(before.map((node, number) => [node, number]));
    let from = 0;
    now.forEach((node, index) => {
        if (found[index]) {
            from = numbers.get(found[index]) + 1;
            return;
        }
        for (let at = from; at < before.length && !isTaken.has(before[at]); ++at) {
            if (canBecome(before[at], node)) {
                found[index] = before[at];
                isTaken.add(before[at]);
                from = at + 1;
                return;
            }
        }
    });
    return found;
};

const insert = (node, parent, previous) => {
    const added = importNode(node, true);
    pairAll(node, added);
    parent.insertBefore(added, previous ? previous.nextSibling : parent.firstChild);
};

const mendChildren = (before, now, shown) => {
    const old = [...before.childNodes];
    const current = [...now.childNodes];
    let first = 0;
    while (first < old.length && first < current.length && old[first].isEqualNode(current[first])) {
        handOn(old[first], current[first]);
        ++first;
    }
    let last = 0;
    while (last < old.length - first && last < current.length - first
        && old[old.length - 1 - last].isEqualNode(current[current.length - 1 - last])) {
        handOn(old[old.length - 1 - last], current[current.length - 1 - last]);
        ++last;
    }
    const changed = old.slice(first, old.length - last);
    const wanted = current.slice(first, current.length - last);
    const were = partners(changed, wanted);
    const kept = new Set(were);
    for (const node of changed) {
        if (!kept.has(node))
            shownFor(node)?.remove();
    }
    const shownChild = node => {
        const child = shownFor(node);
        return child?.parentNode === shown ? child : null;
    };
    let previous = null;
    for (let at = first - 1; at >= 0 && !previous; --at)
        previous = shownChild(current[at]);
    wanted.forEach((node, index) => {
        if (were[index])
            mend(were[index], node);
        else
            insert(node, shown, previous);
        previous = shownChild(node) ?? previous;
    });
};

// Makes what stands for `before` stand for `now`.
export const mend = (before, now) => {
    if (before.isEqualNode(now)) {
        handOn(before, now);
        return;
    }
    const shown = shownFor(before);
    if (!shown)
        return;
    pair(now, shown);
    if (!isElement(now)) {
        shown.data = now.data;
        return;
    }
    mendAttributes(before, now, shown);
    mendChildren(before, now, shown);
};

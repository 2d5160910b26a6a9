// SPDX-License-Identifier: GPL-3.0-or-later

// Changes the depth of list items.

import {itemSelector, listNames, selectedParagraphs, startOf} from './blocks.js';
import {closest, containsBlock, emptyTwin, isElement, isNamed, renameElement, unwrapElement} from './nodes.js';
import {bookmark, restore} from './selection.js';
import {runNative} from './styles.js';

// Splits a list after an item and moves the item between the halves. Returns the second half, or null.
const cutList = item => {
    const list = item.parentNode;
    const following = [];
    for (let next = item.nextSibling; next; next = next.nextSibling)
        following.push(next);
    let rest = null;
    if (following.some(isElement)) {
        rest = emptyTwin(list);
        list.after(rest);
        for (const node of following)
            rest.append(node);
    }
    list.after(item);
    if (!list.firstElementChild)
        list.remove();
    return rest;
};

// Takes an item out of its list and turns it into a paragraph or its blocks.
const liftItem = item => {
    if (!isNamed(item.parentNode, listNames))
        return;
    cutList(item);
    if (containsBlock(item))
        unwrapElement(item);
    else
        renameElement(item, 'p');
};

export const liftSelectedItems = () => {
    const mark = bookmark();
    const items = new Set(selectedParagraphs().map(paragraph => closest(startOf(paragraph), itemSelector)));
    for (const item of items) {
        if (item)
            liftItem(item);
    }
    restore(mark);
};

// The selected items, except for those inside other selected ones.
const selectedItems = () => {
    const items = [...new Set(selectedParagraphs().map(paragraph => closest(startOf(paragraph), 'blockquote,li')))]
        .filter(item => item?.localName === 'li' && isNamed(item.parentNode, listNames));
    return items.filter(item => !items.some(other => other !== item && other.contains(item)));
};

// Moves an item into a list of the same kind within the previous item; the first item is moved into a new list in its
// place.
export const deepenItem = item => {
    const list = item.parentNode;
    const before = item.previousElementSibling;
    const last = before?.localName === 'li' ? before.lastElementChild : before;
    let inner = last?.localName === list.localName ? last : null;
    if (!inner) {
        inner = emptyTwin(list);
        if (before?.localName === 'li')
            before.append(inner);
        else
            item.before(inner);
    }
    inner.append(item);
};

// Moves an item after the item that contains its list; the items that followed it become its children.
export const raiseItem = item => {
    const outer = item.parentNode.parentNode;
    if (outer.localName !== 'li' && !isNamed(outer, listNames)) {
        liftItem(item);
        return;
    }
    const rest = cutList(item);
    if (outer.localName !== 'li')
        return;
    outer.after(item);
    if (rest)
        item.append(rest);
};

// Moves the selected items, or, if there are none, lets the engine indent or outdent the paragraphs.
export const changeDepth = (moveItem, name) => {
    const items = selectedItems();
    if (items.length === 0) {
        runNative(name);
        return;
    }
    const mark = bookmark();
    items.forEach(moveItem);
    restore(mark);
};

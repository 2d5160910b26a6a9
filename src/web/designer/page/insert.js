// SPDX-License-Identifier: GPL-3.0-or-later

// Inserts content into the page and removes it.

import {showMarks} from './marks.js';
import {
    bodyElement, closest, closestBlock, containsBlock, createElement, createTreeWalker, elementOf, indexOf, isBlock,
    isEmptyElement, isNamed, isText, nativeCommand, paragraphNames, splitElement, unwrapElement, wordSet
} from './nodes.js';
import {insertPlainText, isPlain, selectedPlainText} from './plaintext.js';
import {
    bookmark, currentRange, placeCaret, placeCaretIn, reaches, restore, selectedControl, selectElement
} from './selection.js';
import {deleteAcrossLines, deleteNatively} from './typing.js';

// Markup from other programs contains style sheets and metadata of its own.
const foreignSelector = 'meta,link,style,script,title,base';

const cleanForeign = fragment => {
    for (const element of fragment.querySelectorAll(foreignSelector))
        element.remove();
    const walker = createTreeWalker(fragment, NodeFilter.SHOW_COMMENT);
    const comments = [];
    while (walker.nextNode())
        comments.push(walker.currentNode);
    for (const comment of comments)
        comment.remove();
};

// Removes the selection; returns the range where it was.
const clearSelection = range => {
    const control = selectedControl();
    if (control)
        control.remove();
    else if (!range.collapsed && !deleteAcrossLines(range))
        range.deleteContents();
    return getSelection().rangeCount > 0 ? getSelection().getRangeAt(0) : range;
};

// A paragraph can't contain blocks: it is split at the caret, and the new nodes are inserted between its halves.
const insertIntoParagraph = (paragraph, range, nodes) => {
    const rest = splitElement(paragraph, range.startContainer, range.startOffset);
    paragraph.after(...nodes);
    for (const half of [paragraph, rest]) {
        if (isEmptyElement(half))
            half.remove();
    }
};

// The break in an empty block, which is no longer needed when the block gets content.
const fillerOf = block => {
    const breaks = block && isEmptyElement(block) ? block.querySelectorAll('br') : [];
    return breaks.length === 1 ? breaks[0] : null;
};

const placeCaretBehind = node => {
    if (isText(node))
        placeCaret(node, node.length);
    else
        placeCaret(node.parentNode, indexOf(node) + 1);
};

// Replaces the selection by markup and places the caret after it; in plain text the markup is inserted as text. Returns
// the inserted nodes.
export const insertMarkup = (markup, isForeign) => {
    if (isPlain)
        return insertPlainText(markup);
    const range = clearSelection(currentRange());
    const fragment = range.createContextualFragment(markup);
    if (isForeign)
        cleanForeign(fragment);
    showMarks(fragment);
    const nodes = [...fragment.childNodes];
    if (nodes.length === 0)
        return nodes;
    const block = closestBlock(range.startContainer);
    if (block && isNamed(block, paragraphNames) && nodes.some(node => isBlock(node) || containsBlock(node))) {
        insertIntoParagraph(block, range, nodes);
    } else {
        const filler = fillerOf(block);
        range.insertNode(fragment);
        filler?.remove();
    }
    placeCaretBehind(nodes.at(-1));
    return nodes;
};

export const insertTable = markup => {
    const table = insertMarkup(markup, false).find(node => node.localName === 'table');
    const cell = table?.querySelector('td,th');
    if (cell)
        placeCaretIn(cell);
};

const linkElement = () => closest(currentRange().commonAncestorContainer, 'a[href]')
    ?? selectedControl()?.closest('a[href]') ?? null;

export const hasLink = () => {
    const range = currentRange();
    const scope = elementOf(range.commonAncestorContainer);
    return linkElement() !== null || [...scope.querySelectorAll('a[href]')].some(link => reaches(range, link));
};

export const linkAddress = () => linkElement()?.getAttribute('href') ?? '';

export const unlink = () => {
    const link = linkElement();
    const mark = bookmark();
    if (link)
        unwrapElement(link);
    else
        nativeCommand('unlink', false, null);
    restore(mark);
};

// An empty address removes the link. If nothing is selected, the address becomes the link's text.
export const setLink = address => {
    const link = linkElement();
    if (address === '') {
        unlink();
    } else if (link) {
        link.setAttribute('href', address);
    } else if (currentRange().collapsed) {
        const anchor = createElement('a');
        currentRange().insertNode(anchor);
        anchor.setAttribute('href', address);
        anchor.append(new Text(address));
        placeCaretBehind(anchor);
    } else {
        nativeCommand('createLink', false, address);
    }
};

export const insertImage = address => {
    const range = clearSelection(currentRange());
    const image = createElement('img');
    image.setAttribute('src', address);
    image.setAttribute('alt', '');
    const filler = fillerOf(closestBlock(range.startContainer));
    range.insertNode(image);
    filler?.remove();
    selectElement(image);
};

const wholeNames = wordSet('table ol ul dir menu dl');
const partNames = wordSet('table thead tbody tfoot tr ol ul dir menu dl');

// The selection as markup, with the inline elements around it, and the list or table that a part of one belongs to; for
// plain text, its text.
export const selectionMarkup = () => {
    if (isPlain)
        return selectedPlainText();
    const range = currentRange();
    const box = createElement('div');
    const control = selectedControl();
    if (control) {
        box.append(control.cloneNode(true));
        return box.innerHTML;
    }
    let content = range.cloneContents();
    for (let element = elementOf(range.commonAncestorContainer); element && element !== bodyElement();
        element = element.parentElement) {
        if (isBlock(element) && !isNamed(element, partNames))
            break;
        const outer = element.cloneNode(false);
        outer.append(content);
        content = outer;
        if (isNamed(element, wholeNames))
            break;
    }
    box.append(content);
    return box.innerHTML;
};

export const deleteSelection = () => {
    const control = selectedControl();
    const range = currentRange();
    if (control) {
        control.remove();
        placeCaret(range.startContainer, range.startOffset);
    } else if (range.collapsed || !deleteAcrossLines(range)) {
        deleteNatively(range);
    }
};

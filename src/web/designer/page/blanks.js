// SPDX-License-Identifier: GPL-3.0-or-later

// Keeps the blanks that lay out the source but aren't seen in the page, such as the line end before an end tag: the engine
// removes those beside the caret when something is typed or deleted.

import {bodyElement, closestBlock, createTreeWalker, elementOf, isBlankText, isText} from './nodes.js';
import {currentRange, placeCaret} from './selection.js';

const isCollapsing = node => ['normal', 'nowrap'].includes(getComputedStyle(elementOf(node)).whiteSpace);

// In CSS pixels. Positions are rounded to 1/64, so that a blank without a width may seem to have one.
const leastWidth = 0.05;

const isInvisible = (node, from, to) => {
    const range = new Range();
    range.setStart(node, from);
    range.setEnd(node, to);
    return [...range.getClientRects()].every(box => box.width < leastWidth);
};

// The texts at a position and on both sides of it, within its block.
const textsAround = (node, offset) => {
    const block = closestBlock(node) ?? bodyElement();
    const walker = createTreeWalker(block, NodeFilter.SHOW_TEXT);
    const found = [];
    walker.currentNode = isText(node) ? node : node.childNodes[offset] ?? node;
    if (isText(walker.currentNode))
        found.push(walker.currentNode);
    const start = walker.currentNode;
    for (const step of ['previousNode', 'nextNode']) {
        walker.currentNode = start;
        const text = walker[step]();
        if (text && closestBlock(text) === closestBlock(node))
            found.push(text);
    }
    return found;
};

// Removes the blank that parted two words before a paragraph was split between them.
export const trimSplit = block => {
    const text = createTreeWalker(block, NodeFilter.SHOW_TEXT).nextNode();
    const blank = text && isCollapsing(text) ? /^[ \t]+(?=\S)/.exec(text.data)?.[0] : null;
    if (blank && isInvisible(text, 0, blank.length))
        text.deleteData(0, blank.length);
};

let noted = [];

// To be called before the engine types or deletes something.
export const noteBlanks = () => {
    const range = currentRange();
    const texts = new Set([...textsAround(range.startContainer, range.startOffset),
        ...textsAround(range.endContainer, range.endOffset)]);
    noted = [];
    for (const node of texts) {
        const head = /^[ \t\r\n\f]*/.exec(node.data)[0];
        const tail = isBlankText(node) ? '' : /[ \t\r\n\f]*$/.exec(node.data)[0];
        if ((head === '' && tail === '') || !isCollapsing(node))
            continue;
        noted.push({
            node, isBlank: isBlankText(node), parent: node.parentNode, next: node.nextSibling,
            head, isHeadSeen: !isInvisible(node, 0, head.length),
            tail, isTailSeen: !isInvisible(node, node.length - tail.length, node.length),
        });
    }
};

// Puts blanks in, unless they would be seen there. A caret at the beginning of the text stays beside what is seen.
const putUnseen = (node, place, blanks) => {
    node.insertData(place, blanks);
    if (!isInvisible(node, place, place + blanks.length)) {
        node.deleteData(place, blanks.length);
        return;
    }
    const {isCollapsed, anchorNode, anchorOffset} = getSelection();
    if (place === 0 && isCollapsed && anchorNode === node && anchorOffset === 0)
        placeCaret(node, blanks.length);
};

const noBreakSpace = '\u00a0';
const isSeenAs = (text, blanks) => text.replaceAll(noBreakSpace, ' ') === blanks.replaceAll(/[\t\r\n\f]/g, ' ');

// A blank that is seen may have become a no-break space. Beside another blank, the engine needs that.
const restoreSeen = (node, place, blanks, beside) => {
    if (/\S/.test(beside) && isSeenAs(node.substringData(place, blanks.length), blanks))
        node.replaceData(place, blanks.length, blanks);
};

const restoreTail = ({node, tail, isTailSeen}) => {
    const place = node.length - tail.length;
    if (node.data.endsWith(tail))
        return;
    if (!isTailSeen)
        putUnseen(node, node.length, tail);
    else if (place > 0)
        restoreSeen(node, place, tail, node.data[place - 1]);
};

const restoreHead = ({node, head, isHeadSeen}) => {
    if (node.data.startsWith(head))
        return;
    if (!isHeadSeen)
        putUnseen(node, 0, head);
    else if (node.length > head.length)
        restoreSeen(node, 0, head, node.data[head.length]);
};

// To be called when it has done so.
export const restoreBlanks = () => {
    for (const blanks of noted) {
        const {node, isBlank, parent, next, head, isHeadSeen} = blanks;
        if (node.isConnected && (isBlank || !isBlankText(node))) {
            restoreTail(blanks);
            restoreHead(blanks);
        } else if (!node.isConnected && isBlank && !isHeadSeen && parent.isConnected
            && (next === null || next.parentNode === parent)) {
            node.data = '';
            parent.insertBefore(node, next);
            putUnseen(node, 0, head);
            if (node.length === 0)
                node.remove();
        }
    }
    noted = [];
};

// SPDX-License-Identifier: GPL-3.0-or-later

// Keeps the blanks that lay out the source but aren't seen in the page, such as the line end before an end tag: the engine
// removes those beside the caret when something is typed.

import {bodyElement, closestBlock, createTreeWalker, elementOf, isBlankText, isText} from './nodes.js';
import {currentRange} from './selection.js';

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

let kept = [];

// To be called before the engine types something.
export const noteBlanks = () => {
    kept = [];
    const range = currentRange();
    if (!range.collapsed)
        return;
    for (const node of textsAround(range.startContainer, range.startOffset)) {
        const head = /^[ \t\r\n\f]*/.exec(node.data)[0];
        const tail = isBlankText(node) ? '' : /[ \t\r\n\f]*$/.exec(node.data)[0];
        if ((head === '' && tail === '') || !isCollapsing(node))
            continue;
        kept.push({
            node, isBlank: isBlankText(node), parent: node.parentNode, next: node.nextSibling,
            head, isHeadSeen: !isInvisible(node, 0, head.length),
            tail, isTailSeen: !isInvisible(node, node.length - tail.length, node.length),
        });
    }
};

const noBreakSpace = '\u00a0';
const isSeenAs = (text, blanks) => text.replaceAll(noBreakSpace, ' ') === blanks.replaceAll(/[\t\r\n\f]/g, ' ');

// A blank that is seen may have become a no-break space. Where a blank was typed, the engine needs that.
const restoreSeen = (node, from, blanks) => {
    if (from >= 0 && isSeenAs(node.substringData(from, blanks.length), blanks))
        node.replaceData(from, blanks.length, blanks);
};

// To be called when it has done so; typed is the text.
export const restoreBlanks = (changes, {data: typed}) => {
    const isBlankTyped = typed === null || /^\s*$/.test(typed);
    for (const {node, isBlank, parent, next, head, isHeadSeen, tail, isTailSeen} of kept) {
        if (!node.isConnected) {
            if (isBlank && !isHeadSeen && parent.isConnected && (next === null || next.parentNode === parent)) {
                node.data = head;
                parent.insertBefore(node, next);
            }
            continue;
        }
        if (!node.data.endsWith(tail)) {
            if (!isTailSeen)
                node.appendData(tail);
            else if (!isBlankTyped)
                restoreSeen(node, node.length - tail.length, tail);
        }
        if (!node.data.startsWith(head)) {
            if (!isHeadSeen)
                node.insertData(0, head);
            else if (!isBlankTyped)
                restoreSeen(node, 0, head);
        }
    }
    kept = [];
};

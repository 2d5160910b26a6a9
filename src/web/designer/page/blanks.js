// SPDX-License-Identifier: GPL-3.0-or-later

// Keeps the blanks that lay out the source but aren't seen in the page, such as the line end before an end tag: the engine
// removes those beside the caret when something is typed.

import {bodyElement, closestBlock, createTreeWalker, elementOf, isBlankText, isText} from './nodes.js';
import {currentRange} from './selection.js';

const isCollapsing = node => ['normal', 'nowrap'].includes(getComputedStyle(elementOf(node)).whiteSpace);

const isInvisible = (node, from, to) => {
    const range = new Range();
    range.setStart(node, from);
    range.setEnd(node, to);
    return [...range.getClientRects()].every(box => box.width === 0);
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
            node, head: head !== '' && isInvisible(node, 0, head.length) ? head : '',
            tail: tail !== '' && isInvisible(node, node.length - tail.length, node.length) ? tail : '',
            isBlank: isBlankText(node), parent: node.parentNode, next: node.nextSibling,
        });
    }
};

// To be called when it has done so.
export const restoreBlanks = () => {
    for (const {node, head, tail, isBlank, parent, next} of kept) {
        if (node.isConnected) {
            if (!node.data.endsWith(tail))
                node.appendData(tail);
            if (!node.data.startsWith(head))
                node.insertData(0, head);
        } else if (isBlank && head !== '' && parent.isConnected && (next === null || next.parentNode === parent)) {
            node.data = head;
            parent.insertBefore(node, next);
        }
    }
    kept = [];
};

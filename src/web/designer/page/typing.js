// SPDX-License-Identifier: GPL-3.0-or-later

// What the keys do to paragraphs, where the engine would write the paragraph anew: it gives what it joins styles of its
// own, and loses comments and the order of attributes. Here the author's own nodes move.

import {itemNames, listNames, selectedParagraphs, wrapParagraph} from './blocks.js';
import {history} from './history.js';
import {markName} from './marks.js';
import {
    bodyElement, closest, closestBlock, containsBlock, createElement, dropAttribute, indexOf, isBlankText, isElement,
    isEmptyElement, isNamed, isText, moveChildren, nativeCommand, paragraphNames, rootElement, tightNames, unwrapElement
} from './nodes.js';
import {reportState} from './reports.js';
import {bookmark, currentRange, isAbsolute, placeCaret, placeCaretIn, restore, selectElement} from './selection.js';
import {parsedStyle} from './styles.js';

// Blocks that are one paragraph as long as they hold no others.
const lineNames = new Set([...paragraphNames, 'div', 'li', 'dt', 'dd']);
const isLine = node => isNamed(node, lineNames) && !containsBlock(node) && !isAbsolute(node);

const isUnseen = node => isBlankText(node) || node.nodeType === Node.COMMENT_NODE
    || (isElement(node) && node.localName === markName && node.getAttribute('mark').endsWith('c'));

const seenSibling = (node, direction) => {
    let sibling = node[direction];
    while (sibling && isUnseen(sibling))
        sibling = sibling[direction];
    return sibling;
};

// Whether nothing that a user sees lies between two places of a line; the break that keeps an empty line open counts as
// nothing.
const isNothing = (fromNode, fromOffset, toNode, toOffset) => {
    const range = new Range();
    range.setStart(fromNode, fromOffset);
    range.setEnd(toNode, toOffset);
    const box = createElement('div');
    box.append(range.cloneContents());
    return isEmptyElement(box) && box.querySelectorAll('br').length === 0;
};

const isAtStart = (line, node, offset) => isNothing(line, 0, node, offset);
const isAtEnd = (line, node, offset) => {
    const last = line.lastChild;
    return isNothing(node, offset, line, last?.localName === 'br' ? indexOf(last) : line.childNodes.length);
};

const holdOpen = line => {
    if (isEmptyElement(line) && !line.querySelector('br'))
        line.append(createElement('br'));
};

const holderNames = new Set([...listNames, 'blockquote', 'center', 'div']);

// Takes out an element and whatever holds nothing without it.
const removeEmptied = element => {
    const parent = element.parentNode;
    element.remove();
    if (isNamed(parent, holderNames) && !parent.firstElementChild && isEmptyElement(parent) && !isAbsolute(parent))
        removeEmptied(parent);
};

const trimText = (node, pattern) => {
    if (node && isText(node) && pattern.test(node.data))
        node.data = node.data.replace(pattern, '');
};

// Makes one line of two, as the first one is; an empty first one goes. The caret stands where they meet.
const joinLines = (first, second) => {
    if (isEmptyElement(first)) {
        removeEmptied(first);
        holdOpen(second);
        placeCaretIn(second);
        return;
    }
    if (first.lastChild?.localName === 'br')
        first.lastChild.remove();
    if (first.localName !== 'pre') {
        trimText(first.lastChild, /[ \t\r\n\f]+$/);
        trimText(second.firstChild, /^[ \t\r\n\f]+/);
    }
    const [node, offset] = first.lastChild && isText(first.lastChild) ? [first.lastChild, first.lastChild.length]
        : [first, first.childNodes.length];
    if (isEmptyElement(second))
        second.querySelector('br')?.remove();
    moveChildren(second, first);
    removeEmptied(second);
    placeCaret(node, offset);
};

// The line that meets another one at its end or start: a block itself, or the item of a list.
const lineAtEdge = (block, edge) => {
    let line = block;
    while (isNamed(line, listNames) && line[edge])
        line = line[edge];
    return line && isLine(line) ? line : null;
};

// The two lines that a selection begins and ends in; null for other selections, and those over several cells, which are
// the engine's.
const linesAcross = range => {
    const [first, second] = [closestBlock(range.startContainer), closestBlock(range.endContainer)];
    const isOurs = first !== second && isLine(first) && isLine(second)
        && closest(first, 'td,th,caption') === closest(second, 'td,th,caption');
    return isOurs ? [first, second] : null;
};

// Takes out a selection that reaches from one line into another and joins what is left of them. Gives whether it did.
export const deleteAcrossLines = range => {
    const lines = linesAcross(range);
    if (!lines)
        return false;
    range.deleteContents();
    joinLines(...lines);
    return true;
};

// What Backspace and Delete do at the edge of a line, as something that can be run; null where it is the engine's.
const joinAtCaret = (node, offset, backward) => {
    const line = closestBlock(node);
    if (!line || !isLine(line) || !(backward ? isAtStart : isAtEnd)(line, node, offset))
        return null;
    const neighbour = seenSibling(line, backward ? 'previousSibling' : 'nextSibling');
    if (!neighbour)
        return null;
    if (neighbour.localName === 'table')
        return () => selectElement(neighbour);
    const other = lineAtEdge(neighbour, backward ? 'lastElementChild' : 'firstElementChild');
    if (!other)
        return null;
    return () => backward ? joinLines(other, line) : joinLines(line, other);
};

const deleteByKey = event => {
    const range = currentRange();
    const action = range.collapsed ? joinAtCaret(range.startContainer, range.startOffset, event.inputType.endsWith('Backward'))
        : linesAcross(range) && (() => deleteAcrossLines(range));
    if (!action)
        return;
    event.preventDefault();
    history.run(action);
    reportState();
};

// Text that stands bare between blocks, in a cell or on the page becomes a paragraph, so that it can be parted into two.
const unpartedNames = new Set([...paragraphNames, ...itemNames, ...tightNames, 'caption']);
const isBareDiv = block => block.localName === 'div' && block.attributes.length === 0;
const holdsParagraphs = block => isAbsolute(block) || (!isNamed(block, unpartedNames) && !isBareDiv(block));

const wrapBareLine = () => {
    const range = currentRange();
    const block = closestBlock(range.startContainer);
    if (!block || !range.collapsed || !holdsParagraphs(block))
        return;
    const run = selectedParagraphs().find(paragraph => paragraph.nodes);
    if (!run)
        return;
    const mark = bookmark();
    const paragraph = wrapParagraph(run, 'p');
    if (run.parent === mark.anchorNode)
        placeCaret(paragraph, Math.min(run.nodes.length, Math.max(0, mark.anchorOffset - indexOf(paragraph))));
    else
        restore(mark);
};

const beginParagraph = event => {
    const range = currentRange();
    if (!range.collapsed)
        deleteAcrossLines(range);
    if (closest(currentRange().startContainer, 'pre')) {
        event.preventDefault();
        nativeCommand('insertLineBreak', false, null);
        reportState();
    } else {
        wrapBareLine();
    }
};

// The engine gives both halves of a paragraph the same names; the first one keeps them.
const nameOnce = () => {
    const block = closestBlock(getSelection().anchorNode);
    if (!block || block === bodyElement())
        return;
    for (const element of [block, ...block.querySelectorAll('[id]')]) {
        if (element.id !== '' && rootElement().querySelector(`#${CSS.escape(element.id)}`) !== element)
            dropAttribute(element, 'id');
    }
};

// Where the engine does join, it keeps the look of what it moves by spans that nobody asked for, and writes the author's
// own ones anew.
const dropJoinStyles = changes => {
    const spansIn = nodes => nodes.filter(isElement).flatMap(node => [node, ...node.querySelectorAll('span[style]')])
        .filter(node => node.localName === 'span' && node.attributes.length === 1 && node.hasAttribute('style'));
    const look = span => parsedStyle(span.getAttribute('style')).cssText;
    const texts = new Map(spansIn(changes.flatMap(change => change.removed ?? []))
        .map(span => [look(span), span.getAttribute('style')]));
    const added = new Set(spansIn(changes.flatMap(change => change.added ?? [])));
    const mark = bookmark();
    for (const span of [...added].filter(each => each.isConnected)) {
        const text = texts.get(look(span));
        if (text === undefined)
            unwrapElement(span);
        else if (text !== span.getAttribute('style'))
            span.setAttribute('style', text);
    }
    restore(mark);
};

export const inputActions = {
    insertParagraph: nameOnce,
    deleteContentBackward: dropJoinStyles,
    deleteContentForward: dropJoinStyles,
    deleteWordBackward: dropJoinStyles,
    deleteWordForward: dropJoinStyles,
};

export const beforeInputActions = {
    insertParagraph: beginParagraph,
    insertText: () => deleteAcrossLines(currentRange()),
    insertLineBreak: () => deleteAcrossLines(currentRange()),
    deleteContentBackward: deleteByKey,
    deleteContentForward: deleteByKey,
    deleteWordBackward: deleteByKey,
    deleteWordForward: deleteByKey,
};

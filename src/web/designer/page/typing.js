// SPDX-License-Identifier: GPL-3.0-or-later

// Handles keys in paragraphs where the engine would rewrite them: when it joins paragraphs, it adds styles of its own
// and loses comments and the order of attributes. Here the original nodes are moved.

import {noteBlanks, restoreBlanks, trimSplit} from './blanks.js';
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

// Blocks that are a single paragraph unless they contain other blocks.
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

// Whether there is nothing visible between two positions in a line.
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

// Removes an element, and each ancestor that is empty without it.
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

// Paragraphs whose whole text was deleted. They stay in the page for what is typed next, but not in its text.
const emptied = new Set();

export const forgetEmptied = () => emptied.clear();

// Whether a selection is the whole text of a paragraph.
const isWholeParagraph = range => {
    const line = closestBlock(range.commonAncestorContainer);
    return !range.collapsed && line !== null && isNamed(line, paragraphNames) && isLine(line)
        && isAtStart(line, range.startContainer, range.startOffset)
        && isAtEnd(line, range.endContainer, range.endOffset);
};

const isFiller = line => line.isConnected && isEmptyElement(line) && line.querySelectorAll('br').length === 1;

// To be called when the engine has deleted the whole text of a paragraph.
const noteEmptied = () => {
    const line = closestBlock(getSelection().anchorNode);
    if (line && isNamed(line, paragraphNames) && isFiller(line))
        emptied.add(line);
};

// What goes with an emptied paragraph: the elements that contain nothing else, and one of two line ends around them.
// Nothing if no place for the caret would be left.
const nodesOfEmptied = line => {
    let outer = line;
    const isAlone = node => !seenSibling(node, 'previousSibling') && !seenSibling(node, 'nextSibling');
    while (isAlone(outer) && isNamed(outer.parentNode, holderNames) && !isAbsolute(outer.parentNode))
        outer = outer.parentNode;
    if (isAlone(outer))
        return [];
    const [before, after] = [outer.previousSibling, outer.nextSibling];
    return before && after && isBlankText(before) && isBlankText(after) ? [outer, after] : [outer];
};

// The result of an action that sees the page without the paragraphs that were emptied.
export const withoutEmptied = action => {
    const lines = [...emptied].filter(isFiller);
    if (lines.length === 0)
        return action();
    return history.unseen(() => {
        const mark = bookmark();
        const gone = [];
        for (const node of lines.flatMap(nodesOfEmptied)) {
            gone.push([node, node.parentNode, node.nextSibling]);
            node.remove();
        }
        const result = action();
        for (const [node, parent, next] of gone.reverse())
            parent.insertBefore(node, next);
        restore(mark);
        return result;
    });
};

// Joins two lines in the first one; if the first is empty, it is removed instead. The caret is placed where they meet.
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

// The line at the end or start of a block: the block itself, or an item of a list.
const lineAtEdge = (block, edge) => {
    let line = block;
    while (isNamed(line, listNames) && line[edge])
        line = line[edge];
    return line && isLine(line) ? line : null;
};

// The lines at the beginning and the end of a selection; null if the engine should handle it, as for a selection across
// several cells.
const linesAcross = range => {
    const [first, second] = [closestBlock(range.startContainer), closestBlock(range.endContainer)];
    const isOurs = first !== second && isLine(first) && isLine(second)
        && closest(first, 'td,th,caption') === closest(second, 'td,th,caption');
    return isOurs ? [first, second] : null;
};

// Deletes a selection across several lines and joins what is left of them. Returns whether it did.
export const deleteAcrossLines = range => {
    const lines = linesAcross(range);
    if (!lines)
        return false;
    range.deleteContents();
    joinLines(...lines);
    return true;
};

// A function for Backspace or Delete at the edge of a line; null if the engine should handle the key.
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

let isEmptying = false;

const deleteByKey = event => {
    const range = currentRange();
    isEmptying = isWholeParagraph(range);
    const action = range.collapsed ? joinAtCaret(range.startContainer, range.startOffset, event.inputType.endsWith('Backward'))
        : linesAcross(range) && (() => deleteAcrossLines(range));
    if (!action) {
        noteBlanks();
        return;
    }
    event.preventDefault();
    history.run(action);
    reportState();
};

// Bare text between blocks, in a cell or in the body is put into a paragraph, so that it can be split into two.
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

// The engine copies ids to both halves of a paragraph; only the first one keeps them.
const afterSplit = () => {
    const block = closestBlock(getSelection().anchorNode);
    if (!block || block === bodyElement())
        return;
    trimSplit(block);
    for (const element of [block, ...block.querySelectorAll('[id]')]) {
        if (element.id !== '' && rootElement().querySelector(`#${CSS.escape(element.id)}`) !== element)
            dropAttribute(element, 'id');
    }
};

// When the engine joins paragraphs, it adds spans to preserve the look of what it moves, and rewrites the author's own.
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

const afterDeletion = changes => {
    dropJoinStyles(changes);
    restoreBlanks();
    if (isEmptying)
        noteEmptied();
};

// Deletes a selection within a paragraph, or the character behind the caret.
export const deleteNatively = range => {
    const isWhole = isWholeParagraph(range);
    noteBlanks();
    nativeCommand(range.collapsed ? 'forwardDelete' : 'delete', false, null);
    if (isWhole)
        noteEmptied();
};

const beginTyping = () => {
    deleteAcrossLines(currentRange());
    noteBlanks();
};

export const inputActions = {
    insertText: restoreBlanks,
    insertParagraph: afterSplit,
    deleteContentBackward: afterDeletion,
    deleteContentForward: afterDeletion,
    deleteWordBackward: afterDeletion,
    deleteWordForward: afterDeletion,
};

export const beforeInputActions = {
    insertParagraph: beginParagraph,
    insertText: beginTyping,
    insertLineBreak: () => deleteAcrossLines(currentRange()),
    deleteContentBackward: deleteByKey,
    deleteContentForward: deleteByKey,
    deleteWordBackward: deleteByKey,
    deleteWordForward: deleteByKey,
};

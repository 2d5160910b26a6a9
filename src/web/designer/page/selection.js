// SPDX-License-Identifier: GPL-3.0-or-later

// The selection and its contents.

import {bodyElement, createTreeWalker, hasFocus, isBlankText, isElement, isNamed, isText, rootElement, wordSet} from './nodes.js';

// Elements that a click selects as a whole.
export const controlNames = wordSet(`img input select textarea button object embed applet iframe hr video audio canvas table
    marquee zephira-mark`);

export const isAbsolute = element => getComputedStyle(element).position === 'absolute';
const isControl = node => isElement(node) && node !== bodyElement() && (isNamed(node, controlNames) || isAbsolute(node));

// Kept when the page loses the focus; some changes of the page invalidate it.
let lastRange = null;

export const currentRange = () => {
    const selection = getSelection();
    if (selection.rangeCount > 0 && rootElement().contains(selection.getRangeAt(0).commonAncestorContainer))
        lastRange = selection.getRangeAt(0);
    else if (lastRange?.commonAncestorContainer.isConnected)
        selection.addRange(lastRange);
    else
        selectStart();
    return getSelection().getRangeAt(0);
};

export const selectStart = () => getSelection().collapse(bodyElement() ?? rootElement(), 0);
export const placeCaret = (node, offset) => getSelection().collapse(node, offset);
export const selectElement = element => {
    const range = new Range();
    range.selectNode(element);
    const selection = getSelection();
    selection.removeAllRanges();
    selection.addRange(range);
};
export const placeCaretIn = element => {
    const first = element.firstChild;
    placeCaret(first && isText(first) ? first : element, 0);
};

// The element that is selected as a whole, or null.
export const selectedControl = () => {
    const selection = getSelection();
    if (selection.rangeCount === 0)
        return null;
    const range = selection.getRangeAt(0);
    if (range.startContainer !== range.endContainer || range.endOffset !== range.startOffset + 1)
        return null;
    const node = isText(range.startContainer) ? null : range.startContainer.childNodes[range.startOffset];
    return node && isControl(node) ? node : null;
};

export const selectionType = () => {
    const selection = getSelection();
    if (selection.rangeCount === 0 || selection.isCollapsed)
        return 'None';
    return selectedControl() ? 'Control' : 'Text';
};

export const bookmark = () => {
    const selection = getSelection();
    return selection.rangeCount === 0 ? null : {
        anchorNode: selection.anchorNode, anchorOffset: selection.anchorOffset,
        focusNode: selection.focusNode, focusOffset: selection.focusOffset,
    };
};

const lengthOf = node => isElement(node) ? node.childNodes.length : node.length;

// Ignores a bookmark whose nodes are gone. `replaced` maps elements to their replacements.
export const restore = (mark, replaced = new Map()) => {
    if (!mark)
        return;
    const anchor = replaced.get(mark.anchorNode) ?? mark.anchorNode;
    const focus = replaced.get(mark.focusNode) ?? mark.focusNode;
    if (anchor?.isConnected && focus?.isConnected)
        getSelection().setBaseAndExtent(anchor, Math.min(mark.anchorOffset, lengthOf(anchor)),
            focus, Math.min(mark.focusOffset, lengthOf(focus)));
};

// The engine takes no typing at a selection that was set while the page didn't have the focus.
let isIdle = false;

export const noteSelection = () => {
    isIdle ||= !hasFocus();
};

export const awakeSelection = () => {
    const mark = isIdle ? bookmark() : null;
    isIdle = false;
    if (mark)
        getSelection().removeAllRanges();
    restore(mark);
};

// Whether a range includes content of a node, rather than only touching its edge.
export const reaches = (range, node) => {
    if (!range.intersectsNode(node))
        return false;
    if (range.collapsed || !node.contains(range.endContainer) || node.contains(range.startContainer))
        return true;
    const lead = new Range();
    lead.selectNodeContents(node);
    lead.setEnd(range.endContainer, range.endOffset);
    return lead.toString() !== '';
};

// The maximum number of texts and paragraphs of a selection that are examined for common properties.
export const mostLookedAt = 500;

// The visible text nodes of a range, at most `most` of them.
export const selectedTexts = (range, most) => {
    const texts = [];
    if (isText(range.commonAncestorContainer))
        return [range.commonAncestorContainer];
    const walker = createTreeWalker(range.commonAncestorContainer, NodeFilter.SHOW_TEXT);
    walker.currentNode = isText(range.startContainer) || !range.startContainer.childNodes[range.startOffset]
        ? range.startContainer : range.startContainer.childNodes[range.startOffset];
    for (let node = walker.currentNode; node && texts.length < most; node = walker.nextNode()) {
        if (!isText(node))
            continue;
        if (!range.intersectsNode(node))
            break;
        const begin = node === range.startContainer ? range.startOffset : 0;
        const end = node === range.endContainer ? range.endOffset : node.length;
        if (end > begin && !isBlankText(node))
            texts.push(node);
    }
    return texts;
};

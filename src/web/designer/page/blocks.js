// SPDX-License-Identifier: GPL-3.0-or-later

// Paragraphs and their formats.

import {
    bodyElement, closestBlock, containsBlock, createElement, elementOf, isBlankText, isBlock, isEmptyElement, isNamed,
    paragraphNames, tightNames, wordSet
} from './nodes.js';
import {currentRange, reaches} from './selection.js';
import {tableCellNames} from './tables.js';

// Block formats with the names shown in menus. A block gets the name of the first format that matches.
export const blockFormats = [
    {name: 'Normal', tag: 'p'},
    {name: 'Formatted', tag: 'pre'},
    {name: 'Address', tag: 'address'},
    {name: 'Heading 1', tag: 'h1'},
    {name: 'Heading 2', tag: 'h2'},
    {name: 'Heading 3', tag: 'h3'},
    {name: 'Heading 4', tag: 'h4'},
    {name: 'Heading 5', tag: 'h5'},
    {name: 'Heading 6', tag: 'h6'},
    {name: 'Numbered List', tag: 'li', list: 'ol'},
    {name: 'Bulleted List', tag: 'li', list: 'ul'},
    {name: 'Directory List', tag: 'li', list: 'dir'},
    {name: 'Menu List', tag: 'li', list: 'menu'},
    {name: 'Definition Term', tag: 'dt', list: 'dl'},
    {name: 'Definition', tag: 'dd', list: 'dl'},
    {name: 'Paragraph', tag: 'p'},
];

export const listNames = wordSet('ol ul dir menu dl');
export const itemSelector = 'li,dt,dd';
export const itemNames = wordSet('li dt dd');

export const blockFormatNames = () => blockFormats.map(format => format.name);

export const formatOf = node => {
    for (let element = elementOf(node); element && element !== bodyElement(); element = element.parentElement) {
        const format = blockFormats.find(each => each.tag === element.localName
            && (!each.list || each.tag !== 'li' || each.list === element.parentElement.localName));
        if (format)
            return format.name;
        if (isNamed(element, tableCellNames))
            break;
    }
    return 'Normal';
};

// The paragraphs that a range touches, in document order: elements of their own, or runs of text and inline elements
// between blocks. They are found one by one, so that a caller who needs only a few doesn't pay for all.
const paragraphsIn = function* (parent, range) {
    let run = [];
    const touches = nodes => nodes.some(node => !isBlankText(node) && reaches(range, node));
    for (const node of parent.childNodes) {
        const holdsBlocks = containsBlock(node);
        if (!isBlock(node) && !holdsBlocks) {
            if (run.length > 0 || !isBlankText(node))
                run.push(node);
            continue;
        }
        if (touches(run))
            yield {parent, nodes: run};
        run = [];
        if (!reaches(range, node))
            continue;
        if (isNamed(node, paragraphNames) && !holdsBlocks)
            yield {element: node};
        else
            yield* paragraphsIn(node, range);
    }
    if (touches(run))
        yield {parent, nodes: run};
};

export const selectedParagraphs = (most = Infinity) => {
    const range = currentRange();
    const block = closestBlock(range.commonAncestorContainer) ?? bodyElement();
    if (isNamed(block, paragraphNames))
        return [{element: block}];
    const paragraphs = [];
    for (const paragraph of paragraphsIn(block, range)) {
        if (paragraphs.push(paragraph) === most)
            break;
    }
    const isEmptyPlace = paragraphs.length === 0 && range.collapsed && !isNamed(block, tightNames) && !containsBlock(block);
    return isEmptyPlace ? [{parent: block, nodes: [...block.childNodes]}] : paragraphs;
};

export const startOf = paragraph => paragraph.element ?? paragraph.nodes[0] ?? paragraph.parent;

// The block formats of the selection, or of at most its first `most` paragraphs, without duplicates.
export const selectedFormats = (most = Infinity) => {
    const range = currentRange();
    if (range.collapsed)
        return [formatOf(range.startContainer)];
    return [...new Set(selectedParagraphs(most).map(paragraph => formatOf(startOf(paragraph))))];
};

export const wrapParagraph = ({parent, nodes}, name) => {
    const block = createElement(name);
    parent.insertBefore(block, nodes[0] ?? null);
    for (const node of nodes)
        block.append(node);
    if (isEmptyElement(block) && !block.querySelector('br'))
        block.append(createElement('br'));
    return block;
};

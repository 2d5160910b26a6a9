// SPDX-License-Identifier: GPL-3.0-or-later

// Gives paragraphs another format, or makes lists of them.

import {blockFormats, selectedFormats, selectedParagraphs, wrapParagraph} from './blocks.js';
import {liftSelectedItems} from './lists.js';
import {bodyElement, createElement, isBlankText, isElement, moveChildren, renameElement} from './nodes.js';
import {bookmark, placeCaretIn, restore} from './selection.js';

// Gives a paragraph an element of that name; `replaced` learns what has taken whose place.
const makeBlock = (paragraph, name, replaced) => {
    if (!paragraph.element)
        return wrapParagraph(paragraph, name);
    if (paragraph.element.localName === name)
        return paragraph.element;
    const block = renameElement(paragraph.element, name);
    replaced.set(paragraph.element, block);
    return block;
};

// Puts blocks that follow each other into one list, together with a list of the same kind before them.
const makeList = (blocks, format, replaced) => {
    let list = null;
    for (const block of blocks) {
        let before = block.previousSibling;
        while (before && isBlankText(before))
            before = before.previousSibling;
        if (!list || before !== list) {
            list = before && isElement(before) && before.localName === format.list ? before : createElement(format.list);
            if (list !== before)
                block.before(list);
        }
        const item = createElement(format.tag);
        list.append(item);
        moveChildren(block, item);
        block.remove();
        replaced.set(block, item);
    }
};

export const setBlockFormat = name => {
    const format = blockFormats.find(each => each.name === name);
    if (!format)
        return;
    if (format.list || format.tag === 'p')
        liftSelectedItems();
    const mark = bookmark();
    const replaced = new Map();
    const blocks = selectedParagraphs().map(paragraph =>
        makeBlock(paragraph, format.list ? 'p' : format.tag, replaced));
    if (format.list)
        makeList(blocks, format, replaced);
    restore(mark, replaced);
    if (blocks.length > 0 && getSelection().anchorNode === bodyElement())
        placeCaretIn(replaced.get(blocks[0]) ?? blocks[0]);
};

// Makes a list of the selection, or text of the list.
export const toggleList = name => {
    if (selectedFormats().every(format => format === name))
        setBlockFormat('Normal');
    else
        setBlockFormat(name);
};

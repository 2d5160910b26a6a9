// SPDX-License-Identifier: GPL-3.0-or-later

// Changes the format of paragraphs, or turns them into lists.

import {blockFormats, selectedFormats, selectedParagraphs, wrapParagraph} from './blocks.js';
import {liftSelectedItems} from './lists.js';
import {bodyElement, createElement, isBlankText, isElement, moveChildren, renameElement} from './nodes.js';
import {bookmark, placeCaretIn, restore} from './selection.js';
import {runNative, setStyleNatively} from './styles.js';

// Changes a paragraph into an element of that name; `replaced` maps the old element to the new one.
const makeBlock = (paragraph, name, replaced) => {
    if (!paragraph.element)
        return wrapParagraph(paragraph, name);
    if (paragraph.element.localName === name)
        return paragraph.element;
    const block = renameElement(paragraph.element, name);
    replaced.set(paragraph.element, block);
    return block;
};

// Puts consecutive blocks into one list, or into a list of the same kind that precedes them.
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

// Turns the selection into a list, or a list back into text.
export const toggleList = name => {
    if (selectedFormats().every(format => format === name))
        setBlockFormat('Normal');
    else
        setBlockFormat(name);
};

// The engine makes a paragraph of each line, even within a paragraph, which can't contain one.
const holdsLines = ({element}) => element && (element.localName === 'pre' || element.querySelector('br') !== null);

// Aligns the selected paragraphs, `side` being 'left', 'center' or 'right'.
export const alignParagraphs = (name, side) => {
    const paragraphs = selectedParagraphs();
    if (!paragraphs.some(holdsLines)) {
        runNative(name);
        return;
    }
    const mark = bookmark();
    for (const paragraph of paragraphs)
        setStyleNatively(paragraph.element ?? wrapParagraph(paragraph, 'p'), 'text-align', side);
    restore(mark);
};

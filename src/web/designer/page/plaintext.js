// SPDX-License-Identifier: GPL-3.0-or-later

// Documents that aren't markup, such as programs and style sheets: their text is put into one element unchanged, is
// edited as text, and is returned unchanged.

import {Command} from './command.js';
import {history} from './history.js';
import {bodyElement, createElement, isBlock, isText} from './nodes.js';
import {reportState} from './reports.js';
import {currentRange, placeCaret} from './selection.js';

export let isPlain = false;

export const setPlain = wanted => {
    isPlain = wanted;
};

export const plainShell = '<!DOCTYPE html><pre></pre>';

// Blanks and line ends are preserved in whatever elements the engine puts around the text.
export const plainRules = ['* { white-space: pre-wrap !important; overflow-wrap: anywhere !important; }'];

// All other commands produce markup.
export const plainCommands = new Set([Command.Copy, Command.Cut, Command.Delete, Command.FindText, Command.Paste, Command.Redo,
    Command.SelectAll, Command.Undo]);

const lastLeaf = root => {
    let leaf = root;
    while (leaf.lastChild)
        leaf = leaf.lastChild;
    return leaf;
};

// A break after the text makes room for the caret after its last line end. It is not part of the text.
const openLastLine = () => {
    const leaf = lastLeaf(bodyElement());
    if (leaf.localName !== 'br')
        (isText(leaf) ? leaf.parentNode : leaf).append(createElement('br'));
};

export const showPlainText = text => {
    bodyElement().firstChild.append(new Text(text));
    openLastLine();
};

// A caret before or after the element with the text is moved to the text's beginning or end.
const moveIntoText = range => {
    const holder = bodyElement().querySelector('pre');
    if (!holder || holder.contains(range.startContainer))
        return;
    if (range.comparePoint(holder, 0) > 0)
        range.setStart(holder, 0);
    else
        range.setStartBefore(lastLeaf(holder));
    range.collapse(true);
};

// The text in a node. A break ends a line, and a block that follows other content begins a new one.
const textIn = root => {
    const opening = lastLeaf(root);
    let text = '';
    const addAll = parent => {
        for (const node of parent.childNodes) {
            if (isText(node))
                text += node.data;
            else if (node.localName === 'br')
                text += node === opening ? '' : '\n';
            else {
                if (isBlock(node) && node.previousSibling && !text.endsWith('\n'))
                    text += '\n';
                addAll(node);
            }
        }
    };
    addAll(root);
    return text;
};

export const plainText = () => textIn(bodyElement());
export const selectedPlainText = () => textIn(currentRange().cloneContents());

// Replaces the selection by a text and places the caret after it.
export const insertPlainText = text => {
    const range = currentRange();
    range.deleteContents();
    moveIntoText(range);
    const node = new Text(text);
    range.insertNode(node);
    placeCaret(node, node.length);
    openLastLine();
};

const lineEndInputs = new Set(['insertParagraph', 'insertLineBreak']);

// The engine would end lines with elements, and supports keys that change the format.
export const onPlainInput = event => {
    if (lineEndInputs.has(event.inputType))
        history.run(() => insertPlainText('\n'));
    else if (!event.inputType.startsWith('format'))
        return;
    event.preventDefault();
    reportState();
};

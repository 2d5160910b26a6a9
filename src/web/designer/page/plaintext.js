// SPDX-License-Identifier: GPL-3.0-or-later

// Documents that are no markup, as programs and style sheets: their text stands in one element as it is, is edited as
// text, and comes back as it stands there.

let isPlain = false;

const plainShell = '<!DOCTYPE html><pre></pre>';

// Whatever the engine puts around the text, blanks and line ends keep their meaning in it.
const plainRules = ['* { white-space: pre-wrap !important; overflow-wrap: anywhere !important; }'];

// To copy, cut, delete, find, paste, redo, select all and undo. All others make markup.
const plainCommands = new Set([5002, 5003, 5004, 5008, 5032, 5033, 5035, 5049]);

const lastLeaf = root => {
    let leaf = root;
    while (leaf.lastChild)
        leaf = leaf.lastChild;
    return leaf;
};

// A break behind the text makes room for the caret behind its last line end. It is no part of the text.
const openLastLine = () => {
    const leaf = lastLeaf(bodyElement());
    if (leaf.localName !== 'br')
        (isText(leaf) ? leaf.parentNode : leaf).append(createElement('br'));
};

const showPlainText = text => {
    bodyElement().firstChild.append(new Text(text));
    openLastLine();
};

// A caret beside the element that holds the text means the text's beginning or end.
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

// The text of what a node holds. A break ends a line, and so does a block that follows something.
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

const plainText = () => textIn(bodyElement());
const selectedPlainText = () => textIn(currentRange().cloneContents());

// Puts a text in the place of the selection and the caret behind it.
const insertPlainText = text => {
    const range = currentRange();
    range.deleteContents();
    moveIntoText(range);
    const node = new Text(text);
    range.insertNode(node);
    placeCaret(node, node.length);
    openLastLine();
};

const lineEndInputs = new Set(['insertParagraph', 'insertLineBreak']);

// The engine would end lines by elements, and knows keys that format.
const onPlainInput = event => {
    if (lineEndInputs.has(event.inputType))
        history.run(() => insertPlainText('\n'));
    else if (!event.inputType.startsWith('format'))
        return;
    event.preventDefault();
    reportState();
};

// SPDX-License-Identifier: GPL-3.0-or-later

// Elements of a page can have names that hide the document's own members (<img name=body>), so those are taken from the
// prototype.

const documentMember = name => {
    const member = Object.getOwnPropertyDescriptor(Document.prototype, name);
    return member.get ? () => member.get.call(document) : member.value.bind(document);
};

const getterOf = name => Object.getOwnPropertyDescriptor(Document.prototype, name).get;
// Those of any page, not only of the shown one.
export const rootOf = page => getterOf('documentElement').call(page);
export const bodyOf = page => getterOf('body').call(page);
export const rootElement = documentMember('documentElement');
export const bodyElement = documentMember('body');
export const createElement = documentMember('createElement');
export const createTreeWalker = documentMember('createTreeWalker');
export const caretRangeFromPoint = documentMember('caretRangeFromPoint');
export const nativeCommand = documentMember('execCommand');
export const nativeEnabled = documentMember('queryCommandEnabled');
export const nativeState = documentMember('queryCommandState');
export const nativeMixed = documentMember('queryCommandIndeterm');
export const nativeValue = documentMember('queryCommandValue');
export const openDocument = documentMember('open');
export const writeDocument = documentMember('write');
export const closeDocument = documentMember('close');
export const readyState = documentMember('readyState');
export const hasFocus = documentMember('hasFocus');
export const importNode = documentMember('importNode');
export const query = documentMember('querySelectorAll');
export const styleSheets = documentMember('styleSheets');
export const setDocumentMember = (name, value) =>
    Object.getOwnPropertyDescriptor(Document.prototype, name).set.call(document, value);

const adoptedSheets = documentMember('adoptedStyleSheets');

// Adds a sheet of ours to those of the page.
export const adopt = sheet => {
    if (!adoptedSheets().includes(sheet))
        setDocumentMember('adoptedStyleSheets', [...adoptedSheets(), sheet]);
};

export const wordSet = words => new Set(words.split(/\s+/));

const blockNames = wordSet(`address article aside blockquote body caption center dd details dialog dir div dl dt fieldset
    figcaption figure footer form h1 h2 h3 h4 h5 h6 header hr li main menu nav ol p pre section table tbody td tfoot th
    thead tr ul`);
const blockSelector = [...blockNames].join(',');
// Blocks that a browser ends at the start tag of another block.
export const paragraphNames = wordSet('p h1 h2 h3 h4 h5 h6 pre address');
// Elements that may contain only certain other elements, so that nothing can be shown in them.
export const tightNames = wordSet('html head frameset table thead tbody tfoot tr colgroup select optgroup datalist');

export const isElement = node => node.nodeType === Node.ELEMENT_NODE;
export const isText = node => node.nodeType === Node.TEXT_NODE;
export const isNamed = (node, names) => isElement(node) && names.has(node.localName);
export const isBlock = node => isNamed(node, blockNames);
export const isBlankText = node => isText(node) && /^[ \t\r\n\f]*$/.test(node.data);

export const elementOf = node => isElement(node) ? node : node.parentElement;
export const closest = (node, selector) => elementOf(node)?.closest(selector) ?? null;
export const closestBlock = node => {
    let block = elementOf(node);
    while (block && !isBlock(block))
        block = block.parentElement;
    return block;
};
export const containsBlock = node => isElement(node) && node.querySelector(blockSelector) !== null;
export const indexOf = node => Array.prototype.indexOf.call(node.parentNode.childNodes, node);

// Whether an element shows nothing to the user.
export const isEmptyElement = element =>
    /^[ \t\r\n\f]*$/.test(element.textContent) && !element.querySelector('img,input,button,select,textarea,hr,table,'
        + 'object,embed,iframe,video,audio,canvas,svg,a[name],zephira-mark');

// Changes in a subtree outside the document aren't observed and can't be undone. So new elements are inserted into the
// document first, and live nodes are then moved into them one by one.
export const moveChildren = (from, to) => {
    while (from.firstChild)
        to.append(from.firstChild);
};

// An attribute that is restored by undo becomes the last one. So the attributes after it are removed and set again too,
// in an order that makes undo restore their positions.
const plainName = /^[a-z_:][\w:.-]*$/i;

export const dropAttribute = (element, name) => {
    const names = element.getAttributeNames();
    const behind = names.slice(names.indexOf(name) + 1).map(each => [each, element.getAttribute(each)]);
    if (!names.includes(name) || !behind.every(([each]) => plainName.test(each))) {
        element.removeAttribute(name);
        return;
    }
    for (const [each] of behind.slice().reverse())
        element.removeAttribute(each);
    element.removeAttribute(name);
    for (const [each, value] of behind)
        element.setAttribute(each, value);
};

export const renameElement = (element, name) => {
    const renamed = createElement(name);
    for (const attribute of element.attributes)
        renamed.setAttributeNode(attribute.cloneNode());
    element.before(renamed);
    moveChildren(element, renamed);
    element.remove();
    return renamed;
};

export const unwrapElement = element => {
    while (element.firstChild)
        element.before(element.firstChild);
    element.remove();
};

// An empty copy of an element, for the part that is split off. An id stays with the first part.
export const emptyTwin = element => {
    const twin = element.cloneNode(false);
    twin.removeAttribute('id');
    return twin;
};

// Splits an element at a position inside it; returns the second part, which follows the first.
export const splitElement = (element, node, offset) => {
    let rest;
    if (isText(node)) {
        rest = node.splitText(offset);
    } else {
        rest = node.childNodes[offset] ?? null;
        if (!rest) {
            rest = new Text('');
            node.append(rest);
        }
    }
    while (rest.parentNode !== element.parentNode) {
        const parent = rest.parentNode;
        const second = emptyTwin(parent);
        parent.after(second);
        for (let next = rest; next;) {
            const following = next.nextSibling;
            second.append(next);
            next = following;
        }
        rest = second;
    }
    return rest;
};

// SPDX-License-Identifier: GPL-3.0-or-later

// Block formats by the names that menus show. A block of the first format that fits bears its name.
const blockFormats = [
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

const listNames = wordSet('ol ul dir menu dl');
const itemSelector = 'li,dt,dd';
const itemNames = wordSet('li dt dd');

const blockFormatNames = () => blockFormats.map(format => format.name);

const formatOf = node => {
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

// The paragraphs that a range touches, in their order: elements of their own, or runs of text and inline elements between
// blocks. They are looked for as they are taken, so that who wants a few doesn't pay for all.
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

const selectedParagraphs = (most = Infinity) => {
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

const startOf = paragraph => paragraph.element ?? paragraph.nodes[0] ?? paragraph.parent;

// The block formats of the selection, or of the first paragraphs in it, each once.
const selectedFormats = (most = Infinity) => {
    const range = currentRange();
    if (range.collapsed)
        return [formatOf(range.startContainer)];
    return [...new Set(selectedParagraphs(most).map(paragraph => formatOf(startOf(paragraph))))];
};

const wrapParagraph = ({parent, nodes}, name) => {
    const block = createElement(name);
    parent.insertBefore(block, nodes[0] ?? null);
    for (const node of nodes)
        block.append(node);
    if (isEmptyElement(block) && !block.querySelector('br'))
        block.append(createElement('br'));
    return block;
};

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

const setBlockFormat = name => {
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
const toggleList = name => {
    if (selectedFormats().every(format => format === name))
        setBlockFormat('Normal');
    else
        setBlockFormat(name);
};

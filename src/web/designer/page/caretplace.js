// SPDX-License-Identifier: GPL-3.0-or-later

// Where the caret goes when the page is shown, and where in the source it is when the page is left. A place is counted
// from the last start tag before it; pageplace.cpp does the same in the source, and knows the same kinds of elements.

import {bodyElement, closest, createTreeWalker, elementOf, indexOf, isElement, isNamed, isText, query, wordSet} from './nodes.js';
import {isPlain} from './plaintext.js';
import {controlNames, noteSelection, placeCaret, selectElement} from './selection.js';

// Elements whose content doesn't count.
const closedSelector = 'script,style,noscript,template,title,textarea,select,iframe,noembed,noframes,svg,math,zephira-mark';
const unseenNames = wordSet('script style noscript template title noembed noframes zephira-mark');
// Elements of which the engine may have more or fewer than the source, or which show nothing.
const passedNames = wordSet(`a b base basefont bgsound big body code colgroup em font frameset head html i image link meta
    nobr s small strike strong tbody tt u`);

const isAnchor = element => !passedNames.has(element.localName) && !unseenNames.has(element.localName);

const comparedCharacters = 32;
const comparedParts = 400;
const mostBlanks = 2000;
const farthestCompared = 100;
// How many nodes are passed on the way to a place.
const mostPassed = 50000;

// The nodes of the page behind `node` in the order of the source, apart from those that don't count.
const nodesBehind = function* (node) {
    const walker = createTreeWalker(bodyElement(), NodeFilter.SHOW_ELEMENT | NodeFilter.SHOW_TEXT);
    walker.currentNode = node;
    for (let passed = 0; passed < mostPassed; ++passed) {
        let next = null;
        if (isElement(walker.currentNode) && walker.currentNode.matches(closedSelector)) {
            while (!next && walker.currentNode) {
                next = walker.nextSibling();
                if (!next && !walker.parentNode())
                    return;
            }
        } else {
            next = walker.nextNode();
        }
        if (!next)
            return;
        yield next;
    }
};

// Those before it, from the last to the first.
const nodesBefore = function* (node) {
    const walker = createTreeWalker(bodyElement(), NodeFilter.SHOW_ELEMENT | NodeFilter.SHOW_TEXT);
    walker.currentNode = node;
    for (let passed = 0; passed < mostPassed; ++passed) {
        let before = walker.previousNode();
        if (!before)
            return;
        const closed = closest(before.parentNode, closedSelector);
        if (closed) {
            walker.currentNode = closed;
            before = closed;
        }
        yield before;
    }
};

const elementsNamed = name => {
    const selector = CSS.escape(name);
    const closed = new Set();
    for (const element of query('select,svg,math'))
        element.querySelectorAll(selector).forEach(each => closed.add(each));
    const all = [...query(selector)];
    return closed.size > 0 ? all.filter(element => !closed.has(element)) : all;
};

const followingText = element => {
    let following = '';
    let parts = 0;
    for (const node of nodesBehind(element)) {
        if (isText(node))
            following += node.data.slice(0, mostBlanks).replace(/[ \t\r\n\f]+/g, '');
        if (following.length >= comparedCharacters || ++parts === comparedParts)
            break;
    }
    return following.slice(0, comparedCharacters);
};

const anchorOf = place => {
    if (place.anchor === '')
        return bodyElement();
    const found = elementsNamed(place.anchor);
    if (found.length === 0)
        return null;
    const wanted = Math.min(place.number, found.length - 1);
    for (let distance = 0; distance <= farthestCompared; ++distance) {
        for (const element of [found[wanted - distance], found[wanted + distance]]) {
            if (element && followingText(element) === place.following)
                return element;
        }
    }
    return found[wanted];
};

const emptyNames = wordSet('area br col embed hr img input keygen param source track wbr');
const isHollow = element => isNamed(element, emptyNames) || element.matches(closedSelector);

const insideOrBehind = element =>
    isHollow(element) ? [element.parentNode, indexOf(element) + 1] : [element, 0];

// The position in the page, as node and offset, of a place.
const positionOf = (anchor, {characters, isBehindTags}) => {
    let position = insideOrBehind(anchor);
    let missing = characters;
    if (missing === 0 && !isBehindTags) {
        const first = isHollow(anchor) ? anchor.nextSibling : anchor.firstChild;
        return first && isText(first) ? [first, 0] : position;
    }
    for (const node of nodesBehind(anchor)) {
        if (isElement(node)) {
            if (isAnchor(node))
                break;
        } else if (missing === 0) {
            return [node, 0];
        } else {
            position = [node, Math.min(missing, node.length)];
            missing -= position[1];
            if (missing === 0 && (position[1] < node.length || !isBehindTags))
                break;
        }
    }
    return position;
};

const boxOf = (node, offset) => {
    const range = new Range();
    range.setStart(node, offset);
    return range.getClientRects()[0] ?? null;
};

const hasBox = node => {
    const range = new Range();
    if (isText(node))
        range.selectNodeContents(node);
    else
        range.selectNode(node);
    return range.getClientRects().length > 0;
};

const isRoom = node => isText(node) ? hasBox(node) : isHollow(node) && hasBox(node);
const behindRoom = node => isText(node) ? [node, node.length] : insideOrBehind(node);
const beforeRoom = node => isText(node) ? [node, 0] : [node.parentNode, indexOf(node)];

const firstRoom = nodes => {
    for (const node of nodes) {
        if (isRoom(node))
            return node;
    }
    return null;
};

// Blanks between blocks, and what style sheets hide, have no place for a caret. Blanks at the beginning of a line belong
// to what comes next, others to what was before.
const visiblePosition = ([node, offset]) => {
    if (isElement(node) ? node === bodyElement() || hasBox(node) : hasBox(node))
        return [node, offset];
    const isNewLine = isText(node) && node.data.slice(0, offset).includes('\n');
    const before = firstRoom(nodesBefore(node));
    const next = isNewLine || !before ? firstRoom(nodesBehind(node)) : null;
    return next ? beforeRoom(next) : before ? behindRoom(before) : null;
};

// The selection that was made without the user.
let given = null;

const selectionNow = () => {
    const {anchorNode, anchorOffset, focusNode, focusOffset} = getSelection();
    return [anchorNode, anchorOffset, focusNode, focusOffset];
};

export const noteGivenCaret = () => {
    given = selectionNow();
    // The event comes later, when the page may have the focus already.
    noteSelection();
};

const isCaretAsGiven = () => given !== null && selectionNow().every((each, index) => each === given[index]);

const bringCaretIntoSight = () => {
    const {focusNode, focusOffset} = getSelection();
    const element = elementOf(isText(focusNode) ? focusNode : focusNode.childNodes[focusOffset] ?? focusNode);
    const isSeen = box => box.bottom > 0 && box.top >= 0 && box.top < innerHeight;
    const box = () => boxOf(focusNode, focusOffset) ?? element.getBoundingClientRect();
    if (isSeen(box()))
        return;
    element.scrollIntoView({block: 'nearest', inline: 'nearest', behavior: 'instant'});
    const {top} = box();
    window.scrollBy({top: top - innerHeight / 2, behavior: 'instant'});
};

// Style sheets and pictures that come later move what was in sight.
const keepInSight = () => {
    bringCaretIntoSight();
    const scrolled = window.scrollY;
    window.addEventListener('load', () => {
        if (isCaretAsGiven() && window.scrollY === scrolled)
            bringCaretIntoSight();
    }, {once: true});
};

const showPlainCaret = characters => {
    const text = bodyElement().querySelector('pre')?.firstChild;
    if (text && isText(text))
        placeCaret(text, Math.min(characters, text.length));
};

// Returns whether there is such a place in the page.
export const showCaretAt = place => {
    if (!bodyElement() || bodyElement().localName === 'frameset')
        return false;
    if (isPlain) {
        showPlainCaret(place.characters);
    } else {
        const anchor = anchorOf(place);
        const position = anchor ? visiblePosition(positionOf(anchor, place)) : null;
        if (!position)
            return false;
        placeCaret(...position);
    }
    noteGivenCaret();
    keepInSight();
    return true;
};

// Shows the element whose tag was the last before a place; one that has no room for a caret is selected.
export const showElementAt = place => {
    const anchor = isPlain || place.anchor === '' ? null : anchorOf(place);
    const isWhole = anchor && place.characters === 0 && !place.isBehindTags && isNamed(anchor, controlNames)
        && anchor.localName !== 'table' && hasBox(anchor);
    if (!showCaretAt(place))
        return false;
    if (isWhole) {
        selectElement(anchor);
        noteGivenCaret();
        keepInSight();
    }
    return true;
};

const plainPlace = (node, offset) => {
    const range = new Range();
    range.setStart(bodyElement(), 0);
    range.setEnd(node, offset);
    const content = range.cloneContents();
    const characters = content.textContent.length + content.querySelectorAll('br').length;
    return {anchor: '', number: 0, characters, isBehindTags: false, parent: '', following: ''};
};

// From which node the way back begins, whether that node itself counts, and what is before the caret in it.
const beginningOf = (node, offset) => {
    if (isText(node))
        return {node, characters: offset, isBehindTags: offset === 0, counts: false};
    const before = node.childNodes[offset - 1];
    if (!before)
        return {node, characters: 0, isBehindTags: false, counts: true};
    let last = before;
    while (last.lastChild && !last.matches(closedSelector))
        last = last.lastChild;
    return {node: last, characters: 0, isBehindTags: !isText(before), counts: true};
};

// The place of the caret; null if the user hasn't moved it, or it is outside of the page's body.
export const caretPlace = () => {
    const {focusNode, focusOffset} = getSelection();
    if (isCaretAsGiven() || !focusNode || !bodyElement()?.contains(focusNode))
        return null;
    if (isPlain)
        return plainPlace(focusNode, focusOffset);
    const closed = closest(focusNode, closedSelector);
    const [container, offset] = closed ? insideOrBehind(closed) : [focusNode, focusOffset];
    const start = beginningOf(container, offset);
    let {characters, isBehindTags} = start;
    let anchor = null;
    const pass = node => {
        if (isText(node))
            characters += node.length;
        else if (node === bodyElement() || isAnchor(node))
            anchor = node;
        else if (characters === 0)
            isBehindTags = true;
    };
    if (start.counts)
        pass(start.node);
    for (const node of anchor ? [] : nodesBefore(start.node)) {
        pass(node);
        if (anchor)
            break;
    }
    anchor ??= bodyElement();
    // Nothing but the anchor's own tag is before the caret.
    if (characters === 0 && (anchor === container || anchor === container.previousSibling
        || (isText(container) && container === anchor.firstChild)))
        isBehindTags = false;
    if (anchor === bodyElement())
        return {anchor: '', number: 0, characters, isBehindTags, parent: elementOf(container).localName, following: ''};
    const name = anchor.localName;
    return {anchor: name, number: elementsNamed(name).indexOf(anchor), characters, isBehindTags,
        parent: elementOf(container).localName, following: followingText(anchor)};
};

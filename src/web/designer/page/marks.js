// SPDX-License-Identifier: GPL-3.0-or-later

// Server code and comments are represented by comments of one word. Where a sign can be shown, such a comment is
// replaced by an element, so that the user can see, select, move and delete it.

import {bodyOf, closest, createElement, createTreeWalker, isNamed, rootOf, tightNames} from './nodes.js';

export const markName = 'zephira-mark';

export let markPrefix = 'zs';

export const setMarkPrefix = prefix => {
    markPrefix = prefix;
};

const isMarkComment = node => new RegExp(`^${markPrefix}x\\d+[sc]$`).test(node.data);

// After stray end tags, a comment ends up outside the root element, where it would be invisible and get lost.
export const gatherComments = page => {
    const root = rootOf(page);
    const host = bodyOf(page) ?? root;
    const outside = [...page.childNodes].filter(node => node.nodeType === Node.COMMENT_NODE);
    const isBefore = node => node.compareDocumentPosition(root) & Node.DOCUMENT_POSITION_FOLLOWING;
    const [before, after] = [outside.filter(isBefore), outside.filter(node => !isBefore(node))];
    host.prepend(...before);
    host.append(...after);
};

export const showMarks = root => {
    const walker = createTreeWalker(root, NodeFilter.SHOW_COMMENT);
    const comments = [];
    while (walker.nextNode())
        comments.push(walker.currentNode);
    for (const comment of comments) {
        const parent = comment.parentNode;
        if (!isMarkComment(comment) || isNamed(parent, tightNames) || closest(parent, 'head,select,svg,math'))
            continue;
        const mark = createElement(markName);
        mark.setAttribute('mark', comment.data);
        comment.replaceWith(mark);
    }
};

// The markup with comments in the place of the elements that represent marks.
export const asComments = markup =>
    markup.replace(new RegExp(`<${markName} mark="(\\w+)"[^>]*>[^]*?</${markName}>`, 'g'), '<!--$1-->');

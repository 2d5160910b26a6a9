// SPDX-License-Identifier: GPL-3.0-or-later

// The outline round the element of the caret: a style sheet of ours beside those of the page, which the page's elements
// don't notice.

import {adopt, bodyElement, rootElement} from './nodes.js';

const style = 'outline: 2px solid #2a82da !important; outline-offset: 1px !important;';

let sheet = null;
let outlined = null;

const childNumber = element => [...element.parentNode.children].indexOf(element) + 1;

const selectorOf = element => {
    const steps = [];
    for (; element !== rootElement() && element.parentElement; element = element.parentElement)
        steps.unshift(`:nth-child(${childNumber(element)})`);
    return [':root', ...steps].join(' > ');
};

// After a change of the page the same element may be another child of its parent.
export const refreshOutline = () => showOutline(outlined?.isConnected ? outlined : null);

export const showOutline = element => {
    outlined = element === bodyElement() || element === rootElement() ? null : element;
    if (!sheet && !outlined)
        return;
    sheet ??= new CSSStyleSheet();
    adopt(sheet);
    sheet.replaceSync(outlined ? `${selectorOf(outlined)} { ${style} }` : '');
};

export const forgetOutline = () => {
    sheet = null;
    outlined = null;
};

// Scrolls no farther than needed, and not at all if something of the element is in sight.
export const bringIntoSight = element => {
    const box = element.getBoundingClientRect();
    const isSeen = box.bottom > 0 && box.top < innerHeight;
    if (!isSeen && (box.width > 0 || box.height > 0))
        element.scrollIntoView({block: 'center', behavior: 'instant'});
};

// SPDX-License-Identifier: GPL-3.0-or-later

// When one property changes, the engine rewrites the whole style attribute and drops what it doesn't know. Here the
// author's text is kept except for that property.

import {history} from './history.js';
import {createElement, dropAttribute, nativeCommand} from './nodes.js';

const declarationsOf = text => {
    const declarations = [];
    let begin = 0;
    let depth = 0;
    let quote = '';
    for (let i = 0; i < text.length; ++i) {
        const c = text[i];
        if (quote)
            quote = c === quote ? '' : quote;
        else if (c === '"' || c === "'")
            quote = c;
        else if (c === '(')
            ++depth;
        else if (c === ')')
            depth = Math.max(0, depth - 1);
        else if (c === ';' && depth === 0) {
            declarations.push(text.slice(begin, i));
            begin = i + 1;
        }
    }
    declarations.push(text.slice(begin));
    return declarations.filter(declaration => declaration.trim() !== '');
};

const propertyOf = declaration => declaration.slice(0, declaration.indexOf(':')).trim().toLowerCase();

// The style text with a property set, or removed if the value is empty.
const styleTextWith = (text, property, value) => {
    const declarations = declarationsOf(text);
    const others = declarations.filter(declaration => propertyOf(declaration) !== property);
    if (value === '')
        return others.join(';').trim();
    const place = declarations.findIndex(declaration => propertyOf(declaration) === property);
    const declaration = `${property}: ${value}`;
    if (place < 0)
        others.push(others.length > 0 ? ` ${declaration}` : declaration);
    else
        others.splice(place, 0, place > 0 ? ` ${declaration}` : declaration);
    return others.join(';');
};

export const setStyle = (element, property, value) => {
    const text = styleTextWith(element.getAttribute('style') ?? '', property, value);
    if (text === '')
        dropAttribute(element, 'style');
    else
        element.setAttribute('style', text);
};

export const styleValueOf = (element, property) => {
    const declaration = declarationsOf(element.getAttribute('style') ?? '').findLast(each => propertyOf(each) === property);
    return declaration === undefined ? '' : declaration.slice(declaration.indexOf(':') + 1).trim();
};

export const parsedStyle = text => {
    const scratch = createElement('span');
    scratch.setAttribute('style', text);
    return scratch.style;
};

const changedProperties = (before, after) => [...new Set([...before, ...after])]
    .filter(property => before.getPropertyValue(property) !== after.getPropertyValue(property));

// Restores the original style text of elements that the engine has restyled, and applies the engine's changes to it.
const keepStyleTexts = changes => {
    for (const {type, target, name, value} of changes) {
        const now = target.isConnected && type === 'attributes' && name === 'style' ? target.getAttribute('style') : null;
        if (now === null || value === null)
            continue;
        const after = parsedStyle(now);
        let text = value;
        for (const property of changedProperties(parsedStyle(value), after))
            text = styleTextWith(text, property, after.getPropertyValue(property));
        // If the result doesn't have the same meaning, the engine's text is kept.
        if (text !== now && changedProperties(parsedStyle(text), after).length === 0)
            target.setAttribute('style', text);
    }
};

// Runs a command of the engine but keeps the authors' style texts.
export const runNative = (name, value = null) =>
    keepStyleTexts(history.changesOf(() => nativeCommand(name, false, value)));

// Sets a property as a command of the engine would.
export const setStyleNatively = (element, property, value) =>
    keepStyleTexts(history.changesOf(() => element.style.setProperty(property, value)));

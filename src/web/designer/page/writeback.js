// SPDX-License-Identifier: GPL-3.0-or-later

// What the program needs for writing back only what was changed: the page as it was loaded, and whether the engine would
// make the wanted page of a changed source.

import {asComments, gatherComments} from './marks.js';
import {rootOf} from './nodes.js';

// The text that the page was loaded from.
let source = '';
// The root element as serialised before any change.
let loaded = '';
// The last text that the program has asked for, and the number of changes that it includes.
let edited = {text: '', changes: -1};
// The edited text as the engine reads it again; made when it is first needed.
let editedAgain = null;

export const keepEdited = copy => {
    edited = copy;
    editedAgain = null;
};

export const keepSource = text => {
    source = text;
    loaded = '';
    keepEdited({text: '', changes: -1});
};

export const keepLoaded = text => {
    loaded = text;
};

export const loadedText = () => loaded;

// Each change is a list: begin, end, text; the changes are in order.
const withChanges = (text, changes) => {
    let changed = '';
    let done = 0;
    for (const [begin, end, part] of changes) {
        changed += text.slice(done, begin) + part;
        done = end;
    }
    return changed + text.slice(done);
};

// The doctype decides how the engine reads the rest.
const doctype = () => /^<!doctype[^>]*>/i.exec(source)?.[0] ?? '';

// What the engine makes of a text, apart from the scripts.
const parsed = text => {
    const page = new DOMParser().parseFromString(text, 'text/html');
    gatherComments(page);
    return asComments(rootOf(page).outerHTML);
};

const parsedEdited = () => {
    editedAgain ??= parsed(doctype() + asComments(edited.text));
    return editedAgain;
};

// Whether the source with the changes is read as the wanted page: the loaded one with the change `target`, or if that is
// null the edited one. A page can be in a state that no markup leads to, as with a paragraph in a paragraph; then it
// counts how its own markup is read. Null if the edited page isn't the one that the program means.
export const fits = (changes, target, editedChanges) => {
    if (edited.changes !== editedChanges)
        return null;
    const result = parsed(withChanges(source, changes));
    if (target) {
        const wanted = asComments(withChanges(loaded, [target]));
        return result === wanted || result === parsed(doctype() + wanted);
    }
    return result === asComments(edited.text) || result === parsedEdited();
};

// SPDX-License-Identifier: GPL-3.0-or-later

// What the user has done in the page, to be carried over when it is loaded anew: where it was scrolled to, and what the
// forms hold.

import {query} from './nodes.js';

const isChanged = field => {
    if (field.localName === 'select')
        return [...field.options].some(option => option.selected !== option.defaultSelected);
    return field.type === 'checkbox' || field.type === 'radio' ? field.checked !== field.defaultChecked
        : field.value !== field.defaultValue;
};

const fields = () => [...query('input,textarea,select')]
    .filter(field => !['file', 'hidden', 'submit', 'button', 'image', 'reset'].includes(field.type));

// Fields are known by their names, and by their number among those of the same name.
const keyed = () => {
    const counts = new Map();
    return fields().map(field => {
        const name = `${field.localName} ${field.id} ${field.name}`;
        counts.set(name, (counts.get(name) ?? 0) + 1);
        return [`${name} ${counts.get(name)}`, field];
    });
};

const fieldValue = field => {
    if (field.localName === 'select')
        return [...field.options].map(option => option.selected);
    return field.type === 'checkbox' || field.type === 'radio' ? field.checked : field.value;
};

const setValue = (field, value) => {
    if (field.localName === 'select')
        [...field.options].forEach((option, index) => {
            option.selected = value[index] ?? option.selected;
        });
    else if (typeof value === 'boolean')
        field.checked = value;
    else
        field.value = value;
};

export const keptState = () => ({
    x: window.scrollX,
    y: window.scrollY,
    fields: keyed().filter(([, field]) => isChanged(field)).map(([key, field]) => [key, fieldValue(field)]),
});

export const restoreState = state => {
    const all = new Map(keyed());
    for (const [key, value] of state.fields ?? []) {
        const field = all.get(key);
        if (field && typeof fieldValue(field) === typeof value)
            setValue(field, value);
    }
    window.scrollTo({left: state.x ?? 0, top: state.y ?? 0, behavior: 'instant'});
};

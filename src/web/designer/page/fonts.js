// SPDX-License-Identifier: GPL-3.0-or-later

// The font of the selection.

import {nativeCommand, nativeState, nativeValue} from './nodes.js';
import {currentRange, mostLookedAt, selectedTexts} from './selection.js';

// Sizes 1 to 7 of the font element in points.
const pointSizes = [8, 10, 12, 14, 18, 24, 36];

export const fontName = () => nativeValue('fontName').replaceAll('"', '').replaceAll("'", '');

export const fontSize = () => Number(nativeValue('fontSize')) || 0;

// Whether the selected texts differ in a property.
export const isMixed = property => {
    const range = currentRange();
    if (range.collapsed)
        return false;
    const values = new Set();
    for (const text of selectedTexts(range, mostLookedAt)) {
        values.add(getComputedStyle(text.parentElement)[property]);
        if (values.size > 1)
            return true;
    }
    return false;
};

export const setFontSize = argument => {
    const size = Number(argument);
    if (Number.isInteger(size) && size >= 1 && size <= 7)
        nativeCommand('fontSize', false, String(size));
};

// The initial values of the font dialog, in the same form as its result; sizes in points.
export const describeFont = () => ({
    name: fontName(),
    size: pointSizes[fontSize() - 1] ?? pointSizes[2],
    bold: nativeState('bold'),
    italic: nativeState('italic'),
    underline: nativeState('underline'),
    strikethrough: nativeState('strikeThrough'),
});

const nearestSize = points => {
    const distances = pointSizes.map(size => Math.abs(size - points));
    return distances.indexOf(Math.min(...distances)) + 1;
};

// Changes only what differs from the current font.
export const applyFont = font => {
    const before = describeFont();
    if (font.name !== before.name)
        nativeCommand('fontName', false, font.name);
    if (font.size !== before.size)
        setFontSize(nearestSize(font.size));
    for (const [member, command] of [['bold', 'bold'], ['italic', 'italic'], ['underline', 'underline'],
        ['strikethrough', 'strikeThrough']]) {
        if (font[member] !== before[member])
            nativeCommand(command, false, null);
    }
};

// SPDX-License-Identifier: GPL-3.0-or-later

// Which height of the page belongs to which place in the text, and the other way round.

import {rootElement} from './nodes.js';
import {placeOf, shownFor} from './sourcetree.js';

let map = null;

// To be called when the page may have another layout.
export const forgetMap = () => {
    map = null;
};

// The longest part of a list in which the heights grow; elements that are placed elsewhere don't count.
const growing = points => {
    const ends = [];
    const before = points.map(() => -1);
    points.forEach((point, index) => {
        let low = 0;
        for (let high = ends.length; low < high;) {
            const middle = (low + high) >> 1;
            if (points[ends[middle]].height <= point.height)
                low = middle + 1;
            else
                high = middle;
        }
        before[index] = low > 0 ? ends[low - 1] : -1;
        ends[low] = index;
    });
    const chain = [];
    for (let at = ends.length > 0 ? ends[ends.length - 1] : -1; at >= 0; at = before[at])
        chain.unshift(points[at]);
    return chain;
};

const makeMap = (tree, length) => {
    const points = [];
    for (const element of tree.body?.querySelectorAll('*') ?? []) {
        const box = placeOf(element) === undefined ? null : shownFor(element)?.getBoundingClientRect();
        if (box && (box.width > 0 || box.height > 0))
            points.push({place: placeOf(element), height: box.top + window.scrollY});
    }
    const end = {place: length, height: rootElement().scrollHeight};
    return [{place: 0, height: 0}, ...growing(points).filter(({height}) => height >= 0 && height <= end.height), end];
};

// Reads `to` at the value of `from`, between the two points around it.
const between = (points, from, to, value) => {
    let low = 0;
    for (let high = points.length - 1; low < high;) {
        const middle = (low + high + 1) >> 1;
        if (points[middle][from] <= value)
            low = middle;
        else
            high = middle - 1;
    }
    const one = points[low];
    const other = points[low + 1];
    if (!other || other[from] === one[from])
        return one[to];
    return one[to] + (value - one[from]) / (other[from] - one[from]) * (other[to] - one[to]);
};

const mapOf = (tree, length) => {
    map ??= makeMap(tree, length);
    return map;
};

export const heightOf = (tree, length, place) => between(mapOf(tree, length), 'place', 'height', place);
export const placeAt = (tree, length, height) => Math.round(between(mapOf(tree, length), 'height', 'place', height));

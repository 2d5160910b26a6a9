// SPDX-License-Identifier: GPL-3.0-or-later

// Positioned elements: position, stacking order, lock, and dragging with the mouse.

import {looks} from './looks.js';
import {markName} from './marks.js';
import {bodyElement, dropAttribute, elementOf, isNamed, wordSet} from './nodes.js';
import {isAbsolute, selectedControl} from './selection.js';
import {setStyle, styleValueOf} from './styles.js';

const lockAttribute = 'design_time_lock';
const gridSize = 50;
const firstDepth = 100;

export const isLocked = element => element.hasAttribute(lockAttribute);

// The element that the position commands act on: the selected one, or the positioned one around the caret.
export const positionTarget = () => {
    const control = selectedControl();
    if (control)
        return control.localName === markName ? null : control;
    if (getSelection().rangeCount === 0)
        return null;
    for (let element = elementOf(getSelection().anchorNode); element && element !== bodyElement();
        element = element.parentElement) {
        if (isAbsolute(element))
            return element;
    }
    return null;
};

export const positionedTarget = () => {
    const target = positionTarget();
    return target && isAbsolute(target) ? target : null;
};

const depthOf = element => Number.parseInt(getComputedStyle(element).zIndex, 10) || 0;

const positionedElements = () => [...bodyElement().querySelectorAll('*')].filter(isAbsolute);

export const toggleAbsolute = () => {
    const target = positionTarget();
    if (isAbsolute(target)) {
        for (const property of ['position', 'left', 'top', 'z-index'])
            setStyle(target, property, '');
        dropAttribute(target, lockAttribute);
        // A style sheet of the page may still make it absolute.
        if (isAbsolute(target))
            setStyle(target, 'position', 'static');
        return;
    }
    const {offsetLeft, offsetTop, offsetWidth} = target;
    const depths = positionedElements().map(depthOf);
    if (getComputedStyle(target).display === 'block' && styleValueOf(target, 'width') === '')
        setStyle(target, 'width', `${offsetWidth}px`);
    setStyle(target, 'position', 'absolute');
    setStyle(target, 'left', `${offsetLeft}px`);
    setStyle(target, 'top', `${offsetTop}px`);
    setStyle(target, 'z-index', String(Math.max(firstDepth - 1, ...depths) + 1));
};

export const toggleLock = () => {
    const target = positionedTarget();
    if (isLocked(target))
        dropAttribute(target, lockAttribute);
    else
        target.setAttribute(lockAttribute, 'true');
};

// Elements below the text have a negative depth. When an element moves in the order on its side of the text, the depths
// stay integers that increase from one element to the next, and as few of them as possible change.
const layersOf = isAbove => positionedElements().map((element, place) => ({element, place, depth: depthOf(element)}))
    .filter(layer => (layer.depth >= 0) === isAbove)
    .sort((a, b) => a.depth - b.depth || a.place - b.place);

const risingDepths = (depths, isAbove) => {
    const rising = depths.slice();
    if (isAbove) {
        for (let i = 1; i < rising.length; ++i)
            rising[i] = Math.max(rising[i], rising[i - 1] + 1);
    } else {
        rising[rising.length - 1] = Math.min(rising.at(-1), -1);
        for (let i = rising.length - 2; i >= 0; --i)
            rising[i] = Math.min(rising[i], rising[i + 1] - 1);
    }
    return rising;
};

const setOrder = (layers, depths, isAbove) => {
    risingDepths(depths, isAbove).forEach((depth, i) => {
        if (layers[i].depth !== depth || layers[i].moved)
            setStyle(layers[i].element, 'z-index', String(depth));
    });
};

// `placeFor` returns the new index in the order, given the old one and the number of elements.
export const reorder = placeFor => {
    const target = positionedTarget();
    const isAbove = depthOf(target) >= 0;
    const layers = layersOf(isAbove);
    const depths = layers.map(layer => layer.depth);
    const from = layers.findIndex(layer => layer.element === target);
    const to = Math.min(Math.max(placeFor(from, layers.length), 0), layers.length - 1);
    if (to === from)
        return;
    const [layer] = layers.splice(from, 1);
    layers.splice(to, 0, layer);
    setOrder(layers, depths, isAbove);
};

// Moves an element to the other side of the text, as close to the text as possible.
export const crossText = toAbove => {
    const target = positionedTarget();
    if ((depthOf(target) >= 0) === toAbove)
        return;
    const others = layersOf(toAbove);
    const layer = {element: target, depth: depthOf(target), moved: true};
    if (toAbove)
        setOrder([layer, ...others], [Math.min(1, others[0]?.depth ?? 1), ...others.map(each => each.depth)], true);
    else
        setOrder([...others, layer], [...others.map(each => each.depth), -1], false);
};

// The grips on the corners and sides of the selected element, at positions from 0 to 1.
const gripReach = 5;
const grips = [
    {x: 0, y: 0, cursor: 'nw-resize'}, {x: 0.5, y: 0, cursor: 'n-resize'}, {x: 1, y: 0, cursor: 'ne-resize'},
    {x: 0, y: 0.5, cursor: 'w-resize'}, {x: 1, y: 0.5, cursor: 'e-resize'},
    {x: 0, y: 1, cursor: 'sw-resize'}, {x: 0.5, y: 1, cursor: 's-resize'}, {x: 1, y: 1, cursor: 'se-resize'},
];

const isSizable = element => element.localName !== markName && !isLocked(element);

// The upper left corner of an element in the text flow can't be moved.
export const gripsOf = element => {
    if (!isSizable(element))
        return [];
    return isAbsolute(element) ? grips : grips.filter(grip => grip.x + grip.y >= 1 && grip.x > 0 && grip.y > 0);
};

export const gripAt = (x, y) => {
    const element = selectedControl();
    const box = element?.getBoundingClientRect();
    return element && gripsOf(element).find(grip => Math.abs(box.left + box.width * grip.x - x) <= gripReach
        && Math.abs(box.top + box.height * grip.y - y) <= gripReach);
};

const snapped = value => looks.snapToGrid ? Math.round(value / gridSize) * gridSize : Math.round(value);

const attributeSized = wordSet('img object embed applet iframe video canvas');

const setSize = (element, name, pixels) => {
    if (isNamed(element, attributeSized) && styleValueOf(element, name) === '')
        element.setAttribute(name, String(pixels));
    else
        setStyle(element, name, `${pixels}px`);
};

const lengthOfStyle = (element, property, fallback) => {
    const length = Number.parseFloat(getComputedStyle(element)[property]);
    return Number.isFinite(length) ? length : fallback;
};

// A drag with the mouse button held down. It starts after a few pixels, to distinguish it from a click, and is one step
// of the history.
export class Drag {
    static threshold = 3;

    constructor(event, element, grip) {
        Object.assign(this, {element, grip, x: event.clientX, y: event.clientY, moved: false});
        this.left = lengthOfStyle(element, 'left', element.offsetLeft);
        this.top = lengthOfStyle(element, 'top', element.offsetTop);
        this.width = lengthOfStyle(element, 'width', element.offsetWidth);
        this.height = lengthOfStyle(element, 'height', element.offsetHeight);
    }

    move(event, history) {
        const dx = event.clientX - this.x;
        const dy = event.clientY - this.y;
        if (!this.moved && Math.max(Math.abs(dx), Math.abs(dy)) < Drag.threshold)
            return;
        if (!this.moved)
            history.hold();
        this.moved = true;
        if (this.grip)
            this.#resize(dx, dy);
        else
            this.#place(dx, dy);
    }

    #place(dx, dy) {
        setStyle(this.element, 'left', `${snapped(this.left + dx)}px`);
        setStyle(this.element, 'top', `${snapped(this.top + dy)}px`);
    }

    #resize(dx, dy) {
        this.#stretch('width', this.width, 'left', this.left, dx, this.grip.x);
        this.#stretch('height', this.height, 'top', this.top, dy, this.grip.y);
    }

    // `side` is 0 for a grip on the near side, which moves the element too, 1 for the far side, and 0.5 for neither.
    #stretch(size, length, edge, place, distance, side) {
        if (side === 0.5)
            return;
        const far = place + length;
        if (side === 1) {
            setSize(this.element, size, Math.max(1, snapped(far + distance) - Math.round(place)));
            return;
        }
        const near = Math.min(snapped(place + distance), Math.round(far) - 1);
        setSize(this.element, size, Math.round(far) - near);
        setStyle(this.element, edge, `${near}px`);
    }
}

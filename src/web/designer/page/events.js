// SPDX-License-Identifier: GPL-3.0-or-later

// Handles the mouse and the keys where the designer's behaviour differs from the engine's.

import {Command} from './command.js';
import {history} from './history.js';
import {insertMarkup, selectionMarkup} from './insert.js';
import {cursorSheet, looks} from './looks.js';
import {bodyElement, caretRangeFromPoint, closest, elementOf, isNamed} from './nodes.js';
import {insertPlainText, isPlain, onPlainInput} from './plaintext.js';
import {Drag, gripAt, isLocked} from './positions.js';
import {reportPlace, reportState, wantCommand} from './reports.js';
import {awakeSelection, controlNames, isAbsolute, noteSelection, placeCaret, placeCaretIn, selectedControl,
    selectElement} from './selection.js';
import {currentTable} from './tables.js';
import {beforeInputActions, inputActions} from './typing.js';

// The number of key presses that the page has handled.
export let keysSeen = 0;

let drag = null;
// The element that a click has selected, which a second click may open for typing.
let clicked = null;

// The element selected by a click at a node. Tables are excluded: a click in a table is meant for its content.
const clickSelector = [...controlNames].filter(name => name !== 'table').join(',');

const controlAt = node => {
    const control = closest(node, clickSelector);
    if (control)
        return control;
    for (let element = elementOf(node); element && element !== bodyElement(); element = element.parentElement) {
        if (isAbsolute(element))
            return element.contains(getSelection().anchorNode) && !selectedControl() ? null : element;
    }
    return null;
};

// The context menu refers to the element at the mouse pointer.
const selectForMenu = event => {
    const element = controlAt(event.target);
    const range = caretRangeFromPoint(event.clientX, event.clientY);
    const selection = getSelection();
    const isInside = range && selection.rangeCount > 0 && !selection.isCollapsed
        && selection.getRangeAt(0).isPointInRange(range.startContainer, range.startOffset);
    if (element)
        selectElement(element);
    else if (range && !isInside)
        placeCaret(range.startContainer, range.startOffset);
};

const onMouseDown = event => {
    if (event.button === 2 && !looks.browseMode)
        selectForMenu(event);
    if (event.button !== 0 || looks.browseMode)
        return;
    const grip = gripAt(event.clientX, event.clientY);
    const selected = selectedControl();
    const element = grip ? selected : controlAt(event.target);
    clicked = element && element === selected ? element : null;
    if (!element)
        return;
    // A selected element in the text flow is dragged like text.
    if (element === selected && !grip && !isAbsolute(element))
        return;
    event.preventDefault();
    selectElement(element);
    if (!isLocked(element) && (grip || isAbsolute(element)))
        drag = new Drag(event, element, grip);
};

const onMouseMove = event => {
    if (drag && event.buttons & 1) {
        drag.move(event, history);
        reportPlace();
    } else if (!looks.browseMode) {
        showCursor(gripAt(event.clientX, event.clientY)?.cursor ?? '');
    }
};

const onMouseUp = event => {
    const moved = drag?.moved;
    drag = null;
    if (moved) {
        history.release();
        reportState();
    } else if (clicked && !isNamed(clicked, controlNames)) {
        const range = caretRangeFromPoint(event.clientX, event.clientY);
        if (range && clicked.contains(range.startContainer))
            placeCaret(range.startContainer, range.startOffset);
        else
            placeCaretIn(clicked);
    }
    clicked = null;
};

let cursor = '';

const showCursor = wanted => {
    if (wanted === cursor)
        return;
    cursor = wanted;
    cursorSheet.replaceSync(wanted === '' ? '' : `* { cursor: ${wanted} !important; }`);
};

const moveToCell = (table, step) => {
    const cells = [...table.querySelectorAll('td,th')].filter(cell => cell.closest('table') === table);
    const next = cells[cells.indexOf(closest(getSelection().anchorNode, 'td,th')) + step];
    if (next)
        placeCaretIn(next);
};

// The engine's history doesn't know the designer's commands, and its clipboard doesn't know the marks, so the designer
// handles these keys. The program provides the clipboard.
const keyActions = {
    'control+z': () => history.undo(),
    'control+shift+z': () => history.redo(),
    'control+y': () => history.redo(),
    'control+x': () => wantCommand(Command.Cut),
    'shift+delete': () => wantCommand(Command.Cut),
    'control+c': () => wantCommand(Command.Copy),
    'control+insert': () => wantCommand(Command.Copy),
    'control+v': () => wantCommand(Command.Paste),
    'shift+insert': () => wantCommand(Command.Paste),
    'tab': () => isPlain ? history.run(() => insertPlainText('\t')) : moveToCell(currentTable(), 1),
    'shift+tab': () => moveToCell(currentTable(), -1),
};

const keyName = event => (event.ctrlKey ? 'control+' : '') + (event.altKey ? 'alt+' : '')
    + (event.shiftKey ? 'shift+' : '') + event.key.toLowerCase();

const takesTab = event => isPlain ? !event.shiftKey : currentTable() !== null;

const onKeyDown = event => {
    keysSeen += 1;
    const action = keyActions[keyName(event)];
    if (!action || looks.browseMode || (event.key === 'Tab' && !takesTab(event)))
        return;
    event.preventDefault();
    action();
    reportState();
};

// The number of changes in the open step before the engine handled the current input.
let changesBefore = 0;

const onBeforeInput = event => {
    if (event.inputType === 'historyUndo' || event.inputType === 'historyRedo') {
        event.preventDefault();
        return;
    }
    history.expectChange();
    if (isPlain)
        onPlainInput(event);
    else
        beforeInputActions[event.inputType]?.(event);
    changesBefore = history.openChanges().length;
};

const onInput = event => {
    inputActions[event.inputType]?.(history.openChanges().slice(changesBefore));
    reportState();
};

// The engine must not use its clipboard, whatever triggers it.
const onClipboard = event => {
    if (!looks.browseMode)
        event.preventDefault();
};

// Dragging with the mouse: the range that is being moved.
let dragged = null;

const onDragStart = event => {
    const selection = getSelection();
    dragged = selection.rangeCount > 0 && !selection.isCollapsed ? selection.getRangeAt(0).cloneRange() : null;
    if (!dragged)
        event.preventDefault();
};

const onDrop = event => {
    event.preventDefault();
    const target = caretRangeFromPoint(event.clientX, event.clientY);
    const source = dragged;
    dragged = null;
    if (looks.browseMode || !source || !target || source.isPointInRange(target.startContainer, target.startOffset))
        return;
    history.run(() => {
        const markup = selectionMarkup();
        source.deleteContents();
        placeCaret(target.startContainer, target.startOffset);
        insertMarkup(markup, false);
    });
    reportState();
};

const onSelectionChange = () => {
    noteSelection();
    reportState();
};

const listeners = {
    mousedown: onMouseDown, mousemove: onMouseMove, mouseup: onMouseUp, keydown: onKeyDown, beforeinput: onBeforeInput,
    copy: onClipboard, cut: onClipboard, paste: onClipboard, dragstart: onDragStart, drop: onDrop,
    selectionchange: onSelectionChange, input: onInput, scroll: () => reportPlace(), load: () => reportPlace(),
};

// Must be repeated after a document is opened, which removes its listeners.
export const listen = () => {
    for (const [type, listener] of Object.entries(listeners))
        document.addEventListener(type, listener, {capture: true});
    window.addEventListener('resize', reportPlace);
    window.addEventListener('focus', awakeSelection);
};

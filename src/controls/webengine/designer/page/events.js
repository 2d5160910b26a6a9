// SPDX-License-Identifier: GPL-3.0-or-later

// What the user does on the page with mouse and keys, where the engine's own way isn't the designer's.

let drag = null;
// The element that a click selected and a second click may open for typing.
let clicked = null;

// The element that a click at a node selects. A table is too large to be meant.
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

const onMouseDown = event => {
    if (event.button !== 0 || looks.browseMode)
        return;
    const grip = gripAt(event.clientX, event.clientY);
    const selected = selectedControl();
    const element = grip ? selected : controlAt(event.target);
    clicked = element && element === selected ? element : null;
    if (!element)
        return;
    // A selected element in the flow of the text is dragged like text.
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

// The engine's own history knows nothing of the designer's commands.
const onKeyDown = event => {
    keysSeen += 1;
    if (looks.browseMode)
        return;
    const key = event.key.toLowerCase();
    const control = event.ctrlKey && !event.altKey;
    const table = key === 'tab' && !event.ctrlKey && !event.altKey ? currentTable() : null;
    if (control && (key === 'y' || (key === 'z' && event.shiftKey)))
        history.redo();
    else if (control && key === 'z')
        history.undo();
    else if (table)
        moveToCell(table, event.shiftKey ? -1 : 1);
    else
        return;
    event.preventDefault();
    reportState();
};

const onBeforeInput = event => {
    if (event.inputType === 'historyUndo' || event.inputType === 'historyRedo')
        event.preventDefault();
    else
        history.expectChange();
};

// The clipboard is the program's, which knows what the marks stand for.
const onClipboard = event => {
    if (looks.browseMode)
        return;
    event.preventDefault();
    bridge.clipboardWanted(event.type);
};

// Moving by the mouse: the nodes themselves go to the new place.
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

const onSelectionChange = () => reportState();

const listeners = {
    mousedown: onMouseDown, mousemove: onMouseMove, mouseup: onMouseUp, keydown: onKeyDown, beforeinput: onBeforeInput,
    copy: onClipboard, cut: onClipboard, paste: onClipboard, dragstart: onDragStart, drop: onDrop,
    selectionchange: onSelectionChange, input: () => reportState(), scroll: () => reportPlace(),
};

// Opening a document anew takes its listeners away.
const listen = () => {
    for (const [type, listener] of Object.entries(listeners))
        document.addEventListener(type, listener, {capture: true});
    window.addEventListener('resize', reportPlace);
};

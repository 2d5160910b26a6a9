// SPDX-License-Identifier: GPL-3.0-or-later

// The commands by their published numbers. Each tells its status, and most do something; a command with `reads` changes
// nothing. Statuses: 0 not supported, 1 not available, 3 enabled, 7 on, 11 mixed.

const status = {disabled: 1, enabled: 3, on: 7, mixed: 11};
const enabledIf = condition => condition ? status.enabled : status.disabled;
const onIf = condition => condition ? status.on : status.enabled;

const hasText = () => selectionType() !== 'Control' && !isFrameset();
const isFrameset = () => bodyElement()?.localName === 'frameset';

const nativeStatus = name => {
    if (isFrameset() || !nativeEnabled(name))
        return status.disabled;
    if (nativeMixed(name))
        return status.mixed;
    return onIf(nativeState(name));
};

// Runs a command of the engine, leaving style texts as their authors wrote them.
const runNative = (name, value = null) =>
    keepStyleTexts(history.changesOf(() => nativeCommand(name, false, value)));

const toggle = name => ({status: () => nativeStatus(name), run: () => runNative(name)});
const toggleText = name => ({status: () => hasText() ? nativeStatus(name) : status.disabled, run: () => runNative(name)});

// The engine tells of the first item alone.
const listCommand = (name, format) => ({
    status: ({formats}) => formats.length > 1 && formats.includes(format) ? status.mixed : nativeStatus(name),
    run: () => toggleList(format),
});

const fontCommand = (property, read) => ({
    status: () => hasText() ? (isMixed(property) ? status.mixed : status.enabled) : status.disabled,
    run: read,
    reads: true,
});

const tableCommand = (run, allowed = cells => cells.length > 0) => ({
    status: ({cells}) => enabledIf(allowed(cells)),
    run: () => {
        const selected = selectedGrid();
        if (selected)
            run(selected);
    },
});

const depthCommand = run => ({status: () => enabledIf(positionedTarget()), run});

const commands = {
    5000: toggleText('bold'),
    5002: {status: () => enabledIf(selectionType() !== 'None'), run: selectionMarkup, reads: true},
    5003: {status: () => enabledIf(selectionType() !== 'None'), run: () => {
        const markup = selectionMarkup();
        deleteSelection();
        return markup;
    }},
    5004: {status: () => enabledIf(!isFrameset()), run: deleteSelection},
    5005: tableCommand(deleteCells),
    5006: tableCommand(deleteColumns),
    5007: tableCommand(deleteRows),
    5008: {status: () => status.enabled, reads: true,
        run: text => text !== '' && window.find(text, false, false, true, false, false, false)},
    5009: {status: () => enabledIf(hasText()), run: applyFont},
    5011: {
        status: ({formats}) => hasText() ? (formats.length > 1 ? status.mixed : status.enabled) : status.disabled,
        run: () => formatOf(currentRange().startContainer),
        reads: true,
    },
    5012: {status: () => status.enabled, run: blockFormatNames, reads: true},
    5013: fontCommand('fontFamily', fontName),
    5014: fontCommand('fontSize', fontSize),
    5016: {status: () => enabledIf(!isFrameset()), run: setLink},
    5017: {status: () => enabledIf(!isFrameset()), run: insertImage},
    5018: {status: () => nativeStatus('indent'), run: () => changeDepth(deepenItem, 'indent')},
    5019: tableCommand(insertCell),
    5020: tableCommand(insertColumn),
    5021: tableCommand(insertRow),
    5022: {status: () => enabledIf(!isFrameset()), run: insertTable},
    5023: toggleText('italic'),
    5024: toggle('justifyCenter'),
    5025: toggle('justifyLeft'),
    5026: toggle('justifyRight'),
    5027: {
        status: () => positionedTarget() ? onIf(isLocked(positionedTarget())) : status.disabled,
        run: toggleLock,
    },
    5028: {
        status: () => positionTarget() ? onIf(isAbsolute(positionTarget())) : status.disabled,
        run: toggleAbsolute,
    },
    5029: tableCommand(mergeCells, cells => cells.length > 1),
    5030: listCommand('insertOrderedList', 'Numbered List'),
    5031: {
        status: () => enabledIf(hasText() && closest(currentRange().commonAncestorContainer, 'blockquote,ol,ul,dir,menu')),
        run: () => changeDepth(raiseItem, 'outdent'),
    },
    5033: {status: () => enabledIf(history.canRedo), run: () => history.redo(), turns: true},
    5035: {status: () => enabledIf(!isFrameset()), run: () => nativeCommand('selectAll', false, null), reads: true},
    5036: depthCommand(() => reorder(place => place - 1)),
    5037: depthCommand(() => reorder(place => place + 1)),
    5038: depthCommand(() => crossText(false)),
    5039: depthCommand(() => crossText(true)),
    5040: depthCommand(() => reorder(() => 0)),
    5041: depthCommand(() => reorder((place, count) => count - 1)),
    5042: {status: () => enabledIf(hasText()), run: colour => runNative('backColor', colour)},
    5043: {status: () => enabledIf(hasText()), run: setBlockFormat},
    5044: {status: () => enabledIf(hasText()), run: name => runNative('fontName', name)},
    5045: {status: () => enabledIf(hasText()), run: setFontSize},
    5046: {status: () => enabledIf(hasText()), run: colour => runNative('foreColor', colour)},
    5047: tableCommand(splitCell, cells => cells.length === 1),
    5048: toggleText('underline'),
    5049: {status: () => enabledIf(history.canUndo), run: () => history.undo(), turns: true},
    5050: {status: () => enabledIf(!isFrameset() && hasLink()), run: unlink},
    5051: listCommand('insertUnorderedList', 'Bulleted List'),
};

// To copy, find and select all: nothing else can be done with a page that is only looked at.
const browseCommands = new Set([5002, 5008, 5035]);

const isOpen = number => (!looks.browseMode || browseCommands.has(number)) && (!isPlain || plainCommands.has(number));

// What several commands look at in the selection.
const selectionFacts = () => ({
    cells: selectedCells(),
    formats: isFrameset() ? [] : selectedFormats(mostLookedAt),
});

const allStatuses = () => {
    const facts = selectionFacts();
    return Object.fromEntries(Object.entries(commands).map(([number, command]) =>
        [number, isOpen(Number(number)) ? command.status(facts) : status.disabled]));
};

// What a command reads, as long as the whole selection agrees on it.
const valueOf = (number, statuses, none) => statuses[number] === status.enabled ? commands[number].run() : none;

const runCommand = (number, argument) => {
    const command = commands[number];
    if (!command || !isOpen(number) || command.status(selectionFacts()) < status.enabled)
        return null;
    // Commands that look or turn back aren't steps of the history.
    if (command.reads || command.turns)
        return command.run(argument);
    return history.run(() => command.run(argument));
};

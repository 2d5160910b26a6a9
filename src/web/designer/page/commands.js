// SPDX-License-Identifier: GPL-3.0-or-later

// The commands. Each has a status, and most perform an action; a command with `reads` changes nothing.

import {blockFormatNames, formatOf, selectedFormats} from './blocks.js';
import {Command} from './command.js';
import {applyFont, fontName, fontSize, isMixed, setFontSize} from './fonts.js';
import {alignParagraphs, setBlockFormat, toggleList} from './formats.js';
import {history} from './history.js';
import {deleteSelection, hasLink, insertImage, insertTable, selectionMarkup, setLink, unlink} from './insert.js';
import {changeDepth, deepenItem, raiseItem} from './lists.js';
import {looks} from './looks.js';
import {bodyElement, closest, nativeCommand, nativeEnabled, nativeMixed, nativeState} from './nodes.js';
import {isPlain, plainCommands} from './plaintext.js';
import {crossText, isLocked, positionedTarget, positionTarget, reorder, toggleAbsolute, toggleLock} from './positions.js';
import {currentRange, isAbsolute, mostLookedAt, selectionType} from './selection.js';
import {Status} from './status.js';
import {runNative} from './styles.js';
import {
    deleteCells, deleteColumns, deleteRows, insertCell, insertColumn, insertRow, mergeCells, selectedCells, selectedGrid,
    splitCell
} from './tables.js';

const enabledIf = condition => condition ? Status.Enabled : Status.Disabled;
const onIf = condition => condition ? Status.On : Status.Enabled;

const hasText = () => selectionType() !== 'Control' && !isFrameset();
const isFrameset = () => bodyElement()?.localName === 'frameset';

const nativeStatus = name => {
    if (isFrameset() || !nativeEnabled(name))
        return Status.Disabled;
    if (nativeMixed(name))
        return Status.Mixed;
    return onIf(nativeState(name));
};

const alignment = (name, side) => ({status: () => nativeStatus(name), run: () => alignParagraphs(name, side)});
const toggleText = name => ({status: () => hasText() ? nativeStatus(name) : Status.Disabled, run: () => runNative(name)});

// The engine reports only the first item.
const listCommand = (name, format) => ({
    status: ({formats}) => formats.length > 1 && formats.includes(format) ? Status.Mixed : nativeStatus(name),
    run: () => toggleList(format),
});

const fontCommand = (property, read) => ({
    status: () => hasText() ? (isMixed(property) ? Status.Mixed : Status.Enabled) : Status.Disabled,
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
    [Command.Bold]: toggleText('bold'),
    [Command.Copy]: {status: () => enabledIf(selectionType() !== 'None'), run: selectionMarkup, reads: true},
    [Command.Cut]: {status: () => enabledIf(selectionType() !== 'None'), run: () => {
        const markup = selectionMarkup();
        deleteSelection();
        return markup;
    }},
    [Command.Delete]: {status: () => enabledIf(!isFrameset()), run: deleteSelection},
    [Command.DeleteCells]: tableCommand(deleteCells),
    [Command.DeleteColumns]: tableCommand(deleteColumns),
    [Command.DeleteRows]: tableCommand(deleteRows),
    [Command.FindText]: {status: () => Status.Enabled, reads: true,
        run: text => text !== '' && window.find(text, false, false, true, false, false, false)},
    [Command.Font]: {status: () => enabledIf(hasText()), run: applyFont},
    [Command.GetBlockFormat]: {
        status: ({formats}) => hasText() ? (formats.length > 1 ? Status.Mixed : Status.Enabled) : Status.Disabled,
        run: () => formatOf(currentRange().startContainer),
        reads: true,
    },
    [Command.GetBlockFormatNames]: {status: () => Status.Enabled, run: blockFormatNames, reads: true},
    [Command.GetFontName]: fontCommand('fontFamily', fontName),
    [Command.GetFontSize]: fontCommand('fontSize', fontSize),
    [Command.Hyperlink]: {status: () => enabledIf(!isFrameset()), run: setLink},
    [Command.Image]: {status: () => enabledIf(!isFrameset()), run: insertImage},
    [Command.Indent]: {status: () => nativeStatus('indent'), run: () => changeDepth(deepenItem, 'indent')},
    [Command.InsertCell]: tableCommand(insertCell),
    [Command.InsertColumn]: tableCommand(insertColumn),
    [Command.InsertRow]: tableCommand(insertRow),
    [Command.InsertTable]: {status: () => enabledIf(!isFrameset()), run: insertTable},
    [Command.Italic]: toggleText('italic'),
    [Command.JustifyCenter]: alignment('justifyCenter', 'center'),
    [Command.JustifyLeft]: alignment('justifyLeft', 'left'),
    [Command.JustifyRight]: alignment('justifyRight', 'right'),
    [Command.LockElement]: {
        status: () => positionedTarget() ? onIf(isLocked(positionedTarget())) : Status.Disabled,
        run: toggleLock,
    },
    [Command.AbsolutePosition]: {
        status: () => positionTarget() ? onIf(isAbsolute(positionTarget())) : Status.Disabled,
        run: toggleAbsolute,
    },
    [Command.MergeCells]: tableCommand(mergeCells, cells => cells.length > 1),
    [Command.OrderedList]: listCommand('insertOrderedList', 'Numbered List'),
    [Command.Outdent]: {
        status: () => enabledIf(hasText() && closest(currentRange().commonAncestorContainer, 'blockquote,ol,ul,dir,menu')),
        run: () => changeDepth(raiseItem, 'outdent'),
    },
    [Command.Redo]: {status: () => enabledIf(history.canRedo), run: () => history.redo(), turns: true},
    [Command.SelectAll]: {status: () => enabledIf(!isFrameset()), run: () => nativeCommand('selectAll', false, null), reads: true},
    [Command.SendBackward]: depthCommand(() => reorder(place => place - 1)),
    [Command.BringForward]: depthCommand(() => reorder(place => place + 1)),
    [Command.SendBelowText]: depthCommand(() => crossText(false)),
    [Command.BringAboveText]: depthCommand(() => crossText(true)),
    [Command.SendToBack]: depthCommand(() => reorder(() => 0)),
    [Command.BringToFront]: depthCommand(() => reorder((place, count) => count - 1)),
    [Command.SetBackColor]: {status: () => enabledIf(hasText()), run: colour => runNative('backColor', colour)},
    [Command.SetBlockFormat]: {status: () => enabledIf(hasText()), run: setBlockFormat},
    [Command.SetFontName]: {status: () => enabledIf(hasText()), run: name => runNative('fontName', name)},
    [Command.SetFontSize]: {status: () => enabledIf(hasText()), run: setFontSize},
    [Command.SetForeColor]: {status: () => enabledIf(hasText()), run: colour => runNative('foreColor', colour)},
    [Command.SplitCell]: tableCommand(splitCell, cells => cells.length === 1),
    [Command.Underline]: toggleText('underline'),
    [Command.Undo]: {status: () => enabledIf(history.canUndo), run: () => history.undo(), turns: true},
    [Command.Unlink]: {status: () => enabledIf(!isFrameset() && hasLink()), run: unlink},
    [Command.UnorderedList]: listCommand('insertUnorderedList', 'Bulleted List'),
};

// The only commands that are available in browse mode.
const browseCommands = new Set([Command.Copy, Command.FindText, Command.SelectAll]);

const isOpen = number => (!looks.browseMode || browseCommands.has(number)) && (!isPlain || plainCommands.has(number));

// Facts about the selection that several commands need.
const selectionFacts = () => ({
    cells: selectedCells(),
    formats: isFrameset() ? [] : selectedFormats(mostLookedAt),
});

export const allStatuses = () => {
    const facts = selectionFacts();
    return Object.fromEntries(Object.entries(commands).map(([number, command]) =>
        [number, isOpen(Number(number)) ? command.status(facts) : Status.Disabled]));
};

// The value that a command reads, if it is the same for the whole selection.
export const valueOf = (number, statuses, none) => statuses[number] === Status.Enabled ? commands[number].run() : none;

export const runCommand = (number, argument) => {
    const command = commands[number];
    if (!command || !isOpen(number) || command.status(selectionFacts()) < Status.Enabled)
        return null;
    // Commands that only read, undo or redo aren't steps of the history.
    if (command.reads || command.turns)
        return command.run(argument);
    return history.run(() => command.run(argument));
};

// SPDX-License-Identifier: GPL-3.0-or-later

// The designer's part within the page: it runs commands for the program and reports the page's state.

import {caretPlace, noteGivenCaret, showCaretAt, showElementAt} from './caretplace.js';
import {Command} from './command.js';
import {allStatuses, runCommand, valueOf} from './commands.js';
import {keysSeen, listen} from './events.js';
import {describeFont} from './fonts.js';
import {history} from './history.js';
import {insertMarkup, linkAddress} from './insert.js';
import {looks, showLooks, signsInSight} from './looks.js';
import {gatherComments, setMarkPrefix, showMarks} from './marks.js';
import {bodyElement, closeDocument, openDocument, readyState, rootElement, writeDocument} from './nodes.js';
import {isPlain, plainShell, plainText, setPlain, showPlainText} from './plaintext.js';
import {gripsOf} from './positions.js';
import {reportBy, reportCopy, reportState, reportTo, stamped, tell} from './reports.js';
import {selectedControl, selectionType, selectStart} from './selection.js';
import {forgetEmptied, withoutEmptied} from './typing.js';
import {fits, keepEdited, keepLoaded, keepSource, loadedText} from './writeback.js';

let keepTimer = 0;

// After the first change since the last copy, a copy of the page is sent to the program with a delay, however fast
// further changes follow. The delay is at least this many milliseconds, and at least a multiple of the time that the
// last copy took.
const keepRest = 100;
const keepShare = 10;
let keepCost = 0;

history.changed = () => {
    reportState();
    if (keepTimer === 0)
        keepTimer = setTimeout(keepPage, Math.max(keepRest, keepShare * keepCost));
};

const copyOfPage = () => ({text: isPlain ? plainText() : rootElement().outerHTML, changes: history.changes});

const keepPage = () => {
    const begin = performance.now();
    keepTimer = 0;
    reportCopy();
    keepCost = performance.now() - begin;
};

// What the program paints on top of the view, in CSS pixels of the page: if an element is selected as a whole, its
// rectangle and the grips that can be dragged, and the signs of elements that aren't visible.
const place = () => {
    const element = looks.browseMode ? null : selectedControl();
    const box = element?.getBoundingClientRect();
    const frame = box ? {x: box.x, y: box.y, width: box.width, height: box.height, grips: gripsOf(element)} : {};
    return {...frame, signs: signsInSight()};
};

const state = () => {
    const statuses = allStatuses();
    return {
        statuses,
        selection: selectionType(),
        fontName: valueOf(Command.GetFontName, statuses, ''),
        fontSize: valueOf(Command.GetFontSize, statuses, 0),
        blockFormat: valueOf(Command.GetBlockFormat, statuses, ''),
        dirty: Boolean(history.isChanged),
        changes: history.changes,
        keys: keysSeen,
        place: place(),
    };
};

reportBy({state, place: () => ({place: place()}), copy: copyOfPage});

const answer = (value = null) => ({value, state: stamped(state())});

let isComplete = false;
// Shows the place at which the page is to be opened.
let showWanted = null;

// The page is complete: from now on everything that happens to it is a change.
const begin = text => {
    isComplete = true;
    if (isPlain)
        showPlainText(text);
    listen();
    gatherComments(document);
    if (bodyElement())
        showMarks(bodyElement());
    showLooks();
    selectStart();
    noteGivenCaret();
    if (!isPlain)
        keepLoaded(rootElement().outerHTML);
    history.start();
    showWanted?.();
    showWanted = null;
};

globalThis.zephiraDesigner = {
    load(text, prefix, wantedLooks, wantsPlain) {
        isComplete = false;
        showWanted = null;
        history.reset();
        setMarkPrefix(prefix);
        setPlain(wantsPlain);
        keepSource(wantsPlain ? '' : text);
        forgetEmptied();
        Object.assign(looks, wantedLooks);
        openDocument();
        writeDocument(isPlain ? plainShell : text);
        closeDocument();
        if (readyState() !== 'loading') {
            begin(text);
            return answer();
        }
        // A style sheet in the body delays the content after it.
        document.addEventListener('DOMContentLoaded', () => {
            begin(text);
            tell('complete', state());
        }, {once: true});
        return null;
    },

    // For a caller who missed the report: the state of a complete page, else null.
    completed: () => (isComplete ? answer() : null),

    run: (number, argument) => answer(runCommand(number, argument)),

    insert(markup, isForeign) {
        if (!looks.browseMode)
            history.run(() => insertMarkup(markup, isForeign));
        return answer();
    },

    setLook(name, on) {
        looks[name] = on;
        showLooks();
        return answer();
    },

    // Puts the caret at a place, now or when the page is complete; or shows the element to which the place belongs.
    // Answers whether there is such a place.
    showPlace(place, isElement) {
        const show = () => (isElement ? showElementAt : showCaretAt)(place);
        if (isComplete)
            return answer(show());
        showWanted = show;
        return null;
    },
    caretPlace: () => answer(caretPlace()),

    state: () => answer(),
    text() {
        // Changes that happened but weren't reported yet are in the text, so they must be counted.
        history.openChanges();
        const copy = withoutEmptied(copyOfPage);
        if (!isPlain)
            keepEdited(copy);
        return answer(stamped(copy));
    },
    loaded: () => answer(loadedText()),
    fits: (changes, target, editedChanges) => answer(fits(changes, target, editedChanges)),
    font: () => answer(describeFont()),
    link: () => answer(linkAddress()),
};

new QWebChannel(qt.webChannelTransport, channel => reportTo(report => channel.objects.bridge.tell(report)));

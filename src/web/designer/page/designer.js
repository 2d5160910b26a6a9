// SPDX-License-Identifier: GPL-3.0-or-later

// The designer's side within the page: it takes commands from the program and tells it what the page looks like.

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

let keepTimer = 0;

// A copy of the page goes to the program a while after the first change since the last copy, however fast further changes
// come: after this many milliseconds at least, and so many times what it took to write the last one.
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

// What the program paints on top of the view, in pixels of the page: where the selected element stands and which of its
// grips can be dragged, where one is selected as a whole, and the signs of what has no picture.
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

// The whole page is there: from now on whatever happens to it is a change.
const begin = text => {
    isComplete = true;
    if (isPlain)
        showPlainText(text);
    listen();
    gatherComments();
    if (bodyElement())
        showMarks(bodyElement());
    showLooks();
    selectStart();
    history.start();
};

globalThis.zephiraDesigner = {
    load(text, prefix, wantedLooks, wantsPlain) {
        isComplete = false;
        history.reset();
        setMarkPrefix(prefix);
        setPlain(wantsPlain);
        Object.assign(looks, wantedLooks);
        openDocument();
        writeDocument(isPlain ? plainShell : text);
        closeDocument();
        if (readyState() !== 'loading') {
            begin(text);
            return answer();
        }
        // A style sheet in the body holds up what follows it.
        document.addEventListener('DOMContentLoaded', () => {
            begin(text);
            tell('complete', state());
        }, {once: true});
        return null;
    },

    // For who missed the report: the state of a page that is there, else nothing.
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

    state: () => answer(),
    text() {
        // What has happened, but hasn't been told of, is in the text, too.
        history.openChanges();
        return answer(stamped(copyOfPage()));
    },
    font: () => answer(describeFont()),
    link: () => answer(linkAddress()),
};

new QWebChannel(qt.webChannelTransport, channel => reportTo(report => channel.objects.bridge.tell(report)));

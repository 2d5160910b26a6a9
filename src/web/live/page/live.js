// SPDX-License-Identifier: GPL-3.0-or-later

// The live page's part within the page: it follows the source, and tells where the user clicks and scrolls. It runs in a
// world of its own; the page's scripts run as in any browser and see nothing of it.

import {keptState, restoreState} from './keptstate.js';
import {mend, needsLoad} from './mend.js';
import {closeDocument, openDocument, query, readyState, rootElement, styleSheets, writeDocument} from './nodes.js';
import {bringIntoSight, forgetOutline, refreshOutline, showOutline} from './outline.js';
import {forgetCanvas, refreshScheme, setScheme} from './scheme.js';
import {forgetMap, heightOf, placeAt} from './scrollmap.js';
import {pairWithSnapshot, parseSource, placeOf, shownFor, snapshot, sourceFor} from './sourcetree.js';

// How long a picture that comes late may shift what the user sees after a new load, in milliseconds.
const settling = 1000;

const loadNumber = globalThis.zephiraLoad;

let tree = null;
let length = 0;
let first = null;
let isRead = false;
let kept = null;
let keptUntil = 0;
let expectedScroll = -1;
let sheetsTold = 0;

let unsent = [];
let deliver = message => unsent.push(message);
const report = (kind, members = {}) => deliver({...members, kind, load: loadNumber});

const takeFirst = () => {
    if (isRead || readyState() === 'loading' || !rootElement())
        return;
    isRead = true;
    first = snapshot(rootElement());
    report('ready');
};

const scrollTo = height => {
    const most = rootElement().scrollHeight - innerHeight;
    expectedScroll = Math.max(0, Math.min(Math.round(height), most));
    window.scrollTo({left: window.scrollX, top: expectedScroll, behavior: 'instant'});
};

const noNumber = address => address.replace(/\?zephira=\d+$/, '');

// The addresses of the sheets that the page links, and of those that these import.
const sheetAddresses = () => {
    const addresses = new Set();
    const add = sheet => {
        if (sheet.href)
            addresses.add(noNumber(sheet.href));
        try {
            for (const rule of sheet.cssRules) {
                if (rule.styleSheet)
                    add(rule.styleSheet);
            }
        } catch {
            // The rules of a sheet from another machine can't be read.
        }
    };
    for (const sheet of styleSheets())
        add(sheet);
    return [...addresses];
};

// An answer and a report may overtake each other on their ways: the number tells which is newer.
const sheetsNow = () => ({sheets: sheetAddresses(), number: ++sheetsTold});

const byPlace = wanted => {
    const elements = new Map();
    for (const element of tree?.querySelectorAll('*') ?? [])
        elements.set(placeOf(element), element);
    return wanted.map(place => elements.get(place)).find(element => element && shownFor(element));
};

const afterChange = () => {
    forgetMap();
    refreshOutline();
    refreshScheme();
};

// A click leads to the source. What can be used stays usable, but links don't lead away.
const usable = 'a[href],area[href],audio,button,details,iframe,input,label,object,select,summary,textarea,video';

const noteClick = event => {
    if (!event.isTrusted || event.button !== 0)
        return;
    let node = sourceFor(event.target);
    while (node && placeOf(node) === undefined)
        node = node.parentElement;
    if (node)
        report('clicked', {place: placeOf(node), usable: Boolean(event.target.closest?.(usable))});
};

const stayOnPage = event => {
    if (event.isTrusted && event.target.closest?.('a[href],area[href]'))
        event.preventDefault();
};

const noteScroll = () => {
    if (tree && Math.abs(window.scrollY - expectedScroll) > 1) {
        const most = rootElement().scrollHeight - innerHeight;
        report('scrolled', {place: placeAt(tree, length, window.scrollY), atEnd: most > 0 && window.scrollY >= most - 1});
    }
    expectedScroll = -1;
};

const noteLoad = event => {
    if (event.target.localName === 'link' || event.target.localName === 'style') {
        afterChange();
        // Those that it imports are known only now.
        if (tree)
            report('sheets', sheetsNow());
    } else {
        forgetMap();
    }
    // Pictures have their size only now.
    if (kept && performance.now() < keptUntil)
        scrollTo(kept.y);
};

const endKeeping = () => {
    kept = null;
};

const hearPage = () => {
    window.addEventListener('readystatechange', takeFirst, true);
    window.addEventListener('click', noteClick, true);
    window.addEventListener('click', stayOnPage);
    window.addEventListener('auxclick', stayOnPage);
    window.addEventListener('submit', event => event.preventDefault());
    window.addEventListener('scroll', noteScroll, {passive: true});
    window.addEventListener('resize', forgetMap);
    // An element's load goes no further than the document, only that of the whole page comes to the window. An element of
    // the page can have the name of the document's own function.
    window.addEventListener.call(document, 'load', noteLoad, true);
    window.addEventListener('load', noteLoad);
    for (const act of ['wheel', 'keydown', 'pointerdown'])
        window.addEventListener(act, endKeeping, {capture: true, passive: true});
};

globalThis.zephiraLive = {
    // For a page that is too large to be given as a whole.
    write(text) {
        isRead = false;
        forgetOutline();
        forgetCanvas();
        openDocument();
        hearPage();
        writeDocument(text);
        closeDocument();
        takeFirst();
    },

    isReady: load => load === loadNumber && isRead,

    // The text of the page as it was loaded, in which each start tag has its place in the attribute `mark`. `state` is what
    // the page before it gave.
    start(text, mark, size, scheme, state) {
        tree = parseSource(text, mark);
        length = size;
        pairWithSnapshot(tree.documentElement, first);
        first = null;
        if (scheme !== '')
            setScheme(scheme);
        if (state) {
            restoreState(state);
            kept = state;
            keptUntil = performance.now() + settling;
            expectedScroll = window.scrollY;
        }
        return sheetsNow();
    },

    // The text as it is now. What can't be done without a new load isn't done; then the answer has what to keep of this one.
    update(text, mark, size) {
        const now = parseSource(text, mark);
        if (!tree || needsLoad(tree, now))
            return {load: true, state: keptState()};
        const {scrollX, scrollY} = window;
        mend(tree.documentElement, now.documentElement);
        tree = now;
        length = size;
        afterChange();
        if (window.scrollX !== scrollX || window.scrollY !== scrollY) {
            expectedScroll = scrollY;
            window.scrollTo({left: scrollX, top: scrollY, behavior: 'instant'});
        }
        return sheetsNow();
    },

    state: () => keptState(),

    // Outlines the first of the elements with these places that is in the page.
    showCaret(places, bringsIntoSight) {
        const element = byPlace(places);
        const shown = element ? shownFor(element) : null;
        showOutline(shown);
        if (shown && bringsIntoSight) {
            expectedScroll = -1;
            const before = window.scrollY;
            bringIntoSight(shown);
            if (window.scrollY !== before)
                expectedScroll = window.scrollY;
        }
        return shown?.localName ?? '';
    },

    // Scrolls so that this place of the text is at the top, or to the end.
    follow(place, atEnd) {
        if (tree && rootElement())
            scrollTo(atEnd ? rootElement().scrollHeight : heightOf(tree, length, place));
    },

    setScheme,

    // A style sheet was saved. Returns whether it is linked by the page itself, so that it was loaded anew.
    reloadSheet(address, number) {
        const links = [...query('link[rel~=stylesheet i]')]
            .filter(link => noNumber(link.href) === address);
        for (const link of links)
            link.href = `${address}?zephira=${number}`;
        return links.length > 0;
    },
};

hearPage();
new QWebChannel(qt.webChannelTransport, channel => {
    deliver = message => channel.objects.bridge.tell(message);
    unsent.forEach(deliver);
    unsent = [];
});
takeFirst();

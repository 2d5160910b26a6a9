// SPDX-License-Identifier: GPL-3.0-or-later

// The designer's side within the page: it takes commands from the program and tells it what the page looks like.

// Set as soon as the channel to the program stands.
let bridge = {stateChanged() {}, placeChanged() {}, pageKept() {}, clipboardWanted() {}};
let keysSeen = 0;
let reporting = false;
let keepTimer = 0;

// A copy of the page goes to the program when nothing has changed for a while: this many milliseconds at least, and so
// many times what it took to write the last one.
const keepRest = 1000;
const keepShare = 10;
let keepCost = 0;

const history = new History(() => {
    reportState();
    clearTimeout(keepTimer);
    keepTimer = setTimeout(keepPage, Math.max(keepRest, keepShare * keepCost));
});

const pageText = () => rootElement().outerHTML;

const keepPage = () => {
    const begin = performance.now();
    bridge.pageKept(pageText());
    keepCost = performance.now() - begin;
};

// Where the selected element stands in the view, and which of its grips can be dragged; in pixels of the page.
// Empty where nothing is selected as a whole.
const place = () => {
    const element = looks.browseMode ? null : selectedControl();
    const box = element?.getBoundingClientRect();
    return box ? {x: box.x, y: box.y, width: box.width, height: box.height, grips: gripsOf(element)} : {};
};

const state = () => ({
    statuses: allStatuses(),
    selection: selectionType(),
    fontName: fontName(),
    fontSize: fontSize(),
    blockFormat: formatOf(currentRange().startContainer),
    dirty: Boolean(history.isChanged),
    keys: keysSeen,
    place: place(),
});

// Many events in a row make one report.
const reportState = () => {
    if (reporting)
        return;
    reporting = true;
    queueMicrotask(() => {
        reporting = false;
        bridge.stateChanged(state());
    });
};

const reportPlace = () => bridge.placeChanged(place());

const answer = (value = null) => ({value, state: state()});

globalThis.zephiraDesigner = {
    connect(channel) {
        bridge = channel.objects.bridge;
    },

    load(text, prefix, wantedLooks) {
        history.reset();
        markPrefix = prefix;
        Object.assign(looks, wantedLooks);
        openDocument();
        writeDocument(text);
        closeDocument();
        listen();
        gatherComments();
        if (bodyElement())
            showMarks(bodyElement());
        showLooks();
        selectStart();
        history.start();
        return answer();
    },

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
    text: () => answer(pageText()),
    font: () => answer(describeFont()),
    link: () => answer(linkAddress()),
};

new QWebChannel(qt.webChannelTransport, zephiraDesigner.connect);

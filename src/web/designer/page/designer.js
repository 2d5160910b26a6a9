// SPDX-License-Identifier: GPL-3.0-or-later

// The designer's side within the page: it takes commands from the program and tells it what the page looks like.

// Set as soon as the channel to the program stands.
let bridge = {stateChanged() {}, placeChanged() {}, pageKept() {}, clipboardWanted() {}};
let keysSeen = 0;
let reporting = false;
let reportsMade = 0;
let keepTimer = 0;

// Whoever gets a report knows by this which page it is about, and whether there has been a newer one.
const stamped = report => ({...report, page: markPrefix, number: ++reportsMade});

// A copy of the page goes to the program a while after the first change since the last copy, however fast further changes
// come: after this many milliseconds at least, and so many times what it took to write the last one.
const keepRest = 1000;
const keepShare = 10;
let keepCost = 0;

const history = new History(() => {
    reportState();
    if (keepTimer === 0)
        keepTimer = setTimeout(keepPage, Math.max(keepRest, keepShare * keepCost));
});

const copyOfPage = () => stamped({text: isPlain ? plainText() : rootElement().outerHTML});

const keepPage = () => {
    const begin = performance.now();
    keepTimer = 0;
    bridge.pageKept(copyOfPage());
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
    return stamped({
        statuses,
        selection: selectionType(),
        fontName: valueOf(5013, statuses, ''),
        fontSize: valueOf(5014, statuses, 0),
        blockFormat: valueOf(5011, statuses, ''),
        dirty: Boolean(history.isChanged),
        keys: keysSeen,
        place: place(),
    });
};

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

const reportPlace = () => bridge.placeChanged(stamped({place: place()}));

const wantClipboard = kind => bridge.clipboardWanted(stamped({kind}));

const answer = (value = null) => ({value, state: state()});

globalThis.zephiraDesigner = {
    connect(channel) {
        bridge = channel.objects.bridge;
    },

    load(text, prefix, wantedLooks, wantsPlain) {
        history.reset();
        markPrefix = prefix;
        isPlain = wantsPlain;
        Object.assign(looks, wantedLooks);
        openDocument();
        writeDocument(isPlain ? plainShell : text);
        closeDocument();
        if (isPlain)
            showPlainText(text);
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
    text: () => answer(copyOfPage()),
    font: () => answer(describeFont()),
    link: () => answer(linkAddress()),
};

new QWebChannel(qt.webChannelTransport, zephiraDesigner.connect);

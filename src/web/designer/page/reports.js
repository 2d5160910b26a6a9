// SPDX-License-Identifier: GPL-3.0-or-later

// What the page tells the program by itself. All of it goes one way: a report with its kind, which says what the others of
// its members are.

import {markPrefix} from './marks.js';

// What is told before the way to the program stands waits for it.
let early = [];
let send = report => early.push(report);
let describe = {state: () => ({}), place: () => ({}), copy: () => ({})};
let reporting = false;
let reportsMade = 0;

// As soon as the way to the program stands.
export const reportTo = wanted => {
    send = wanted;
    early.forEach(send);
    early = [];
};

// Who knows what is to be told.
export const reportBy = wanted => {
    describe = wanted;
};

// Whoever gets a report knows by this which page it is about, and whether there has been a newer one.
export const stamped = report => ({...report, page: markPrefix, number: ++reportsMade});

export const tell = (kind, report) => send(stamped({...report, kind}));

// Many events in a row make one report.
export const reportState = () => {
    if (reporting)
        return;
    reporting = true;
    queueMicrotask(() => {
        reporting = false;
        tell('state', describe.state());
    });
};

export const reportPlace = () => tell('place', describe.place());

export const reportCopy = () => tell('copy', describe.copy());

// The user wants by the keyboard what the program does.
export const wantCommand = command => tell('command', {command});

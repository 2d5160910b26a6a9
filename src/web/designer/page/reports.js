// SPDX-License-Identifier: GPL-3.0-or-later

// The reports that the page sends to the program on its own, all through one channel. The kind of a report determines
// its other members.

import {markPrefix} from './marks.js';

// Reports made before the channel to the program is open.
let early = [];
let send = report => early.push(report);
let describe = {state: () => ({}), place: () => ({}), copy: () => ({})};
let reporting = false;
let reportsMade = 0;

// Called as soon as the channel to the program is open.
export const reportTo = wanted => {
    send = wanted;
    early.forEach(send);
    early = [];
};

// Sets the functions that provide the content of reports.
export const reportBy = wanted => {
    describe = wanted;
};

// Tells the receiver of a report which page it is about and whether there has been a newer one.
export const stamped = report => ({...report, page: markPrefix, number: ++reportsMade});

export const tell = (kind, report) => send(stamped({...report, kind}));

// Combines the reports of several events in a row into one.
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

// Requests a command from the program, for a key.
export const wantCommand = command => tell('command', {command});

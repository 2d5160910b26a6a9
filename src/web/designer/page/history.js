// SPDX-License-Identifier: GPL-3.0-or-later

// One history for all changes of the page: typing, the engine's commands and the designer's own. It records the
// document's mutations and reverts them, step by step.

import {isElement} from './nodes.js';
import {bookmark, restore} from './selection.js';

class History {
    // Typing becomes a step of its own after a pause of this many milliseconds.
    static typingRest = 600;
    static mostSteps = 1000;

    // Called after each change; set by the module that needs it.
    changed = () => {};

    constructor() {
        this.observer = new MutationObserver(records => {
            this.#record(records);
            this.#endLater();
        });
        this.reset();
    }

    // Makes the current page the starting point.
    reset() {
        this.observer.disconnect();
        this.observer.takeRecords();
        clearTimeout(this.timer);
        this.done = [];
        this.undone = [];
        this.forgotten = false;
        this.open = null;
        this.held = false;
        this.changes = 0;
    }

    start() {
        this.reset();
        this.observer.observe(document, {
            subtree: true, childList: true, attributes: true, attributeOldValue: true,
            characterData: true, characterDataOldValue: true,
        });
    }

    get isChanged() {
        return this.forgotten || this.done.length > 0 || this.open?.changes.length > 0;
    }

    get canUndo() {
        return this.done.length > 0 || this.open?.changes.length > 0;
    }

    get canRedo() {
        return this.undone.length > 0;
    }

    // Call before a change, to store the position of the caret.
    expectChange() {
        if (!this.open || this.open.changes.length === 0)
            this.open = {changes: [], before: bookmark(), after: null};
    }

    // Makes everything that the action does one step.
    run(action) {
        this.close();
        this.expectChange();
        try {
            return action();
        } finally {
            this.#record(this.observer.takeRecords());
            this.close();
        }
    }

    // The changes of the open step so far.
    openChanges() {
        this.#record(this.observer.takeRecords());
        return this.open?.changes ?? [];
    }

    // The changes that an action makes; for use within run().
    changesOf(action) {
        const first = this.openChanges().length;
        action();
        return this.openChanges().slice(first);
    }

    // The result of an action that leaves the page as it was.
    unseen(action) {
        this.openChanges();
        try {
            return action();
        } finally {
            this.observer.takeRecords();
        }
    }

    // Everything until release() is one step, however long it takes.
    hold() {
        this.close();
        this.expectChange();
        this.held = true;
    }

    release() {
        this.held = false;
        this.close();
    }

    close() {
        clearTimeout(this.timer);
        this.#record(this.observer.takeRecords());
        const step = this.open;
        this.open = null;
        if (!step || step.changes.length === 0)
            return;
        step.after = bookmark();
        step.contents = History.#contentsOf(step.changes);
        this.done.push(step);
        if (this.done.length > History.mostSteps) {
            this.done.shift();
            this.forgotten = true;
        }
    }

    undo() {
        this.close();
        const step = this.done.pop();
        if (!step)
            return;
        for (const change of step.changes.slice().reverse())
            History.#turn(change, false);
        this.undone.push(step);
        this.#settle(step.before);
    }

    redo() {
        this.close();
        const step = this.undone.pop();
        if (!step)
            return;
        for (const change of step.changes)
            History.#turn(change, true);
        for (const [element, nodes] of step.contents) {
            if (nodes.length !== element.childNodes.length || nodes.some((node, i) => node !== element.childNodes[i]))
                element.replaceChildren(...nodes);
        }
        this.done.push(step);
        this.#settle(step.after);
    }

    #settle(selection) {
        this.observer.takeRecords();
        restore(selection);
        this.#tell();
    }

    #endLater() {
        clearTimeout(this.timer);
        if (!this.held)
            this.timer = setTimeout(() => this.close(), History.typingRest);
    }

    #record(records) {
        if (records.length === 0)
            return;
        this.open ??= {changes: [], before: null, after: null};
        this.undone = [];
        for (const record of records)
            this.#add(record);
        this.#tell();
    }

    #tell() {
        ++this.changes;
        this.changed();
    }

    // If a text or an attribute changes repeatedly, only its first value is kept.
    #add(record) {
        const last = this.open.changes.at(-1);
        if (record.type === 'childList') {
            this.open.changes.push({
                type: record.type, target: record.target, next: record.nextSibling,
                added: [...record.addedNodes], removed: [...record.removedNodes],
            });
        } else if (!last || last.type !== record.type || last.target !== record.target
                   || last.name !== record.attributeName) {
            this.open.changes.push({
                type: record.type, target: record.target, name: record.attributeName,
                namespace: record.attributeNamespace, value: record.oldValue,
            });
        }
    }

    // The contents of the elements that a step has added to the page. The engine often moves live nodes into an element
    // before it inserts that into the document, and such moves aren't reported.
    static #contentsOf(changes) {
        const contents = new Map();
        const keep = element => {
            if (!contents.has(element))
                contents.set(element, [...element.childNodes]);
        };
        for (const node of changes.flatMap(change => change.added ?? [])) {
            if (!isElement(node) || !node.isConnected)
                continue;
            keep(node);
            node.querySelectorAll('*').forEach(keep);
        }
        return contents;
    }

    // Reverts a change, or repeats it. The stored value and the current one are swapped.
    static #turn(change, again) {
        const target = change.target;
        if (change.type === 'childList') {
            const [out, back] = again ? [change.removed, change.added] : [change.added, change.removed];
            for (const node of out)
                node.remove();
            for (const node of back)
                target.insertBefore(node, change.next?.parentNode === target ? change.next : null);
        } else if (change.type === 'attributes') {
            const now = target.getAttributeNS(change.namespace, change.name);
            if (change.value === null)
                target.removeAttributeNS(change.namespace, change.name);
            else
                target.setAttributeNS(change.namespace, change.name, change.value);
            change.value = now;
        } else {
            const now = target.data;
            target.data = change.value;
            change.value = now;
        }
    }
}

export const history = new History();

// SPDX-License-Identifier: GPL-3.0-or-later

// One history for everything that happens to the page: typing, the engine's commands and the designer's own. It records
// what the document tells of its changes and turns that round, step by step.

import {isElement} from './nodes.js';
import {bookmark, restore} from './selection.js';

class History {
    // Typing becomes a step of its own after this many milliseconds of rest.
    static typingRest = 600;
    static mostSteps = 1000;

    // What is called after each change; whoever wants to know sets it.
    changed = () => {};

    constructor() {
        this.observer = new MutationObserver(records => {
            this.#record(records);
            this.#endLater();
        });
        this.reset();
    }

    // The page as it is now is the beginning.
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

    // The caret stands where a change is about to happen.
    expectChange() {
        if (!this.open || this.open.changes.length === 0)
            this.open = {changes: [], before: bookmark(), after: null};
    }

    // All that the action does is one step.
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

    // The changes of the step that hasn't ended, up to now.
    openChanges() {
        this.#record(this.observer.takeRecords());
        return this.open?.changes ?? [];
    }

    // The changes that an action makes, within run().
    changesOf(action) {
        const first = this.openChanges().length;
        action();
        return this.openChanges().slice(first);
    }

    // What follows until release() is one step, however long it takes.
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

    // A text or an attribute that changes again and again keeps its first value alone.
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

    // What the elements hold that a step has put into the page. The engine likes to move live nodes into an element before
    // it puts that into the document, and nobody tells of that.
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

    // Takes a change back, or makes it again. Values change places with what stands in the page.
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

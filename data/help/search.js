// SPDX-License-Identifier: GPL-3.0-or-later
// The search of the handbook: it looks words up in handbookIndex, which index.js holds, because a page that is opened
// from a file may not read other files. The field stays hidden where scripts don't run.
(() => {
'use strict';

const mostResults = 12;
const form = document.getElementById('searching');
const field = document.getElementById('sought');
const told = document.getElementById('told');
const found = document.getElementById('found');

/** The words of a text as the index has them. */
const wordsIn = (text) => text.toLowerCase().match(/[\p{L}\p{N}]+/gu) ?? [];

/** What each page counts for that has a word beginning so; the word itself counts more. */
const pagesWith = (beginning) => {
    const weights = new Map();
    for (const [word, places] of Object.entries(handbookIndex.words)) {
        if (!word.startsWith(beginning))
            continue;
        const factor = word === beginning ? 3 : 1;
        for (let i = 0; i < places.length; i += 2)
            weights.set(places[i], (weights.get(places[i]) ?? 0) + factor * places[i + 1]);
    }
    return weights;
};

/** The numbers of the pages that have all the words, the best first. */
const pagesFor = (words) => {
    const [first, ...others] = words.map(pagesWith);
    const sum = (page) => others.reduce((weight, pages) => weight + pages.get(page), first.get(page));
    return [...first.keys()]
        .filter((page) => others.every((pages) => pages.has(page)))
        .sort((one, other) => sum(other) - sum(one) || one - other);
};

const show = () => {
    const words = wordsIn(field.value);
    const pages = words.length ? pagesFor(words).slice(0, mostResults) : [];
    found.replaceChildren(...pages.map((page) => {
        const [file, title] = handbookIndex.pages[page];
        const link = document.createElement('a');
        link.href = file;
        link.textContent = title;
        const item = document.createElement('li');
        item.append(link);
        return item;
    }));
    if (!words.length)
        told.textContent = '';
    else if (!pages.length)
        told.textContent = `Nothing found for “${field.value.trim()}”.`;
    else
        told.textContent = pages.length === 1 ? '1 page' : `${pages.length} pages`;
};

/** Moves the focus through the field and the results. */
const step = (by) => {
    const stops = [field, ...found.querySelectorAll('a')];
    const next = stops[stops.indexOf(document.activeElement) + by];
    if (next)
        next.focus();
};

field.addEventListener('input', show);
form.addEventListener('submit', (event) => {
    event.preventDefault();
    found.querySelector('a')?.click();
});
form.addEventListener('keydown', (event) => {
    if (event.key === 'ArrowDown' || event.key === 'ArrowUp') {
        event.preventDefault();
        step(event.key === 'ArrowDown' ? 1 : -1);
    } else if (event.key === 'Escape') {
        field.value = '';
        show();
        field.focus();
    }
});
form.hidden = false;
// A page that is shown again by going back keeps what was typed.
show();
})();

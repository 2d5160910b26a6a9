// SPDX-License-Identifier: GPL-3.0-or-later

// Tables as grids of cells, and the operations on them.

import {closest, createElement, dropAttribute, indexOf, isEmptyElement, moveChildren, wordSet} from './nodes.js';
import {placeCaret, placeCaretIn, reaches} from './selection.js';

export const tableCellNames = wordSet('td th');

// A table as a grid: each place refers to its cell, and each cell has its first place and its extent.
class Grid {
    // A table with more places isn't edited by hand.
    static mostPlaces = 1000000;

    constructor(table) {
        this.table = table;
        this.rows = [...HTMLTableElement.prototype.__lookupGetter__('rows').call(table)];
        this.places = this.rows.map(() => []);
        this.spots = new Map();
        let left = Grid.mostPlaces;
        this.rows.forEach((row, y) => {
            let x = 0;
            for (const cell of row.cells) {
                while (this.places[y][x])
                    ++x;
                const spot = {cell, row: y, column: x, rows: this.#heightOf(cell, y), columns: cell.colSpan};
                this.spots.set(cell, spot);
                left -= spot.rows * spot.columns;
                if (left < 0)
                    throw new RangeError('table too large');
                for (let dy = 0; dy < spot.rows; ++dy) {
                    for (let dx = 0; dx < spot.columns; ++dx)
                        this.places[y + dy][x + dx] ??= spot;
                }
                x += spot.columns;
            }
        });
        this.width = Math.max(0, ...this.places.map(row => row.length));
    }

    // A cell can't extend beyond its row group; a rowspan of 0 means up to the end of the group.
    #heightOf(cell, y) {
        let most = 1;
        while (y + most < this.rows.length && this.rows[y + most].parentNode === this.rows[y].parentNode)
            ++most;
        return cell.rowSpan === 0 ? most : Math.min(cell.rowSpan, most);
    }

    at(row, column) {
        return this.places[row]?.[column] ?? null;
    }

    // The cells of a row from left to right, without duplicates.
    spotsOf(row) {
        return [...new Set(this.places[row])].filter(spot => spot);
    }

    // The cell before which a new cell for a column of a row is inserted; null for the end of the row.
    cellBehind(row, column) {
        return this.spotsOf(row).find(spot => spot.row === row && spot.column >= column)?.cell ?? null;
    }
}

const setSpan = (cell, name, count) => {
    if (count > 1)
        cell.setAttribute(name, count);
    else
        dropAttribute(cell, name);
};

export const currentTable = () => {
    const node = getSelection().rangeCount > 0 ? getSelection().getRangeAt(0).commonAncestorContainer : null;
    return node && closest(node, 'table');
};

// The cell with the caret, or the cells that the selection touches, in the order of the table.
export const selectedCells = () => {
    const table = currentTable();
    if (!table)
        return [];
    const range = getSelection().getRangeAt(0);
    const cell = closest(range.commonAncestorContainer, 'td,th');
    if (cell && table.contains(cell))
        return [cell];
    return [...table.querySelectorAll('td,th')].filter(each => each.closest('table') === table && reaches(range, each));
};

const fillCell = cell => cell.append(createElement('br'));

// An empty copy of a cell that spans one place.
const cellLike = cell => {
    const fresh = cell.cloneNode(false);
    for (const name of ['id', 'rowspan', 'colspan'])
        fresh.removeAttribute(name);
    fillCell(fresh);
    return fresh;
};

const boundsOf = spots => ({
    top: Math.min(...spots.map(spot => spot.row)),
    left: Math.min(...spots.map(spot => spot.column)),
    bottom: Math.max(...spots.map(spot => spot.row + spot.rows - 1)),
    right: Math.max(...spots.map(spot => spot.column + spot.columns - 1)),
});

export const selectedGrid = () => {
    const cells = selectedCells();
    if (cells.length === 0)
        return null;
    const grid = new Grid(currentTable());
    const spots = cells.map(cell => grid.spots.get(cell));
    return {grid, spots, ...boundsOf(spots)};
};

// Inserts a row below the selected ones.
export const insertRow = ({grid, bottom}) => {
    const model = grid.rows[bottom];
    const row = model.cloneNode(false);
    row.removeAttribute('id');
    for (const spot of grid.spotsOf(bottom)) {
        if (spot.row + spot.rows - 1 > bottom) {
            setSpan(spot.cell, 'rowspan', spot.rows + 1);
        } else {
            const cell = cellLike(spot.cell);
            setSpan(cell, 'colspan', spot.columns);
            row.append(cell);
        }
    }
    model.after(row);
    if (row.firstChild)
        placeCaretIn(row.firstChild);
};

// Inserts a column to the right of the selected ones.
export const insertColumn = ({grid, top, right}) => {
    let first = null;
    const widened = new Set();
    grid.rows.forEach((row, y) => {
        const spot = grid.at(y, right);
        if (spot && grid.at(y, right + 1) === spot) {
            if (!widened.has(spot))
                setSpan(spot.cell, 'colspan', spot.columns + 1);
            widened.add(spot);
        } else if (spot) {
            const cell = cellLike(spot.cell);
            row.insertBefore(cell, grid.cellBehind(y, right + 1));
            if (y === top)
                first = cell;
        }
    });
    eachColumn(grid.table, right, column => {
        const fresh = column.cloneNode(false);
        fresh.removeAttribute('id');
        column.after(fresh);
    });
    if (first)
        placeCaretIn(first);
};

// Calls `action` with the col element of a column, if every column has its own.
const eachColumn = (table, index, action) => {
    const columns = [...table.querySelectorAll(':scope > col, :scope > colgroup > col')];
    if (columns[index] && columns.every(column => column.span === 1))
        action(columns[index]);
};

export const insertCell = ({spots}) => {
    const model = spots.at(-1).cell;
    const cell = cellLike(model);
    model.after(cell);
    placeCaretIn(cell);
};

// Cleans up after cells were removed: removes empty rows and sections, or the whole table if it has no cells, and
// places the caret in the nearest cell.
const tidyTable = (table, row, column) => {
    for (const each of [...table.querySelectorAll('tr')].filter(tr => tr.closest('table') === table)) {
        if (!each.querySelector('td,th'))
            each.remove();
    }
    for (const section of table.querySelectorAll(':scope > thead, :scope > tbody, :scope > tfoot')) {
        if (!section.firstElementChild)
            section.remove();
    }
    if (!table.querySelector('td,th')) {
        const parent = table.parentNode;
        const place = indexOf(table);
        table.remove();
        placeCaret(parent, place);
        return;
    }
    const grid = new Grid(table);
    const y = Math.min(row, grid.rows.length - 1);
    const spot = grid.at(y, Math.min(column, grid.places[y].length - 1)) ?? grid.spots.values().next().value;
    placeCaretIn(spot.cell);
};

// Removes a row. A cell that extends below it moves to the next row.
const removeRow = (table, y) => {
    const grid = new Grid(table);
    for (const spot of grid.spotsOf(y)) {
        if (spot.row < y) {
            setSpan(spot.cell, 'rowspan', spot.rows - 1);
        } else if (spot.rows > 1) {
            grid.rows[y + 1].insertBefore(spot.cell, grid.cellBehind(y + 1, spot.column + spot.columns));
            setSpan(spot.cell, 'rowspan', spot.rows - 1);
        }
    }
    grid.rows[y].remove();
};

export const deleteRows = ({grid, spots, top, left}) => {
    const rows = new Set(spots.flatMap(spot => Array.from({length: spot.rows}, (_, i) => spot.row + i)));
    for (const y of [...rows].sort((a, b) => b - a))
        removeRow(grid.table, y);
    tidyTable(grid.table, top, left);
};

export const deleteColumns = ({grid, top, left, right}) => {
    for (const spot of grid.spots.values()) {
        const gone = Math.min(spot.column + spot.columns - 1, right) - Math.max(spot.column, left) + 1;
        if (gone >= spot.columns)
            spot.cell.remove();
        else if (gone > 0)
            setSpan(spot.cell, 'colspan', spot.columns - gone);
    }
    for (let x = right; x >= left; --x)
        eachColumn(grid.table, x, column => column.remove());
    tidyTable(grid.table, top, left);
};

export const deleteCells = ({grid, spots, top, left}) => {
    for (const spot of spots)
        spot.cell.remove();
    tidyTable(grid.table, top, left);
};

// The smallest rectangle that contains the cells and doesn't cut through others.
const closedBounds = (grid, spots) => {
    let bounds = boundsOf(spots);
    for (let grown = true; grown;) {
        const inside = new Set();
        for (let y = bounds.top; y <= bounds.bottom; ++y) {
            for (let x = bounds.left; x <= bounds.right; ++x) {
                if (grid.at(y, x))
                    inside.add(grid.at(y, x));
            }
        }
        const wider = boundsOf([...inside]);
        grown = JSON.stringify(wider) !== JSON.stringify(bounds);
        bounds = wider;
        spots = [...inside];
    }
    return {bounds, spots};
};

export const mergeCells = ({grid, spots}) => {
    const {bounds, spots: merged} = closedBounds(grid, spots);
    const [first, ...others] = merged;
    for (const {cell} of others) {
        if (!isEmptyElement(cell)) {
            if (isEmptyElement(first.cell))
                first.cell.replaceChildren();
            else
                first.cell.append(createElement('br'));
            moveChildren(cell, first.cell);
        }
        cell.remove();
    }
    setSpan(first.cell, 'colspan', bounds.right - bounds.left + 1);
    setSpan(first.cell, 'rowspan', bounds.bottom - bounds.top + 1);
    placeCaretIn(first.cell);
};

// Splits a cell into two side by side, or, if it spans only rows, into two on top of each other. For a cell of one
// place, the other cells of its column are widened to make room.
export const splitCell = ({grid, spots}) => {
    const [spot] = spots;
    const fresh = cellLike(spot.cell);
    if (spot.columns === 1 && spot.rows > 1) {
        const below = Math.floor(spot.rows / 2);
        const row = spot.row + spot.rows - below;
        setSpan(spot.cell, 'rowspan', spot.rows - below);
        setSpan(fresh, 'rowspan', below);
        grid.rows[row].insertBefore(fresh, grid.cellBehind(row, spot.column + 1));
        return;
    }
    if (spot.columns === 1) {
        const column = new Set(grid.places.map(row => row[spot.column]).filter(each => each && each !== spot));
        for (const other of column)
            setSpan(other.cell, 'colspan', other.columns + 1);
    }
    const right = Math.max(1, Math.floor(spot.columns / 2));
    setSpan(spot.cell, 'colspan', Math.max(1, spot.columns - right));
    setSpan(fresh, 'colspan', right);
    setSpan(fresh, 'rowspan', spot.rows);
    spot.cell.after(fresh);
};

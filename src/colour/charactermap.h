// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <optional>

namespace zephira {

/// A position in the character map. Row and column are 0-based.
struct MapCell {
    int row = 0;
    int column = 0;

    friend bool operator==(const MapCell &, const MapCell &) = default;
};

/// Keeps the index of the current cell, which is 1-based and counts row by row. The cells show the codes from 32 on.
class CharacterMap
{
public:
    static constexpr int columns = 32;
    static constexpr int rows = 7;

    int index() const { return m_index; }
    /// Ignores an index outside the map.
    void setIndex(int index);

    MapCell cell() const;
    void setCell(MapCell cell) { setIndex(indexOf(cell)); }
    /// Code of the current cell's character.
    int code() const { return m_index + 31; }

    /// Steps made with the keyboard. They stop at the edges of the map, but sideways steps continue in the next row.
    void stepSideways(int cells) { setIndex(m_index + cells); }
    void stepDown(int rows) { setIndex(m_index + rows * columns); }
    void toRowStart() { setCell({cell().row, 0}); }
    void toRowEnd() { setCell({cell().row, columns - 1}); }
    void toStart() { setIndex(1); }
    void toEnd() { setIndex(rows * columns); }

    static int indexOf(MapCell cell) { return 1 + cell.column + columns * cell.row; }
    static int codeOf(MapCell cell) { return indexOf(cell) + 31; }

private:
    int m_index = 1;
};

/// The size of a cell in a map of that size, in whole pixels.
QSize cellSize(QSize map);
/// The cell at a point of the map; nothing for a point outside the cells.
std::optional<MapCell> cellAt(QPoint point, QSize map);
/// The rectangle of a cell in the map.
QRect cellRect(MapCell cell, QSize map);

/// Where to put something of that size next to a point: to its lower right, or on the other side if it would not fit
/// into `bounds`.
QPoint placeBeside(QPoint point, QSize size, const QRect &bounds);

} // namespace zephira

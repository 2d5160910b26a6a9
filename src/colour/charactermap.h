// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <optional>

namespace zephira {

/// A place in the character map. Row and column count from 0.
struct MapCell {
    int row = 0;
    int column = 0;

    friend bool operator==(const MapCell &, const MapCell &) = default;
};

/// Holds the index of the current cell, which counts from 1, row by row. The cells show the codes from 32 on.
class CharacterMap
{
public:
    static constexpr int columns = 32;
    static constexpr int rows = 7;

    int index() const { return m_index; }
    /// An index outside the map changes nothing.
    void setIndex(int index);

    MapCell cell() const;
    void setCell(MapCell cell) { setIndex(indexOf(cell)); }
    /// Code of the current cell's character.
    int code() const { return m_index + 31; }

    /// The steps of the keyboard. They end at the edges of the map; sideways, they go on in the next row.
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
/// The cell at a point of the map; nothing beside the cells.
std::optional<MapCell> cellAt(QPoint point, QSize map);
/// The place of a cell in the map.
QRect cellRect(MapCell cell, QSize map);

/// Place for something of that size beside a point: to its lower right, or on the other side where `bounds` end.
QPoint placeBeside(QPoint point, QSize size, const QRect &bounds);

} // namespace zephira

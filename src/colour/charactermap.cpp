// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/charactermap.h"

namespace zephira {

void CharacterMap::setIndex(int index)
{
    if (index >= 1 && index <= rows * columns)
        m_index = index;
}

MapCell CharacterMap::cell() const
{
    return {(m_index - 1) / columns, (m_index - 1) % columns};
}

QSize cellSize(QSize map)
{
    return {map.width() / CharacterMap::columns, map.height() / CharacterMap::rows};
}

std::optional<MapCell> cellAt(QPoint point, QSize map)
{
    const QSize size = cellSize(map);
    if (size.isEmpty() || point.x() < 0 || point.y() < 0)
        return {};
    const MapCell cell{point.y() / size.height(), point.x() / size.width()};
    return cell.row < CharacterMap::rows && cell.column < CharacterMap::columns ? std::optional(cell) : std::nullopt;
}

QRect cellRect(MapCell cell, QSize map)
{
    const QSize size = cellSize(map);
    return {{cell.column * size.width(), cell.row * size.height()}, size};
}

QPoint placeBeside(QPoint point, QSize size, const QRect &bounds)
{
    constexpr int distance = 14;
    QPoint place = point + QPoint(distance, distance);
    if (place.x() + size.width() > bounds.right() + 1)
        place.setX(point.x() - distance - size.width());
    if (place.y() + size.height() > bounds.bottom() + 1)
        place.setY(point.y() - distance - size.height());
    return place;
}

} // namespace zephira

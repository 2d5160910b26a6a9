// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/mapdrawing.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace zephira {

namespace {

qint16 toWhole(float number)
{
    using Limits = std::numeric_limits<qint16>;
    return static_cast<qint16>(std::clamp<float>(std::nearbyint(number), static_cast<float>(Limits::min()),
                                                 static_cast<float>(Limits::max())));
}

} // namespace

void MapDrawing::press(Qt::MouseButton button, MapPoint place)
{
    if (button != Qt::LeftButton || isComplete())
        return;
    m_hasMoved = false;
    switch (m_tool) {
    case MapTool::Polygon:
        m_lines[m_currentLine].start = m_currentLine == firstLine() ? place : m_lines[m_currentLine - 1].end;
        break;
    case MapTool::Rectangle:
        startShape(MapShape::Kind::Rectangle, place);
        break;
    case MapTool::Circle:
        startShape(MapShape::Kind::Circle, place);
        break;
    }
}

void MapDrawing::startShape(MapShape::Kind kind, MapPoint place)
{
    m_start = {toWhole(place.x), toWhole(place.y)};
    m_areas[m_currentArea].shape = {.kind = kind, .left = place.x, .top = place.y, .visible = true};
}

void MapDrawing::move(Qt::MouseButtons held, MapPoint place)
{
    if (!held.testFlag(Qt::LeftButton) || isComplete())
        return;
    m_hasMoved = true;
    const float startX = m_start.x;
    const float startY = m_start.y;
    MapShape &shape = m_areas[m_currentArea].shape;
    switch (m_tool) {
    case MapTool::Polygon:
        m_lines[m_currentLine].end = place;
        m_lines[m_currentLine].visible = true;
        break;
    case MapTool::Rectangle:
        shape.left = std::min(place.x, startX);
        shape.top = std::min(place.y, startY);
        shape.width = std::abs(place.x - startX);
        shape.height = std::abs(place.y - startY);
        break;
    case MapTool::Circle: {
        // The radius is the horizontal distance alone.
        const float radius = std::abs(place.x - startX);
        shape.left = startX - radius;
        shape.top = startY - radius;
        shape.width = 2 * radius;
        shape.height = 2 * radius;
        break;
    }
    }
}

void MapDrawing::release(Qt::MouseButton button, MapPoint place)
{
    if (button != Qt::LeftButton || isComplete() || !m_hasMoved)
        return;
    switch (m_tool) {
    case MapTool::Polygon:
        m_lines[lastLine()] = {m_lines[m_currentLine].end, m_lines[firstLine()].start, true};
        m_lines[m_currentLine].visible = true;
        m_lineUsed[m_currentLine] = true;
        ++m_currentLine;
        m_hasMoved = false;
        break;
    case MapTool::Rectangle:
        break;
    case MapTool::Circle:
        m_circle = {m_start, toWhole(std::abs(place.x - static_cast<float>(m_start.x)))};
        break;
    }
}

void MapDrawing::pick(int area)
{
    m_currentArea = area;
    m_currentLine = firstLine();
}

void MapDrawing::accept()
{
    m_areas[m_currentArea].text = openingText();
    hideDrawing();
    m_areas[m_currentArea].accepted = true;
    // An area that is marked as shown already stays hidden.
    show(m_currentArea, true);
    if (m_currentArea + 1 < areaCount)
        pick(m_currentArea + 1);
}

QString MapDrawing::openingText()
{
    if (m_tool == MapTool::Circle)
        return circleArea(m_circle.centre.x, m_circle.centre.y, m_circle.radius);
    if (m_tool == MapTool::Rectangle) {
        const MapShape &shape = m_areas[m_currentArea].shape;
        return rectangleArea({shape.left, shape.top}, {shape.left + shape.width, shape.top + shape.height});
    }
    // The closing side starts at the last corner.
    m_lineUsed[lastLine()] = true;
    std::vector<MapPoint> corners;
    for (int line = firstLine(); line <= lastLine(); ++line) {
        if (m_lineUsed[line])
            corners.push_back(m_lines[line].start);
    }
    return polygonArea(corners);
}

void MapDrawing::hideDrawing()
{
    for (int line = firstLine(); line <= lastLine(); ++line)
        m_lines[line].visible = false;
    m_currentLine = firstLine();
    m_areas[m_currentArea].shape.visible = false;
}

void MapDrawing::clear()
{
    Area &area = m_areas[m_currentArea];
    area.text.clear();
    for (int line = firstLine(); line <= lastLine(); ++line) {
        m_lines[line] = {};
        m_lineUsed[line] = false;
    }
    hideDrawing();
    area.accepted = false;
    area.shown = false;
}

void MapDrawing::show(int area, bool on)
{
    if (m_areas[area].shown == on)
        return;
    m_areas[area].shown = on;
    if (!isPolygonArea(m_areas[area].text)) {
        m_areas[area].shape.visible = on;
        return;
    }
    const int first = area * linesPerArea;
    for (int line = first; line < first + linesPerArea; ++line) {
        if (!on || m_lineUsed[line])
            m_lines[line].visible = on;
    }
}

} // namespace zephira

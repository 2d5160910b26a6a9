// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/mapobjects.h"

using namespace Qt::StringLiterals;

namespace zephira {

MapLineObject::MapLineObject(const MapDrawing &drawing, int index, QObject *parent)
    : QObject(parent), m_drawing(drawing), m_index(index)
{
    setObjectName(u"Line1_%1"_s.arg(index));
}

MapShapeObject::MapShapeObject(const MapDrawing &drawing, int area, QObject *parent)
    : QObject(parent), m_drawing(drawing), m_area(area)
{
    setObjectName(u"Shape2_%1"_s.arg(area));
}

void makeMapObjects(const MapDrawing &drawing, QObject *parent)
{
    for (int line = 0; line < MapDrawing::lineCount; ++line)
        new MapLineObject(drawing, line, parent);
    for (int area = 0; area < MapDrawing::areaCount; ++area)
        new MapShapeObject(drawing, area, parent);
}

} // namespace zephira

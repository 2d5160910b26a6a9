// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wizards/mapdrawing.h"

#include <QObject>

namespace zephira {

/// A line of a drawing as an object that can be found and read by name.
class MapLineObject final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(float X1 READ x1)
    Q_PROPERTY(float Y1 READ y1)
    Q_PROPERTY(float X2 READ x2)
    Q_PROPERTY(float Y2 READ y2)
    Q_PROPERTY(bool Visible READ isVisible)

public:
    /// The drawing must outlive the object.
    MapLineObject(const MapDrawing &drawing, int index, QObject *parent);

    float x1() const { return m_drawing.line(m_index).start.x; }
    float y1() const { return m_drawing.line(m_index).start.y; }
    float x2() const { return m_drawing.line(m_index).end.x; }
    float y2() const { return m_drawing.line(m_index).end.y; }
    bool isVisible() const { return m_drawing.line(m_index).visible; }

private:
    const MapDrawing &m_drawing;
    const int m_index;
};

/// The same for the shape of an area.
class MapShapeObject final : public QObject
{
    Q_OBJECT
    /// 0 for a rectangle, 3 for a circle.
    Q_PROPERTY(int Shape READ kind)
    Q_PROPERTY(float Left READ left)
    Q_PROPERTY(float Top READ top)
    Q_PROPERTY(float Width READ width)
    Q_PROPERTY(float Height READ height)
    Q_PROPERTY(bool Visible READ isVisible)

public:
    MapShapeObject(const MapDrawing &drawing, int area, QObject *parent);

    int kind() const { return static_cast<int>(m_drawing.shape(m_area).kind); }
    float left() const { return m_drawing.shape(m_area).left; }
    float top() const { return m_drawing.shape(m_area).top; }
    float width() const { return m_drawing.shape(m_area).width; }
    float height() const { return m_drawing.shape(m_area).height; }
    bool isVisible() const { return m_drawing.shape(m_area).visible; }

private:
    const MapDrawing &m_drawing;
    const int m_area;
};

/// Makes one object for each line and shape of a drawing, named Line1_0, Line1_1 … and Shape2_0 ….
void makeMapObjects(const MapDrawing &drawing, QObject *parent);

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wizards/mapmarkup.h"

#include <QString>

#include <array>

namespace zephira {

/// A line above the picture: a side of a polygon.
struct MapLine {
    MapPoint start = {};
    MapPoint end = {};
    bool visible = false;

    friend bool operator==(const MapLine &, const MapLine &) = default;
};

/// A rectangle or a circle above the picture; a circle by the square around it.
struct MapShape {
    enum class Kind { Rectangle = 0, Circle = 3 };

    Kind kind = Kind::Rectangle;
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;
    bool visible = false;

    friend bool operator==(const MapShape &, const MapShape &) = default;
};

enum class MapTool { Polygon = 1, Rectangle = 2, Circle = 3 };

/// Drawing of the areas of an image map with the mouse. There are six areas; one of them is worked on at a time. An area
/// is drawn and then accepted, which writes its opening text. A polygon is drawn side by side, each side by a drag, and
/// has at most six besides the one that closes it. Nothing looks at whether areas overlap.
///
/// Positions are in pixels of the picture and may lie outside it. Areas count from 0, and area N owns the lines from 7 N
/// to 7 N + 6, of which the last is the closing side. Numbers that are kept as whole ones are rounded, halves to even,
/// and limited to 16 bits.
class MapDrawing
{
public:
    static constexpr int areaCount = 6;
    static constexpr int linesPerArea = 7;
    static constexpr int lineCount = areaCount * linesPerArea;
    /// There are more flags than lines.
    static constexpr int flagCount = 61;

    struct Point {
        qint16 x = 0;
        qint16 y = 0;

        friend bool operator==(const Point &, const Point &) = default;
    };
    struct Circle {
        Point centre = {};
        qint16 radius = 0;

        friend bool operator==(const Circle &, const Circle &) = default;
    };

    // The mouse. Only the left button draws, and nothing is drawn any more when the sides of the area are used up.

    void press(Qt::MouseButton button, MapPoint place);
    void move(Qt::MouseButtons held, MapPoint place);
    /// Fixes what was drawn since the press, if the mouse has moved.
    void release(Qt::MouseButton button, MapPoint place);

    /// Chooses the area to work on. What was drawn in it stays, and is drawn over from the first side on.
    void pick(int area);
    void chooseTool(MapTool tool) { m_tool = tool; }
    /// Writes the area's opening text by the tool that is chosen now, shows the area unless it was accepted before, and
    /// picks the next area, except after the last.
    void accept();
    /// Empties the area: its text and its sides. The numbers of its rectangle or circle stay.
    void clear();
    /// Shows or hides an accepted area. Its text decides whether as a polygon or as a shape.
    void show(int area, bool on);
    /// The opening text can be edited.
    void setText(int area, const QString &text) { m_areas[area].text = text; }

    int currentArea() const { return m_currentArea; }
    int firstLine() const { return m_currentArea * linesPerArea; }
    /// The next side to be drawn; equal to lastLine() if there is none left.
    int currentLine() const { return m_currentLine; }
    int lastLine() const { return firstLine() + linesPerArea - 1; }
    bool hasMoved() const { return m_hasMoved; }
    MapTool tool() const { return m_tool; }
    /// Where the mouse was pressed for a rectangle or a circle.
    Point start() const { return m_start; }
    /// The last circle that was fixed, in whichever area.
    Circle circle() const { return m_circle; }
    bool isLineUsed(int line) const { return m_lineUsed[line]; }
    const MapLine &line(int index) const { return m_lines[index]; }
    const MapShape &shape(int area) const { return m_areas[area].shape; }
    QString text(int area) const { return m_areas[area].text; }
    bool isAccepted(int area) const { return m_areas[area].accepted; }
    bool isShown(int area) const { return m_areas[area].shown; }

    friend bool operator==(const MapDrawing &, const MapDrawing &) = default;

private:
    struct Area {
        QString text = {};
        MapShape shape = {};
        bool accepted = false;
        bool shown = false;

        friend bool operator==(const Area &, const Area &) = default;
    };

    bool isComplete() const { return m_currentLine >= lastLine(); }
    QString openingText();
    void startShape(MapShape::Kind kind, MapPoint place);
    void hideDrawing();

    /// The first area's text is a space until it is accepted or cleared.
    std::array<Area, areaCount> m_areas = {Area{.text = QStringLiteral(" ")}};
    std::array<MapLine, lineCount> m_lines = {};
    std::array<bool, flagCount> m_lineUsed = {};
    int m_currentArea = 0;
    int m_currentLine = 0;
    bool m_hasMoved = false;
    MapTool m_tool = MapTool::Polygon;
    Point m_start;
    Circle m_circle;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QString>

#include <array>
#include <span>

namespace zephira {

/// A position in a picture, in pixels from its top left corner.
struct MapPoint {
    float x = 0;
    float y = 0;

    friend bool operator==(const MapPoint &, const MapPoint &) = default;
};

// The opening texts of areas, up to the coordinates: the link and the end of the tag are still to come. Coordinates are
// written in decimals, without an exponent.

QString circleArea(int x, int y, int radius);
QString rectangleArea(MapPoint topLeft, MapPoint bottomRight);
/// `corners` holds each corner once, and at least one.
QString polygonArea(std::span<const MapPoint> corners);

/// Whether an opening text is that of a polygon, judged by the first letter of its shape.
bool isPolygonArea(const QString &text);

/// One area of an image map, as typed. It is neither quoted nor checked.
struct MapArea {
    /// Its opening text; an area without one is left out.
    QString text = {};
    QString link = {};
    QString alternative = {};
};

struct ImageMapFields {
    QString source = {};
    QString name = {};
    /// The picture's size in pixels.
    QSize size = {0, 0};
    /// In the order in which they are written.
    std::array<MapArea, 6> areas = {};
};

/// The picture with its map, with CR LF line ends.
QString imageMapMarkup(const ImageMapFields &fields);

} // namespace zephira

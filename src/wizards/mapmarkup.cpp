// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/mapmarkup.h"

#include "core/vbtext.h"
#include "wizards/attribute.h"

#include <QStringList>

#include <charconv>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Where the name of the shape begins in an opening text, 1-based.
constexpr int startOfShape = 13;

/// The fewest digits that tell the number from its neighbours.
QString decimal(float number)
{
    // The largest number has 39 digits, the smallest one about 50 decimals.
    char digits[64];
    // Adding zero turns the negative zero into the usual one.
    const auto end = std::to_chars(std::begin(digits), std::end(digits), number + 0.0F, std::chars_format::fixed).ptr;
    return QString::fromLatin1(digits, end - digits);
}

QString opening(QStringView shape, const QStringList &numbers)
{
    return u"<AREA SHAPE="_s + shape.toString() + attribute(u"COORDS"_s, numbers.join(u','));
}

QString areaLine(const MapArea &area)
{
    return area.text + u" HREF = \""_s + area.link + u"\" ALT = \""_s + area.alternative + u"\">\r\n"_s;
}

} // namespace

QString circleArea(int x, int y, int radius)
{
    return opening(u"CIRCLE", {QString::number(x), QString::number(y), QString::number(radius)});
}

QString rectangleArea(MapPoint topLeft, MapPoint bottomRight)
{
    return opening(u"RECT", {decimal(topLeft.x), decimal(topLeft.y), decimal(bottomRight.x), decimal(bottomRight.y)});
}

QString polygonArea(std::span<const MapPoint> corners)
{
    QStringList numbers;
    for (const MapPoint &corner : corners)
        numbers << decimal(corner.x) << decimal(corner.y);
    return opening(u"POLY", numbers);
}

bool isPolygonArea(const QString &text)
{
    return Mid(text, startOfShape, 1) == u"P";
}

QString imageMapMarkup(const ImageMapFields &fields)
{
    QString text = u"<!-- Created by Zephira -->\r\n"
                   "<!-- Start of Image Map -->\r\n"
                   "<IMG"_s
        + attribute(u"SRC"_s, fields.source) + attribute(u"USEMAP"_s, u'#' + fields.name) + u" WIDTH="_s
        + QString::number(fields.size.width()) + u" HEIGHT="_s + QString::number(fields.size.height())
        + u" BORDER=0>\r\n<MAP"_s + attribute(u"NAME"_s, fields.name) + u">\r\n"_s;
    for (const MapArea &area : fields.areas) {
        if (!area.text.isEmpty())
            text += areaLine(area);
    }
    return text
        + u"</MAP>\r\n"
          "<!-- End of Image Map -->\r\n"_s;
}

} // namespace zephira

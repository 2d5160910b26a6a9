// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary work with the mouse on an image map: the drawing is that of the plain rules, and its lines and shapes
// belong to their areas.
#include "fuzz/fuzztarget.h"
#include "wizards/mapdrawing.h"
#include "wizards/mapmarkup.h"

#include <cstring>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

void step(MapDrawing &drawing, unsigned char what, MapPoint place)
{
    const int area = what / 16 % MapDrawing::areaCount;
    switch (what % 9) {
    case 0:
        return drawing.press(Qt::LeftButton, place);
    case 1:
        return drawing.move(Qt::LeftButton, place);
    case 2:
        return drawing.release(Qt::LeftButton, place);
    case 3:
        return drawing.pick(area);
    case 4:
        return drawing.chooseTool(static_cast<MapTool>(1 + area % 3));
    case 5:
        return drawing.accept();
    case 6:
        return drawing.clear();
    case 7:
        return drawing.show(area, drawing.isAccepted(area) && place.y > 10);
    default:
        return drawing.setText(area, u"<area shape=\"poly"_s);
    }
}

} // namespace

FUZZ_TARGET(mapdrawing)
{
    // Each step takes three bytes: what is done, and a place.
    MapDrawing drawing;
    for (std::size_t at = 0; at + 3 <= size; at += 3) {
        const MapPoint place{static_cast<float>(data[at + 1]) * 400 - 2000, static_cast<float>(data[at + 2]) / 3};
        step(drawing, data[at], place);
        check(drawing.currentArea() >= 0 && drawing.currentArea() < MapDrawing::areaCount);
        check(drawing.currentLine() >= drawing.firstLine() && drawing.currentLine() <= drawing.lastLine());
        for (int area = 0; area < MapDrawing::areaCount; ++area) {
            const QString text = drawing.text(area);
            check(!drawing.isShown(area) || drawing.isAccepted(area));
            isPolygonArea(text);
            check(!text.contains(u"inf") && !text.contains(u"nan") && !text.contains(u"e+"));
        }
    }
    return 0;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "wizards/mapcrosshair.h"
#include "wizards/mapdrawing.h"
#include "wizards/mapobjects.h"
#include "wizards/plainmapdrawing.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

MapPoint pointOf(const QString &numbers)
{
    return {numbers.section(u',', 0, 0).toFloat(), numbers.section(u',', 1, 1).toFloat()};
}

/// Plays a list of events: "down 1,2", "move 3,4" with the left button held, "up 3,4", all three as "drag 1,2 3,4", a
/// press and a release as "click 1,2", "polygon", "rectangle", "circle", "pick 3", "accept", "clear", "show 3",
/// "hide 3", "rightdown 1,2", "rightmove 1,2", "rightup 1,2", "hover 1,2" with no button held.
void play(MapDrawing &drawing, const QString &events)
{
    QStringList words = events.split(u' ', Qt::SkipEmptyParts);
    const auto place = [&words] { return pointOf(words.takeFirst()); };
    const auto area = [&words] { return words.takeFirst().toInt(); };
    while (!words.isEmpty()) {
        const QString event = words.takeFirst();
        if (event == u"down")
            drawing.press(Qt::LeftButton, place());
        else if (event == u"move")
            drawing.move(Qt::LeftButton, place());
        else if (event == u"up")
            drawing.release(Qt::LeftButton, place());
        else if (event == u"rightdown")
            drawing.press(Qt::RightButton, place());
        else if (event == u"rightmove")
            drawing.move(Qt::RightButton, place());
        else if (event == u"rightup")
            drawing.release(Qt::RightButton, place());
        else if (event == u"hover")
            drawing.move(Qt::NoButton, place());
        else if (event == u"drag")
            words = u"down %1 move %2 up %2"_s.arg(words[0], words[1]).split(u' ') + words.sliced(2);
        else if (event == u"click")
            play(drawing, u"down %1 up %1"_s.arg(words.takeFirst()));
        else if (event == u"polygon")
            drawing.chooseTool(MapTool::Polygon);
        else if (event == u"rectangle")
            drawing.chooseTool(MapTool::Rectangle);
        else if (event == u"circle")
            drawing.chooseTool(MapTool::Circle);
        else if (event == u"pick")
            drawing.pick(area());
        else if (event == u"show")
            drawing.show(area(), true);
        else if (event == u"hide")
            drawing.show(area(), false);
        else if (event == u"accept")
            drawing.accept();
        else if (event == u"clear")
            drawing.clear();
        else
            qFatal("\"%s\" is no event", qPrintable(event));
    }
}

/// The visible lines as "3: 1,2-5,6", and shapes as "R1: 1,2 3x4" or "C1: …".
QString visible(const MapDrawing &drawing)
{
    QStringList found;
    for (int i = 0; i < MapDrawing::lineCount; ++i) {
        const MapLine &line = drawing.line(i);
        if (line.visible)
            found.append(u"%1: %2,%3-%4,%5"_s.arg(QString::number(i), QString::number(line.start.x),
                                                  QString::number(line.start.y), QString::number(line.end.x),
                                                  QString::number(line.end.y)));
    }
    for (int i = 0; i < MapDrawing::areaCount; ++i) {
        const MapShape &shape = drawing.shape(i);
        if (shape.visible)
            found.append(u"%1%2: %3,%4 %5x%6"_s.arg(
                shape.kind == MapShape::Kind::Circle ? u"C"_s : u"R"_s, QString::number(i), QString::number(shape.left),
                QString::number(shape.top), QString::number(shape.width), QString::number(shape.height)));
    }
    return found.join(u"; "_s);
}

/// The opening texts of the areas in which they aren't as at the start, without what all have in common.
QString texts(const MapDrawing &drawing)
{
    QStringList found;
    for (int i = 0; i < MapDrawing::areaCount; ++i) {
        if (drawing.text(i) != (i == 0 ? u" "_s : QString()))
            found.append(u"%1 %2"_s.arg(i).arg(drawing.text(i)));
    }
    return found.join(u"; "_s).remove(u"<AREA SHAPE="_s).remove(u"COORDS="_s).remove(u'"');
}

/// Compares the two; returns the name of the first difference, or nothing.
QString difference(const MapDrawing &drawing, const PlainMapDrawing &plain)
{
    const auto same = [](float a, float b) { return a == b; };
    for (int i = 0; i < 42; ++i) {
        const MapLine &line = drawing.line(i);
        if (!same(line.start.x, plain.x1[i]) || !same(line.start.y, plain.y1[i]) || !same(line.end.x, plain.x2[i])
            || !same(line.end.y, plain.y2[i]) || line.visible != plain.lineVisible[i])
            return u"line %1"_s.arg(i);
    }
    for (int i = 0; i < 61; ++i) {
        if (drawing.isLineUsed(i) != plain.lineUsed[i])
            return u"used %1"_s.arg(i);
    }
    for (int i = 0; i < 6; ++i) {
        const MapShape &shape = drawing.shape(i);
        if (static_cast<int>(shape.kind) != plain.shapeKind[i] || !same(shape.left, plain.shapeLeft[i])
            || !same(shape.top, plain.shapeTop[i]) || !same(shape.width, plain.shapeWidth[i])
            || !same(shape.height, plain.shapeHeight[i]) || shape.visible != plain.shapeVisible[i])
            return u"shape %1"_s.arg(i);
        if (drawing.text(i) != plain.text[i])
            return u"text %1: %2, not %3"_s.arg(i).arg(drawing.text(i), plain.text[i]);
        if (drawing.isAccepted(i) != plain.enabled[i] || drawing.isShown(i) != plain.ticked[i])
            return u"box %1"_s.arg(i);
    }
    if (drawing.currentArea() != plain.currentArea || drawing.firstLine() != plain.firstLine()
        || drawing.currentLine() != plain.currentLine || drawing.lastLine() != plain.lastLine())
        return u"area or line"_s;
    if (drawing.hasMoved() != (plain.moved == 1) || static_cast<int>(drawing.tool()) != plain.tool)
        return u"moved or tool"_s;
    if (drawing.start().x != plain.anchorX || drawing.start().y != plain.anchorY)
        return u"start"_s;
    const MapDrawing::Circle circle = drawing.circle();
    if (circle.centre.x != plain.circleX || circle.centre.y != plain.circleY || circle.radius != plain.circleR)
        return u"circle"_s;
    return {};
}

} // namespace

class TstMapDrawing final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults()
    {
        const MapDrawing drawing;
        QCOMPARE(drawing.currentArea(), 0);
        QCOMPARE(drawing.firstLine(), 0);
        QCOMPARE(drawing.currentLine(), 0);
        QCOMPARE(drawing.lastLine(), 6);
        QCOMPARE(drawing.tool(), MapTool::Polygon);
        QVERIFY(!drawing.hasMoved());
        QCOMPARE(drawing.text(0), u" "_s);
        for (int area = 0; area < 6; ++area) {
            QVERIFY(area == 0 || drawing.text(area).isEmpty());
            QVERIFY(!drawing.isAccepted(area) && !drawing.isShown(area));
            QCOMPARE(drawing.shape(area), MapShape());
        }
        for (int line = 0; line < 42; ++line)
            QCOMPARE(drawing.line(line), MapLine());
        for (int line = 0; line < 61; ++line)
            QVERIFY(!drawing.isLineUsed(line));
        QCOMPARE(drawing.circle(), MapDrawing::Circle());
        QCOMPARE(drawing.start(), MapDrawing::Point());
    }

    void accepted_data()
    {
        QTest::addColumn<QString>("events");
        QTest::addColumn<QString>("texts");
        const auto row = [](const char *name, const QString &events, const QString &texts) {
            QTest::newRow(name) << events << texts;
        };
        // clang-format off: a row a line
        row("triangle", u"drag 10,20 30,40 drag 0,0 50,60 accept"_s, u"0 POLY 10,20,30,40,50,60"_s);
        row("only the first press sets a corner", u"drag 10,20 30,40 drag 99,98 50,60 accept"_s,
            u"0 POLY 10,20,30,40,50,60"_s);
        row("one side", u"drag 10,20 30,40 accept"_s, u"0 POLY 10,20,30,40"_s);
        row("six sides and the closing one",
            u"drag 1,1 2,2 drag 0,0 3,3 drag 0,0 4,4 drag 0,0 5,5 drag 0,0 6,6 drag 0,0 7,7 accept"_s,
            u"0 POLY 1,1,2,2,3,3,4,4,5,5,6,6,7,7"_s);
        row("a seventh side is ignored",
            u"drag 1,1 2,2 drag 0,0 3,3 drag 0,0 4,4 drag 0,0 5,5 drag 0,0 6,6 drag 0,0 7,7 drag 0,0 8,8 accept"_s,
            u"0 POLY 1,1,2,2,3,3,4,4,5,5,6,6,7,7"_s);
        row("a press without a move leaves no side", u"drag 1,1 2,2 click 50,50 drag 0,0 3,3 accept"_s,
            u"0 POLY 1,1,2,2,3,3"_s);
        row("a click alone", u"click 50,51 accept"_s, u"0 POLY 0,0"_s);
        row("nothing drawn", u"accept"_s, u"0 POLY 0,0"_s);
        row("nothing drawn after a clear", u"drag 1,1 2,2 clear accept"_s, u"0 POLY 0,0"_s);
        row("rectangle", u"rectangle drag 10,20 110,70 accept"_s, u"0 RECT 10,20,110,70"_s);
        row("rectangle to the upper left", u"rectangle drag 110,70 10,20 accept"_s, u"0 RECT 10,20,110,70"_s);
        row("rectangle to the lower left", u"rectangle drag 110,20 10,70 accept"_s, u"0 RECT 10,20,110,70"_s);
        row("rectangle left by the mouse", u"rectangle drag 10,20 -5,-7 accept"_s, u"0 RECT -5,-7,10,20"_s);
        row("rectangle without a move", u"rectangle click 10,20 accept"_s, u"0 RECT 10,20,10,20"_s);
        row("rectangle never drawn", u"rectangle accept"_s, u"0 RECT 0,0,0,0"_s);
        row("circle", u"circle drag 100,80 130,200 accept"_s, u"0 CIRCLE 100,80,30"_s);
        row("circle to the left", u"circle drag 100,80 60,80 accept"_s, u"0 CIRCLE 100,80,40"_s);
        row("circle straight down", u"circle drag 100,80 100,300 accept"_s, u"0 CIRCLE 100,80,0"_s);
        row("circle with a small drift", u"circle drag 100,80 97,300 accept"_s, u"0 CIRCLE 100,80,3"_s);
        row("circle never drawn", u"circle accept"_s, u"0 CIRCLE 0,0,0"_s);
        row("the radius is that at the release", u"circle down 10,10 move 20,10 up 25,10 accept"_s,
            u"0 CIRCLE 10,10,15"_s);
        row("the rectangle is that of the last move", u"rectangle down 10,10 move 20,20 up 25,25 accept"_s,
            u"0 RECT 10,10,20,20"_s);
        row("two circles", u"circle drag 10,10 15,10 accept drag 50,50 57,50 accept"_s,
            u"0 CIRCLE 10,10,5; 1 CIRCLE 50,50,7"_s);
        row("a press without a move repeats the circle", u"circle drag 10,10 15,10 accept click 50,50 accept"_s,
            u"0 CIRCLE 10,10,5; 1 CIRCLE 10,10,5"_s);
        row("by the tool that is chosen now", u"drag 10,20 30,40 rectangle accept"_s, u"0 RECT 0,0,0,0"_s);
        row("a polygon accepted as a circle", u"drag 10,20 30,40 circle accept"_s, u"0 CIRCLE 0,0,0"_s);
        row("a rectangle accepted as a polygon", u"rectangle drag 10,20 30,40 polygon accept"_s, u"0 POLY 0,0"_s);
        row("a rectangle from the numbers of a circle", u"circle drag 10,20 30,20 rectangle accept"_s,
            u"0 RECT -10,0,30,40"_s);
        row("old and new corners mix",
            u"drag 1,1 2,2 drag 0,0 3,3 drag 0,0 4,4 accept pick 0 drag 10,10 20,20 drag 0,0 30,30 accept"_s,
            u"0 POLY 10,10,20,20,3,3,30,30"_s);
        row("not after a clear",
            u"drag 1,1 2,2 drag 0,0 3,3 drag 0,0 4,4 accept pick 0 clear drag 10,10 20,20 drag 0,0 30,30 accept"_s,
            u"0 POLY 10,10,20,20,30,30"_s);
        row("a clear keeps the shape's numbers", u"rectangle drag 10,20 30,40 clear accept"_s, u"0 RECT 10,20,30,40"_s);
        row("the last area stays", u"pick 5 rectangle drag 1,2 3,4 accept drag 5,6 7,8 accept"_s, u"5 RECT 5,6,7,8"_s);
        row("six areas",
            u"pick 5 drag 1,1 2,2 accept pick 0 rectangle drag 1,2 3,4 accept drag 3,4 5,6 accept circle drag 1,1 2,2 accept drag 3,3 5,5 accept polygon drag 8,8 9,9 accept"_s,
            u"0 RECT 1,2,3,4; 1 RECT 3,4,5,6; 2 CIRCLE 1,1,1; 3 CIRCLE 3,3,2; 4 POLY 8,8,9,9; 5 POLY 1,1,2,2"_s);
        row("halves go to the even neighbour", u"circle drag 10.5,11.5 13,0 accept drag 3.5,0.5 6.5,0 accept"_s,
            u"0 CIRCLE 10,12,3; 1 CIRCLE 4,0,2"_s);
        row("parts of a pixel", u"rectangle drag 1.5,2.5 3.25,4.75 accept"_s, u"0 RECT 2,2,3.25,4.75"_s);
        row("no exponent", u"rectangle drag 0,0 30000000,0 accept"_s, u"0 RECT 0,0,30000000,0"_s);
        row("16 bits", u"circle drag 40000,-40000 -40000,0 accept"_s, u"0 CIRCLE 32767,-32768,32767"_s);
        row("only the left button presses", u"rectangle rightdown 10,10 rightmove 20,20 rightup 20,20 accept"_s,
            u"0 RECT 0,0,0,0"_s);
        row("only a held button draws", u"hover 10,10 down 1,1 hover 20,20 up 20,20 accept"_s, u"0 POLY 0,0"_s);
        row("the right button fixes nothing", u"down 1,1 move 2,2 rightup 2,2 move 3,3 up 3,3 accept"_s,
            u"0 POLY 1,1,3,3"_s);
        row("picked again",
            u"drag 1,1 2,2 drag 0,0 3,3 drag 0,0 4,4 drag 0,0 5,5 drag 0,0 6,6 drag 0,0 7,7 pick 0 drag 9,9 8,8 accept"_s,
            u"0 POLY 9,9,2,2,3,3,4,4,5,5,6,6,8,8"_s);
        // clang-format on
    }
    void accepted()
    {
        QFETCH(QString, events);
        MapDrawing drawing;
        play(drawing, events);
        QTEST(texts(drawing), "texts");
    }

    void drawn_data()
    {
        QTest::addColumn<QString>("events");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char *name, const QString &events, const QString &shown) {
            QTest::newRow(name) << events << shown;
        };
        // clang-format off: a row a line
        row("a press shows no side", u"down 1,2"_s, QString());
        row("rubber band", u"down 1,2 move 3,4"_s, u"0: 1,2-3,4"_s);
        row("the closing side comes at the release", u"down 1,2 move 3,4 up 3,4"_s, u"0: 1,2-3,4; 6: 3,4-1,2"_s);
        row("and stays during the next move", u"drag 1,2 3,4 down 3,4 move 5,6"_s,
            u"0: 1,2-3,4; 1: 3,4-5,6; 6: 3,4-1,2"_s);
        row("then moves on", u"drag 1,2 3,4 drag 3,4 5,6"_s, u"0: 1,2-3,4; 1: 3,4-5,6; 6: 5,6-1,2"_s);
        row("a press shows a rectangle", u"rectangle down 1,2"_s, u"R0: 1,2 0x0"_s);
        row("rectangle", u"rectangle down 5,6 move 1,9"_s, u"R0: 1,6 4x3"_s);
        row("a press shows a circle", u"circle down 1,2"_s, u"C0: 1,2 0x0"_s);
        row("circle", u"circle down 10,20 move 14,99"_s, u"C0: 6,16 8x8"_s);
        row("the vertical way plays no part", u"circle down 10,20 move 10,99"_s, u"C0: 10,20 0x0"_s);
        row("nothing after six sides",
            u"drag 1,1 2,2 drag 0,0 3,3 drag 0,0 4,4 drag 0,0 5,5 drag 0,0 6,6 drag 0,0 7,7 rectangle drag 1,1 5,5 circle drag 1,1 5,5"_s,
            u"0: 1,1-2,2; 1: 2,2-3,3; 2: 3,3-4,4; 3: 4,4-5,5; 4: 5,5-6,6; 5: 6,6-7,7; 6: 7,7-1,1"_s);
        row("accepting shows the area", u"drag 1,2 3,4 accept"_s, u"0: 1,2-3,4; 6: 3,4-1,2"_s);
        row("accepting a second time hides it", u"drag 1,2 3,4 accept pick 0 accept"_s, QString());
        row("until the box is toggled", u"drag 1,2 3,4 accept pick 0 accept hide 0 show 0"_s,
            u"0: 1,2-3,4; 6: 3,4-1,2"_s);
        row("hidden", u"drag 1,2 3,4 accept hide 0"_s, QString());
        row("a shape hidden and shown", u"rectangle drag 1,2 3,4 accept hide 0 show 0"_s, u"R0: 1,2 2x2"_s);
        row("accepted as another shape", u"drag 1,2 3,4 rectangle accept"_s, u"R0: 0,0 0x0"_s);
        row("cleared", u"drag 1,2 3,4 clear"_s, QString());
        row("cleared after accepting", u"rectangle drag 1,2 3,4 accept pick 0 clear"_s, QString());
        row("picking clears nothing", u"drag 1,2 3,4 pick 2"_s, u"0: 1,2-3,4; 6: 3,4-1,2"_s);
        row("other areas stay", u"drag 1,2 3,4 accept drag 5,6 7,8"_s,
            u"0: 1,2-3,4; 6: 3,4-1,2; 7: 5,6-7,8; 13: 7,8-5,6"_s);
        row("drawn over from the first side on", u"drag 1,2 3,4 drag 0,0 5,6 pick 0 down 7,8"_s,
            u"0: 7,8-3,4; 1: 3,4-5,6; 6: 5,6-1,2"_s);
        row("the last area owns the last lines", u"pick 5 drag 1,2 3,4"_s, u"35: 1,2-3,4; 41: 3,4-1,2"_s);
        // clang-format on
    }
    void drawn()
    {
        QFETCH(QString, events);
        MapDrawing drawing;
        play(drawing, events);
        QTEST(visible(drawing), "shown");
    }

    void theTextChoosesWhatIsShown()
    {
        MapDrawing drawing;
        play(drawing, u"drag 1,2 3,4 rectangle down 5,6 move 7,8 polygon accept"_s);
        QCOMPARE(visible(drawing), u"0: 1,2-3,4; 6: 3,4-1,2"_s);
        drawing.setText(0, u"<area shape=rect"_s);
        drawing.show(0, false);
        QCOMPARE(visible(drawing), u"0: 1,2-3,4; 6: 3,4-1,2"_s);
        drawing.show(0, true);
        QCOMPARE(visible(drawing), u"0: 1,2-3,4; 6: 3,4-1,2; R0: 5,6 2x2"_s);
        drawing.setText(0, u"123456789012P"_s);
        drawing.show(0, false);
        QCOMPARE(visible(drawing), u"R0: 5,6 2x2"_s);
    }

    void acceptedAreasCanBeShown()
    {
        MapDrawing drawing;
        play(drawing, u"drag 1,2 3,4 accept"_s);
        QVERIFY(drawing.isAccepted(0) && drawing.isShown(0));
        QVERIFY(!drawing.isAccepted(1));
        QCOMPARE(drawing.currentArea(), 1);
        QCOMPARE(drawing.currentLine(), 7);
        QVERIFY(drawing.isLineUsed(0) && !drawing.isLineUsed(1) && drawing.isLineUsed(6));
        play(drawing, u"pick 0 clear"_s);
        QVERIFY(!drawing.isAccepted(0) && !drawing.isShown(0));
        QVERIFY(!drawing.isLineUsed(0) && !drawing.isLineUsed(6));
        QCOMPARE(drawing.text(0), QString());
        QCOMPARE(drawing.currentArea(), 0);
    }

    void theMoveIsForgotten()
    {
        MapDrawing drawing;
        play(drawing, u"down 1,1 move 2,2"_s);
        QVERIFY(drawing.hasMoved());
        play(drawing, u"up 2,2"_s);
        QVERIFY(!drawing.hasMoved());
        play(drawing, u"circle drag 1,1 2,2"_s);
        QVERIFY(drawing.hasMoved());
        play(drawing, u"rightdown 1,1"_s);
        QVERIFY(drawing.hasMoved());
        play(drawing, u"down 1,1"_s);
        QVERIFY(!drawing.hasMoved());
    }

    void againstThePlainModel()
    {
        QRandomGenerator random(20);
        const auto number = [&random] {
            // Mostly pixels, near enough to one another that drags go in all directions.
            const int whole = random.bounded(20) == 0 ? random.bounded(-40000, 40000) : random.bounded(-20, 60);
            return static_cast<float>(whole)
                + (random.bounded(4) == 0 ? 0.25F * static_cast<float>(random.bounded(4)) : 0);
        };
        constexpr int lists = 10000;
        for (int list = 0; list < lists; ++list) {
            MapDrawing drawing;
            PlainMapDrawing plain;
            QStringList log;
            for (int events = random.bounded(60); events > 0; --events) {
                const MapPoint place{number(), number()};
                const bool left = random.bounded(12) > 0;
                const int area = random.bounded(6);
                const int kind = random.bounded(20);
                log.append(u"%1(%2,%3 %4 %5)"_s.arg(QString::number(kind), QString::number(place.x),
                                                    QString::number(place.y), QString::number(area),
                                                    left ? u"left"_s : u"right"_s));
                if (kind < 5) {
                    drawing.press(left ? Qt::LeftButton : Qt::RightButton, place);
                    plain.press(left, place.x, place.y);
                } else if (kind < 10) {
                    drawing.move(left ? Qt::LeftButton | Qt::RightButton : Qt::MouseButtons(Qt::MiddleButton), place);
                    plain.move(left, place.x, place.y);
                } else if (kind < 14) {
                    drawing.release(left ? Qt::LeftButton : Qt::MiddleButton, place);
                    plain.release(left, place.x, place.y);
                } else if (kind == 14) {
                    drawing.pick(area);
                    plain.pick(area);
                } else if (kind == 15) {
                    const int tool = 1 + area / 2;
                    drawing.chooseTool(static_cast<MapTool>(tool));
                    plain.tool = tool;
                } else if (kind == 16) {
                    drawing.accept();
                    plain.accept();
                } else if (kind == 17) {
                    if (area < 2) {
                        drawing.clear();
                        plain.clear();
                    }
                } else if (kind == 18) {
                    drawing.show(area, left);
                    plain.tick(area, left);
                } else {
                    const QString text = left ? u"<AREA SHAPE=POLY"_s : u"<AREA SHAPE=RECT"_s;
                    drawing.setText(area, text);
                    plain.text[area] = text;
                }
                const QString found = difference(drawing, plain);
                QVERIFY2(found.isEmpty(), qPrintable(found + u" after "_s + log.join(u' ')));
            }
        }
    }

    void objectsByName()
    {
        MapDrawing drawing;
        QObject picture;
        makeMapObjects(drawing, &picture);
        play(drawing, u"pick 5 drag 1,2 3,4 circle down 10,20 move 14,99"_s);
        QCOMPARE(picture.children().size(), 48);
        const QObject *line = picture.findChild<QObject *>(u"Line1_35"_s);
        QCOMPARE(line->property("X1"), QVariant(1.0F));
        QCOMPARE(line->property("Y1"), QVariant(2.0F));
        QCOMPARE(line->property("X2"), QVariant(3.0F));
        QCOMPARE(line->property("Y2"), QVariant(4.0F));
        QCOMPARE(line->property("Visible"), QVariant(true));
        QCOMPARE(picture.findChild<QObject *>(u"Line1_0"_s)->property("Visible"), QVariant(false));
        const QObject *shape = picture.findChild<QObject *>(u"Shape2_5"_s);
        QCOMPARE(shape->property("Shape"), QVariant(3));
        QCOMPARE(shape->property("Left"), QVariant(6.0F));
        QCOMPARE(shape->property("Top"), QVariant(16.0F));
        QCOMPARE(shape->property("Width"), QVariant(8.0F));
        QCOMPARE(shape->property("Height"), QVariant(8.0F));
        QCOMPARE(shape->property("Visible"), QVariant(true));
    }

    void theCrossHairStaysOnThePicture()
    {
        MapCrossHair cross;
        cross.setPicture({30, 20});
        QCOMPARE(cross.place(), QPoint());
        QCOMPARE(cross.step(-1, -1), MapCrossHair::Event::None);
        QCOMPARE(cross.place(), QPoint());
        cross.step(10, 15);
        cross.step(10, 15);
        QCOMPARE(cross.place(), QPoint(20, 20));
        cross.setPicture({15, 40});
        QCOMPARE(cross.place(), QPoint(15, 20));
        cross.goTo({-5, 100});
        QCOMPARE(cross.place(), QPoint(0, 40));
    }

    void theSpaceBarIsTapped()
    {
        using Event = MapCrossHair::Event;
        MapCrossHair cross;
        cross.setPicture({30, 20});
        QCOMPARE(cross.spacePressed(), Event::Press);
        QCOMPARE(cross.spaceReleased(), Event::None);
        QVERIFY(cross.isDown());
        QCOMPARE(cross.step(1, 0), Event::Move);
        QCOMPARE(cross.spacePressed(), Event::Release);
        QCOMPARE(cross.spaceReleased(), Event::None);
        QVERIFY(!cross.isDown());
        QCOMPARE(cross.step(1, 0), Event::None);
    }

    void theSpaceBarIsHeld()
    {
        using Event = MapCrossHair::Event;
        MapCrossHair cross;
        cross.setPicture({30, 20});
        QCOMPARE(cross.spacePressed(), Event::Press);
        QCOMPARE(cross.step(0, 1), Event::Move);
        QCOMPARE(cross.spaceReleased(), Event::Release);
        QVERIFY(!cross.isDown());
        QCOMPARE(cross.spaceReleased(), Event::None);
    }

    void theMouseEndsAPressByKeyboard()
    {
        MapCrossHair cross;
        cross.setPicture({30, 20});
        cross.spacePressed();
        cross.goTo({3, 4});
        QVERIFY(!cross.isDown());
        QCOMPARE(cross.spacePressed(), MapCrossHair::Event::Press);
        cross.reset();
        QVERIFY(!cross.isDown());
    }
};

ZEPHIRA_TEST(TstMapDrawing)

#include "tst_mapdrawing.moc"

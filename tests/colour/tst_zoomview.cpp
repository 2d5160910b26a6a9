// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/spynotations.h"
#include "colour/zoomview.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// What the colour spy and its magnified view are made of.
class TstZoomView final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theNotationForAPage_data()
    {
        QTest::addColumn<int>("red");
        QTest::addColumn<int>("green");
        QTest::addColumn<int>("blue");
        QTest::addColumn<QString>("text");
        QTest::newRow("black") << 0 << 0 << 0 << u"#000000"_s;
        QTest::newRow("white") << 255 << 255 << 255 << u"#FFFFFF"_s;
        QTest::newRow("one digit stays one") << 15 << 16 << 255 << u"#F10FF"_s;
        QTest::newRow("only nought is doubled") << 0 << 1 << 9 << u"#0019"_s;
        QTest::newRow("in order") << 0x12 << 0x34 << 0x56 << u"#123456"_s;
    }

    void theNotationForAPage()
    {
        QFETCH(int, red);
        QFETCH(int, green);
        QFETCH(int, blue);
        QTEST(spyNotation({static_cast<quint8>(red), static_cast<quint8>(green), static_cast<quint8>(blue)}), "text");
    }

    void aSizeThatDividesEvenly()
    {
        const ZoomView view = zoomView({100, 80}, {200, 120});
        QCOMPARE(view.area, QRect(90, 74, 20, 12));
        QCOMPARE(view.stretched, QSize(200, 120));
        QCOMPARE(view.lines.size(), 20 + 12);
        QCOMPARE(view.lines.at(0), QRect(0, 0, 1, 120));
        QCOMPARE(view.lines.at(1), QRect(10, 0, 1, 120));
        QCOMPARE(view.lines.at(19), QRect(190, 0, 1, 120));
        QCOMPARE(view.lines.at(20), QRect(0, 0, 200, 1));
        QCOMPARE(view.lines.at(31), QRect(0, 110, 200, 1));
        QCOMPARE(view.frame,
                 (std::array<QRect, 4>{QRect(91, 51, 18, 5), QRect(91, 51, 5, 18), QRect(91, 66, 18, 5),
                                       QRect(106, 51, 5, 18)}));
    }

    void aSizeThatLeavesARest()
    {
        const ZoomView view = zoomView({0, 0}, {205, 99});
        QCOMPARE(view.area, QRect(-10, -4, 21, 10));
        QCOMPARE(view.stretched, QSize(210, 100));
        QCOMPARE(view.frame.front().topLeft(), QPoint(102 - 9, 49 - 9));
    }

    void theAreaForEverySize()
    {
        for (int side = 1; side < 500; ++side) {
            const ZoomView view = zoomView({1000, 1000}, {side, side});
            QCOMPARE(1000 - view.area.x(), static_cast<int>(side / 2.0 / 10));
            const int whole = side / 10;
            QCOMPARE(view.area.width(), whole * 10 < side ? whole + 1 : whole);
            QCOMPARE(view.area.height(), view.area.width());
        }
    }

    void theFactor()
    {
        QCOMPARE(zoomFactor, 10);
        const ZoomView view = zoomView({50, 50}, {40, 40}, 4);
        QCOMPARE(view.area, QRect(45, 45, 10, 10));
        QCOMPARE(view.lines.size(), 20);
    }

    void ticks()
    {
        ZoomTicks ticks;
        const ZoomTicks::Due nothing;
        const ZoomTicks::Due moved{.redraw = true};
        const ZoomTicks::Due refreshed{.redraw = true, .raise = true};
        QCOMPARE(ticks.tick({1, 1}, true), nothing);
        QCOMPARE(ticks.tick({1, 1}, false), moved);
        for (int round = 0; round < 3; ++round) {
            for (int i = 0; i < 4; ++i)
                QCOMPARE(ticks.tick({1, 1}, false), nothing);
            QCOMPARE(ticks.tick({1, 1}, false), refreshed);
        }
        // A move begins the wait anew.
        for (int i = 0; i < 4; ++i)
            QCOMPARE(ticks.tick({1, 1}, false), nothing);
        QCOMPARE(ticks.tick({2, 1}, true), nothing);
        QCOMPARE(ticks.tick({2, 1}, false), refreshed);
        QCOMPARE(ticks.tick({2, 2}, false), moved);
        QCOMPARE(ticks.tick({2, 2}, false), nothing);
    }

    void theWindowDodges()
    {
        const QRect screen(0, 0, 1000, 800);
        const QRect window(0, 0, 200, 200);
        QCOMPARE(placeAwayFrom({400, 400}, window, screen), QPoint(0, 0));
        QCOMPARE(placeAwayFrom({100, 100}, window, screen), QPoint(800, 600));
        QCOMPARE(placeAwayFrom({210, 100}, window, screen), QPoint(800, 600));
        QCOMPARE(placeAwayFrom({900, 700}, {800, 600, 200, 200}, screen), QPoint(0, 0));
        // Wherever the pointer is, the window doesn't lie under it afterwards, on a second screen as well.
        const QRect second(1000, -200, 1280, 1024);
        for (int x = second.left(); x <= second.right(); x += 13) {
            for (int y = second.top(); y <= second.bottom(); y += 11) {
                const QRect under({x - 50, y - 50}, QSize(200, 200));
                const QRect placed(placeAwayFrom({x, y}, under, second), under.size());
                QVERIFY(!placed.contains(x, y));
                QVERIFY(second.contains(placed));
            }
        }
    }
};

ZEPHIRA_TEST(TstZoomView)
#include "tst_zoomview.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "wizards/framebars.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

using Bar = FrameBars::Bar;

class TstFrameBars final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults()
    {
        const FrameBars bars;
        QCOMPARE(bars.left(), 50.0);
        QCOMPARE(bars.top(), 50.0);
        QCOMPARE(bars.verticalLabel(), u"50 %"_s);
        QCOMPARE(bars.horizontalLabel(), u"50 %"_s);
        QCOMPARE(bars.colPercent(), qint16(51));
        QCOMPARE(bars.rowPercent(), qint16(51));
        QVERIFY(!bars.TrackV() && !bars.TrackH());
    }

    void nothingFollowsBeforeAChoice()
    {
        FrameBars bars;
        bars.click();
        QVERIFY(!bars.moveTo(10, 10));
        QVERIFY(!bars.moveBy(1, 1));
        QCOMPARE(bars.left(), 50.0);
        QCOMPARE(bars.top(), 50.0);
        QCOMPARE(bars.verticalLabel(), u"50 %"_s);
    }

    void places_data()
    {
        QTest::addColumn<double>("place");
        QTest::addColumn<QString>("label");
        QTest::addColumn<int>("percent");
        // The bar stands one unit behind the mouse.
        QTest::newRow("at the mouse's 49") << 49.0 << u"49 %"_s << 51;
        QTest::newRow("a part of a unit") << 49.9 << u"49 %"_s << 50;
        QTest::newRow("far right") << 99.0 << u"99 %"_s << 1;
        QTest::newRow("at the edge") << 100.0 << u"100 %"_s << 0;
        QTest::newRow("beyond") << 150.5 << u"100 %"_s << -51;
        QTest::newRow("at 0.5 units") << -0.5 << u"0 %"_s << 100;
        QTest::newRow("before") << -31.0 << u"0 %"_s << 131;
        QTest::newRow("left edge") << 0.0 << u"0 %"_s << 100;
        QTest::newRow("far outside") << 1e9 << u"100 %"_s << -32768;
    }

    void places()
    {
        QFETCH(double, place);
        FrameBars bars;
        bars.arm(Bar::Vertical);
        QVERIFY(bars.moveTo(place, 7));
        QCOMPARE(bars.left(), place + 1);
        QTEST(bars.verticalLabel(), "label");
        QTEST(static_cast<int>(bars.colPercent()), "percent");
        QCOMPARE(bars.top(), 50.0);
        bars.arm(Bar::Horizontal);
        QVERIFY(bars.moveTo(7, place));
        QCOMPARE(bars.top(), place + 1);
        QTEST(bars.horizontalLabel(), "label");
        QTEST(static_cast<int>(bars.rowPercent()), "percent");
        QCOMPARE(bars.left(), place + 1);
        // It comes back with the mouse.
        QVERIFY(bars.moveTo(7, 20));
        QCOMPARE(bars.top(), 21.0);
    }

    void clicksDropAndPickUp()
    {
        FrameBars bars;
        bars.arm(Bar::Vertical);
        QVERIFY(bars.TrackV());
        bars.moveTo(20, 0);
        bars.click();
        QVERIFY(!bars.TrackV());
        QVERIFY(!bars.moveTo(70, 70));
        QVERIFY(!bars.moveBy(1, 0));
        QCOMPARE(bars.left(), 21.0);
        bars.click();
        QVERIFY(bars.moveTo(70, 70));
        QCOMPARE(bars.left(), 71.0);
        bars.click();
        // The other choice arms its bar, whatever became of the first.
        bars.arm(Bar::Horizontal);
        QVERIFY(bars.TrackH() && !bars.TrackV());
        bars.click();
        QVERIFY(!bars.TrackH() && !bars.TrackV());
        // Choosing it again arms it again.
        bars.arm(Bar::Horizontal);
        QVERIFY(bars.TrackH());
    }

    void steps()
    {
        FrameBars bars;
        bars.arm(Bar::Vertical);
        QVERIFY(bars.moveBy(1, 0));
        QCOMPARE(bars.left(), 51.0);
        QCOMPARE(bars.verticalLabel(), u"50 %"_s);
        QVERIFY(bars.moveBy(-2, 5));
        QCOMPARE(bars.left(), 49.0);
        QCOMPARE(bars.top(), 50.0);
        QCOMPARE(bars.verticalLabel(), u"48 %"_s);
        bars.arm(Bar::Horizontal);
        bars.moveBy(3, -1);
        QCOMPARE(bars.left(), 49.0);
        QCOMPARE(bars.top(), 49.0);
        QCOMPARE(bars.horizontalLabel(), u"48 %"_s);
    }
};

ZEPHIRA_TEST(TstFrameBars)

#include "tst_framebars.moc"

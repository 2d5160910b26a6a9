// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/editplaces.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;

class TstEditPlaces : public QObject
{
    Q_OBJECT

private:
    /// Places of one ten are one.
    static bool isNear(qsizetype a, qsizetype b) { return a / 10 == b / 10; }

private Q_SLOTS:
    void newestFirst()
    {
        EditPlaces places;
        QCOMPARE(places.next(0), -1);
        places.inserted(12, 2, isNear);
        places.inserted(32, 1, isNear);
        places.inserted(52, 1, isNear);
        QCOMPARE(places.next(0), 53);
        QCOMPARE(places.next(53), 33);
        QCOMPARE(places.next(33), 14);
        QCOMPARE(places.next(14), 53);
        // The caret is there already.
        places.removed(52, 1, isNear);
        QCOMPARE(places.next(52), 33);
        places.clear();
        QCOMPARE(places.next(0), -1);
    }

    void neighboursAreOne()
    {
        EditPlaces places;
        places.inserted(12, 1, isNear);
        places.inserted(13, 1, isNear);
        QCOMPARE(places.next(0), 14);
        QCOMPARE(places.next(14), 14);
    }

    void theyMoveWithTheText()
    {
        EditPlaces places;
        places.inserted(50, 1, isNear);
        places.inserted(2, 10, isNear);
        QCOMPARE(places.next(12), 61);
        places.removed(0, 20, isNear);
        QCOMPARE(places.next(0), 41);
        // What was around a place is gone.
        places.removed(10, 100, isNear);
        QCOMPARE(places.next(5), 10);
        places.next(5);
        QVERIFY(places.next(5) <= 10);
    }

    void onlySoManyAreKept()
    {
        EditPlaces places;
        const auto none = [](qsizetype, qsizetype) { return false; };
        for (int i = 0; i < 100; ++i)
            places.inserted(i * 10, 1, none);
        const qsizetype newest = places.next(0);
        std::size_t count = 1;
        while (places.next(0) != newest)
            ++count;
        QCOMPARE(count, EditPlaces::mostPlaces);
    }
};

ZEPHIRA_TEST(TstEditPlaces)

#include "tst_editplaces.moc"

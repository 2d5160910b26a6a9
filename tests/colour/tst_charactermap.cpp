// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/charactermap.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;

class TstCharacterMap final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theIndexCountsFromOne()
    {
        CharacterMap map;
        QCOMPARE(map.index(), 1);
        QCOMPARE(map.code(), 32);
        for (int row = 0; row < 7; ++row) {
            for (int column = 0; column < 32; ++column) {
                map.setCell({row, column});
                QCOMPARE(map.index(), 1 + column + 32 * row);
                QCOMPARE(map.code(), 32 + row * 32 + column);
                QCOMPARE(map.cell(), (MapCell{row, column}));
                QCOMPARE(CharacterMap::codeOf({row, column}), map.code());
            }
        }
        QCOMPARE(map.code(), 255);
    }

    void anIndexOutsideChangesNothing()
    {
        CharacterMap map;
        map.setIndex(100);
        for (const int index : {0, -1, 225, 1000}) {
            map.setIndex(index);
            QCOMPARE(map.index(), 100);
        }
    }

    void steps()
    {
        CharacterMap map;
        map.stepSideways(-1);
        map.stepDown(-1);
        QCOMPARE(map.index(), 1);
        map.stepDown(1);
        QCOMPARE(map.cell(), (MapCell{1, 0}));
        map.stepSideways(-1);
        QCOMPARE(map.cell(), (MapCell{0, 31}));
        map.toRowStart();
        QCOMPARE(map.cell(), (MapCell{0, 0}));
        map.toRowEnd();
        map.stepSideways(1);
        QCOMPARE(map.cell(), (MapCell{1, 0}));
        map.toEnd();
        QCOMPARE(map.cell(), (MapCell{6, 31}));
        map.stepDown(1);
        map.stepSideways(1);
        QCOMPARE(map.cell(), (MapCell{6, 31}));
        map.toStart();
        QCOMPARE(map.index(), 1);
    }

    void cellsAreWholePixels()
    {
        const QSize map(32 * 10 + 31, 7 * 12 + 6);
        QCOMPARE(cellSize(map), QSize(10, 12));
        QCOMPARE(cellRect({6, 31}, map), QRect(310, 72, 10, 12));
        QCOMPARE(cellAt({0, 0}, map), MapCell());
        QCOMPARE(cellAt({9, 11}, map), MapCell());
        QCOMPARE(cellAt({10, 12}, map), (MapCell{1, 1}));
        QCOMPARE(cellAt({319, 83}, map), (MapCell{6, 31}));
        QCOMPARE(cellAt({320, 83}, map), std::nullopt);
        QCOMPARE(cellAt({319, 84}, map), std::nullopt);
        QCOMPARE(cellAt({-1, 0}, map), std::nullopt);
        QCOMPARE(cellAt({0, -1}, map), std::nullopt);
        QCOMPARE(cellAt({0, 0}, {31, 6}), std::nullopt);
    }

    void thePlaceBesideThePointer()
    {
        const QRect bounds(0, 0, 200, 100);
        QCOMPARE(placeBeside({10, 20}, {40, 40}, bounds), QPoint(24, 34));
        QCOMPARE(placeBeside({146, 46}, {40, 40}, bounds), QPoint(160, 60));
        QCOMPARE(placeBeside({147, 20}, {40, 40}, bounds), QPoint(93, 34));
        QCOMPARE(placeBeside({10, 47}, {40, 40}, bounds), QPoint(24, -7));
    }
};

ZEPHIRA_TEST(TstCharacterMap)
#include "tst_charactermap.moc"

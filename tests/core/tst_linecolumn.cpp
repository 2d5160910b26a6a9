// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/linecolumn.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstLineColumn : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesEndInThreeWays_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("column");

        QTest::newRow("beginning") << 0 << 0 << 0;
        QTest::newRow("first line's end") << 2 << 0 << 2;
        QTest::newRow("behind CR LF") << 4 << 1 << 0;
        QTest::newRow("behind CR") << 6 << 2 << 0;
        QTest::newRow("behind LF") << 8 << 3 << 0;
        QTest::newRow("empty line") << 9 << 4 << 0;
        QTest::newRow("end") << 11 << 4 << 2;
    }

    void linesEndInThreeWays()
    {
        QFETCH(int, index);
        QFETCH(int, line);
        QFETCH(int, column);
        const QString text = u"ab\r\nc\rd\n\nef"_s;
        QCOMPARE(lineColumnOf(text, index), (LineColumn{line, column}));
        QCOMPARE(indexOf(text, {line, column}), index);
    }

    void placesThatAreNotThere()
    {
        QCOMPARE(indexOf(u"ab\r\nc", {0, 7}), 2);
        QCOMPARE(indexOf(u"ab\r\nc", {1, 7}), 5);
        QCOMPARE(indexOf(u"ab\r\nc", {5, 0}), 5);
        QCOMPARE(indexOf(u"", {0, 0}), 0);
        QCOMPARE(lineColumnOf(u"", 0), LineColumn());
    }
};

ZEPHIRA_TEST(TstLineColumn)
#include "tst_linecolumn.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/linetext.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;

class TstLineText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void joined_data()
    {
        QTest::addColumn<QByteArray>("lines");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("two") << QByteArray("one\ntwo") << QByteArray("one two");
        QTest::newRow("blanks around the line end") << QByteArray("one \t\r\n\t two") << QByteArray("one two");
        QTest::newRow("empty ones between") << QByteArray("one\n\n \n two") << QByteArray("one two");
        QTest::newRow("indentation of the first stays") << QByteArray("  one\n  two") << QByteArray("  one two");
        QTest::newRow("an empty first one") << QByteArray("\ntwo") << QByteArray("two");
        QTest::newRow("the last end stays") << QByteArray("one\r\ntwo\r\n") << QByteArray("one two\r\n");
        QTest::newRow("an empty last one") << QByteArray("one\n  ") << QByteArray("one");
        QTest::newRow("nothing") << QByteArray() << QByteArray();
    }

    void joined()
    {
        QFETCH(QByteArray, lines);
        QTEST(joinedLines(lines), "expected");
    }

    void trailingBlanks_data()
    {
        QTest::addColumn<QByteArray>("lines");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("each line") << QByteArray("a \nb\t \r\n c\r") << QByteArray("a\nb\r\n c\r");
        QTest::newRow("lines of blanks") << QByteArray("  \n\t\n") << QByteArray("\n\n");
        QTest::newRow("the last without an end") << QByteArray("a\nb  ") << QByteArray("a\nb");
        QTest::newRow("a blank that isn't one") << QByteArray("a\xc2\xa0\n") << QByteArray("a\xc2\xa0\n");
        QTest::newRow("nothing") << QByteArray() << QByteArray();
    }

    void trailingBlanks()
    {
        QFETCH(QByteArray, lines);
        QTEST(withoutTrailingBlanks(lines), "expected");
    }

    void sorted_data()
    {
        QTest::addColumn<QByteArray>("lines");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("letters and numbers") << QByteArray("b2\nB10\na\nb1") << QByteArray("a\nb1\nb2\nB10");
        QTest::newRow("alike ones stay") << QByteArray("b\nA\na\nA\n") << QByteArray("A\na\nA\nb\n");
        QTest::newRow("accents") << QByteArray("z\n\xc3\xa9\nf\ne") << QByteArray("e\n\xc3\xa9\nf\nz");
        QTest::newRow("each end stays in its place") << QByteArray("b\r\na\nc") << QByteArray("a\r\nb\nc");
        QTest::newRow("no end at the last") << QByteArray("b\na") << QByteArray("a\nb");
        QTest::newRow("empty ones") << QByteArray("b\n\na\n") << QByteArray("\na\nb\n");
        QTest::newRow("nothing") << QByteArray() << QByteArray();
    }

    void sorted()
    {
        QFETCH(QByteArray, lines);
        QTEST(sortedLines(lines, QLocale::c()), "expected");
        QTEST(sortedLines(lines, QLocale(QLocale::English)), "expected");
    }

    void swapped_data()
    {
        QTest::addColumn<QByteArray>("first");
        QTest::addColumn<QByteArray>("second");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("with ends") << QByteArray("a\n") << QByteArray("b\nc\n") << QByteArray("b\nc\na\n");
        QTest::newRow("at the end") << QByteArray("a\r\n") << QByteArray("b") << QByteArray("b\r\na");
        QTest::newRow("an empty one") << QByteArray("a\n") << QByteArray("") << QByteArray("\na");
    }

    void swapped()
    {
        QFETCH(QByteArray, first);
        QFETCH(QByteArray, second);
        QTEST(swappedLines(first, second), "expected");
    }
};

ZEPHIRA_TEST(TstLineText)

#include "tst_linetext.moc"

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
};

ZEPHIRA_TEST(TstLineText)

#include "tst_linetext.moc"

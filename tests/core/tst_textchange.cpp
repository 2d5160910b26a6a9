// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/textchange.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstTextChange : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void applied_data()
    {
        QTest::addColumn<TextChanges>("changes");
        QTest::addColumn<QString>("expected");
        QTest::newRow("none") << TextChanges{} << u"abcdef"_s;
        QTest::newRow("replaced, inserted, removed")
            << TextChanges{{0, 1, u"XY"_s}, {2, 2, u"-"_s}, {4, 6, {}}} << u"XYb-cd"_s;
        QTest::newRow("two at one place") << TextChanges{{3, 3, u"1"_s}, {3, 3, u"2"_s}} << u"abc12def"_s;
        QTest::newRow("all") << TextChanges{{0, 6, u"x"_s}} << u"x"_s;
    }

    void applied()
    {
        QFETCH(TextChanges, changes);
        QVERIFY(areInOrder(changes, 6));
        QTEST(withChanges(u"abcdef", changes), "expected");
    }

    void order()
    {
        QVERIFY(!areInOrder({{2, 3, {}}, {0, 1, {}}}, 6));
        QVERIFY(!areInOrder({{0, 3, {}}, {2, 4, {}}}, 6));
        QVERIFY(!areInOrder({{3, 2, {}}}, 6));
        QVERIFY(!areInOrder({{-1, 2, {}}}, 6));
        QVERIFY(!areInOrder({{5, 7, {}}}, 6));
        QVERIFY(areInOrder({{0, 3, {}}, {3, 6, {}}}, 6));
    }

    void sameEnds_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<TextChange>("change");
        QTest::addColumn<TextChange>("expected");
        const auto row = [](const char *name, const QString &text, const TextChange &change,
                            const TextChange &expected) { QTest::newRow(name) << text << change << expected; };
        row("nothing the same", u"abc"_s, {0, 3, u"xyz"_s}, {0, 3, u"xyz"_s});
        row("nothing changed", u"abc"_s, {0, 3, u"abc"_s}, {3, 3, {}});
        row("in the middle", u"abc"_s, {0, 3, u"axc"_s}, {1, 2, u"x"_s});
        row("a letter twice", u"aa"_s, {0, 2, u"aaa"_s}, {2, 2, u"a"_s});
        row("a letter less", u"aaa"_s, {0, 3, u"aa"_s}, {2, 3, {}});
        row("line ends", u"a\r\nb"_s, {0, 4, u"a\rb"_s}, {1, 3, u"\r"_s});
        row("line ends behind", u"\r\n"_s, {0, 2, u"x\n"_s}, {0, 2, u"x\n"_s});
        row("halves of characters", u"\U0001f600"_s, {0, 2, u"\U0001f601"_s}, {0, 2, u"\U0001f601"_s});
    }

    void sameEnds()
    {
        QFETCH(QString, text);
        QFETCH(TextChange, change);
        const TextChange smaller = withoutSameEnds(text, change);
        QTEST(smaller, "expected");
        QCOMPARE(withChanges(text, {smaller}), withChanges(text, {change}));
    }
};

ZEPHIRA_TEST(TstTextChange)
#include "tst_textchange.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/lineartime.h"
#include "support/testregistry.h"
#include "web/designer/tokenmatch.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

std::vector<int> numbersOf(const QString &text)
{
    std::vector<int> numbers;
    for (const QChar c : text)
        numbers.push_back(c.unicode());
    return numbers;
}

std::vector<int> partners(const QString &first, const QString &second)
{
    return partnersIn(numbersOf(first), numbersOf(second), 0x10000);
}

/// The length of the longest common subsequence, plainly.
size_t longestCommon(const QString &first, const QString &second)
{
    std::vector<size_t> row(static_cast<size_t>(second.size()) + 1);
    for (const QChar c : first) {
        size_t diagonal = 0;
        for (size_t place = 1; place < row.size(); ++place) {
            const size_t above = row[place];
            row[place] =
                second[static_cast<qsizetype>(place - 1)] == c ? diagonal + 1 : std::max(above, row[place - 1]);
            diagonal = above;
        }
    }
    return row.back();
}

QString letters(QRandomGenerator &random, int length, int kinds)
{
    QString text;
    for (int index = 0; index < length; ++index)
        text += QChar(u'a' + random.bounded(kinds));
    return text;
}

} // namespace

class TstTokenMatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matched_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<std::vector<int>>("expected");
        const auto row = [](const QString &first, const QString &second, const std::vector<int> &expected) {
            QTest::newRow(qPrintable(first + u" and "_s + second)) << first << second << expected;
        };
        row(u""_s, u""_s, {});
        row(u""_s, u"ab"_s, {-1, -1});
        row(u"ab"_s, u""_s, {});
        row(u"abc"_s, u"abc"_s, {0, 1, 2});
        row(u"abc"_s, u"axc"_s, {0, -1, 2});
        row(u"abc"_s, u"xyz"_s, {-1, -1, -1});
        row(u"xaby"_s, u"vabw"_s, {-1, 1, 2, -1});
        row(u"aab"_s, u"ab"_s, {0, 2});
        row(u"1a2b3"_s, u"4b5a6"_s, {-1, 3, -1, -1, -1});
        row(u"xxyxx"_s, u"xxxx"_s, {0, 1, 3, 4});
    }

    void matched()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        QTEST(partners(first, second), "expected");
    }

    /// Partners are equal and ascend; where no letter is unique, as many as possible have one.
    void random()
    {
        QRandomGenerator random(11);
        for (int round = 0; round < 2000; ++round) {
            const int kinds = random.bounded(1, 20);
            const QString first = letters(random, random.bounded(40), kinds);
            const QString second = letters(random, random.bounded(40), kinds);
            const std::vector<int> found = partners(first, second);
            size_t count = 0;
            int last = -1;
            for (size_t place = 0; place < found.size(); ++place) {
                if (found[place] < 0)
                    continue;
                ++count;
                QVERIFY(found[place] > last);
                last = found[place];
                QCOMPARE(first[last], second[static_cast<qsizetype>(place)]);
            }
            // No letter is unique here, and no end agrees.
            const QString twice = u'X' + first + first + u'Y';
            const QString other = u'V' + second + second + u'W';
            const std::vector<int> all = partners(twice, other);
            const auto paired = static_cast<size_t>(std::ranges::count_if(all, [](int each) { return each >= 0; }));
            QCOMPARE(paired, longestCommon(twice, other));
            QVERIFY(count <= longestCommon(first, second));
        }
    }

    /// Lists with more differences than the shortest way is looked for: they are walked through.
    void manyDifferences()
    {
        QString first;
        QString second;
        for (int index = 0; index < 5000; ++index) {
            first += u"abcde"_s;
            second += u"abcXde"_s;
        }
        const std::vector<int> found = partners(first, second);
        QCOMPARE(std::ranges::count_if(found, [](int each) { return each >= 0; }), 25000);
    }

    void linear_data()
    {
        QTest::addColumn<QString>("firstUnit");
        QTest::addColumn<QString>("secondUnit");
        QTest::newRow("the same") << u"abc"_s << u"abc"_s;
        QTest::newRow("one more each time") << u"abc"_s << u"abcd"_s;
        QTest::newRow("nothing in common") << u"abc"_s << u"def"_s;
        QTest::newRow("in another order") << u"abc"_s << u"cba"_s;
    }

    void linear()
    {
        QFETCH(QString, firstUnit);
        QFETCH(QString, secondUnit);
        const double times = timesForTenTimes([&](qsizetype count) { return firstUnit.repeated(count); }, 20000,
                                              [&](const QString &text) {
                                                  const qsizetype count = text.size() / firstUnit.size();
                                                  partners(text, secondUnit.repeated(count));
                                              });
        QVERIFY2(times <= mostOfLinear, qPrintable(QString::number(times)));
    }
};

ZEPHIRA_TEST(TstTokenMatch)
#include "tst_tokenmatch.moc"
